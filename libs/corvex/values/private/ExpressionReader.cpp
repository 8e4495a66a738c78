// SPDX-License-Identifier: MIT
#include "corvex/values/private/ExpressionReader.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/values/private/ExpressionMeaning.h"
#include "corvex/values/private/ExpressionWords.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Info = GeneralDataInfo;
using Words = ExpressionWords;
using Token = ExpressionToken;

//! A path has a property of an element at its end; a name without "." is that of a variable.
Info::ValueType valueTypeOf(const QString &path)
{
    return path.contains(u'.') ? Info::ObjectValue : Info::VariableValue;
}

const QString formOfSources =
    u"Only a single value or name can be assigned, no expression. Rules such as \"when x do y = true\" can "
    "choose what to assign; a CheckButton switches a boolean variable."_s;

QString withoutLeadingZeros(QString number)
{
    const qsizetype first = number.startsWith(u'-') ? 1 : 0;
    qsizetype end = first;
    while (end + 1 < number.size() && number.at(end) == u'0' && number.at(end + 1).isDigit()) {
        ++end;
    }
    return number.remove(first, end - first);
}

} // namespace

bool ExpressionReader::fail(const Token &token, const QString &english, const QString &name)
{
    m_error = {token.position, token.length, Common::LocalizationHelper::coreString(english), name};
    return false;
}

bool ExpressionReader::add(const Token &token, Info::ValueType valueType, Info::DataType dataType,
                           const QString &value)
{
    if (m_isSeparatorDue) {
        const bool isCalculated =
            m_purpose.isAssignment() && valueType == Info::OperatorValue && m_terms.count() % 2 == 0;
        return fail(token, isCalculated ? formOfSources : formOfSeparators());
    }
    m_isSeparatorDue = m_purpose.separatesTerms();
    m_terms.append(valueType, dataType, value);
    m_places.append({token.position, token.length});
    return true;
}

bool ExpressionReader::isOperandDue() const
{
    return m_terms.isEmpty() || m_purpose.separatesTerms()
           || !ExpressionGrammar::endsOperand(Words::grammarKind(m_purpose), m_terms.at(m_terms.count() - 1));
}

void ExpressionReader::read()
{
    for (;;) {
        const Token token = m_lexer.next(isOperandDue());
        m_end = token.position;
        if (token.type == Token::End) {
            if (m_negates) {
                fail(token, u"A value is missing after \"not\"."_s);
            }
            adaptToMeaning();
            return;
        }
        if (!take(token)) {
            return;
        }
    }
}

void ExpressionReader::adaptToMeaning()
{
    if (m_error || !m_terms.isComplete(m_purpose.kind)) {
        return;
    }
    ExpressionMeaning::adaptConstants(m_terms, m_purpose.kind);
    if (m_purpose.kind == GeneralDataList::StringExpression) {
        addNumbers();
    }
}

//! In an expression for a text, "a + b" becomes "a - -b", which converts both to numbers.
void ExpressionReader::addNumbers()
{
    const QList<qsizetype> sums = ExpressionMeaning::sums(m_terms);
    if (sums.isEmpty()) {
        return;
    }
    GeneralDataList terms;
    QList<std::pair<qsizetype, qsizetype>> places;
    auto sum = sums.cbegin();
    bool isSubtracted = false;
    const auto addTerm = [&](const Info &term, qsizetype i) {
        terms.append(term);
        places.append(m_places.at(i));
    };
    const Info minus(Info::OperatorValue, Info::OperatorData, u"-"_s);
    for (qsizetype i = 0; i < m_terms.count(); ++i) {
        Info term = m_terms.at(i);
        const QString value = term.value();
        const bool isNumber = term.valueType() == Info::ConstantValue && term.dataType() != Info::StringData
                              && !value.front().isLetter();
        if (std::exchange(isSubtracted, false)) {
            if (ExpressionGrammar::isOperator(term, u'-')) {
                continue; // "a + -b" is "a - b"
            }
            if (!isNumber) {
                addTerm(minus, i);
            } else if (value != u'0') {
                term.setValue(value.startsWith(u'-') ? value.sliced(1) : u'-' + value);
            }
        }
        isSubtracted = sum != sums.cend() && *sum == i;
        addTerm(isSubtracted ? minus : term, i);
        sum += isSubtracted ? 1 : 0;
    }
    m_terms = terms;
    m_places = places;
}

