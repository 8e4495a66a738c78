// SPDX-License-Identifier: MIT
#include "corvex/core/DesignerFactory.h"
#include "corvex/editing/commands/variables/ImportVariables.h"
#include "corvex/project/Project.h"
#include "corvex/runtime/RuntimeConfiguration.h"
#include "corvex/variables/exchange/VariableExport.h"
#include "corvex/variables/exchange/VariableImport.h"

#include "FuzzSupport.h"

#include <QCoreApplication>

using namespace Halvane::Corvex::Designer;

namespace {

std::unique_ptr<Project> makeProject()
{
    static int argc = 1;
    static char name[] = "variableTable";
    static char *argv[] = {name, nullptr};
    static const QCoreApplication application(argc, argv);
    static const bool isReady = DesignerFactory::createInstance(QCoreApplication::applicationDirPath());
    Fuzz::require(isReady, "the factory");
    DesignerObject *project = DesignerFactory::instance()->createObject(Project::kindName());
    project->setParent(nullptr);
    return std::unique_ptr<Project>(static_cast<Project *>(project));
}

QByteArray tableOf(const Project &project)
{
    return VariableExport::write(project).files.constFirst().bytes;
}

//! Returns false if the table has problems; otherwise imports all of it.
bool import(const QByteArray &table, Project &project)
{
    VariableImport plan(table, project);
    if (!plan.problems().isEmpty()) {
        return false;
    }
    ImportVariables command(project.variables(), plan);
    command.redo();
    Fuzz::require(command.isDone(), "a table is refused", command.errorString());
    command.undo();
    Fuzz::require(project.variables()->listItemCount() == 0, "undone");
    command.redo();
    const QByteArray taken = tableOf(project);
    const VariableImport again(taken, project);
    Fuzz::require(again.problems().isEmpty() && again.changes().isEmpty() && again.additions().empty(),
                  "exported as it was taken", QString::fromUtf8(taken));
    return true;
}

} // namespace

//! An imported table can be undone, is exported unchanged, and gives a valid configuration for the device.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::unique_ptr<Project> project = makeProject();
    const QByteArray table(reinterpret_cast<const char *>(data), qsizetype(size));
    if (import(table, *project)) {
        RuntimeConfiguration configuration;
        QString error;
        Fuzz::require(configuration.collect(*project, &error), "collected", error);
    }
    return 0;
}
