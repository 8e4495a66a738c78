// SPDX-License-Identifier: MIT
#include "corvex/checks/ExpressionSyntax.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/editing/words/Suggestion.h"
#include "corvex/project/ProjectNames.h"
#include "corvex/values/expressions/ExpressionText.h"
#include "corvex/values/expressions/GeneralDataList.h"

#include "ProjectFile.h"
#include "terminal/Call.h"
#include "terminal/JsonWriter.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

constexpr struct
{
    const char *name;
    GeneralDataList::InfoType type;
} kinds[] = {
    {"general", GeneralDataList::GeneralExpression}, {"assign", GeneralDataList::AssignExpression},
    {"bool", GeneralDataList::BoolExpression},       {"math", GeneralDataList::MathExpression},
    {"string", GeneralDataList::StringExpression},
};

constexpr struct
{
    const char *name;
    GeneralDataInfo::OutputType type;
} outputs[] = {
    {"raw", GeneralDataInfo::RawOutput},         {"string", GeneralDataInfo::StringOutput},
    {"boolean", GeneralDataInfo::BooleanOutput}, {"integer", GeneralDataInfo::IntegerOutput},
    {"float", GeneralDataInfo::FloatOutput},     {"number", GeneralDataInfo::NumberOutput},
    {"color", GeneralDataInfo::ColorOutput},
};

//! The row with that name, or null.
template<class Table>
const auto *findRow(const Table &table, const QString &name)
{
    const auto *row =
        std::ranges::find(table, name, [](const auto &entry) { return QLatin1StringView(entry.name); });
    return row == std::end(table) ? nullptr : row;
}

template<class Table>
QStringList namesOf(const Table &table)
{
    QStringList names;
    for (const auto &row : table) {
        names.append(QString::fromLatin1(row.name));
    }
    return names;
}

//! Why an expression without syntax errors has no code.
QString obstacle(const GeneralDataList &expression, GeneralDataList::InfoType kind)
{
    for (qsizetype i = 0; i < expression.count(); ++i) {
        const GeneralDataList term({expression.at(i)});
        if (!term.isValidValueType(kind) || !term.isValidDataType(kind) || !term.isValidValue(kind)) {
            return u"its term %1, \"%2\", is not allowed in one"_s.arg(QString::number(i + 1),
                                                                       term.toString());
        }
    }
    if (kind == GeneralDataList::AssignExpression && expression.count() % 2 != 0) {
        return u"its terms are not pairs of a target and a source"_s;
    }
    return u"its terms do not fit together"_s;
}

//! The term whose code contains the error; the last one if the error is at the end.
qsizetype termAt(const GeneralDataList &expression, const ExpressionSyntax::Result &error,
                 GeneralDataInfo::OutputType output, GeneralDataList::InfoType kind)
{
    constexpr qsizetype most = 1000; // a limit, as the code of every prefix is generated
    GeneralDataList beginning;
    for (qsizetype i = 0; i < std::min<qsizetype>(expression.count(), most); ++i) {
        beginning.append(expression.at(i));
        const QString code = beginning.toQmlString(output, kind);
        const qsizetype lines = code.count(u'\n') + 1;
        if (lines > error.line
            || (lines == error.line && code.size() - code.lastIndexOf(u'\n') > error.column)) {
            return i;
        }
    }
    return expression.count() - 1;
}

struct Translation
{
    QString code;
    QString problem; //!< for the user; empty on success
    // The expression as in project files, and as people write it.
    QString stored = {};
    QString readable = {};
};

Translation translate(const GeneralDataList &expression, const QString &text, GeneralDataList::InfoType kind,
                      GeneralDataInfo::OutputType output, const QString &kindName)
{
    const QString code = expression.toQmlString(output, kind);
    if (code.isEmpty() && !expression.isEmpty()) {
        return {{},
                u"\"%1\" is not an expression of the kind \"%2\": %3."_s.arg(text, kindName,
                                                                             obstacle(expression, kind))};
    }
    ExpressionSyntax syntax;
    const bool isStatement = kind == GeneralDataList::AssignExpression || code.isEmpty();
    const ExpressionSyntax::Result result =
        isStatement ? syntax.checkStatements(code) : syntax.checkExpression(code);
    if (!result.valid) {
        const qsizetype place = termAt(expression, result, output, kind);
        return {code, u"The code is not complete JavaScript at term %1, \"%2\": %3"_s.arg(
                          QString::number(place + 1), GeneralDataList({expression.at(place)}).toString(),
                          result.message)};
    }
    return {code, {}};
}

