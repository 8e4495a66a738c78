// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

#include <concepts>

namespace Halvane::Corvex::Designer {

//! The errors of an input or an output. Every combination is valid. The property that holds the record
//! defines the text form.
class CORVEX_EXPORT IOErrorInfo
{
public:
    IOErrorInfo() = default;
    IOErrorInfo(bool ioError, bool idError)
        : m_ioError(ioError)
        , m_idError(idError)
    { }

    bool ioError() const { return m_ioError; }
    void setIoError(bool error) { m_ioError = error; }
    bool idError() const { return m_idError; }
    void setIdError(bool error) { m_idError = error; }

    bool isValid() const { return true; }

    friend bool operator==(const IOErrorInfo &, const IOErrorInfo &) = default;

private:
    bool m_ioError = false;
    bool m_idError = false;
};

//! The errors that can occur when a received message is decoded. Every combination is valid.
class CORVEX_EXPORT ReceiveErrorInfo
{
public:
    ReceiveErrorInfo() = default;
    ReceiveErrorInfo(bool nameError, bool valueError, bool typeError, bool dataFlowError);
    //! "name: true, value: false, type: false, dataFlow: false"
    explicit ReceiveErrorInfo(const QString &text, bool *ok = nullptr);

    bool nameError() const { return m_nameError; }
    void setNameError(bool error) { m_nameError = error; }
    bool valueError() const { return m_valueError; }
    void setValueError(bool error) { m_valueError = error; }
    bool typeError() const { return m_typeError; }
    void setTypeError(bool error) { m_typeError = error; }
    bool dataFlowError() const { return m_dataFlowError; }
    void setDataFlowError(bool error) { m_dataFlowError = error; }

    QString toString() const;
    bool isValid() const { return true; }

    friend bool operator==(const ReceiveErrorInfo &, const ReceiveErrorInfo &) = default;

private:
    bool m_nameError = false;
    bool m_valueError = false;
    bool m_typeError = false;
    bool m_dataFlowError = false;
};

//! The errors that can occur when data is sent to another device. Every combination is valid.
class CORVEX_EXPORT SendErrorInfo
{
public:
    SendErrorInfo() = default;
    //! Restricted to bool. Otherwise a string literal would convert to bool and bypass the constructor that
    //! reads texts.
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
