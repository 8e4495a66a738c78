// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/expressions/ExpressionGrammar.h"
#include "corvex/values/expressions/ExpressionPurpose.h"

namespace Halvane::Corvex::Designer {

//! The words and signs of the readable form of expressions.
class ExpressionWords
{
public:
    //! A word of the language, and the term that it stands for.
    struct Word
    {
        QLatin1StringView text;
        GeneralDataInfo::ValueType valueType;
        GeneralDataInfo::DataType dataType;
        QLatin1StringView value;
    };

    static constexpr QLatin1StringView negation{"not"};
    static constexpr QLatin1StringView ruleBegin{"when"};
    static constexpr QLatin1StringView ruleEffect{"do"};

    //! Null if the text is no such word.
    static const Word *find(const QString &text);
    //! The word for an operator; null if it has none.
    static const Word *ofOperator(const QString &sign);
    //! The type after "::", behind a name.
    static std::optional<GeneralDataInfo::DataType> typeNamed(const QString &text);
    //! Null if the type cannot be written.
    static QLatin1StringView nameOf(GeneralDataInfo::DataType type);

    static bool isMathValue(const QString &text);
    static bool isFunction(const QString &text);
    //! Whether the term of the function is the whole call.
    static bool isWholeCall(const QString &function);
    //! The term for a name after \a previous. The value of a log is a number, except in a function of logs.
    static GeneralDataInfo inContext(GeneralDataInfo name, const GeneralDataInfo &previous);
    //! Whether a name must be in quotes.
    static bool needsQuotes(const QString &path);
    //! The sign after a term of a list that separates its terms.
    static QLatin1StringView separator(const ExpressionPurpose &purpose, bool isSource);
    static ExpressionGrammar::Kind grammarKind(const ExpressionPurpose &purpose)
    {
        return ExpressionGrammar::Kind(purpose.kind);
    }
};

} // namespace Halvane::Corvex::Designer
