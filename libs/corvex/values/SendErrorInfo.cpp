// SPDX-License-Identifier: MIT
#include "corvex/values/SendErrorInfo.h"

#include "corvex/values/CommaText.h"
#include "corvex/values/ValueConversion.h"

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

SendErrorInfo::SendErrorInfo(const QString &text, bool *ok)
{
    static constexpr std::array keys{"busy"_L1, "offline"_L1};
    std::array<bool, 2> values{};
    const bool parsed = CommaText::readFields(text, keys, values, ValueConversion::toBoolean);
    if (parsed)
        *this = SendErrorInfo(values[0], values[1]);
    if (ok)
        *ok = parsed;
}

QString SendErrorInfo::toString() const
{
    return u"busy: %1, offline: %2"_s.arg(ValueConversion::toString(m_isBusy),
                                          ValueConversion::toString(m_isOffline));
}

} // namespace Halvane::Corvex::Designer