//! Reads either form. \a names is null without a project.
Translation translate(const QString &text, const ExpressionPurpose &purpose, const QString &kindName,
                      const ProjectNames *names)
{
    ReadableValue::Reading reading{text, {}};
    if (!text.isEmpty() && !ExpressionText::isStored(text)) {
        reading = ReadableValue::readExpression(text, purpose, names);
    }
    if (!reading.error.isEmpty()) {
        return {{},
                u"\"%1\" is not an expression of the kind \"%2\": %3"_s.arg(text, kindName, reading.error)};
    }
    bool ok = false;
    const GeneralDataList expression(reading.stored, &ok);
    if (!ok) {
        return {{},
                u"\"%1\" is not an expression. Terms look like \"0406speed\", several like \"<0406speed>"
                "<0101+><02041>\"."_s.arg(text)};
    }
    Translation result = translate(expression, text, purpose.kind, purpose.output, kindName);
    result.stored = expression.toString();
    result.readable = ReadableValue::printExpression(expression, purpose, names);
    return result;
}

QList<QCommandLineOption> options()
{
    return {QCommandLineOption(u"forms"_s, u"Print the expression, too, as people write it and as stored."_s),
            QCommandLineOption(u"output"_s,
                               u"The result type of the code: %1."_s.arg(namesOf(outputs).join(", "_L1)),
                               u"TYPE"_s, u"raw"_s)};
}

ExitCode run(const Call &call)
{
    const auto *kind = findRow(kinds, call.argument(0));
    if (!kind) {
        return call.misused(Suggestion::unknown(u"kind of expressions"_s, call.argument(0), namesOf(kinds)));
    }
    const QString outputName = call.value(u"output"_s);
    const auto *output = findRow(outputs, outputName);
    if (!output) {
        return call.misused(Suggestion::unknown(u"type"_s, outputName, namesOf(outputs)));
    }
    ProjectFile file;
    const bool hasProject = !call.argument(2).isEmpty();
    if (hasProject && !file.open(call, ProjectFile::Use::Read, 2)) {
        return ExitCode::File;
    }
    const std::optional<ProjectNames> names =
        hasProject ? std::optional<ProjectNames>(std::in_place, file.project()) : std::nullopt;
    const auto [code, problem, stored, readable] =
        translate(call.argument(1), {kind->type, output->type}, call.argument(0), names ? &*names : nullptr);
    if (call.asJson()) {
        JsonWriter &json = call.json();
        json.beginObject();
        json.member("kind"_L1, call.argument(0));
        json.member("output"_L1, outputName);
        json.member("valid"_L1, problem.isEmpty());
        json.member("code"_L1, code);
        json.member("stored"_L1, stored);
        json.member("readable"_L1, readable);
        json.endObject();
    } else if (problem.isEmpty() || !code.isEmpty()) {
        if (call.isSet(u"forms"_s)) {
            call.terminal().print(readable);
            call.terminal().print(Terminal::oneLine(stored));
        }
        call.terminal().print(code);
    }
    return problem.isEmpty() ? ExitCode::Done : call.failed(problem, ExitCode::Problems);
}

} // namespace

const Verb exprVerb{
    .name = "expr",
    .arguments = "KIND TEXT [FILE] [--output TYPE]",
    .summary = "translate an expression into JavaScript",
    .details =
        [] {
            return uR"(Prints the JavaScript that the device gets for the expression TEXT. People write
"level * 2", project files contain "<0406level><0101*><02042>"; both are accepted. The types of names are
those of the project FILE. Without FILE a name needs its type: "level::number". KIND is the purpose
of the expression: %1. An expression that cannot be translated, or not into complete
JavaScript, gives exit code 1.)"_s.arg(namesOf(kinds).join(", "_L1));
        },
    .example = "corvex expr math \"wellLevel * 2\" examples/PumpStation/PumpStation.kdproj",
    .fewestArguments = 2,
    .mostArguments = 3,
    .opensProjects = true,
    .options = options,
    .run = run,
};

} // namespace Halvane::Corvex::Tool
