// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/private/ExpressionLexer.h"

#include <QList>

#include <optional>

namespace Halvane::Corvex::Designer {

//! A readable expression in pieces, for colors, completion and help. The expression may be incorrect.
class ExpressionTokens
{
public:
    explicit ExpressionTokens(const QString &text);

    //! Without the end. A token that is no token of the language is of the type "wrong".
    const QList<ExpressionToken> &all() const { return m_tokens; }
    //! The index of the token around \a position, or directly before it; -1 if it touches no token.
    qsizetype at(qsizetype position) const;
    //! The number of tokens that end before \a position.
    qsizetype countBefore(qsizetype position) const;

    //! A call of a function, and the number of the argument at a position, from 0.
    struct Call
    {
        QString function; //!< empty for a parenthesis without a function
        qsizetype argument = 0;
    };
    //! The innermost call around \a position.
    std::optional<Call> callAt(qsizetype position) const;
    //! Whether a value can follow the token, not an operator.
    static bool precedesOperand(const ExpressionToken &token);

private:
    QList<ExpressionToken> m_tokens;
};

} // namespace Halvane::Corvex::Designer
