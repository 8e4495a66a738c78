// SPDX-License-Identifier: MIT
#include "corvex/common/LocalizationHelper.h"
#include "corvex/values/expressions/ValueCode.h"
#include "corvex/values/private/ExpressionMeaning.h"
#include "corvex/values/private/ExpressionOperations.h"
#include "corvex/values/text/ValueConversion.h"

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Info = GeneralDataInfo;
using List = GeneralDataList;
using Operand = ExpressionOperand;
using Fault = ExpressionMeaning::Fault;
using enum OperandType;

const QString adviceForTexts = u"An expression for a number cannot use texts. Set a boolean variable in "
                               u"rules, and use it here: when mode "
                               "== \"auto\" do isAuto = true when mode != \"auto\" do isAuto = false."_s;
const QString adviceForBooleans =
    u"Constants are texts in this expression. Write 1 for true and 0 for false, without quotes."_s;
const QString adviceForLogic = u"Constants are texts in this expression, and a text counts as true. Write "
                               u"variables or comparisons beside "
                               "\"and\" and \"or\"."_s;
const QString adviceForNumbers =
    u"A number is not true or false. Compare it with a number, as in level == 1 or level != 0."_s;
const QString adviceForOrder =
    u"This compares texts, character by character. To compare numbers, calculate with the value: mode - 0 > "
    "5."_s;
const QString adviceForSign = u"\"%1\" also compares the types, which differ here. Write \"%2\"."_s;
const QString adviceForTypes =
    u"This compares %1 with %2, so its result is always the same. Compare values of the same type."_s;
const QString adviceForTruth =
    u"This compares %1 with %2, so its result is always the same. Write true and false without quotes."_s;
const QString adviceForArithmetic = u"This text is not a number."_s;

QString nameOf(OperandType type)
{
    switch (type) {
    case Boolean:
        return Common::LocalizationHelper::coreString(u"a boolean value"_s);
    case Number:
        return Common::LocalizationHelper::coreString(u"a number"_s);
    case Text:
        return Common::LocalizationHelper::coreString(u"a text"_s);
    case Color:
        return Common::LocalizationHelper::coreString(u"a color"_s);
    case Other:
        break;
    }
    return {};
}

bool isConstant(const List &terms, const Operand &operand)
{
    return operand.term >= 0 && terms.at(operand.term).valueType() == Info::ConstantValue;
}

bool isNumeric(const QString &text)
{
    bool ok = false;
    std::ignore = text.trimmed().toDouble(&ok);
    return ok;
}

//! Whether the value is that of a color variable. Its code has it as a text such as "#FF1D3040".
bool isColorVariable(const List &terms, const Operand &operand)
{
    return operand.meaning == Color && operand.term >= 0
           && terms.at(operand.term).valueType() == Info::VariableValue;
}

//! The text of a color variable with that color; null if \a text is no color.
QString variableText(const QString &text)
{
    bool isColor = false;
    const QColor color = ValueConversion::toColor(text, &isColor);
    return isColor ? color.name(QColor::HexArgb).toUpper() : QString();
}

//! Finds what is wrong with an operation.
class Judge
{
public:
    Judge(const List &terms, List::InfoType kind, const ExpressionOperation &operation)
        : m_terms(terms)
        , m_kind(kind)
        , m_left(operation.left)
        , m_right(operation.right)
        , m_place(operation.sign)
        , m_sign(terms.at(operation.sign).value())
    { }

    std::optional<Fault> fault() const
    {
        if (isOneOf({"&&"_L1, "||"_L1})) {
            return either(&Judge::reasonOfLogic);
        }
        if (isOneOf({"==="_L1, "!=="_L1})) {
            const bool isKnown = m_left.code != Other && m_right.code != Other;
            return isKnown && m_left.code != m_right.code
                       ? at(m_place, translated(adviceForSign).arg(m_sign, m_sign.chopped(1)))
                       : std::nullopt;
        }
        const bool isOrder = isOneOf({"<"_L1, "<="_L1, ">"_L1, ">="_L1});
        if (!isOrder && !isEquality()) {
            return either(&Judge::reasonOfArithmetic);
        }
        const bool hasNumber = m_left.meaning == Number || m_right.meaning == Number;
        if (isOrder && m_left.code == Text && m_right.code == Text && hasNumber) {
            return at(m_place, translated(adviceForOrder));
        }
        return either(&Judge::reasonOfComparison);
    }

private:
    using Reason = QString (Judge::*)(const Operand &, const Operand &) const;

