// SPDX-License-Identifier: MIT
#include "corvex/project/ElementIndex.h"

#include "corvex/project/Element.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

void ElementIndex::insert(Element *element)
{
    m_byName.insert(element->getIdName(), element);
    m_channelsKnown = false;
}

void ElementIndex::remove(Element *element)
{
    m_byName.remove(element->getIdName(), element);
    nameFreed(element->getIdName());
    m_channelsKnown = false;
}

void ElementIndex::rename(Element *element, const QString &oldName)
{
    if (m_byName.remove(oldName, element) > 0) {
        m_byName.insert(element->getIdName(), element);
        nameFreed(oldName);
    }
}

//! "pump12" may be number 12 of "pump" and number 2 of "pump1".
void ElementIndex::nameFreed(const QString &name)
{
    for (qsizetype digits = 1; digits < name.size() && name.at(name.size() - digits).isDigit(); ++digits) {
        const auto known = m_numbers.find(name.chopped(digits));
        bool isNumber = false;
        const int number = QStringView(name).last(digits).toInt(&isNumber);
        if (known != m_numbers.end() && isNumber && number < known->next) {
            known->gaps.insert(number);
        }
    }
}

void ElementIndex::clear()
{
    *this = {};
}

QString ElementIndex::freeName(const QString &base, const std::function<bool(const QString &name)> &isTaken)
{
    auto &[next, gaps] = m_numbers[base];
    for (auto gap = gaps.begin(); gap != gaps.end();) {
        const QString name = base + QString::number(*gap);
        if (m_byName.contains(name)) {
            gap = gaps.erase(gap);
        } else if (isTaken && isTaken(name)) {
            ++gap;
        } else {
            return name;
        }
    }
    for (;; ++next) {
        const QString name = base + QString::number(next);
        if (m_byName.contains(name)) {
            continue;
        }
        if (!isTaken || !isTaken(name)) {
            return name;
        }
        gaps.insert(next);
    }
}

QList<const DesignerObject *> ElementIndex::withChannel(const QString &className,
                                                        const QString &channel) const
{
    if (!m_channelsKnown) {
        m_byChannel.clear();
        for (const Element *element : m_byName) {
            const bool mayHaveChannel = element->isKindOfClass(u"HardwareElement"_s);
            if (const SharedProperty property =
                    mayHaveChannel ? element->getProperty(u"channel") : SharedProperty()) {
                m_byChannel.insert({element->className(), property->valueString()}, element);
            }
        }
        m_channelsKnown = true;
    }
    return m_byChannel.values({className, channel});
}

} // namespace Halvane::Corvex::Designer
