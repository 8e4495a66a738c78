// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/ExpressionRules.h"

namespace Halvane::Corvex::Designer {

//! The translation of terms into the JavaScript that runs on the device. Nothing is appended and false
//! returned for what cannot be translated.
class CORVEX_EXPORT ExpressionCode
{
public:
    using Kind = ExpressionRules::Kind;

    //! For a term that is known to be allowed.
    static bool appendAllowed(QString &code, Kind kind, const GeneralDataInfo &term,
                              GeneralDataInfo::OutputType output);
    static bool appendTerm(QString &code, Kind kind, const GeneralDataInfo &term,
                           GeneralDataInfo::OutputType output);
    //! The term before a "?": it must be boolean and stands without conversion.
    static bool appendSelector(QString &code, Kind kind, const GeneralDataInfo &term);
    //! One statement that gives the value of \a source to \a target.
    static bool appendAssignment(QString &code, const GeneralDataInfo &target, const GeneralDataInfo &source,
                                 GeneralDataInfo::OutputType output);

    //! The term with plain names, for the mathematical and the text kind alike.
    static QString parserString(const GeneralDataInfo &term);
};

} // namespace Halvane::Corvex::Designer
