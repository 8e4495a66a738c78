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
        const auto known = m_firstFree.find(name.chopped(digits));
        bool isNumber = false;
        const int number = QStringView(name).last(digits).toInt(&isNumber);
        if (known != m_firstFree.end() && isNumber && number < *known) {
            *known = number;
        }
    }
}

void ElementIndex::clear()
{
    *this = {};
}

QString ElementIndex::freeName(const QString &base, const std::function<bool(const QString &name)> &isTaken)
{
    int &firstFree = m_firstFree[base];
    firstFree = std::max(firstFree, 1);
    for (int number = firstFree;; ++number) {
        const QString name = base + QString::number(number);
        if (m_byName.contains(name)) {
            firstFree += number == firstFree ? 1 : 0;
        } else if (!isTaken || !isTaken(name)) {
            return name;
        }
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
