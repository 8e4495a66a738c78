// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Halvane::Corvex::Designer {

//! The errors that decoding a received message can meet. Every combination is valid.
class ReceiveErrorInfo
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

} // namespace Halvane::Corvex::Designer
