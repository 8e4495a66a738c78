// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

#include <memory>

class QQmlEngine;

namespace Halvane::Corvex::Designer {

//! Checks whether a text is correct JavaScript or correct QML. The text is compiled but never run. Each
//! object has its own engine; use one object for many checks, because creating an engine takes a millisecond.
class CORVEX_EXPORT ExpressionSyntax
{
public:
    struct Result
    {
        bool valid = true;
        int line = 0;    //!< From 1; 0 if the text is valid.
        int column = 0;  //!< From 1; 0 if the text is valid or the column is unknown.
        QString message; //!< The compiler's, in English.
    };

    ExpressionSyntax();
    ~ExpressionSyntax();
    Q_DISABLE_COPY_MOVE(ExpressionSyntax)

    // Code nested deeper than deepestNesting is refused without calling a compiler.

    //! One expression: anything that may be between parentheses.
    Result checkExpression(const QString &code);
    //! Any number of statements, including none.
    Result checkStatements(const QString &code);
    //! A QML document, including its code. Imports and types are not resolved.
    Result checkDocument(const QString &qml);

private:
    Result compile(const QString &code, bool inParentheses);
    bool isOfUnknownType(const QString &error);

    std::unique_ptr<QQmlEngine> m_engine;
    int m_documentCount = 0;
    QString m_unknownType; //!< the end of the engine's error about an unknown type, after the name of the
                           //!< type
};

} // namespace Halvane::Corvex::Designer
