// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/GeneralDataInfo.h"

#include <QStringList>

namespace Halvane::Corvex::Designer {

//! A term of a text expression. Its translation is the same for every type.
class CORVEX_EXPORT StringInfo : public GeneralDataInfo
{
public:
    using GeneralDataInfo::GeneralDataInfo;
    StringInfo() = default;
    StringInfo(const GeneralDataInfo &other)
        : GeneralDataInfo(other)
    { }

    bool isValidValueType() const override;
    bool isValidDataType() const override;
    bool isValidValue() const override;
    QString toQmlString(const OutputType &output) const override;

    static const QStringList &stringFunctions();
    static const QStringList &stringOperators();
    static const QStringList &booleanOperators();

    //! The term with plain names, like MathInfo::parserString().
    static QString parserString(const StringInfo &term);
};

} // namespace Halvane::Corvex::Designer
