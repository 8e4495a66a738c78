// SPDX-License-Identifier: MIT
#include "corvex/templates/NewProject.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/files/FileNameRules.h"
#include "corvex/values/records/ObjectLinkInfo.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! Adds the configuration and one screen, and makes it the default screen.
bool fill(Project &project, const Configuration &model)
{
    std::unique_ptr<DesignerObject> configuration(DesignerObject::createCopy(&model));
    std::unique_ptr<DesignerObject> screen(DesignerFactory::instance()->createUnowned(Screen::kindName()));
    if (!configuration || !screen) {
        return false;
    }
    screen->setIdName(NewProject::screenName());
    if (!project.changePropertyObjectValue(project.configuration(), configuration.get(), true)) {
        return false;
    }
    configuration.release();
    if (!project.addListPropertyItem(project.screens(), screen.get())) {
        return false;
    }
    screen.release();
    const ObjectLinkInfo link(NewProject::screenName(), Project::kindName(), Screen::kindName());
    return project.changePropertyValue(project.defaultScreen(), link.toString());
}

} // namespace

QString NewProject::screenName()
{
    return u"Main"_s;
}

std::unique_ptr<Project> NewProject::create(const QString &parentPath, const QString &name,
                                            const Configuration &model, QString &error)
{
    error = FileNameRules::projectNameError(name);
    if (!error.isEmpty()) {
        return nullptr;
    }
    const DesignerFactory *factory = DesignerFactory::instance();
    std::unique_ptr<Project> project(
        factory ? static_cast<Project *>(factory->createUnowned(Project::kindName())) : nullptr);
    if (!project || !project->setIdName(name) || !fill(*project, model)) {
        error = Common::LocalizationHelper::coreString(
                    u"Cannot create a project for the model \"%1\". Install the program again."_s)
                    .arg(model.getIdName());
        return nullptr;
    }
    if (!project->createFile(parentPath)) {
        error = project->fileError();
        return nullptr;
    }
    return project;
}

} // namespace Halvane::Corvex::Designer
