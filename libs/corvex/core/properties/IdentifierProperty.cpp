// SPDX-License-Identifier: MIT
#include "corvex/core/properties/IdentifierProperty.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

std::optional<IdentifierInfo> EmptyForm<IdentifierInfo>::parse(const QString &text)
{
    bool ok = false;
    const IdentifierInfo nameless(text + " name: ;"_L1, &ok);
    return ok && nameless.toString() == text ? std::optional(nameless) : std::nullopt;
}

} // namespace Halvane::Corvex::Designer
