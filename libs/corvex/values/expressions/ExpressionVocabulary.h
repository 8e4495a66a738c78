// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QStringList>

namespace Halvane::Corvex::Designer {

//! The words used in expressions, and the sets that each word belongs to.
class CORVEX_EXPORT ExpressionVocabulary
{
public:
    enum WordSet : quint8 {
        MathOperators = 0x01,
        BooleanOperators = 0x02,
        MathFunctions = 0x04,
        StringFunctions = 0x08,
        MathValues = 0x10,
        //! Functions without arguments; their term is the whole call.
        CompleteFunctions = 0x20,
        //! Mathematical functions that the device provides, not the script language.
        DeviceFunctions = 0x40,
        //! Text functions that are called as methods of an empty text.
        MethodFunctions = 0x80,
    };

    //! The sets that \a word belongs to, combined with "or", in constant time.
    static quint8 setsOf(const QString &word);

    static const QStringList &mathOperators();
    static const QStringList &booleanOperators();
    static const QStringList &stringOperators();
    static const QStringList &mathValues();
    static const QStringList &mathFunctions();
    static const QStringList &stringFunctions();
};

} // namespace Halvane::Corvex::Designer
