// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/ExpressionText.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/values/expressions/ExpressionGrammar.h"
#include "corvex/values/expressions/ExpressionKinds.h"
#include "corvex/values/expressions/ValueCode.h"
#include "corvex/values/private/ExpressionMeaning.h"
#include "corvex/values/private/ExpressionPercent.h"
#include "corvex/values/private/ExpressionPrinter.h"
#include "corvex/values/private/ExpressionReader.h"
#include "corvex/values/private/ExpressionWords.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;
using Info = GeneralDataInfo;
using Token = ExpressionToken;
using Words = ExpressionWords;

constexpr ExpressionPurpose conditionPurpose{GeneralDataList::BoolExpression};
constexpr ExpressionPurpose assignmentPurpose{GeneralDataList::AssignExpression};

//! Whether a term at that place would be an argument of a call.
bool isInCall(const GeneralDataList &terms, qsizetype place)
{
    QList<bool> open; // for each open bracket: whether it is that of a call
    for (qsizetype i = 0; i < place; ++i) {
        const Info &term = terms.at(i);
        if (ExpressionGrammar::isOperator(term, u'(')) {
            open.append(false);
        } else if (term.valueType() == Info::FunctionValue && !Words::isWholeCall(term.value())) {
            open.append(true);
        } else if (ExpressionGrammar::isOperator(term, u')') && !open.isEmpty()) {
            open.removeLast();
        }
    }
    return !open.isEmpty() && open.constLast();
}

bool isBooleanName(const Info &term)
{
    return (term.valueType() == Info::ObjectValue || term.valueType() == Info::VariableValue)
           && term.dataType() == Info::BooleanData;
}

bool hasCalls(const ExpressionPurpose &purpose)
{
    return purpose.kind == GeneralDataList::MathExpression
           || purpose.kind == GeneralDataList::StringExpression;
}

//! In which kinds of expressions the term can be used instead.
QString usableElsewhere(const Info &term, const ExpressionPurpose &purpose)
{
    const QStringList kinds = ExpressionKinds::of(term);
    if (kinds.isEmpty() || purpose.isAssignment()) {
        return LocalizationHelper::coreString(u"This cannot be used in this expression."_s);
    }
    const QString advice = purpose.kind == GeneralDataList::BoolExpression
                               ? u" Calculate it in a number expression of a helper element, such as "
                                 u"helper.xBinding, and compare "
                                 "helper.x here."_s
                               : QString();
    return LocalizationHelper::coreString(u"This can only be used in %1.%2"_s)
        .arg(kinds.join(LocalizationHelper::coreString(u" and "_s)), LocalizationHelper::coreString(advice));
}