bool ExpressionReader::take(const Token &token)
{
    const bool isParenthesis = token.type == Token::Sign && token.text == u'(';
    const bool negatesName = m_negates && isNegatable(token);
    if (m_negates && !isParenthesis && !negatesName) {
        return fail(token, u"\"not\" needs a boolean name, or a condition in parentheses."_s);
    }
    if (m_isNegated && !endNegation(token)) {
        return false;
    }
    switch (token.type) {
    case Token::Name:
        return (token.isQuoted ? takeName(token) : takeWord(token)) && (!negatesName || endNegation(token));
    case Token::Text:
        return addConstant(token, Info::StringData);
    case Token::Number: {
        bool isInteger = false;
        const QString digits = withoutLeadingZeros(token.text);
        const qlonglong number = digits.toLongLong(&isInteger);
        isInteger = isInteger && QString::number(number) == digits;
        return add(token, Info::ConstantValue, isInteger ? Info::IntegerData : Info::FloatData, digits);
    }
    case Token::Float:
        return addConstant(token, Info::FloatData);
    case Token::Decimal:
        return addConstant(token, Info::NumberData);
    case Token::Color:
        return addConstant(token, Info::ColorData);
    case Token::Hex:
        return add(token, Info::ConstantValue, Info::HexData, token.text.toUpper());
    case Token::Sign:
        return takeSign(token);
    case Token::Annotation:
        return fail(token, u"A type follows a name directly, as in \"level::number\"."_s);
    case Token::Wrong:
        m_error = {token.position, token.length, token.text, {}};
        return false;
    case Token::End:
        break;
    }
    return false;
}

bool ExpressionReader::isCall(const Token &name) const
{
    return m_lexer.isBefore(u"(", true) && Words::isFunction(name.text);
}

//! Whether "not" can be before the token.
bool ExpressionReader::isNegatable(const Token &token) const
{
    if (token.type != Token::Name || token.isQuoted) {
        return token.type == Token::Name;
    }
    const Words::Word *word = Words::find(token.text);
    return word ? word->dataType == Info::BooleanData
                : token.text != Words::negation && !Words::isMathValue(token.text) && !isCall(token);
}

bool ExpressionReader::takeWord(const Token &token)
{
    if (token.text == Words::negation) {
        return beginNegation(token);
    }
    if (isCall(token)) {
        return takeCall(token);
    }
    if (const Words::Word *word = Words::find(token.text)) {
        return add(token, word->valueType, word->dataType, word->value);
    }
    if (Words::isMathValue(token.text)) {
        return addConstant(token, Info::FloatData);
    }
    return takeName(token);
}

bool ExpressionReader::takeName(const Token &token)
{
    if (m_lexer.isBefore(u"::", false)) {
        const Token next = m_lexer.next(false);
        const std::optional<Info::DataType> type = Words::typeNamed(next.text);
        return type ? add(token, valueTypeOf(token.text), *type, token.text)
                    : fail(next, u"This is not a type. Types are boolean, integer, float, number, string, "
                                 "color, log, device, reference and none."_s);
    }
    const std::optional<Info> found = m_names.find(token.text);
    if (!found && m_lexer.isBefore(u"(", true)) {
        return fail(token, u"There is no such function."_s, token.text);
    }
    const Info previous = m_terms.isEmpty() ? Info() : m_terms.at(m_terms.count() - 1);
    const Info term = found ? Words::inContext(*found, previous) : Info();
    return found ? add(token, term.valueType(), term.dataType(), term.value())
                 : fail(token, u"The project has no such variable or property."_s, token.text);
}

