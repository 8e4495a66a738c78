// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <concepts>

namespace Halvane::Corvex::Designer {

//! The errors that sending to another device can meet. Every combination is valid.
class SendErrorInfo
{
public:
    SendErrorInfo() = default;
    //! Takes nothing but bool: a literal and an ok pointer would convert, too, and miss the reader of texts.
    template<std::same_as<bool> Flag>
    SendErrorInfo(Flag isBusy, Flag isOffline)
        : m_isBusy(isBusy)
        , m_isOffline(isOffline)
    { }
    //! "busy: false, offline: true"
    explicit SendErrorInfo(const QString &text, bool *ok = nullptr);

    bool isBusy() const { return m_isBusy; }
    void setIsBusy(bool isBusy) { m_isBusy = isBusy; }
    bool isOffline() const { return m_isOffline; }
    void setIsOffline(bool isOffline) { m_isOffline = isOffline; }

    QString toString() const;
    bool isValid() const { return true; }

    friend bool operator==(const SendErrorInfo &, const SendErrorInfo &) = default;

private:
    bool m_isBusy = false;
    bool m_isOffline = false;
};

} // namespace Halvane::Corvex::Designer
