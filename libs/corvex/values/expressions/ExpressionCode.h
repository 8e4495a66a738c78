// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/ExpressionRules.h"

namespace Halvane::Corvex::Designer {

//! Translates terms into the JavaScript that runs on the device. Functions return false and append nothing if
//! a term cannot be translated.
class CORVEX_EXPORT ExpressionCode
{
public:
    using Kind = ExpressionRules::Kind;

    //! The term must have been checked.
    static bool appendAllowed(QString &code, Kind kind, const GeneralDataInfo &term,
                              GeneralDataInfo::OutputType output);
    static bool appendTerm(QString &code, Kind kind, const GeneralDataInfo &term,
                           GeneralDataInfo::OutputType output);
    //! The term before a "?", which must be boolean and is not converted.
    static bool appendSelector(QString &code, Kind kind, const GeneralDataInfo &term);
    //! A statement that assigns the value of \a source to \a target.
    static bool appendAssignment(QString &code, const GeneralDataInfo &target, const GeneralDataInfo &source,
                                 GeneralDataInfo::OutputType output);

    //! The term with plain names; the same for mathematical and text expressions.
    static QString parserString(const GeneralDataInfo &term);
};

} // namespace Halvane::Corvex::Designer
