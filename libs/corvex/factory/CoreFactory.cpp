// SPDX-License-Identifier: MIT
#include "corvex/factory/CoreFactory.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/editing/graphics/GraphicsItemGroup.h"
#include "corvex/editing/graphics/GraphicsRectangle.h"
#include "corvex/editing/graphics/ScreenRectangle.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/UpdateObjects.h"
#include "corvex/project/elements/FilterElement.h"
#include "corvex/project/elements/GroupElement.h"
#include "corvex/templates/ElementTemplate.h"
#include "corvex/templates/ProjectTemplate.h"
#include "corvex/templates/ProjectVersion.h"
#include "corvex/templates/ProjectVersionsContainer.h"
#include "corvex/templates/TemplateContainer.h"
#include "corvex/templates/Tutorial.h"
#include "corvex/templates/TutorialContainer.h"
#include "corvex/templates/UpgradeProjSelection.h"
#include "corvex/variables/AutoSettingVariable.h"
#include "corvex/variables/BACnetDevice.h"
#include "corvex/variables/BACnetObject.h"
#include "corvex/variables/BooleanVariable.h"
#include "corvex/variables/CANVariable.h"
#include "corvex/variables/ColorVariable.h"
#include "corvex/variables/FtpVariable.h"
#include "corvex/variables/LogVariable.h"
#include "corvex/variables/MappingVariable.h"
#include "corvex/variables/NumberVariable.h"
#include "corvex/variables/StringVariable.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

/*! The classes that bear names, the abstract bases among them: concrete elements come from plug-ins. Names
   that look misspelt ("functionElememnt", "autoSaveVariable") are the stems of identifiers in saved projects.
 */
constexpr struct
{
    const char *className;
    const char *baseName;
    const char *displayName;
} namedClasses[] = {
    {"AutoSettingVariable", "autoSaveVariable", "Autosave Save Variable"},
    {"BACnetDevice", "bacNetDevice", "BACnet Device"},
    {"BACnetObject", "bacNetObject", "BACnet Object"},
    {"BooleanVariable", "boolVariable", "Boolean Variable"},
    {"CANVariable", "canVariable", "CAN Variable"},
    {"ColorVariable", "colorVariable", "Color Variable"},
    {"Element", "element", "Element"},
    {"ElementTemplate", "ElementTemplate", "Element Template"},
    {"FilterElement", "filterElement", "Filter Element"},
    {"FunctionElement", "functionElememnt", "Function Element"},
    {"GroupElement", "group", "Group Element"},
    {"HardwareElement", "hardwareElement", "Hardware Element"},
    {"ImageResource", "imageResource", "Image Resource"},
    {"LogVariable", "logVariable", "Log Variable"},
    {"MappingVariable", "mappingVariable", "Modbus Map Variable"},
    {"NumberVariable", "numberVariable", "Number Variable"},
    {"FtpVariable", "ftpVariable", "FTP Variable"},
    {"Project", "Project", "Project"},
    {"ProjectTemplate", "ProjectTemplate", "Project Template"},
    {"ProjectVariable", "variable", "Project Variable"},
    {"Screen", "screen", "Screen"},
    {"StringVariable", "stringVariable", "String Variable"},
    {"Template", "Template", "Template"},
    {"VisualElement", "visualElement", "Visual Element"},
};

using Maker = DesignerObject *(*)(QObject *parent);

//! Opens the protected constructor of a model class to the factory.
template<class Object>
DesignerObject *make(QObject *parent)
{
    struct Made : public Object
    {
        explicit Made(QObject *owner)
            : Object(owner)
        { }
    };
    return new Made(parent);
}

//! How the objects that createObject() accepts are made.
const QHash<QString, Maker> &makers()
{
    static const QHash<QString, Maker> table{
        {u"AutoSettingVariable"_s, &make<AutoSettingVariable>},
        {u"BACnetDevice"_s, &make<BACnetDevice>},
        {u"BACnetObject"_s, &make<BACnetObject>},
        {u"BooleanVariable"_s, &make<BooleanVariable>},
        {u"CANVariable"_s, &make<CANVariable>},
        {u"ColorVariable"_s, &make<ColorVariable>},
        {u"Configuration"_s, &make<Configuration>},
        {u"ConfigurationContainer"_s, &make<ConfigurationContainer>},
        {u"ElementTemplate"_s, &make<ElementTemplate>},
        {u"FilterElement"_s, &make<FilterElement>},
        {u"FtpVariable"_s, &make<FtpVariable>},
        {u"GroupElement"_s, &make<GroupElement>},
        {u"ImageResource"_s, &make<ImageResource>},
        {u"LogVariable"_s, &make<LogVariable>},
        {u"MappingVariable"_s, &make<MappingVariable>},
        {u"NumberVariable"_s, &make<NumberVariable>},
        {u"Project"_s, &make<Project>},
        {u"ProjectTemplate"_s, &make<ProjectTemplate>},
        {u"ProjectVersion"_s, &make<ProjectVersion>},
        {u"ProjectVersionsContainer"_s, &make<ProjectVersionsContainer>},
        {u"Screen"_s, &make<Screen>},
        {u"StringVariable"_s, &make<StringVariable>},
        {u"TemplateContainer"_s, &make<TemplateContainer>},
        {u"Tutorial"_s, &make<Tutorial>},
        {u"TutorialContainer"_s, &make<TutorialContainer>},
        {u"UpdateObjects"_s, &make<UpdateObjects>},
        {u"UpgradeProjSelection"_s, &make<UpgradeProjSelection>},
    };
    return table;
}

