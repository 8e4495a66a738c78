// SPDX-License-Identifier: MIT
#include "corvex/project/elements/Element.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/PropertyTable.h"
#include "corvex/core/PropertyValidators.h"
#include "corvex/core/QmlBinding.h"
#include "corvex/core/properties/IdentifierProperty.h"
#include "corvex/project/RuntimeTable.h"
#include "corvex/project/Screen.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::EnumHelper;

namespace {

//! The initial numbers on the device, by their runtime names: "x" is part of "position", and "opacity" a
//! fraction. Properties that follow an expression have none.
QHash<QString, QString> firstNumbers(const DesignerObject &element)
{
    QHash<QString, QString> numbers;
    for (const QmlBinding &binding : element.qmlBindings()) {
        bool isNumber = false;
        std::ignore = binding.code.toDouble(&isNumber);
        if (isNumber) {
            numbers.insert(binding.name, binding.code);
        }
    }
    return numbers;
}

} // namespace

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
            .description(
                "The name by which expressions and other elements of the screen refer to this element.")
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

void Element::nameChanged(const QString &oldName)
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
    const QHash<QString, QString> numbers = firstNumbers(*this);
    for (const RuntimeProperty &runtime : runtimeProperties()) {
        if (runtime.accessMode() == EnumHelper::ReadWrite) {
            const SharedProperty property =
                runtime.isNumber() ? SharedProperty() : getProperty(runtime.property());
            settings.append(RuntimeAutoSettingProperty(
                runtime.property(), runtime.displayName(), runtime.type(), runtime.accessMode(),
                runtime.description(),
                property ? property->valueString() : numbers.value(runtime.property())));
        }
    }
    RuntimeAutoSettingList list;
    list.append(settings);
    return list;
}

} // namespace Halvane::Corvex::Designer
