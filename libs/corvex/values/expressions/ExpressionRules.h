// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/GeneralDataInfo.h"

namespace Halvane::Corvex::Designer {

//! What each kind of term allows. The kinds ask it about themselves, an expression about the kind that its
//! terms are taken as.
class CORVEX_EXPORT ExpressionRules
{
public:
    //! The first five have the numbers of the kinds of expressions.
    enum class Kind : quint8 { General, Assign, Bool, Math, String, ModbusCommand };

    static bool allowsValueType(Kind kind, const GeneralDataInfo &term);
    static bool allowsDataType(Kind kind, const GeneralDataInfo &term);
    static bool allowsValue(Kind kind, const GeneralDataInfo &term);
    //! All three. A term without a value or without a data type passes where the kind knows such terms.
    static bool allowsUntyped(Kind kind, const GeneralDataInfo &term);
    //! All three, and both types are set.
    static bool allows(Kind kind, const GeneralDataInfo &term);

    //! Whether \a value is a constant of that type. Empty for NoData, exactly "true" or "false", 64 bits of
    //! integer, #AARRGGBB; a double as the C locale writes it, "NaN", "Infinity" or "-Infinity"; any text; a
    //! path for references; any number of hexadecimal digits, an even one for commands.
    static bool isConstant(GeneralDataInfo::DataType type, const QString &value);
    //! The number that a float or number constant stands for.
    static double toNumber(const QString &value);
    static bool isHexadecimal(QStringView digits);
};

} // namespace Halvane::Corvex::Designer
