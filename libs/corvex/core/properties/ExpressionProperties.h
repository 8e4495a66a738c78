// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/expressions/ConditionInfo.h"
#include "corvex/values/expressions/ExpressionPurpose.h"
#include "corvex/values/expressions/GeneralDataInfo.h"
#include "corvex/values/expressions/GeneralDataList.h"
#include "corvex/values/expressions/PropertyChangeInfo.h"
#include "corvex/values/expressions/UpdateObjectInfo.h"
#include "corvex/values/expressions/UpdateObjectList.h"
#include "corvex/values/runtime/PropertyList.h"

namespace Halvane::Corvex::Designer {

template<>
inline constexpr Form ReferencesIn<GeneralDataInfo> = Form::Expression;
template<>
inline constexpr Form ReferencesIn<GeneralDataList> = Form::Expression;
template<>
inline constexpr Form ReferencesIn<UpdateObjectInfo> = Form::States;
template<>
inline constexpr Form ReferencesIn<UpdateObjectList> = Form::States;
template<>
inline constexpr Form ReferencesIn<PropertyChangeInfo> = Form::Changes;
template<>
inline constexpr Form ReferencesIn<PropertyList> = Form::Changes;

//! One term of an expression. Its users compile it; it writes no QML itself.
class CORVEX_EXPORT GeneralDataProperty : public TypedProperty<GeneralDataInfo>
{
    CORVEX_CLASS_NAMES(GeneralDataProperty, DesignerProperty)

public:
    using TypedProperty::TypedProperty;
};

//! An expression. Its users compile it; it writes no QML itself.
class CORVEX_EXPORT GeneralDataListProperty : public TypedProperty<GeneralDataList>
{
    CORVEX_CLASS_NAMES(GeneralDataListProperty, DesignerProperty)

public:
    using TypedProperty::TypedProperty;

    //! How \a terms are used if they are the value. The editor determines it, and for a color whether the
    //! terms select one.
    ExpressionPurpose purpose(const GeneralDataList &terms) const;
    ExpressionPurpose purpose() const { return purpose(value()); }

protected:
    //! Says what the terms result in.
    QString formText() const override;
};

//! Two comparisons of a value; in QML the function that evaluates them.
class CORVEX_EXPORT ConditionProperty : public TypedProperty<ConditionInfo>
{
    CORVEX_CLASS_NAMES(ConditionProperty, DesignerProperty)

public:
    ConditionProperty(DesignerObject *parent, const QString &id, const QString &name,
                      const ConditionInfo &initialValue)
        : TypedProperty(parent, id, name, initialValue, OrdinaryFlags, "ConditionEditor")
    { }

protected:
    using TypedProperty::TypedProperty;
};

class CORVEX_EXPORT PropertyChangeProperty : public TypedProperty<PropertyChangeInfo>
{
    CORVEX_CLASS_NAMES(PropertyChangeProperty, DesignerProperty)

public:
    PropertyChangeProperty(DesignerObject *parent, const QString &id, const QString &name,
                           const PropertyChangeInfo &initialValue)
        : TypedProperty(parent, id, name, initialValue, StoredFlag)
    { }

protected:
    using TypedProperty::TypedProperty;
};

class CORVEX_EXPORT PropertyChangeListProperty : public TypedProperty<PropertyList>
{
    CORVEX_CLASS_NAMES(PropertyChangeListProperty, DesignerProperty)

public:
    PropertyChangeListProperty(DesignerObject *parent, const QString &id, const QString &name,
                               const PropertyList &initialValue)
        : TypedProperty(parent, id, name, initialValue, StoredFlag)
    { }

protected:
    using TypedProperty::TypedProperty;
};

class CORVEX_EXPORT UpdateObjectProperty : public TypedProperty<UpdateObjectInfo>
{
    CORVEX_CLASS_NAMES(UpdateObjectProperty, DesignerProperty)

public:
    using TypedProperty::TypedProperty;
};

class CORVEX_EXPORT UpdateObjectListProperty : public TypedProperty<UpdateObjectList>
{
    CORVEX_CLASS_NAMES(UpdateObjectListProperty, DesignerProperty)

public:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
