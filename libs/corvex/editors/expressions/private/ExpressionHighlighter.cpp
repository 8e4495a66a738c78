// SPDX-License-Identifier: MIT
#include "corvex/editors/expressions/private/ExpressionHighlighter.h"

#include "corvex/editors/expressions/private/ExpressionTokens.h"
#include "corvex/values/private/ExpressionWords.h"
#include "corvex/widgets/Theme.h"

namespace Halvane::Corvex::Designer {

namespace {

using Token = ExpressionToken;
using Words = ExpressionWords;

bool isWord(const Token &token)
{
    return !token.isQuoted
           && (Words::find(token.text) || token.text == Words::negation || token.text == Words::ruleBegin
               || token.text == Words::ruleEffect);
}

} // namespace

void ExpressionHighlighter::setPalette(const QPalette &palette)
{
    m_palette = palette;
    rehighlight();
}

void ExpressionHighlighter::highlightBlock(const QString &text)
{
    const QColor constants = m_palette.color(QPalette::LinkVisited);
    const ExpressionTokens tokens(text);
    for (const Token &token : tokens.all()) {
        QTextCharFormat format;
        switch (token.type) {
        case Token::Name:
            if (isWord(token)) {
                format.setFontWeight(QFont::DemiBold);
            } else if (!token.isQuoted && (Words::isFunction(token.text) || Words::isMathValue(token.text))) {
                format.setForeground(m_palette.color(QPalette::Link));
            }
            break;
        case Token::Text:
        case Token::Number:
        case Token::Float:
        case Token::Decimal:
        case Token::Color:
        case Token::Hex:
            format.setForeground(constants);
            break;
        case Token::Annotation:
            format.setForeground(Theme::muted(m_palette));
            break;
        default:
            continue;
        }
        setFormat(int(token.position), int(token.length), format);
    }
}

} // namespace Halvane::Corvex::Designer
