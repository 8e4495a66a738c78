// SPDX-License-Identifier: MIT
#pragma once

namespace Halvane::Corvex::Designer {

//! The errors of an input or an output. Every combination is valid. The text form belongs to the property
//! that holds the record.
class IOErrorInfo
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

} // namespace Halvane::Corvex::Designer
