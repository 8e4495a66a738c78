// SPDX-License-Identifier: MIT
#include "corvex/factory/CoreFactory.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/editing/graphics/GraphicsItemGroup.h"
#include "corvex/editing/graphics/GraphicsRectangle.h"
#include "corvex/editing/graphics/ScreenRectangle.h"
#include "corvex/editors/Editors.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/UpdateObjects.h"
#include "corvex/project/elements/FilterElement.h"
#include "corvex/project/elements/FunctionElement.h"
#include "corvex/project/elements/GroupElement.h"
#include "corvex/project/elements/HardwareElement.h"
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

//! The classes of the library. Classes without a base name are not offered to users. Abstract classes have
//! names; plug-ins provide the classes that derive from them. Names that look misspelt ("functionElememnt",
//! "autoSaveVariable") are the stems of identifiers in saved projects.
constexpr ClassRow classes[] = {
    {.className = "AutoSettingVariable",
     .make = &makeObject<AutoSettingVariable>,
     .baseName = "autoSaveVariable",
     .displayName = "Autosave Save Variable",
     .description =
         "Properties of elements that the device saves when they change, and restores when it starts."},
    {.className = "BACnetDevice",
     .make = &makeObject<BACnetDevice>,
     .baseName = "bacNetDevice",
     .displayName = "BACnet Device",
     .description = "A device in a BACnet network: this panel, or another one."},
    {.className = "BACnetObject",
     .make = &makeObject<BACnetObject>,
     .baseName = "bacNetObject",
     .displayName = "BACnet Object",
     .description = "A BACnet object whose properties the panel offers to the network."},
    {.className = "BooleanVariable",
     .make = &makeObject<BooleanVariable>,
     .baseName = "boolVariable",
     .displayName = "Boolean Variable",
     .description = "A value that is true or false."},
    {.className = "CANVariable",
     .make = &makeObject<CANVariable>,
     .baseName = "canVariable",
     .displayName = "CAN Variable",
     .description = "A message on the CAN bus: a J1939 parameter group with its parameters."},
    {.className = "ColorVariable",
     .make = &makeObject<ColorVariable>,
     .baseName = "colorVariable",
     .displayName = "Color Variable",
     .description = "A color that elements can show."},
    {.className = "Element",
     .make = nullptr,
     .baseName = "element",
     .displayName = "Element",
     .description = "Everything that a screen can contain.",
     .sample = &makeObject<Element>},
    {.className = "ElementTemplate",
     .make = &makeObject<ElementTemplate>,
     .baseName = "ElementTemplate",
     .displayName = "Element Template",
     .description = "An element that is ready to be copied into a screen."},
    {.className = "FilterElement",
     .make = &makeObject<FilterElement>,
     .baseName = "filterElement",
     .displayName = "Filter Element",
     .description = "A named list of elements of a screen, which editors use to show only these."},
    {.className = "FunctionElement",
     .make = nullptr,
     .baseName = "functionElememnt",
     .displayName = "Function Element",
     .description = "An element that gives other elements a function; it is not visible itself.",
     .sample = &makeObject<FunctionElement>},
    {.className = "GroupElement",
     .make = &makeObject<GroupElement>,
     .baseName = "group",
     .displayName = "Group Element",
     .description = "Several elements that are moved, turned and hidden as one."},
    {.className = "HardwareElement",
     .make = nullptr,
     .baseName = "hardwareElement",
     .displayName = "Hardware Element",
     .description = "An input, an output or a port of the device.",
     .sample = &makeObject<HardwareElement>},
    {.className = "ImageResource",
     .make = &makeObject<ImageResource>,
     .baseName = "imageResource",
     .displayName = "Image Resource",
     .description = "An image file that elements of the project can show."},
    {.className = "LogVariable",
     .make = &makeObject<LogVariable>,
     .baseName = "logVariable",
     .displayName = "Log Variable",
     .description = "A number that is recorded at regular intervals. A DataLogging element on a screen feeds "
                    "it while the screen is shown."},
    {.className = "MappingVariable",
     .make = &makeObject<MappingVariable>,
     .baseName = "mappingVariable",
     .displayName = "Modbus Map Variable",
     .description = "The Modbus registers that the panel offers, with the variable or property behind each. "
                    "The panel is "
                    "the server; a controller reads and writes the registers. A register holds a whole "
                    "number of 16 bits, without scaling."},
    {.className = "NumberVariable",
     .make = &makeObject<NumberVariable>,
     .baseName = "numberVariable",
     .displayName = "Number Variable",
     .description =
         "A number, which is an integer, or a floating point number if it is written with a point."},
    {.className = "FtpVariable",
     .make = &makeObject<FtpVariable>,
     .baseName = "ftpVariable",
     .displayName = "FTP Variable",
     .description = "A server to which the device uploads its logs."},
    {.className = "Project",
     .make = &makeObject<Project>,
     .baseName = "Project",
     .displayName = "Project",
     .description =
         "Everything that is made for a device: its screens, variables and images, and its configuration."},
    {.className = "ProjectTemplate",
     .make = &makeObject<ProjectTemplate>,
     .baseName = "ProjectTemplate",
     .displayName = "Project Template",
     .description = "A project that is ready to be copied."},
    {.className = "ProjectVariable",
     .make = nullptr,
     .baseName = "variable",
     .displayName = "Project Variable",
     .description = "A named value of the project that expressions and elements read and write.",
     .sample = &makeObject<ProjectVariable>},
    {.className = "Screen",
     .make = &makeObject<Screen>,
     .baseName = "screen",
     .displayName = "Screen",
     .description = "A page of the display with its elements."},
    {.className = "StringVariable",
     .make = &makeObject<StringVariable>,
     .baseName = "stringVariable",
     .displayName = "String Variable",
     .description = "A text that expressions and elements read and write."},
    {.className = "Template",
     .make = nullptr,
     .baseName = "Template",
     .displayName = "Template",
     .description = "Something ready-made to begin with.",
     .sample = &makeObject<Template>},
    {.className = "VisualElement",
     .make = nullptr,
     .baseName = "visualElement",
     .displayName = "Visual Element",
     .description = "An element that is drawn on the screen.",
     .sample = &makeObject<VisualElement>},
    {.className = "Configuration",
     .make = &makeObject<Configuration>,
     .description = "A device model, with the settings of its channels and ports that the project makes."},
    {.className = "ConfigurationContainer",
     .make = &makeObject<ConfigurationContainer>,
     .description = "The device models that are installed."},
    {.className = "ProjectVersion",
     .make = &makeObject<ProjectVersion>,
     .description = "An entry in the log of the versions of a project."},
    {.className = "ProjectVersionsContainer",
     .make = &makeObject<ProjectVersionsContainer>,
     .description = "The log of the versions of a project."},
    {.className = "TemplateContainer",
     .make = &makeObject<TemplateContainer>,
     .description = "The templates that are installed."},
    {.className = "Tutorial", .make = &makeObject<Tutorial>, .description = "An introduction to a topic."},
    {.className = "TutorialContainer",
     .make = &makeObject<TutorialContainer>,
     .description = "The tutorials that are installed."},
    {.className = "UpdateObjects",
     .make = &makeObject<UpdateObjects>,
     .description = "A list of objects whose values are updated together."},
    {.className = "UpgradeProjSelection",
     .make = &makeObject<UpgradeProjSelection>,
     .description = "The choice of projects that are upgraded to this version."},
};

constexpr ItemRow items[] = {
    {"GraphicsItemGroup", &makeItem<GraphicsItemGroup>},
    {"GraphicsRectangle",
     [](DesignerObject *object) -> GraphicsItem * {
         return object->isKindOfClass(Screen::kindName()) ? new ScreenRectangle(object)
                                                          : new GraphicsRectangle(object);
     }},
};

} // namespace

CoreFactory::CoreFactory(QObject *parent)
    : QObject(parent)
    , TableFactory(classes, items)
{ }

Template *CoreFactory::createTemplate(const QString &className, QObject *parent)
{
    if (!templateNames().contains(className)) {
        return nullptr;
    }
    std::unique_ptr<DesignerObject> object(createObject(className, parent));
    return object->initialize() ? static_cast<Template *>(object.release()) : nullptr;
}

PropertyEditor *CoreFactory::createEditor(const QString &editorName, QWidget *parent)
{
    return Editors::create(editorName, parent);
}

QStringList CoreFactory::editorNames() const
{
    return Editors::names();
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