    static QString translated(const QString &english)
    {
        return Common::LocalizationHelper::coreString(english);
    }
    bool isOneOf(std::initializer_list<QLatin1StringView> signs) const
    {
        return std::ranges::find(signs, m_sign) != signs.end();
    }
    bool isEquality() const { return isOneOf({"=="_L1, "!="_L1}); }
    bool isFixed(const Operand &operand) const { return isConstant(m_terms, operand); }
    QString valueOf(const Operand &operand) const { return m_terms.at(operand.term).value(); }
    //! Whether the value is a constant that is a number at run time, too.
    bool isNumeral(const Operand &operand) const { return isFixed(operand) && isNumeric(valueOf(operand)); }
    //! Whether the value is true or false, but the code has it as a text.
    bool isQuotedTruth(const Operand &operand) const
    {
        return isFixed(operand) && operand.meaning == Boolean && operand.code == Text;
    }

    std::optional<Fault> at(qsizetype term, const QString &reason) const
    {
        return Fault{term, reason, m_left.code == Color || m_right.code == Color};
    }

    //! Asks for both orders of the values.
    std::optional<Fault> either(Reason reason) const
    {
        for (const auto &[a, b] : {std::pair(m_left, m_right), std::pair(m_right, m_left)}) {
            if (const QString text = (this->*reason)(a, b); !text.isEmpty()) {
                return at(isFixed(b) ? b.term : isFixed(a) ? a.term : m_place, text);
            }
        }
        return {};
    }

    QString reasonOfLogic(const Operand &, const Operand &b) const
    {
        return isFixed(b) && b.code == Text && m_kind == List::StringExpression ? translated(adviceForLogic)
                                                                                : QString();
    }

    QString reasonOfArithmetic(const Operand &, const Operand &b) const
    {
        if (m_kind != List::StringExpression || m_sign == u'+' || !isFixed(b)) {
            return {};
        }
        return isQuotedTruth(b)                     ? translated(adviceForBooleans)
               : b.meaning == Text && !isNumeral(b) ? translated(adviceForArithmetic)
                                                    : QString();
    }

    QString reasonOfComparison(const Operand &a, const Operand &b) const
    {
        const bool areTexts = a.code == Text && b.code == Text;
        if (m_kind == List::MathExpression && a.meaning == Text && b.meaning == Text) {
            return isNumeral(a) || isNumeral(b) ? QString() : translated(adviceForTexts);
        }
        if (isQuotedTruth(b) && a.code != Text) {
            return translated(adviceForBooleans);
        }
        if (isEquality() && a.meaning == Number && isFixed(b) && valueOf(b) == "true"_L1
            && b.meaning == Boolean) {
            return translated(adviceForNumbers);
        }
        const bool isWord = isFixed(b) && b.meaning == Text && !isNumeral(b);
        const bool isNoTruth = isEquality() && isNumeral(b) && valueOf(b) != u'0' && valueOf(b) != u'1';
        const bool isConstantResult =
            (a.meaning == Boolean && b.meaning == Text && !isNumeral(b) && !areTexts)
            || (a.meaning == Number && isWord && !areTexts)
            || (a.meaning == Color && (b.meaning == Number || b.meaning == Boolean))
            || (isColorVariable(m_terms, a) && isFixed(b) && b.meaning == Text
                && valueOf(b) != variableText(valueOf(b)))
            || (a.meaning == Boolean && b.meaning == Number && isNoTruth);
        if (!isConstantResult) {
            return {};
        }
        const bool isTruth = isWord && (valueOf(b) == "true"_L1 || valueOf(b) == "false"_L1);
        return translated(isTruth && a.meaning == Boolean ? adviceForTruth : adviceForTypes)
            .arg(nameOf(a.meaning), nameOf(b.meaning));
    }

