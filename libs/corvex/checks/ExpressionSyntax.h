// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

#include <memory>

class QQmlEngine;

namespace Halvane::Corvex::Designer {

/*!
    Tells whether a text is correct JavaScript, or correct QML. The text is compiled and never runs, whatever
   it holds. The engine is this object's own; make one checker for many checks, since an engine takes a
   millisecond to come up.
*/
class CORVEX_EXPORT ExpressionSyntax
{
public:
    struct Result
    {
        bool valid = true;
        int line = 0;    //!< From 1; 0 when the text is valid.
        int column = 0;  //!< From 1; 0 when the text is valid, or when nobody knows.
        QString message; //!< The compiler's, in English.
    };

    ExpressionSyntax();
    ~ExpressionSyntax();
    Q_DISABLE_COPY_MOVE(ExpressionSyntax)

    // What is nested deeper than deepestNesting is refused, and no compiler asked.

    //! One expression: what can stand between parentheses.
    Result checkExpression(const QString &code);
    //! Any number of statements, none included.
    Result checkStatements(const QString &code);
    //! A QML document, with the code in it. Its imports and types are not looked up.
    Result checkDocument(const QString &qml);

private:
    Result compile(const QString &code, bool inParentheses);
    bool isOfUnknownType(const QString &error);

    std::unique_ptr<QQmlEngine> m_engine;
    QString m_unknownType; //!< how the engine's error about a type goes on behind the name of the type
};

} // namespace Halvane::Corvex::Designer
