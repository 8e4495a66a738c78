// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/GeneralDataInfo.h"

namespace Halvane::Corvex::Designer {

//! Which terms are allowed in each kind of expression. The term classes use it to check themselves. An
//! expression uses it with the kind that it is checked as.
class CORVEX_EXPORT ExpressionRules
{
public:
    //! The first five numbers are those of the kinds of expressions.
    enum class Kind : quint8 { General, Assign, Bool, Math, String, ModbusCommand };

    static bool allowsValueType(Kind kind, const GeneralDataInfo &term);
    static bool allowsDataType(Kind kind, const GeneralDataInfo &term);
    static bool allowsValue(Kind kind, const GeneralDataInfo &term);
    //! Checks value type, data type and value. Accepts a term without a value or a data type if the kind has
    //! such terms.
    static bool allowsUntyped(Kind kind, const GeneralDataInfo &term);
    //! The same, but both types must be set.
    static bool allows(Kind kind, const GeneralDataInfo &term);

    /*! Whether \a value is a constant of that type. NoData must be empty. Booleans are exactly "true" or
        "false", integers have 64 bits, colours are #AARRGGBB. A double is in the form of the C locale, "NaN",
        "Infinity" or "-Infinity". Texts may be anything, references are paths. Hexadecimal data may have any
        number of digits, commands an even one.
    */
    static bool isConstant(GeneralDataInfo::DataType type, const QString &value);
    //! The value of a float or number constant.
    static double toNumber(const QString &value);
    static bool isHexadecimal(QStringView digits);
};

} // namespace Halvane::Corvex::Designer
