// SPDX-License-Identifier: MIT
#include "corvex/document/private/ProjectCopy.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/Progress.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/xml/ObjectXmlReader.h"
#include "corvex/core/xml/ObjectXmlWriter.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/project/Project.h"
#include "corvex/project/files/ProjectAutosave.h"

#include <QBuffer>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

std::unique_ptr<Project> ProjectCopy::makeEmpty(QString &error)
{
    const DesignerFactory *factory = DesignerFactory::instance();
    std::unique_ptr<Project> project(
        factory ? static_cast<Project *>(factory->createUnowned(Project::kindName())) : nullptr);
    if (!project) {
        error = LocalizationHelper::coreString(u"Cannot create a project."_s);
    }
    return project;
}

std::unique_ptr<Project> ProjectCopy::make(const Project &project, QThread *thread,
                                           Common::Progress &progress, QString &error)
{
    progress.begin(LocalizationHelper::coreString(u"Copying %1"_s).arg(project.getIdName()));
    QBuffer text;
    text.open(QIODevice::ReadWrite);
    ObjectXmlWriter writer(&text);
    writer.setProgress(&progress);
    if (!writer.write(&project)) {
        error = writer.errorString();
        return nullptr;
    }
    std::unique_ptr<Project> copy = makeEmpty(error);
    if (!copy) {
        return nullptr;
    }
    copy->setFileFields(project.parentPath(), project.subPath(), project.fileName());
    text.seek(0);
    ObjectXmlReader reader(&text);
    reader.setProgress(&progress);
    if (!reader.read(copy.get())) {
        error = reader.errorString();
        return nullptr;
    }
    handOver(*copy, thread);
    return copy;
}

void ProjectCopy::handOver(Project &project, QThread *thread)
{
    project.moveToThread(thread);
    project.undoStack()->moveToThread(thread);
    project.autosave().moveToThread(thread);
}

} // namespace Halvane::Corvex::Designer
