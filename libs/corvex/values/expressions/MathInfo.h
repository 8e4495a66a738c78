// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/GeneralDataInfo.h"

#include <QStringList>

namespace Halvane::Corvex::Designer {

//! A term of a mathematical expression. Its translation is always a number, whatever type is requested.
class CORVEX_EXPORT MathInfo : public GeneralDataInfo
{
public:
    using GeneralDataInfo::GeneralDataInfo;
    MathInfo() = default;
    MathInfo(const GeneralDataInfo &other)
        : GeneralDataInfo(other)
    { }

    bool isValidValueType() const override;
    bool isValidDataType() const override;
    bool isValidValue() const override;
    QString toQmlString(const OutputType &output) const override;

    static const QStringList &mathOperators();
    //! The names of the mathematical constants ("PI").
    static const QStringList &mathValues();
    static const QStringList &mathFunctions();
    static const QStringList &booleanOperators();

    //! The term with plain names, as users read it and as the expression builder checks it: "speed" instead
    //! of the call that reads it. A function includes its opening parenthesis.
    static QString parserString(const MathInfo &term);
};

} // namespace Halvane::Corvex::Designer
