// SPDX-License-Identifier: MIT
#include "corvex/project/elements/ElementIndex.h"

#include "corvex/project/elements/Element.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! Null if the element has no channel.
SharedProperty channelOf(const DesignerObject *element)
{
    const bool mayHaveChannel = element->isKindOfClass(u"HardwareElement"_s);
    return mayHaveChannel ? element->getProperty(u"channel") : SharedProperty();
}

} // namespace

void ElementIndex::insert(Element *element)
{
    m_byName.insert(element);
    count(element->getIdName(), 1);
    if (const SharedProperty channel = m_channelsKnown ? channelOf(element) : SharedProperty()) {
        m_byChannel.insert({element->className(), channel->valueString()}, element);
    }
}

void ElementIndex::remove(Element *element)
{
    if (m_byName.remove(element->getIdName(), element)) {
        count(element->getIdName(), -1);
    }
    nameFreed(element->getIdName());
    forgetChannelOf(element);
}

void ElementIndex::forgetChannelOf(Element *element)
{
    const SharedProperty channel = m_channelsKnown ? element->getProperty(u"channel") : SharedProperty();
    if (!channel) {
        return;
    }
    if (!m_byChannel.remove({element->className(), channel->valueString()}, element)) {
        // An element in its destructor no longer knows its class, so clear all channels.
        m_byChannel.clear();
        m_channelsKnown = false;
    }
}

void ElementIndex::changeChannel(DesignerObject *element, const QString &oldChannel)
{
    if (!m_channelsKnown) {
        return;
    }
    m_byChannel.remove({element->className(), oldChannel}, element);
    m_byChannel.insert({element->className(), element->getProperty(u"channel")->valueString()}, element);
}

void ElementIndex::rename(Element *element, const QString &oldName)
{
    if (m_byName.remove(oldName, element)) {
        m_byName.insert(element);
        count(oldName, -1);
        count(element->getIdName(), 1);
        nameFreed(oldName);
    }
}

//! "pump12" may be number 12 of "pump" or number 2 of "pump1".
void ElementIndex::nameFreed(const QString &name)
{
    const qsizetype most = std::min<qsizetype>(name.size() - 1, std::numeric_limits<int>::digits10);
    for (qsizetype digits = 1; digits <= most && name.at(name.size() - digits).isDigit(); ++digits) {
        const auto known = m_numbers.find(name.chopped(digits));
        bool isNumber = false;
        const int number = QStringView(name).last(digits).toInt(&isNumber);
        if (known != m_numbers.end() && isNumber && number > 0 && number < known->next) {
            known->gaps.insert(number);
        }
    }
}

void ElementIndex::clear()
{
    countIn(nullptr);
    *this = {};
}

void ElementIndex::countIn(NameCounts *counts)
{
    const auto countAll = [this](int by) {
        for (const DesignerObject *element : m_counts ? m_byName.objects() : QList<DesignerObject *>()) {
            count(element->getIdName(), by);
        }
    };
    countAll(-1);
    m_counts = counts;
    countAll(1);
}

void ElementIndex::count(const QString &name, int by)
{
    if (m_counts && ((*m_counts)[name] += by) <= 0) {
        m_counts->remove(name);
    }
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

QList<DesignerObject *> ElementIndex::withChannel(const QString &className, const QString &channel) const
{
    return channels().values({className, channel});
}

const DesignerObject *ElementIndex::otherWithChannel(const DesignerObject *element,
                                                     const QString &channel) const
{
    const auto [begin, end] = channels().equal_range({element->className(), channel});
    const auto other = std::find_if(begin, end, [element](const DesignerObject *e) { return e != element; });
    return other == end ? nullptr : *other;
}

const ElementIndex::Channels &ElementIndex::channels() const
{
    if (!m_channelsKnown) {
        for (DesignerObject *element : m_byName.objects()) {
            if (const SharedProperty property = channelOf(element)) {
                m_byChannel.insert({element->className(), property->valueString()}, element);
            }
        }
        m_channelsKnown = true;
    }
    return m_byChannel;
}

} // namespace Halvane::Corvex::Designer
