// SPDX-License-Identifier: MIT
#include "corvex/values/records/FieldbusErrorInfo.h"

#include "corvex/values/text/CommaText.h"
#include "corvex/values/text/ValueConversion.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

ReceiveErrorInfo::ReceiveErrorInfo(bool nameError, bool valueError, bool typeError, bool dataFlowError)
    : m_nameError(nameError)
    , m_valueError(valueError)
    , m_typeError(typeError)
    , m_dataFlowError(dataFlowError)
{ }

ReceiveErrorInfo::ReceiveErrorInfo(const QString &text, bool *ok)
{
    static constexpr std::array keys{"name"_L1, "value"_L1, "type"_L1, "dataFlow"_L1};
    std::array<bool, 4> values{};
    const bool parsed = CommaText::readFields(text, keys, values, ValueConversion::toBoolean);
    if (parsed) {
        *this = ReceiveErrorInfo(values[0], values[1], values[2], values[3]);
    }
    if (ok) {
        *ok = parsed;
    }
}

QString ReceiveErrorInfo::toString() const
{
    return u"name: %1, value: %2, type: %3, dataFlow: %4"_s.arg(
        ValueConversion::toString(m_nameError), ValueConversion::toString(m_valueError),
        ValueConversion::toString(m_typeError), ValueConversion::toString(m_dataFlowError));
}

using namespace Qt::StringLiterals;

SendErrorInfo::SendErrorInfo(const QString &text, bool *ok)
{
    static constexpr std::array keys{"busy"_L1, "offline"_L1};
    std::array<bool, 2> values{};
    const bool parsed = CommaText::readFields(text, keys, values, ValueConversion::toBoolean);
    if (parsed) {
        *this = SendErrorInfo(values[0], values[1]);
    }
    if (ok) {
        *ok = parsed;
    }
}

QString SendErrorInfo::toString() const
{
    return u"busy: %1, offline: %2"_s.arg(ValueConversion::toString(m_isBusy),
                                          ValueConversion::toString(m_isOffline));
}

} // namespace Halvane::Corvex::Designer
