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

/*! What each channel of a device is used for, as text "INPUT, OUTPUT, UNUSED": one word of
    EnumHelper::InputOutputType per channel. Channels are numbered from 1; an empty text has none. Words that
    are none of these are kept, for the validators to tell.
*/
class CORVEX_EXPORT ChannelList
{
public:
    using Type = Common::EnumHelper::InputOutputType;
    using ChannelMap = QMap<int, Type>;

    ChannelList() = default;
    //! Blanks mean nothing, wherever they stand.
    explicit ChannelList(QStringView text);
    //! Numbers that are left out between others are free channels. No device has a channel below 1 or above
    //! highestChannel; such numbers are passed over.
    explicit ChannelList(const ChannelMap &channels);

    static constexpr int highestChannel = 1024;

    qsizetype count() const { return m_words.size(); }
    const QStringList &words() const & { return m_words; }
    QStringList words() && { return std::move(m_words); }
    //! Whether there is such a channel and it is not free.
    bool isUsed(qsizetype channel) const;
    bool isAnyUsed() const;
    bool contains(Type type) const;
    //! The first word that is none of these.
    std::optional<QString> firstOther(std::initializer_list<Type> types) const;

    //! Frees one channel, or all channels of some types.
    void release(qsizetype channel);
    void release(std::initializer_list<Type> types);

    //! A word that is not known counts as a free channel.
    ChannelMap toMap() const;
    QString toString() const;

private:
    QStringList m_words;
};

} // namespace Halvane::Corvex::Designer