//! Why the terms have no code, with the place of the reason.
ExpressionText::Error obstacle(const ExpressionReader &reader, const ExpressionPurpose &purpose)
{
    const GeneralDataList &terms = reader.terms();
    const auto at = [&reader](qsizetype term, const QString &english) {
        const auto [position, length] = reader.placeOf(term);
        return ExpressionText::Error{position, length, LocalizationHelper::coreString(english), {}};
    };
    for (qsizetype i = 0; i < terms.count(); ++i) {
        if (!ExpressionRules::allows(Words::grammarKind(purpose), terms.at(i))) {
            const auto [position, length] = reader.placeOf(i);
            return {position, length, usableElsewhere(terms.at(i), purpose), {}};
        }
    }
    if (const qsizetype misfit = ValueCode::misfit(terms, purpose); misfit >= 0) {
        const auto [position, length] = reader.placeOf(misfit);
        return {position, length, ValueCode::explanation(purpose), {}};
    }
    if (purpose.isAssignment()) {
        return terms.count() % 2 == 0 ? at(0, u"The values cannot be converted to those of their targets."_s)
                                      : at(terms.count(), u"The last assignment has no value."_s);
    }
    const qsizetype misplaced = ExpressionGrammar::firstMisplaced(Words::grammarKind(purpose),
                                                                  QList<Info>(terms.begin(), terms.end()));
    if (misplaced == terms.count()) {
        return at(misplaced, u"The expression is incomplete."_s);
    }
    if (misplaced >= 0 && terms.at(misplaced).valueType() == Info::FunctionValue && !hasCalls(purpose)) {
        return at(misplaced, purpose.isColor
                                 ? u"Functions cannot give a color. Write a color, a name, or a boolean name "
                                   "that selects one of two texts, as in hot ? \"red\" : \"green\"."_s
                                 : u"Functions cannot be called here."_s);
    }
    if (misplaced >= 0) {
        const bool isOperator = terms.at(misplaced).valueType() == Info::OperatorValue;
        return at(misplaced, isOperator ? u"A value is missing before this."_s
                             : isInCall(terms, misplaced)
                                 ? u"A \",\" or an operator is missing before this."_s
                                 : u"An operator is missing before this."_s);
    }
    for (qsizetype i = 1; i < terms.count(); ++i) {
        if (!ExpressionGrammar::isOperator(terms.at(i), u'?') || isBooleanName(terms.at(i - 1))) {
            continue;
        }
        const bool isEnclosed = i > 2 && ExpressionGrammar::isOperator(terms.at(i - 1), u')')
                                && isBooleanName(terms.at(i - 2))
                                && ExpressionGrammar::isOperator(terms.at(i - 3), u'(');
        if (isEnclosed) {
            return at(i - 3, u"Omit the parentheses. A single boolean name must be before \"?\"."_s);
        }
        return at(i - 1,
                  u"Only a boolean variable or property can be before \"?\". Set a boolean variable in "
                  "two rules of a LogicBuilder, and use it here: when level > 90 do isHigh = true when "
                  "level <= 90 do isHigh = false."_s);
    }
    for (qsizetype i = 0; i < terms.count(); ++i) {
        GeneralDataList single({terms.at(i)});
        if (single.toQmlString(purpose.output, purpose.kind).isEmpty()
            && terms.at(i).valueType() != Info::OperatorValue
            && terms.at(i).valueType() != Info::FunctionValue) {
            return at(i, u"This cannot be converted to the result of the expression."_s);
        }
    }
    return at(0, u"The device has no code for this expression."_s);
}

//! What the device does with the terms, if that is not what they say.
std::optional<ExpressionText::Error> misunderstanding(const ExpressionReader &reader,
                                                      const ExpressionPurpose &purpose,
                                                      const ExpressionNames &names)
{
    const GeneralDataList &terms = reader.terms();
    const auto at = [&reader](qsizetype term, const QString &message) {
        const auto [position, length] = reader.placeOf(term);
        return ExpressionText::Error{position, length, message, {}};
    };
    if (!purpose.separatesTerms() && terms.isComplete(purpose.kind)) {
        if (const qsizetype chained = ExpressionMeaning::chained(terms); chained >= 0) {
            return at(chained, LocalizationHelper::coreString(
                                   u"Compare two values at a time, as in \"0 < level and level < 100\"."_s));
        }
        if (const auto fault = ExpressionMeaning::fault(terms, purpose.kind)) {
            return at(fault->term, fault->reason);
        }
    }
    for (qsizetype i = 0; i < terms.count() && purpose.isAssignment(); i += 2) {
        if (terms.at(i).valueType() == Info::ObjectValue && names.traitsOf(terms.at(i).value()).isReadOnly) {
            return at(i, LocalizationHelper::coreString(
                             u"This can only be read. Assign another property or a variable."_s));
        }
    }
    for (const ExpressionPercent &percent : ExpressionPercent::of(terms, purpose, names)) {
        return at(percent.term, LocalizationHelper::coreString(
                                    u"On the device, this property is a fraction of 1. Write %1 for %2 %."_s)
                                    .arg(percent.fraction.value(), terms.at(percent.term).value()));
    }
    return {};
}

} // namespace

