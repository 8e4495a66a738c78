// SPDX-License-Identifier: MIT
#include "corvex/editors/expressions/private/ExpressionTokens.h"

#include "corvex/values/private/ExpressionWords.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

ExpressionTokens::ExpressionTokens(const QString &text)
{
    ExpressionLexer lexer(text);
    for (;;) {
        const ExpressionToken token = lexer.next(m_tokens.isEmpty() || precedesOperand(m_tokens.constLast()));
        if (token.type == ExpressionToken::End) {
            return;
        }
        m_tokens.append(token);
    }
}

bool ExpressionTokens::precedesOperand(const ExpressionToken &token)
{
    if (token.type == ExpressionToken::Sign) {
        return token.text != u')';
    }
    const bool isWord = token.type == ExpressionToken::Name && !token.isQuoted;
    const ExpressionWords::Word *word = isWord ? ExpressionWords::find(token.text) : nullptr;
    return (word && word->valueType == GeneralDataInfo::OperatorValue)
           || (isWord
               && (token.text == ExpressionWords::negation || token.text == ExpressionWords::ruleBegin
                   || token.text == ExpressionWords::ruleEffect));
}

qsizetype ExpressionTokens::at(qsizetype position) const
{
    for (qsizetype i = m_tokens.size() - 1; i >= 0; --i) {
        if (m_tokens.at(i).position <= position) {
            return position <= m_tokens.at(i).position + m_tokens.at(i).length ? i : -1;
        }
    }
    return -1;
}

qsizetype ExpressionTokens::countBefore(qsizetype position) const
{
    const auto after = std::ranges::find_if(m_tokens, [position](const ExpressionToken &token) {
        return token.position + token.length > position;
    });
    return after - m_tokens.begin();
}

std::optional<ExpressionTokens::Call> ExpressionTokens::callAt(qsizetype position) const
{
    QList<Call> open;
    QString name;
    for (const ExpressionToken &token : m_tokens) {
        if (token.position >= position) {
            break;
        }
        const bool isSign = token.type == ExpressionToken::Sign;
        if (isSign && token.text == u'(') {
            open.append({name, 0});
        } else if (isSign && token.text == u')' && !open.isEmpty()) {
            open.removeLast();
        } else if (isSign && token.text == u',' && !open.isEmpty()) {
            ++open.last().argument;
        }
        name = token.type == ExpressionToken::Name && !token.isQuoted ? token.text : QString();
    }
    return open.isEmpty() ? std::nullopt : std::optional(open.constLast());
}

} // namespace Halvane::Corvex::Designer
