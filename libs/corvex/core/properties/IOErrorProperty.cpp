// SPDX-License-Identifier: MIT
#include "corvex/core/properties/IOErrorProperty.h"

#include "corvex/core/properties/ValidationError.h"
#include "corvex/values/text/CommaText.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

IOErrorInfo TextForm<IOErrorInfo>::parse(const QString &text, bool *ok)
{
    return IOErrorProperty::fromString(text, ok);
}

QString TextForm<IOErrorInfo>::print(const IOErrorInfo &info)
{
    return IOErrorProperty::toString(info);
}

QString IOErrorProperty::toString(const IOErrorInfo &info)
{
    return u"id: %1, io: %2"_s.arg(ValueConversion::toString(info.idError()),
                                   ValueConversion::toString(info.ioError()));
}

IOErrorInfo IOErrorProperty::fromString(const QString &text, bool *ok)
{
    static constexpr std::array keys{"id"_L1, "io"_L1};
    std::array<bool, keys.size()> flags{};
    const bool parsed = CommaText::readFields(text, keys, flags, ValueConversion::toBoolean);
    if (ok) {
        *ok = parsed;
    }
    return parsed ? IOErrorInfo(flags[1], flags[0]) : IOErrorInfo();
}

bool IOErrorProperty::validateValue(QString &error) const
{
    return value().isValid() || ValidationError::set(error, "The error information is invalid.");
}

} // namespace Halvane::Corvex::Designer