    const List &m_terms;
    List::InfoType m_kind;
    const Operand &m_left;
    const Operand &m_right;
    qsizetype m_place;
    QString m_sign;
};

//! The constant that equals \a constant in the code, if it is compared with \a other there.
std::optional<Info> adapted(const List &terms, List::InfoType kind, const Operand &constant,
                            const Operand &other, bool isEquality)
{
    if (!isConstant(terms, constant)) {
        return {};
    }
    const Info &term = terms.at(constant.term);
    if (kind == List::BoolExpression && isEquality && other.code == Color) {
        bool isColor = false;
        const QColor color = ValueConversion::toColor(term.value(), &isColor);
        return isColor && (constant.meaning == Color || constant.meaning == Text)
                   ? std::optional(Info(Info::ConstantValue, Info::StringData, ValueCode::comparable(color)))
                   : std::nullopt;
    }
    if (kind == List::BoolExpression && isEquality && constant.meaning == Text
        && isColorVariable(terms, other)) {
        const QString text = variableText(term.value());
        return text.isNull() ? std::nullopt
                             : std::optional(Info(Info::ConstantValue, Info::StringData, text));
    }
    const bool isTruth = constant.meaning == Boolean && constant.code == Text;
    const bool isTrue = term.value() == "true"_L1;
    const bool isNumeric = other.meaning == Boolean || (other.meaning == Number && !isTrue);
    const bool isFree = other.code != Text || isConstant(terms, other);
    return kind == List::StringExpression && isTruth && isNumeric && isFree
               ? std::optional(Info(Info::ConstantValue, Info::IntegerData, isTrue ? u"1"_s : u"0"_s))
               : std::nullopt;
}

//! Whether a constant may have to be replaced.
bool mayAdapt(const List &terms, List::InfoType kind)
{
    return std::any_of(terms.begin(), terms.end(), [kind](const Info &term) {
        const bool isConstant = term.valueType() == Info::ConstantValue;
        const bool isColor = term.dataType() == Info::ColorData && !isConstant;
        const bool isTruth = term.dataType() == Info::BooleanData && isConstant;
        return kind == List::BoolExpression ? isColor : kind == List::StringExpression && isTruth;
    });
}

} // namespace

void ExpressionMeaning::adaptConstants(List &terms, List::InfoType kind)
{
    if (!mayAdapt(terms, kind)) {
        return;
    }
    for (const auto &[sign, left, right] : ExpressionOperation::of(terms, kind)) {
        const QString operation = terms.at(sign).value();
        const bool isEquality = operation == "=="_L1 || operation == "!="_L1;
        if (!ExpressionOperation::isComparison(operation)) {
            continue;
        }
        const std::optional<Info> first = adapted(terms, kind, left, right, isEquality);
        const std::optional<Info> second = adapted(terms, kind, right, left, isEquality);
        if (first) {
            terms.replace(left.term, *first);
        }
        if (second) {
            terms.replace(right.term, *second);
        }
    }
}

std::optional<Fault> ExpressionMeaning::fault(const List &terms, List::InfoType kind)
{
    for (qsizetype i = 0; i < terms.count() && kind == List::MathExpression; ++i) {
        const Info &term = terms.at(i);
        if (term.valueType() == Info::ConstantValue && term.dataType() == Info::StringData
            && !isNumeric(term.value())) {
            return Fault{i, Common::LocalizationHelper::coreString(adviceForTexts)};
        }
    }
    if (kind != List::StringExpression && !ExpressionOperation::compares(terms)) {
        return {};
    }
    for (const ExpressionOperation &operation : ExpressionOperation::of(terms, kind)) {
        if (std::optional<Fault> fault = Judge(terms, kind, operation).fault()) {
            return fault;
        }
    }
    return {};
}

} // namespace Halvane::Corvex::Designer
