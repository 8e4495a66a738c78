// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/variables/ImportVariables.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/editing/words/Suggestion.h"
#include "corvex/project/Project.h"
#include "corvex/variables/exchange/VariableImport.h"

#include "InputFile.h"
#include "ProjectFile.h"
#include "terminal/Call.h"
#include "terminal/JsonWriter.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

//! The result of an import, collected before it is applied, because applying moves the new variables to the
//! project.
struct Report
{
    struct Value
    {
        QString object;
        QString property;
        QString before;
        QString after;
        QString readableBefore;
        QString readableAfter;
    };

    explicit Report(const VariableImport &import)
        : unchanged(import.unchangedCount())
    {
        for (const auto &[property, after] : import.changes()) {
            changed.append({property->parentObject()->getIdName(), property->id(), property->valueString(),
                            after, ReadableValue::print(*property), ReadableValue::print(*property, after)});
        }
        for (const auto &variable : import.additions()) {
            added.append({variable->getIdName(), variable->className()});
        }
    }

    bool isEmpty() const { return changed.isEmpty() && added.isEmpty(); }

    QList<Value> changed;
    QList<std::pair<QString, QString>> added;
    qsizetype unchanged;
};

void printJson(const Report &report, bool isWritten, const Call &call)
{
    JsonWriter &json = call.json();
    json.beginObject();
    json.name("changed"_L1);
    json.beginArray();
    for (const Report::Value &value : report.changed) {
        json.beginObject();
        json.member("object"_L1, value.object);
        json.member("property"_L1, value.property);
        json.member("before"_L1, value.before);
        json.member("after"_L1, value.after);
        json.member("beforeReadable"_L1, value.readableBefore);
        json.member("afterReadable"_L1, value.readableAfter);
        json.endObject();
    }
    json.endArray();
    json.name("added"_L1);
    json.beginArray();
    for (const auto &[name, className] : report.added) {
        json.beginObject();
        json.member("name"_L1, name);
        json.member("class"_L1, className);
        json.endObject();
    }
    json.endArray();
    json.member("unchanged"_L1, qint64(report.unchanged));
    json.member("written"_L1, isWritten);
    json.endObject();
}

QString quoted(const QString &text)
{
    return text.startsWith(u'"') ? text : u'"' + text + u'"';
}

QString lineOf(const Report::Value &value, bool isRaw)
{
    const QString form = u"%1.%2: %3 -> %4"_s;
    return isRaw || value.readableBefore == value.readableAfter
               ? Terminal::oneLine(
                   u"%1.%2: \"%3\" -> \"%4\""_s.arg(value.object, value.property, value.before, value.after))
               : Terminal::readableLine(form.arg(value.object, value.property, quoted(value.readableBefore),
                                                 quoted(value.readableAfter)));
}

void print(const Report &report, bool isWritten, const Call &call)
{
    if (call.asJson()) {
        printJson(report, isWritten, call);
        return;
    }
    for (const Report::Value &value : report.changed) {
        call.terminal().print(lineOf(value, call.isSet(u"raw"_s)));
    }
    for (const auto &[name, className] : report.added) {
        call.terminal().print(Terminal::oneLine(u"%1: new, a %2"_s.arg(name, className)));
    }
    call.terminal().print(u"%1 values changed, %2 variables added, %3 unchanged"_s.arg(
        QString::number(report.changed.size()), QString::number(report.added.size()),
        QString::number(report.unchanged)));
}

//! Prints all problems, ordered by line.
void complain(QList<CsvText::Problem> problems, const Call &call)
{
    std::ranges::stable_sort(problems, {}, &CsvText::Problem::line);
    for (const CsvText::Problem &problem : std::as_const(problems)) {
        const QString text = problem.line > 0 ? problem.toString() : problem.text;
        call.terminal().printError(Terminal::oneLine(u"%1: %2"_s.arg(call.argument(2), text)));
    }
}

//! Applies the import. Returns false if the project refuses it. Adds problems with the names of new
//! variables, which appear only once they are in the list.
bool edit(Project &project, VariableImport &import, QList<CsvText::Problem> &problems)
{
    QList<const DesignerObject *> added;
    for (const auto &variable : import.additions()) {
        added.append(variable.get());
    }
    UndoStack *stack = project.undoStack();
    if (!stack->push(new ImportVariables(project.variables(), import))) {
        problems.append({0, stack->errorString()});
        return false;
    }
    for (const DesignerObject *variable : added) {
        if (!variable->idProperty()->isValid()) {
            const QString name = variable->getIdName();
            problems.append(
                {import.lineOf(name), u"%1: %2"_s.arg(name, variable->idProperty()->errorString())});
        }
    }
    return true;
}

