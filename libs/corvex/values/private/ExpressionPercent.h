// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/expressions/ExpressionText.h"

namespace Halvane::Corvex::Designer {

//! A percentage in an expression where the device has a fraction, such as 50 in "lamp.opacity = 50".
struct ExpressionPercent
{
    qsizetype name;           //!< the term of the property
    qsizetype term;           //!< of the constant
    GeneralDataInfo fraction; //!< the constant that is meant, such as 0.5

    //! The property, the fraction and the percentage.
    QStringList words(const GeneralDataList &terms) const
    {
        return {terms.at(name).value(), fraction.value(), terms.at(term).value()};
    }

    static QList<ExpressionPercent> of(const GeneralDataList &terms, const ExpressionPurpose &purpose,
                                       const ExpressionNames &names);
};

} // namespace Halvane::Corvex::Designer