constexpr const char *editors[] = {
    "PropertyEditor",
    "AutosaveObjectEditor",
    "AddressMapEditor",
    "BACObjIdEditor",
    "BACDeviceEditor",
    "BACnetPropertiesEditor",
    "BooleanEditor",
    "BorderEditor",
    "CANVariableEditor",
    "ChannelEditor",
    "ColorEditor",
    "ColorListEditor",
    "CompatibleModelsEditor",
    "DeviceModelEditor",
    "DigitalChannelEditor",
    "DigitalIOEditor",
    "ElementPropertyChangesEditor",
    "EnumEditor",
    "ErrorFlagsEditor",
    "FontEditor",
    "GradientStopsEditor",
    "IdentifierEditor",
    "ImageSourceEditor",
    "IntegerEditor",
    "IOErrorFlagsEditor",
    "ItemsOrderEditor",
    "KeepRatioEditor",
    "LargeNumberEditor",
    "LinkEditor",
    "MACAddressEditor",
    "NetworkAddressEditor",
    "NumberEditor",
    "ObjectEditor",
    "OpacityEditor",
    "OriginalLocationEditor",
    "PlainTextEditor",
    "PointEditor",
    "PropertyChangesEditor",
    "RangeEditor",
    "ReadOnlyLineEditor",
    "RealEditor",
    "ScaleEditor",
    "ScreenColorEditor",
    "ScreenOrientationEditor",
    "ScreenSizeEditor",
    "SingleLineEditor",
    "SizeEditor",
    "TransformOriginEditor",
    "ValueRangeEditor",
    "VerticalBooleanExpressionEditor",
    "VerticalMathExpressionEditor",
    "VerticalStringExpressionEditor",
    "SerialRS485Editor",
    "SPIChipSelectEditor",
    "ProjectPasswordEditor",
    "SerialCOMPortsEditor",
    "StringAddressMapEditor",
};
static_assert(std::size(editors) == 57);

//! A name of \a className in the user's language; the two kinds of names may be translated apart.
QString translated(const char *kind, const char *className, const QString &otherwise)
{
    const QString key = QLatin1StringView(kind) + QLatin1StringView(className);
    const QString translation = Common::LocalizationHelper::coreString(key);
    return translation == key ? otherwise : translation;
}

} // namespace

CoreFactory::CoreFactory(QObject *parent)
    : QObject(parent)
{ }

DesignerObject *CoreFactory::createObject(const QString &className, QObject *parent)
{
    const Maker make = makers().value(className);
    return make ? make(parent) : nullptr;
}

GraphicsItem *CoreFactory::createGraphicsItem(const QString &className, DesignerObject *object)
{
    if (className == GraphicsRectangle::kindName()) {
        return object->isKindOfClass(Screen::kindName()) ? new ScreenRectangle(object)
                                                         : new GraphicsRectangle(object);
    }
    return className == GraphicsItemGroup::kindName() ? new GraphicsItemGroup(object) : nullptr;
}

PropertyEditor *CoreFactory::createEditor(const QString &, QWidget *)
{
    return nullptr;
}

Template *CoreFactory::createTemplate(const QString &className, QObject *parent)
{
    if (!templateNames().contains(className)) {
        return nullptr;
    }
    std::unique_ptr<DesignerObject> object(createObject(className, parent));
    return object->initialize() ? static_cast<Template *>(object.release()) : nullptr;
}

Wizard *CoreFactory::createWizard(const QString &)
{
    return nullptr;
}

QStringList CoreFactory::objectNames() const
{
    QStringList names;
    for (const auto &entry : namedClasses) {
        names.append(QString::fromLatin1(entry.className));
    }
    return names;
}

QMap<QString, QString> CoreFactory::classBaseNames() const
{
    QMap<QString, QString> names;
    for (const auto &[className, baseName, displayName] : namedClasses) {
        names.insert(QString::fromLatin1(className),
                     translated("BASENAME:", className, QString::fromLatin1(baseName)));
    }
    return names;
}

QMap<QString, QString> CoreFactory::classDisplayNames() const
{
    QMap<QString, QString> names;
    for (const auto &[className, baseName, displayName] : namedClasses) {
        const QString title = Common::LocalizationHelper::coreString(QString::fromLatin1(displayName));
        names.insert(QString::fromLatin1(className), translated("DISPLAYNAME:", className, title));
    }
    return names;
}

QStringList CoreFactory::creatableNames() const
{
    return makers().keys();
}

QStringList CoreFactory::graphicsItemNames() const
{
    return {GraphicsItemGroup::kindName(), GraphicsRectangle::kindName()};
}

QStringList CoreFactory::editorNames() const
{
    QStringList names;
    for (const char *editor : editors) {
        names.append(QString::fromLatin1(editor));
    }
    return names;
}

QStringList CoreFactory::templateNames() const
{
    return {u"ElementTemplate"_s, u"ProjectTemplate"_s};
}

QStringList CoreFactory::wizardNames() const
{
    return {u"UpgradeProjectWizard"_s};
}

} // namespace Halvane::Corvex::Designer
