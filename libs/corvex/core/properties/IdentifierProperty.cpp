// SPDX-License-Identifier: MIT
#include "corvex/core/properties/IdentifierProperty.h"

#include "corvex/common/LocalizationHelper.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

std::optional<IdentifierInfo> EmptyForm<IdentifierInfo>::parse(const QString &text)
{
    bool ok = false;
    const IdentifierInfo nameless(text + " name: ;"_L1, &ok);
    return ok && nameless.toString() == text ? std::optional(nameless) : std::nullopt;
}

QString IdentifierProperty::formText() const
{
    return Common::LocalizationHelper::coreString(u"a name"_s);
}

} // namespace Halvane::Corvex::Designer
