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

//! The classes of the library. Classes without a base name are not offered to users. Abstract classes have
//! names; plug-ins provide the classes that derive from them. Names that look misspelt ("functionElememnt",
//! "autoSaveVariable") are the stems of identifiers in saved projects.
constexpr ClassRow classes[] = {
    {"AutoSettingVariable", &makeObject<AutoSettingVariable>, "autoSaveVariable", "Autosave Save Variable"},
    {"BACnetDevice", &makeObject<BACnetDevice>, "bacNetDevice", "BACnet Device"},
    {"BACnetObject", &makeObject<BACnetObject>, "bacNetObject", "BACnet Object"},
    {"BooleanVariable", &makeObject<BooleanVariable>, "boolVariable", "Boolean Variable"},
    {"CANVariable", &makeObject<CANVariable>, "canVariable", "CAN Variable"},
    {"ColorVariable", &makeObject<ColorVariable>, "colorVariable", "Color Variable"},
    {"Element", nullptr, "element", "Element"},
    {"ElementTemplate", &makeObject<ElementTemplate>, "ElementTemplate", "Element Template"},
    {"FilterElement", &makeObject<FilterElement>, "filterElement", "Filter Element"},
    {"FunctionElement", nullptr, "functionElememnt", "Function Element"},
    {"GroupElement", &makeObject<GroupElement>, "group", "Group Element"},
    {"HardwareElement", nullptr, "hardwareElement", "Hardware Element"},
    {"ImageResource", &makeObject<ImageResource>, "imageResource", "Image Resource"},
    {"LogVariable", &makeObject<LogVariable>, "logVariable", "Log Variable"},
    {"MappingVariable", &makeObject<MappingVariable>, "mappingVariable", "Modbus Map Variable"},
    {"NumberVariable", &makeObject<NumberVariable>, "numberVariable", "Number Variable"},
    {"FtpVariable", &makeObject<FtpVariable>, "ftpVariable", "FTP Variable"},
    {"Project", &makeObject<Project>, "Project", "Project"},
    {"ProjectTemplate", &makeObject<ProjectTemplate>, "ProjectTemplate", "Project Template"},
    {"ProjectVariable", nullptr, "variable", "Project Variable"},
    {"Screen", &makeObject<Screen>, "screen", "Screen"},
    {"StringVariable", &makeObject<StringVariable>, "stringVariable", "String Variable"},
    {"Template", nullptr, "Template", "Template"},
    {"VisualElement", nullptr, "visualElement", "Visual Element"},
    {"Configuration", &makeObject<Configuration>},
    {"ConfigurationContainer", &makeObject<ConfigurationContainer>},
    {"ProjectVersion", &makeObject<ProjectVersion>},
    {"ProjectVersionsContainer", &makeObject<ProjectVersionsContainer>},
    {"TemplateContainer", &makeObject<TemplateContainer>},
    {"Tutorial", &makeObject<Tutorial>},
    {"TutorialContainer", &makeObject<TutorialContainer>},
    {"UpdateObjects", &makeObject<UpdateObjects>},
    {"UpgradeProjSelection", &makeObject<UpgradeProjSelection>},
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
