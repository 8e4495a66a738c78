// SPDX-License-Identifier: MIT
#include "corvex/checks/ExpressionSyntax.h"

#include "corvex/checks/private/rules/NestingDepth.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>
#include <mutex>

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

namespace {

struct Place
{
    int line = 0;
    int column = 0;
};

//! The place after the last character of the text.
Place endOf(QStringView text)
{
    Place end{1, 1};
    for (const QChar c : text) {
        const bool lineEnd = c == u'\n' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
        end = lineEnd ? Place{end.line + 1, 1} : Place{end.line, end.column + 1};
    }
    return end;
}

//! Compilers may report an error at the end of the text inside the code that we added around it.
Place within(Place place, Place end)
{
    return place.line > end.line ? end : place;
}

//! The error for code that is nested deeper than all compilers can follow.
ExpressionSyntax::Result checkNesting(QStringView code, int linesBefore = 0)
{
    const qsizetype place = findTooDeepNesting(code);
    if (place < 0) {
        return {};
    }
    const auto [line, column] = endOf(code.first(place));
    return {false, line + linesBefore, column,
            u"It is nested more than %1 levels deep."_s.arg(deepestNesting)};
}

//! Checks the lines that are long enough to be nested that deep; an expression is on one line.
ExpressionSyntax::Result checkNestingOfLines(QStringView document)
{
    int number = 0;
    for (const QStringView line : document.tokenize(u'\n')) {
        if (const auto result =
                line.size() > deepestNesting ? checkNesting(line, number) : ExpressionSyntax::Result();
            !result.valid) {
            return result;
        }
        ++number;
    }
    return {};
}

//! The first engine in a program initializes data shared by all engines, without locking.
std::unique_ptr<QQmlEngine> makeEngine()
{
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    auto engine = std::make_unique<QQmlEngine>();
    engine->setOutputWarningsToStandardError(false);
    return engine;
}

//! An engine keeps 2 KB of each document until its thread returns to an event loop, which it may not have.
constexpr int documentsOfEngine = 1000;

} // namespace

ExpressionSyntax::ExpressionSyntax()
    : m_engine(makeEngine())
{ }

ExpressionSyntax::~ExpressionSyntax() = default;

ExpressionSyntax::Result ExpressionSyntax::checkExpression(const QString &code)
{
    // The parentheses alone would accept "1) + (2".
    const Result asItStands = checkStatements(code);
    return asItStands.valid ? compile(code, true) : asItStands;
}

ExpressionSyntax::Result ExpressionSyntax::checkStatements(const QString &code)
{
    return compile(code, false);
}

ExpressionSyntax::Result ExpressionSyntax::checkDocument(const QString &qml)
{
    // A readable document without imports has exactly one error, an unknown type, because parsing comes
    // first.
    if (const Result nesting = checkNestingOfLines(qml); !nesting.valid) {
        return nesting;
    }
    if (++m_documentCount % documentsOfEngine == 0) {
        m_engine = makeEngine();
    }
    static const QRegularExpression imports(u"^import [^\n]*"_s, QRegularExpression::MultilineOption);
    QQmlComponent component(m_engine.get());
    component.setData(QString(qml).remove(imports).toUtf8(), QUrl(u"qrc:/document.qml"_s));
    for (const QQmlError &error : component.errors()) {
        if (!isOfUnknownType(error.description())) {
            return {false, error.line(), error.column(), error.description()};
        }
    }
    return {};
}

bool ExpressionSyntax::isOfUnknownType(const QString &error)
{
    if (m_unknownType.isEmpty()) {
        QQmlComponent component(m_engine.get());
        component.setData("Unknown {}", QUrl(u"qrc:/unknown.qml"_s));
        m_unknownType = component.errors().value(0).description().sliced("Unknown"_L1.size());
    }
    return error.endsWith(m_unknownType);
}

// The engine compiles the whole text before it runs any of it, and the first statement is a throw, so any
// other error comes from the compiler. The engine reports no column and accepts a few texts that are not code
// ("#FF" at the start of a line). The reader of QML files rejects those, but accepts a line ending between
// quotes.
ExpressionSyntax::Result ExpressionSyntax::compile(const QString &code, bool inParentheses)
{
    if (const Result nesting = checkNesting(code); !nesting.valid) {
        return nesting;
    }
    const QString block = inParentheses ? u"(\n%1\n)"_s.arg(code) : code;
    const int linesBefore = inParentheses ? 2 : 1;
    const Place end = endOf(code);

    Result result;
    const QJSValue thrown = m_engine->evaluate("throw null;\n"_L1 + block, QString(), 1);
    if (thrown.isError()) {
        const int line = std::max(thrown.property(u"lineNumber"_s).toInt() - linesBefore, 1);
        result = {false, std::min(line, end.line), 0, thrown.property(u"message"_s).toString()};
    }
    QQmlComponent component(m_engine.get());
    component.setData(u"QtObject { function f() {\n%1\n}}"_s.arg(block).toUtf8(),
                      QUrl(u"qrc:/expression.qml"_s));
    const QList<QQmlError> errors = component.errors();
    // There is always one error before the text: nothing is imported, so the type around it is unknown.
    const auto error = std::find_if(errors.begin(), errors.end(), [&](const QQmlError &candidate) {
        return candidate.line() > linesBefore;
    });
    if (error == errors.end()) {
        return result;
    }
    const Place place = within({error->line() - linesBefore, error->column()}, end);
    if (result.valid) {
        return {false, place.line, place.column, error->description()};
    }
    if (place.line == result.line) {
        result.column = place.column;
    }
    return result;
}

} // namespace Halvane::Corvex::Designer
