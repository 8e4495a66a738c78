// SPDX-License-Identifier: MIT
#include "corvex/values/ReceiveErrorInfo.h"

#include "corvex/values/CommaText.h"
#include "corvex/values/ValueConversion.h"

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
    if (parsed)
        *this = ReceiveErrorInfo(values[0], values[1], values[2], values[3]);
    if (ok)
        *ok = parsed;
}

QString ReceiveErrorInfo::toString() const
{
    return u"name: %1, value: %2, type: %3, dataFlow: %4"_s.arg(
        ValueConversion::toString(m_nameError), ValueConversion::toString(m_valueError),
        ValueConversion::toString(m_typeError), ValueConversion::toString(m_dataFlowError));
}

} // namespace Halvane::Corvex::Designer
