// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/expressions/GeneralDataList.h"

#include <QList>

namespace Halvane::Corvex::Designer {

//! The type of a value in an expression.
enum class OperandType : quint8 { Other, Boolean, Number, Text, Color };

//! A value that an operator of an expression combines.
struct ExpressionOperand
{
    OperandType meaning = OperandType::Other; //!< for the author
    //! In the code. In an expression for a text, for example, constants are texts and booleans are numbers.
    OperandType code = OperandType::Other;
    qsizetype term = -1; //!< of a constant or a name, also in parentheses; -1 for a calculated value

    friend bool operator==(const ExpressionOperand &, const ExpressionOperand &) = default;
};

//! An operator between two values; a sign before a single value has it on both sides.
struct ExpressionOperation
{
    qsizetype sign; //!< its term
    ExpressionOperand left;
    ExpressionOperand right;

    static bool isComparison(const QString &sign);
    //! Whether there is a comparison; most expressions have none, and need no search for operations.
    static bool compares(const GeneralDataList &terms);
    //! All operations of a complete expression, in the order of the code. Does not use recursion: a hostile
    //! text can have any number of parentheses.
    static QList<ExpressionOperation> of(const GeneralDataList &terms, GeneralDataList::InfoType kind);
};

} // namespace Halvane::Corvex::Designer
