// SPDX-License-Identifier: MIT
#include "corvex/checks/ProblemList.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/document/ProjectDocument.h"
#include "corvex/editing/words/EditScript.h"
#include "corvex/editing/words/ProjectPath.h"
#include "corvex/hardware/HardwareConfigurations.h"
#include "corvex/inspector/ObjectTreeModel.h"
#include "corvex/inspector/ProblemsModel.h"
#include "corvex/inspector/PropertySheet.h"
#include "corvex/project/Project.h"

#include <QGuiApplication>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace {

QTextStream out(stdout);

//! "Opacity = 100": the texts of all columns in the row.
QString textOf(const QModelIndex &row)
{
    QStringList cells;
    for (int column = 0; column < row.model()->columnCount(row.parent()); ++column) {
        cells.append(row.siblingAtColumn(column).data().toString());
    }
    return cells.join(u" = "_s);
}

void print(const QAbstractItemModel &model, const QModelIndex &parent = {}, int depth = 1)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        out << QString(2 * depth, u' ') << textOf(index) << '\n';
        print(model, index, depth + 1);
    }
}

//! Prints the model, and then each change of a row.
void follow(const QAbstractItemModel &model, const QString &title)
{
    using Model = QAbstractItemModel;
    out << title << '\n';
    print(model);
    const auto tell = [&model, title](char sign) {
        return [&model, title, sign](const QModelIndex &parent, int first, int last) {
            for (int row = first; row <= last; ++row) {
                out << "  " << sign << ' ' << title << ": " << textOf(model.index(row, 0, parent)) << '\n';
            }
        };
    };
    QObject::connect(&model, &Model::rowsInserted, &model, tell('+'));
    QObject::connect(&model, &Model::rowsAboutToBeRemoved, &model, tell('-'));
    QObject::connect(&model, &Model::dataChanged, &model,
                     [tell](const QModelIndex &first, const QModelIndex &last, const QList<int> &roles) {
                         if (roles.contains(Qt::DisplayRole)) {
                             tell('~')(first.parent(), first.row(), last.row());
                         }
                     });
}

} // namespace

//! inspect PROJECT PATH: shows a project and the properties of one object while it makes the edits that it
//! reads.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 3 || !DesignerFactory::createInstance(QStringLiteral(LIBRARY_FOLDER))
        || !HardwareConfigurations::createInstance(QStringLiteral(DATA_FOLDER))) {
        return 1;
    }
    auto *project = static_cast<Project *>(DesignerFactory::instance()->createUnowned(u"Project"_s));
    const bool isLoaded = project->loadFile(arguments.at(1));
    ProjectDocument document{std::unique_ptr<Project>(project)};
    ProblemList problems(*project, *HardwareConfigurations::instance()->installed());
    problems.update();
    PropertySheet sheet(*project);
    sheet.setObjects({ProjectPath::find(*project, arguments.at(2)).object});
    const ObjectTreeModel tree(document);
    const ProblemsModel list(problems);
    follow(tree, u"objects"_s);
    follow(sheet, u"properties"_s);
    follow(list, u"problems"_s);
    EditScript script(*project);
    QTextStream edits(stdin);
    for (QString line; edits.readLineInto(&line);) {
        out << "> " << line << '\n';
        if (script.run(line) != EditScript::Result::Done) {
            out << "  " << script.refusal().message << '\n';
        }
        problems.update();
    }
    return isLoaded ? 0 : 2;
}
