// SPDX-License-Identifier: MIT
#include "corvex/editors/expressions/private/ExpressionFix.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editors/expressions/private/ExpressionTokens.h"
#include "corvex/values/private/ExpressionWords.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;
using Token = ExpressionToken;

//! Signs of other languages.
constexpr struct
{
    QStringView sign;
    QStringView replacement;
} signs[] = {{u"=", u"=="},     {u"<>", u"!="},     {u"=>", u">="},     {u"=<", u"<="},
             {u"!", u"not "},   {u"\u2260", u"!="}, {u"\u2265", u">="}, {u"\u2264", u"<="},
             {u"\u00d7", u"*"}, {u"\u00f7", u"/"},  {u"\u2212", u"-"}};

ExpressionFix fixWith(qsizetype position, qsizetype length, const QString &text)
{
    return {
        position, length, text,
        LocalizationHelper::coreString(length > 0 ? u"Use \"%1\""_s : u"Add \"%1\""_s).arg(text.trimmed())};
}

//! The parentheses that are open at the end.
qsizetype openParentheses(const ExpressionTokens &tokens)
{
    qsizetype open = 0;
    for (const Token &token : tokens.all()) {
        const bool isSign = token.type == Token::Sign;
        open += isSign && token.text == u'(' ? 1 : isSign && token.text == u')' ? -1 : 0;
    }
    return open;
}

} // namespace

std::optional<ExpressionFix> ExpressionFix::of(const ExpressionScope &scope, const QString &text,
                                               const ExpressionText::Error &error)
{
    if (const QString name = scope.suggestionFor(error); !name.isEmpty()) {
        const QString written =
            ExpressionWords::needsQuotes(name) ? ExpressionLexer::quoted(name, u'\'') : name;
        return fixWith(error.position, error.length, written);
    }
    const QString wrong =
        text.sliced(std::min(error.position, text.size()))
            .first(std::min(error.length, text.size() - std::min(error.position, text.size())));
    const auto *sign = std::ranges::find_if(signs, [&wrong](const auto &row) { return row.sign == wrong; });
    if (sign != std::end(signs) && (wrong != u'=' || !scope.purposeOf({}).separatesTerms())) {
        return fixWith(error.position, error.length, sign->replacement.toString());
    }
    if (wrong.startsWith(u'"') || wrong.startsWith(u'\'')) {
        return fixWith(text.size(), 0, wrong.first(1));
    }
    const ExpressionTokens tokens(text);
    const bool isUnfinished =
        tokens.all().isEmpty() || ExpressionTokens::precedesOperand(tokens.all().constLast());
    const qsizetype open = openParentheses(tokens);
    if (error.length == 0 && open > 0 && !isUnfinished) {
        return fixWith(text.size(), 0, QString(open, u')'));
    }
    return {};
}

} // namespace Halvane::Corvex::Designer
