// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/EnumHelper.h"
#include "corvex/common/Export.h"

#include <QMap>
#include <QStringList>

#include <initializer_list>
#include <optional>
#include <utility>

namespace Halvane::Corvex::Designer {

//! What each channel of a device is used for, as text "INPUT, OUTPUT, UNUSED": one word of
//! EnumHelper::InputOutputType per channel. Channels are numbered from 1; an empty text has none. Unknown
//! words are kept, so that the validators can report them.
class CORVEX_EXPORT ChannelList
{
public:
    using Type = Common::EnumHelper::InputOutputType;
    using ChannelMap = QMap<int, Type>;

    ChannelList() = default;
    //! All whitespace is ignored.
    explicit ChannelList(QStringView text);
    //! Missing numbers become free channels. Numbers below 1 or above highestChannel are ignored; no device
    //! has such channels.
    explicit ChannelList(const ChannelMap &channels);

    static constexpr int highestChannel = 1024;

    qsizetype count() const { return m_words.size(); }
    const QStringList &words() const & { return m_words; }
    QStringList words() && { return std::move(m_words); }
    //! Whether the channel exists and is not free.
    bool isUsed(qsizetype channel) const;
    bool isAnyUsed() const;
    bool contains(Type type) const;
    //! The first word that is not one of \a types.
    std::optional<QString> firstOther(std::initializer_list<Type> types) const;

    //! Frees one channel, or all channels of the given types.
    void release(qsizetype channel);
    void release(std::initializer_list<Type> types);

    //! Unknown words count as free channels.
    ChannelMap toMap() const;
    QString toString() const;

private:
    QStringList m_words;
};

} // namespace Halvane::Corvex::Designer
