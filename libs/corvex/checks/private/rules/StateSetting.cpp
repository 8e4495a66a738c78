// SPDX-License-Identifier: MIT
#include "corvex/checks/private/rules/StateSetting.h"

#include "corvex/core/properties/ExpressionProperties.h"

#include <type_traits>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! Reads a text for which there is no property with a list.
template<class Property>
auto listOf(const DesignerProperty &property)
{
    using List = std::remove_cvref_t<decltype(std::declval<Property>().value())>;
    const auto *typed = propertyCast<Property>(&property);
    return typed ? typed->value() : List(property.valueString());
}

} // namespace

QList<StateSetting> StateSetting::of(const DesignerProperty &property)
{
    QList<StateSetting> settings;
    const Form form = property.references();
    if (form == Form::States) {
        for (const UpdateObjectInfo &update : listOf<UpdateObjectListProperty>(property)) {
            for (const PropertyInfo &info : update.propertyValues()) {
                settings.append({update.name(), info.propName(), info.propValue()});
            }
        }
    } else if (form == Form::Changes) {
        for (const PropertyChangeInfo &change : listOf<PropertyChangeListProperty>(property)) {
            settings.append({change.elementName(), change.propertyName(), change.valueString()});
        }
    }
    return settings;
}

QString StateSetting::textWith(const DesignerProperty &holder, const QString &newValue) const
{
    if (holder.references() == Form::States) {
        UpdateObjectList updates;
        for (UpdateObjectInfo update : listOf<UpdateObjectListProperty>(holder)) {
            PropertyInfoList values;
            for (PropertyInfo info : update.propertyValues()) {
                if (*this == StateSetting{update.name(), info.propName(), info.propValue()}) {
                    info.setPropValue(newValue);
                }
                values.append(info);
            }
            update.setPropertyValues(values);
            updates.append(update);
        }
        return updates.toString();
    }
    QList<PropertyChangeInfo> changes;
    for (PropertyChangeInfo change : listOf<PropertyChangeListProperty>(holder)) {
        if (*this == StateSetting{change.elementName(), change.propertyName(), change.valueString()}) {
            change.setValueString(newValue);
        }
        changes.append(change);
    }
    PropertyList list;
    list.append(changes);
    return list.toString();
}

NumberRange StateSetting::rangeOf(const DesignerProperty &target)
{
    NumberRange range = NumberRange::of(target.editorParameters());
    if (target.id() == "opacity"_L1) {
        range.minimum = 0;
    }
    return range;
}

} // namespace Halvane::Corvex::Designer
