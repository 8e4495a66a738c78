// SPDX-License-Identifier: MIT
#include "corvex/variables/ProjectVariable.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/PropertyTable.h"
#include "corvex/core/PropertyValidators.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/EnumProperty.h"
#include "corvex/core/properties/IdentifierProperty.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

PropertyRow persistentRow(bool on)
{
    constexpr auto description = "If enabled, the variable value will be saved to disk when changed. This "
                                 "option only works on the device.";
    return row<BooleanProperty>("persistent", "Persistent", on)
        .rank(11)
        .description(description)
        .tooltip(description);
}

} // namespace

ProjectVariable::ProjectVariable(QObject *parent)
    : DesignerObject(parent)
{ }

QString ProjectVariable::baseName() const
{
    return DesignerFactory::baseNameOf(this);
}

QString ProjectVariable::displayName() const
{
    return DesignerFactory::displayNameOf(this);
}

ProjectVariable::VariableType ProjectVariable::variableType() const
{
    return VariableType::NoVariable;
}

QVariant ProjectVariable::toVariant() const
{
    return {};
}

ObjectView *ProjectVariable::createGraphicsItem()
{
    return nullptr;
}

bool ProjectVariable::initializeProperties()
{
    static const PropertyTable idTable{
        row<IdentifierProperty>("id", "Name", IdentifierInfo())
            .description("The name by which expressions and elements refer to the variable.")
            .rank(0)
            .flags(15)
            .allowInvalid()
            .validator(&PropertyValidators::identifierElementValidator),
    };
    static const PropertyTable table{persistentRow(false)};
    if (!DesignerObject::initializeProperties() || !addProperties(idTable)) {
        return false;
    }
    registerIdentifier(u"Project"_s);
    m_value = initializeValueProperty();
    if (!m_value) {
        return false;
    }
    addProperty(m_value);
    if (!addProperties(table)) {
        return false;
    }
    m_persistent = getProperty(u"persistent");
    return true;
}

SharedProperty ProjectVariable::initializeValueProperty()
{
    static const PropertyRow prototype =
        row<StringProperty>("value", "Variable Value", QString())
            .description("The value that the variable has when the device starts.")
            .rank(10)
            .allowInvalid();
    return prototype.make(this);
}

bool ProjectVariable::beforePropertyChanged(const DesignerProperty *property, const QString &)
{
    return property != m_persistent || property->editorParameters().value(u"visible"_s, true).toBool();
}

PropertyRow ProjectVariable::fixedPersistence(bool on)
{
    return persistentRow(on).hidden().overridesValue();
}

PropertyRow ProjectVariable::enumRow(const char *id, const char *title, const char *enumName)
{
    const QString name = QString::fromLatin1(enumName);
    return row<EnumProperty>(id, title, EnumInfo(Common::EnumHelper::metaEnum(name), 0))
        .allowInvalid()
        .editor("EnumEditor")
        .parameter("enumName", name);
}

} // namespace Halvane::Corvex::Designer