bool ExpressionText::isStored(const QString &text)
{
    const auto isType = [&text](qsizetype place) {
        return text.at(place) == u'0'
               && ExpressionRules::isHexadecimal(QStringView(text).sliced(place + 1, 1));
    };
    return text.startsWith(u'<') || (text.size() > 3 && isType(0) && isType(2));
}

ExpressionText::Reading ExpressionText::read(const QString &text, const ExpressionPurpose &purpose,
                                             const ExpressionNames &names)
{
    ExpressionReader reader(text, purpose, names);
    reader.read();
    const GeneralDataList &terms = reader.terms();
    const bool hasCode = terms.isEmpty() || purpose.isTermList || !ValueCode::of(terms, purpose).isEmpty();
    if (!reader.error() && !hasCode) {
        return {terms, obstacle(reader, purpose)};
    }
    if (!reader.error()) {
        return {terms, misunderstanding(reader, purpose, names)};
    }
    return {terms, reader.error()};
}

QString ExpressionText::print(const GeneralDataList &terms, const ExpressionPurpose &purpose,
                              const ExpressionNames &names)
{
    const QString text = ExpressionPrinter(purpose, names).print(terms);
    ExpressionReader reader(text, purpose, names);
    reader.read();
    return isStored(text) || reader.error() || reader.terms() != terms ? QString() : text;
}

ExpressionText::RuleReading ExpressionText::readRules(const QString &text, const ExpressionNames &names)
{
    RuleReading reading;
    const auto fail = [&reading](const Token &token, const QString &english) {
        reading.rules.clear();
        reading.error = {token.position, token.length, LocalizationHelper::coreString(english), {}};
        return reading;
    };
    const QString form = u"Rules have the form \"when condition do target = source\"."_s;
    ExpressionLexer lexer(text);
    Token token = lexer.next(true);
    TextPair rule;
    const auto isWord = [&token](QLatin1StringView word) {
        return token.type == Token::Name && !token.isQuoted && token.text == word;
    };
    while (token.type != Token::End) {
        if (!isWord(Words::ruleBegin)) {
            return fail(token, form);
        }
        for (const QLatin1StringView end : {Words::ruleEffect, Words::ruleBegin}) {
            const bool isCondition = end == Words::ruleEffect;
            const qsizetype begin = token.position + token.length;
            do {
                token = lexer.next(true);
            } while (token.type != Token::End && token.type != Token::Wrong && !isWord(Words::ruleBegin)
                     && !isWord(Words::ruleEffect));
            // A wrong token belongs to the part, which reports it.
            const bool isWrong = token.type == Token::Wrong;
            if (!isWrong && (isCondition || token.type != Token::End) && !isWord(end)) {
                return fail(token, form);
            }
            const Reading part =
                read(isWrong ? text.sliced(begin) : text.sliced(begin, token.position - begin),
                     isCondition ? conditionPurpose : assignmentPurpose, names);
            if (part.error) {
                reading.rules.clear();
                reading.error = part.error;
                reading.error->position += begin;
                return reading;
            }
            if (part.terms.isEmpty()) {
                return fail(token, isCondition ? u"The condition after \"when\" is missing."_s
                                               : u"The assignment after \"do\" is missing."_s);
            }
            (isCondition ? rule.first : rule.second) = part.terms.toString();
        }
        reading.rules.append(rule);
    }
    return reading;
}

QString ExpressionText::printRules(const PairList &rules, const ExpressionNames &names)
{
    QStringList parts;
    for (const TextPair &rule : rules) {
        const QString condition = print(GeneralDataList(rule.first), conditionPurpose, names);
        const QString effect = print(GeneralDataList(rule.second), assignmentPurpose, names);
        if (condition.isEmpty() || effect.isEmpty()) {
            return {};
        }
        parts += u"%1 %2 %3 %4"_s.arg(Words::ruleBegin, condition, Words::ruleEffect, effect);
    }
    return parts.isEmpty() ? u""_s : parts.join(u' ');
}

} // namespace Halvane::Corvex::Designer