bool ExpressionReader::takeCall(const Token &token)
{
    if (m_purpose.isAssignment()) {
        return fail(token, formOfSources);
    }
    const Token parenthesis = m_lexer.next(true);
    if (Words::isWholeCall(token.text)) {
        const Token end = m_lexer.next(true);
        if (end.type != Token::Sign || end.text != u')') {
            return fail(end, u"This function has no arguments. Write \")\"."_s);
        }
    } else {
        m_open.append(false);
    }
    Token whole = token;
    whole.length = parenthesis.position + parenthesis.length - token.position;
    return add(whole, Info::FunctionValue, Info::FunctionData, token.text);
}

//! "not" becomes a comparison with false, which binds less than the operators of numbers and comparisons.
bool ExpressionReader::beginNegation(const Token &token)
{
    if (m_purpose.isAssignment()) {
        return fail(token, formOfSources);
    }
    static const QStringList looser{u"&&"_s, u"||"_s, u"("_s, u","_s, u"?"_s, u":"_s};
    const bool isFree = m_terms.isEmpty() || isOperandDue();
    const Info last = m_terms.isEmpty() ? Info() : m_terms.at(m_terms.count() - 1);
    if (!isFree || (last.valueType() == Info::OperatorValue && !looser.contains(last.value()))) {
        return fail(token, u"Put \"not\" and its value in parentheses."_s);
    }
    m_negates = true;
    return true;
}

//! Called with the operand of "not", and with the token that follows it.
bool ExpressionReader::endNegation(const Token &token)
{
    if (m_negates) {
        m_negates = false;
        m_isNegated = true;
        return add(token, Info::OperatorValue, Info::OperatorData, u"=="_s)
               && add(token, Info::ConstantValue, Info::BooleanData, u"false"_s);
    }
    static const QStringList looser{u"&&"_s, u"||"_s, u")"_s, u","_s, u"?"_s, u":"_s};
    const Words::Word *word =
        token.type == Token::Name && !token.isQuoted ? Words::find(token.text) : nullptr;
    const QString sign = word ? QString(word->value) : token.text;
    m_isNegated = false;
    const bool isOperator = token.type == Token::Sign || (word && word->valueType == Info::OperatorValue);
    return !isOperator || looser.contains(sign)
           || fail(token, u"Put \"not\" and its value in parentheses."_s);
}

bool ExpressionReader::takeSign(const Token &token)
{
    if (token.text == u'=' || token.text == u';' || (token.text == u',' && m_purpose.isTermList)) {
        return takeSeparator(token);
    }
    if (token.text == u'(') {
        m_open.append(std::exchange(m_negates, false));
    }
    if (!add(token, Info::OperatorValue, Info::OperatorData, token.text)) {
        return false;
    }
    if (token.text == u')' && !m_open.isEmpty() && m_open.takeLast()) {
        m_negates = true;
        return endNegation(token);
    }
    return true;
}

QString ExpressionReader::formOfSeparators() const
{
    return m_purpose.isTermList ? u"Write \",\" between two values."_s
                                : u"Assignments have the form \"target = source; target = source\"."_s;
}

//! The signs between terms are no terms; they stand where the terms require them.
bool ExpressionReader::takeSeparator(const Token &token)
{
    if (!m_purpose.separatesTerms()) {
        return fail(token, token.text == u'='
                               ? u"Write \"==\" to compare. Assignments are not possible here."_s
                               : u"This is one expression, without \";\"."_s);
    }
    if (!m_isSeparatorDue || token.text != Words::separator(m_purpose, m_terms.count() % 2 == 0)) {
        return fail(token, formOfSeparators());
    }
    m_isSeparatorDue = false;
    return true;
}

} // namespace Halvane::Corvex::Designer