ExitCode take(ProjectFile &file, VariableImport &import, const Call &call)
{
    const bool isTrial = call.isSet(u"dry-run"_s);
    const Report report(import);
    QList<CsvText::Problem> problems = import.problems() + import.invalidValues();
    const bool canBeForced = edit(file.project(), import, problems) && import.problems().isEmpty();
    complain(problems, call);
    if (!problems.isEmpty() && !(canBeForced && call.isSet(u"force"_s))) {
        return call.failed(u"\"%1\" was not changed. %2"_s.arg(
                               file.path(), canBeForced
                                                ? u"Correct the table, or import it anyway with --force."_s
                                                : u"Correct the table."_s),
                           ExitCode::Problems);
    }
    const bool isWritten = !isTrial && !report.isEmpty();
    const ExitCode code = isWritten ? file.save(call) : ExitCode::Done;
    if (code == ExitCode::Done) {
        print(report, isWritten, call);
    }
    return code;
}

//! Shows the progress on a terminal.
VariableImport compared(const QByteArray &table, const Project &project, QChar separator, const Call &call)
{
    VariableImport import(project);
    import.setFieldReader(ReadableValue::fieldReader(project));
    const QString activity = u"Comparing %1"_s.arg(call.argument(2));
    Common::Progress *progress = call.terminal().showProgress(activity);
    import.begin(table, separator);
    if (progress) {
        progress->begin(activity, import.rowCount());
    }
    while (import.readRow()) {
        if (progress) {
            progress->advance();
        }
    }
    return import;
}

ExitCode run(const Call &call)
{
    if (call.argument(0) != "variables"_L1) {
        return call.misused(Suggestion::unknown(u"import"_s, call.argument(0), {u"variables"_s}));
    }
    const QString separator = call.value(u"separator"_s);
    if (call.isSet(u"separator"_s) && separator.size() != 1 && separator != "tab"_L1) {
        return call.misused(u"\"%1\" is not a separator. Use one character, or tab."_s.arg(separator));
    }
    QByteArray bytes;
    InputFile table(call.argument(2));
    if (!table.open() || !table.readAll(bytes)) {
        return call.failed(table.errorString());
    }
    ProjectFile file;
    if (!file.open(call, ProjectFile::Use::Change, 1)) {
        return ExitCode::File;
    }
    const QChar character = separator == "tab"_L1 ? QChar(u'\t')
                            : separator.isEmpty() ? QChar()
                                                  : separator.at(0);
    VariableImport import = compared(bytes, file.project(), character, call);
    return take(file, import, call);
}

QList<QCommandLineOption> options()
{
    return {QCommandLineOption(u"separator"_s,
                               u"The column separator: one character, or tab. By default, the first line "
                               "decides."_s,
                               u"CHAR"_s),
            QCommandLineOption({u"n"_s, u"dry-run"_s}, u"Save nothing; show what would change."_s),
            QCommandLineOption(u"force"_s, u"Accept invalid values, and save even if parts of "
                                           "the file are lost."_s),
            rawOption()};
}

} // namespace

const Verb importVerb{
    .name = "import",
    .arguments = "variables FILE CSV",
    .summary = "update variables from a table",
    .details =
        [] {
            return uR"(Reads a table in the form that "corvex export variables" prints. Updates the variables in the
table and adds the new ones, all or nothing, and prints each changed value. Fields can have the
form that people write and "corvex edit" reads, or the stored form; --raw prints the stored texts,
and JSON has both. Every column except "name" may be omitted. An empty field means the default value. Variables that are not in the
table are not changed. CSV may be "-" for standard input.

The table may be in UTF-8 or UTF-16, with commas, semicolons or tabs between the columns. Unless
the separator is a comma, numbers may have a decimal comma. A "'" before "=", "+", "-" or "@" is
not part of a text; it keeps spreadsheets from running the text as a formula.)"_s;
        },
    .example =
        "corvex import --dry-run variables examples/PumpStation/PumpStation.kdproj examples/variables.csv",
    .fewestArguments = 3,
    .mostArguments = 3,
    .opensProjects = true,
    .options = options,
    .run = run,
};

} // namespace Halvane::Corvex::Tool
