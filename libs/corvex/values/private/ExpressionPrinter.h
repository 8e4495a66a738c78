// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/expressions/ExpressionText.h"

namespace Halvane::Corvex::Designer {

//! Prints terms as tokens.
class ExpressionPrinter
{
public:
    ExpressionPrinter(const ExpressionPurpose &purpose, const ExpressionNames &names)
        : m_purpose(purpose)
        , m_names(names)
    { }

    //! Null for a list that has a term without a readable form.
    QString print(const GeneralDataList &terms);

private:
    //! Empty if it has none.
    QString printed(const GeneralDataInfo &term) const;
    QString printedConstant(const GeneralDataInfo &term) const;
    QString printedName(const GeneralDataInfo &term) const;
    bool isNegated(const GeneralDataList &terms, qsizetype place) const;
    void append(const GeneralDataInfo &term, const QString &text);

    const ExpressionPurpose &m_purpose;
    const ExpressionNames &m_names;
    QString m_text;
    GeneralDataInfo m_last;
    bool m_isUnary = false; //!< the last term is an operator before its operand
};

} // namespace Halvane::Corvex::Designer
