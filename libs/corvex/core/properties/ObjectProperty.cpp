// SPDX-License-Identifier: MIT
#include "corvex/core/properties/ObjectProperty.h"

#include "corvex/core/DesignerObject.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

ObjectProperty::ObjectProperty(DesignerObject *parent, const QString &id, const QString &name,
                               DesignerObject *initialValue)
    : DesignerProperty(parent, id, name)
{
    setEditor(u"ObjectEditor"_s);
    setFlags(PropertyFlags(StoredFlag) | ObjectFlag);
    startWith(initialValue);
}

bool ObjectProperty::convertToValue(const QString &)
{
    return false; // The child only changes through the parent object.
}

QString ObjectProperty::convertToValueString() const
{
    return DesignerObject::toString(objectValue());
}

bool ObjectProperty::valueIsEqual(const QString &text) const
{
    return text == convertToValueString();
}

bool ObjectProperty::validateValue(QString &) const
{
    return true;
}

} // namespace Halvane::Corvex::Designer
