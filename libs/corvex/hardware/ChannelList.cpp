// SPDX-License-Identifier: MIT
#include "corvex/hardware/ChannelList.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::EnumHelper;

namespace {

const QString &wordOf(ChannelList::Type type)
{
    return EnumHelper::inputOutputTypeNames().at(type);
}

bool isOneOf(const QString &word, std::initializer_list<ChannelList::Type> types)
{
    return std::ranges::any_of(types, [&](ChannelList::Type type) { return word == wordOf(type); });
}

} // namespace

ChannelList::ChannelList(QStringView text)
{
    QString words;
    words.reserve(text.size());
    std::ranges::copy_if(text, std::back_inserter(words), [](QChar c) { return !c.isSpace(); });
    if (!words.isEmpty()) {
        m_words = words.split(u',');
    }
}

ChannelList::ChannelList(const ChannelMap &channels)
{
    for (auto channel = channels.lowerBound(1); channel != channels.cend(); ++channel) {
        if (channel.key() > highestChannel) {
            break;
        }
        m_words.resize(channel.key() - 1, wordOf(EnumHelper::UNUSED));
        m_words.append(EnumHelper::inputOutputTypeNames().value(channel.value(), wordOf(EnumHelper::UNUSED)));
    }
}

bool ChannelList::isUsed(qsizetype channel) const
{
    return channel >= 1 && channel <= m_words.size() && m_words.at(channel - 1) != wordOf(EnumHelper::UNUSED);
}

bool ChannelList::isAnyUsed() const
{
    return firstOther({EnumHelper::UNUSED}).has_value();
}

bool ChannelList::contains(Type type) const
{
    return m_words.contains(wordOf(type));
}

std::optional<QString> ChannelList::firstOther(std::initializer_list<Type> types) const
{
    const auto other =
        std::ranges::find_if_not(m_words, [&](const QString &word) { return isOneOf(word, types); });
    return other == m_words.cend() ? std::nullopt : std::optional(*other);
}

void ChannelList::release(qsizetype channel)
{
    if (isUsed(channel)) {
        m_words[channel - 1] = wordOf(EnumHelper::UNUSED);
    }
}

void ChannelList::release(std::initializer_list<Type> types)
{
    for (QString &word : m_words) {
        if (isOneOf(word, types)) {
            word = wordOf(EnumHelper::UNUSED);
        }
    }
}

ChannelList::ChannelMap ChannelList::toMap() const
{
    ChannelMap channels;
    for (const QString &word : m_words) {
        channels.insert(channels.cend(), int(channels.size()) + 1, EnumHelper::toInputOutputType(word));
    }
    return channels;
}

QString ChannelList::toString() const
{
    return m_words.join(u", "_s);
}

} // namespace Halvane::Corvex::Designer
