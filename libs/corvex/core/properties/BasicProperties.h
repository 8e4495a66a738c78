// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/properties/TypedProperty.h"

namespace Halvane::Corvex::Designer {

class CORVEX_EXPORT BooleanProperty : public TypedProperty<bool>
{
    CORVEX_CLASS_NAMES(BooleanProperty, DesignerProperty)

public:
    BooleanProperty(DesignerObject *parent, const QString &id, const QString &name, const bool &initialValue)
        : TypedProperty(parent, id, name, initialValue, PropertyFlags(), "BooleanEditor")
    { }

protected:
    using TypedProperty::TypedProperty;
};

class CORVEX_EXPORT IntegerProperty : public TypedProperty<int>
{
    CORVEX_CLASS_NAMES(IntegerProperty, DesignerProperty)

public:
    IntegerProperty(DesignerObject *parent, const QString &id, const QString &name, const int &initialValue)
        : TypedProperty(parent, id, name, initialValue, PropertyFlags(), "IntegerEditor")
    { }

protected:
    using TypedProperty::TypedProperty;
};

//! Compared exactly, although its text and its QML are rounded.
class CORVEX_EXPORT RealProperty : public TypedProperty<double>
{
    CORVEX_CLASS_NAMES(RealProperty, DesignerProperty)

public:
    RealProperty(DesignerObject *parent, const QString &id, const QString &name, const double &initialValue)
        : TypedProperty(parent, id, name, initialValue, PropertyFlags(), "RealEditor")
    { }

protected:
    using TypedProperty::TypedProperty;
};

class CORVEX_EXPORT StringProperty : public TypedProperty<QString>
{
    CORVEX_CLASS_NAMES(StringProperty, DesignerProperty)

public:
    using TypedProperty::TypedProperty;

protected:
    QString formText() const override;
};

} // namespace Halvane::Corvex::Designer
