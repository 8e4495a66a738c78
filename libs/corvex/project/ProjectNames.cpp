// SPDX-License-Identifier: MIT
#include "corvex/project/ProjectNames.h"

#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/values/text/ObjectPath.h"
#include "corvex/variables/ProjectVariable.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Info = GeneralDataInfo;
using Common::EnumHelper;

//! The type of terms for values of that type.
Info::DataType termType(EnumHelper::VariableType type)
{
    for (int data = Info::BooleanData; data < Info::CommandData && type != EnumHelper::NoVariable; ++data) {
        if (Info::isSameDataType(type, Info::DataType(data))) {
            return Info::DataType(data);
        }
    }
    return Info::NoData;
}

//! The value of a number variable can become an integer or a real number at any time.
Info::DataType termType(const ProjectVariable &variable)
{
    const Info::DataType type = termType(variable.variableType());
    return type == Info::IntegerData || type == Info::FloatData ? Info::NumberData : type;
}

} // namespace

//! The element with that path, which may begin with its screen. The code of a screen only reaches its own
//! elements.
const Element *ProjectNames::element(const QString &path) const
{
    if (const Element *found = m_screen ? m_screen->getElement(path) : nullptr) {
        return found;
    }
    const QString first = ObjectPath::firstSegment(path).toString();
    const DesignerObject *screen = m_project.screens()->getListItem(first);
    const bool isReached = screen && first != path && (!m_screen || screen == m_screen);
    return isReached ? static_cast<const Screen *>(screen)->getElement(path.sliced(first.size() + 1))
                     : nullptr;
}

std::optional<Info> ProjectNames::find(const QString &path) const
{
    const DesignerObject *variable = m_project.variables()->getListItem(path);
    if (variable) {
        return Info(Info::VariableValue, termType(static_cast<const ProjectVariable &>(*variable)), path);
    }
    const QString id = ObjectPath::lastSegment(path).toString();
    const Element *owner = id == path ? nullptr : element(path.chopped(id.size() + 1));
    if (!owner) {
        return {};
    }
    const RuntimePropertyList properties = owner->runtimeProperties();
    const auto property = std::ranges::find(properties, id, &RuntimeProperty::property);
    if (property == properties.end()) {
        return {};
    }
    // On its own screen, the name of an element identifies it.
    const QString name = m_screen ? owner->getIdName() + u'.' + id : path;
    return Info(Info::ObjectValue, termType(property->type()), name);
}

ExpressionNames::Traits ProjectNames::traitsOf(const QString &path) const
{
    const QString id = ObjectPath::lastSegment(path).toString();
    const Element *owner = id == path ? nullptr : element(path.chopped(id.size() + 1));
    if (!owner) {
        return {};
    }
    const RuntimePropertyList properties = owner->runtimeProperties();
    const auto property = std::ranges::find(properties, id, &RuntimeProperty::property);
    const SharedProperty stored = owner->getProperty(id);
    const QVariantMap parameters = stored ? stored->editorParameters() : QVariantMap();
    const bool isPercentage = parameters.value(u"isPercentage"_s).toBool();
    return {isPercentage ? parameters.value(u"maximum"_s).toDouble() / 100 : 0.0,
            property != properties.end() && property->accessMode() == EnumHelper::ReadOnly};
}

QStringList ProjectNames::candidates(const QString &path) const
{
    const QString id = ObjectPath::lastSegment(path).toString();
    const QString place = path.chopped(std::min(path.size(), id.size() + 1));
    QStringList names;
    if (const Element *owner = place.isEmpty() ? nullptr : element(place)) {
        for (const RuntimeProperty &property : owner->runtimeProperties()) {
            names.append(place + u'.' + property.property());
        }
        return names;
    }
    names = m_project.variables()->listItemNames();
    for (const QString &name : m_screen ? m_screen->getElementNames() : QStringList()) {
        names.append(place.isEmpty() ? name : name + u'.' + id);
    }
    return names;
}

} // namespace Halvane::Corvex::Designer
