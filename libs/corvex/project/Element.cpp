// SPDX-License-Identifier: MIT
#include "corvex/project/Element.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/PropertyTable.h"
#include "corvex/core/PropertyValidators.h"
#include "corvex/core/properties/IdentifierProperty.h"
#include "corvex/project/RuntimeTable.h"
#include "corvex/project/Screen.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::EnumHelper;

Element::Element(QObject *parent)
    : DesignerObject(parent)
{ }

Element::~Element()
{
    if (screen()) {
        screen()->elementIndex().remove(this);
    }
}

QString Element::baseName() const
{
    return DesignerFactory::baseNameOf(this);
}

QString Element::displayName() const
{
    return DesignerFactory::displayNameOf(this);
}

bool Element::initializeProperties()
{
    static const PropertyTable table{
        row<IdentifierProperty>("id", "Name", IdentifierInfo())
            .rank(0)
            .flags(15)
            .allowInvalid()
            .validator(&PropertyValidators::identifierElementValidator),
    };
    if (!DesignerObject::initializeProperties() || !addProperties(table)) {
        return false;
    }
    registerIdentifier(u"Screen"_s);
    return true;
}

ObjectView *Element::createGraphicsItem()
{
    return nullptr;
}

void Element::setScreen(Screen *newScreen)
{
    if (newScreen != screen()) {
        if (screen()) {
            screen()->elementIndex().remove(this);
        }
        if (newScreen) {
            newScreen->elementIndex().insert(this);
        }
    }
    DesignerObject::setScreen(newScreen);
}

void Element::nameTaken(const QString &oldName)
{
    if (screen()) {
        screen()->elementIndex().rename(this, oldName);
    }
}

RuntimePropertyList Element::runtimeProperties() const
{
    static constexpr RuntimeRow rows[] = {
        {"addedToScene", "Added to Scene", EnumHelper::BooleanVariable, EnumHelper::ReadOnly,
         "The element is added to the scene"},
        {"completed", "Completed", EnumHelper::BooleanVariable, EnumHelper::ReadOnly,
         "The setup of the element is finished"},
        {"id", "Identifier", EnumHelper::StringVariable, EnumHelper::ReadOnly},
    };
    static const RuntimePropertyList list = toRuntimeProperties(rows);
    return list;
}

RuntimeAutoSettingList Element::runtimeAutoSettingProperties() const
{
    QList<RuntimeAutoSettingProperty> settings;
    for (const RuntimeProperty &runtime : runtimeProperties()) {
        if (runtime.accessMode() == EnumHelper::ReadWrite) {
            const SharedProperty property = getProperty(runtime.property());
            settings.append(RuntimeAutoSettingProperty(
                runtime.property(), runtime.displayName(), runtime.type(), runtime.accessMode(),
                runtime.description(), property ? property->valueString() : QString()));
        }
    }
    RuntimeAutoSettingList list;
    list.append(settings);
    return list;
}

} // namespace Halvane::Corvex::Designer
