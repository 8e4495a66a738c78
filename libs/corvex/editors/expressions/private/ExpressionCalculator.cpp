// SPDX-License-Identifier: MIT
#include "corvex/editors/expressions/private/ExpressionCalculator.h"

#include "corvex/checks/private/rules/NestingDepth.h"
#include "corvex/common/LocalizationHelper.h"
#include "corvex/preview/Watchdog.h"
#include "corvex/values/expressions/ValueCode.h"
#include "corvex/values/private/ExpressionLexer.h"

#include <QColor>
#include <QFile>
#include <QJSEngine>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;
using Info = GeneralDataInfo;

constexpr int timeLimit = 200; // in milliseconds
constexpr qsizetype mostTerms = 500;
constexpr qsizetype longestResult = 200;

//! What viewer.js expects of the device. A function that repeats its text cannot fill the memory.
constexpr auto deviceScript = R"(({
    report: message => { throw new Error(message); },
    text: value => {
        const text = String(value);
        if (text.length > 2000)
            throw new Error("The text is too long to be shown here.");
        return text;
    },
    color: name => name
}))"_L1;

QVariant typedValue(Info::DataType type, const QString &text)
{
    switch (type) {
    case Info::BooleanData:
        return text == "true"_L1 || text == u'1';
    case Info::IntegerData:
    case Info::FloatData:
    case Info::NumberData:
        return text.toDouble();
    case Info::ColorData:
        return ValueCode::comparable(QColor(text));
    default:
        return text;
    }
}

//! Puts the value into the object of the element, which may be in the object of its group or screen.
QVariantMap withValue(QVariantMap object, const QStringList &path, const QVariant &value)
{
    const QString &name = path.constFirst();
    object.insert(name, path.size() == 1
                            ? value
                            : QVariant(withValue(object.value(name).toMap(), path.sliced(1), value)));
    return object;
}

QString readable(const QJSValue &value)
{
    const QString text = value.toString();
    const QString shown = value.isString() ? ExpressionLexer::quoted(text, u'"') : text;
    return shown.size() > longestResult ? shown.first(longestResult) + QChar(0x2026) : shown;
}

} // namespace

std::shared_ptr<ExpressionCalculator> ExpressionCalculator::shared()
{
    static std::weak_ptr<ExpressionCalculator> current;
    std::shared_ptr<ExpressionCalculator> calculator = current.lock();
    if (!calculator) {
        calculator.reset(new ExpressionCalculator);
        current = calculator;
    }
    return calculator;
}

ExpressionCalculator::ExpressionCalculator()
    : m_engine(std::make_unique<QJSEngine>())
{
    QFile file(u":/corvex/editors/viewer.js"_s);
    const bool isOpen = file.open(QIODevice::ReadOnly);
    Q_ASSERT(isOpen);
    m_makeViewer = m_engine->evaluate(QString::fromUtf8(file.readAll()), u"viewer.js"_s);
    m_device = m_engine->evaluate(deviceScript);
    m_watchdog = std::make_unique<Preview::Watchdog>(*m_engine);
    m_watchdog->setLimit(timeLimit);
}

ExpressionCalculator::~ExpressionCalculator() = default;

QString ExpressionCalculator::Result::described(const QString &type) const
{
    if (!problem.isEmpty()) {
        return type.isEmpty() ? problem : u"%1: %2"_s.arg(type, problem);
    }
    return value.isEmpty() ? type : type.isEmpty() ? "= "_L1 + value : u"= %1 (%2)"_s.arg(value, type);
}

ExpressionCalculator::Result
ExpressionCalculator::valueOf(const ExpressionScope &scope, const GeneralDataList &terms,
                              const ExpressionPurpose &purpose, const QHash<QString, QString> &given,
                              const std::function<QString(const QString &)> &wrap)
{
    if (terms.isEmpty() || purpose.isAssignment() || (purpose.isTermList && terms.count() > 1)) {
        return {};
    }
    if (terms.count() > mostTerms) {
        return {
            {}, {}, LocalizationHelper::coreString(u"The expression is too long to be calculated here."_s)};
    }
    QVariantMap variables;
    QVariantMap elements;
    for (const Info &term : terms) {
        const bool isVariable = term.valueType() == Info::VariableValue;
        if (!isVariable && term.valueType() != Info::ObjectValue) {
            continue;
        }
        if (term.dataType() == Info::LogData) {
            return {{}, {}, LocalizationHelper::coreString(u"Only the device has the values of logs."_s)};
        }
        const auto known = given.constFind(term.value());
        const QVariant value =
            typedValue(term.dataType(), known == given.cend() ? scope.valueOf(term) : *known);
        if (isVariable) {
            variables.insert(term.value(), QVariantMap{{u"value"_s, value}});
        } else if (ExpressionLexer::isPlainName(term.value())) { // the code has the name as it is
            elements = withValue(elements, term.value().split(u'.'), value);
        } else {
            return {};
        }
    }
    const QString code = ValueCode::of(terms, purpose);
    return code.isEmpty() || findTooDeepNesting(code) >= 0
               ? Result()
               : run(wrap ? wrap(code) : code, variables, elements);
}

ExpressionCalculator::Result ExpressionCalculator::run(const QString &code, const QVariantMap &variables,
                                                       const QVariantMap &elements)
{
    // Without a prototype, a variable may have any name.
    QJSValue cells = m_engine->evaluate(u"Object.create(null)"_s);
    for (auto variable = variables.begin(); variable != variables.end(); ++variable) {
        cells.setProperty(variable.key(), m_engine->toScriptValue(variable.value()));
    }
    QStringList parameters{u"qmlViewer"_s};
    QJSValueList arguments{m_makeViewer.call({cells, m_engine->newObject(), m_device})};
    for (auto element = elements.begin(); element != elements.end(); ++element) {
        parameters.append("qml_"_L1 + element.key());
        arguments.append(m_engine->toScriptValue(element.value()));
    }
    m_watchdog->enter();
    const QJSValue function =
        m_engine->evaluate(u"(function(%1) { return (%2\n); })"_s.arg(parameters.join(u", "_s), code));
    const QJSValue result = function.isCallable() ? function.call(arguments) : function;
    if (m_watchdog->leave()) {
        return {{}, {}, LocalizationHelper::coreString(u"The calculation takes too long."_s)};
    }
    return result.isError() ? Result{{}, {}, result.property(u"message"_s).toString()}
                            : Result{readable(result), result.toString(), {}};
}

} // namespace Halvane::Corvex::Designer
