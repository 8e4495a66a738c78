// SPDX-License-Identifier: MIT
#include "corvex/values/private/ExpressionPrinter.h"

#include "corvex/values/private/ExpressionLexer.h"
#include "corvex/values/private/ExpressionWords.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Info = GeneralDataInfo;
using Words = ExpressionWords;

QString printedNumber(const QString &digits, QChar suffix)
{
    const bool isDecimal = digits.contains(u'.') || digits.contains(u'e', Qt::CaseInsensitive);
    return isDecimal && suffix == u'f' ? digits : digits + suffix;
}

} // namespace

QString ExpressionPrinter::printedConstant(const Info &term) const
{
    const QString &value = term.value();
    switch (term.dataType()) {
    case Info::BooleanData:
    case Info::IntegerData:
        return value;
    case Info::FloatData:
        return Words::isMathValue(value) || Words::find(value) ? value : printedNumber(value, u'f');
    case Info::NumberData:
        return printedNumber(value, u'n');
    case Info::StringData:
        return ExpressionLexer::quoted(value, u'"');
    case Info::ColorData:
        return value.startsWith("#FF"_L1) ? u'#' + value.sliced(3) : value;
    case Info::HexData:
        return u"0x"_s + value;
    default:
        return {};
    }
}

QString ExpressionPrinter::printedName(const Info &term) const
{
    const std::optional<Info> found = m_names.find(term.value());
    const QString name =
        Words::needsQuotes(term.value()) ? ExpressionLexer::quoted(term.value(), u'\'') : term.value();
    if (found && Words::inContext(*found, m_last) == term) {
        return name;
    }
    const QLatin1StringView type = Words::nameOf(term.dataType());
    return type.isNull() ? QString() : name + u"::"_s + type;
}

QString ExpressionPrinter::printed(const Info &term) const
{
    switch (term.valueType()) {
    case Info::OperatorValue: {
        const Words::Word *word = Words::ofOperator(term.value());
        return word ? QString(word->text) : term.value();
    }
    case Info::ConstantValue:
        return printedConstant(term);
    case Info::ObjectValue:
    case Info::VariableValue:
        return printedName(term);
    case Info::FunctionValue:
        return term.value() + (Words::isWholeCall(term.value()) ? u"()"_s : u"("_s);
    default:
        return {};
    }
}

void ExpressionPrinter::append(const Info &term, const QString &text)
{
    const auto isSign = [](const Info &info, auto... signs) {
        return info.valueType() == Info::OperatorValue && ((info.value() == signs) || ...);
    };
    const bool opens = isSign(m_last, u'(')
                       || (m_last.valueType() == Info::FunctionValue && !Words::isWholeCall(m_last.value()));
    // A blank keeps a sign apart from the sign of a constant.
    const bool isTight = m_isUnary && term.valueType() != Info::ConstantValue;
    const bool isFirst = m_text.isEmpty();
    const bool operandDue = isFirst || !ExpressionGrammar::endsOperand(Words::grammarKind(m_purpose), m_last);
    if (!isFirst && !opens && !isTight && !isSign(term, u')', u',')) {
        m_text += u' ';
    }
    m_text += text;
    m_isUnary = operandDue && isSign(term, u'+', u'-', u'~');
    m_last = term;
}

//! Whether a name is compared with false, in a place where "not" can be.
bool ExpressionPrinter::isNegated(const GeneralDataList &terms, qsizetype place) const
{
    const auto isOperator = [&terms](qsizetype at, const QStringList &signs) {
        return at < 0 || at >= terms.count()
               || (terms.at(at).valueType() == Info::OperatorValue && signs.contains(terms.at(at).value()));
    };
    static const QStringList before{u"&&"_s, u"||"_s, u"("_s, u","_s, u"?"_s, u":"_s};
    static const QStringList after{u"&&"_s, u"||"_s, u")"_s, u","_s, u"?"_s, u":"_s};
    static const Info no(Info::ConstantValue, Info::BooleanData, u"false"_s);
    static const Info zero(Info::ConstantValue, Info::IntegerData, u"0"_s); // in a text
    const Info &name = terms.at(place);
    const bool isName = name.valueType() == Info::VariableValue || name.valueType() == Info::ObjectValue;
    return isName && name.dataType() == Info::BooleanData && place + 2 < terms.count()
           && isOperator(place + 1, {u"=="_s}) && isOperator(place - 1, before)
           && (terms.at(place + 2) == no
               || (m_purpose.kind == GeneralDataList::StringExpression && terms.at(place + 2) == zero))
           && isOperator(place + 3, after);
}

QString ExpressionPrinter::print(const GeneralDataList &terms)
{
    m_text = u""_s;
    for (qsizetype i = 0; i < terms.count(); ++i) {
        const Info &term = terms.at(i);
        const QString text = printed(term);
        if (text.isEmpty()) {
            return {};
        }
        if (!m_purpose.separatesTerms()) {
            if (isNegated(terms, i)) {
                append(term, Words::negation + u' ' + text);
                m_last = terms.at(i + 2);
                i += 2;
            } else {
                append(term, text);
            }
            continue;
        }
        m_last = term;
        const QLatin1StringView sign = i > 0 ? Words::separator(m_purpose, i % 2 == 0) : ""_L1;
        m_text += (sign == "="_L1 ? u" = "_s : i > 0 ? sign + u' ' : QString()) + text;
    }
    return m_text;
}

} // namespace Halvane::Corvex::Designer
