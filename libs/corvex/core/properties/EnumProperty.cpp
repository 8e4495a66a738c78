// SPDX-License-Identifier: MIT
#include "corvex/core/properties/EnumProperty.h"

#include "corvex/core/properties/ValidationError.h"

namespace Halvane::Corvex::Designer {

bool EnumProperty::validateValue(QString &error) const
{
    return value().isValid() || ValidationError::set(error, "The enumeration value is invalid.");
}

//! Lists the keys.
QString EnumProperty::formText() const
{
    QStringList keys;
    for (int i = 0; i < value().enumerator().keyCount(); ++i) {
        keys.append(value().key(i));
    }
    return FormText::oneOf(keys);
}

} // namespace Halvane::Corvex::Designer
