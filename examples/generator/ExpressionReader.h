// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/expressions/GeneralDataList.h"

#include <QHash>
#include <QStringList>

namespace Halvane::Corvex::Examples {

/*! Reads expressions in ordinary notation: "max(0, wellLevel - 5)", "autoMode && wellLevel > 80",
    "concat(flow, ' m3/h')", "pumpRunning = true; flow = 0".

    A name is a variable, a name with a dot is a property of an element, and a name before "(" is a function.
    Constants are numbers, texts in single quotes, true and false, colours #AARRGGBB and mathematical
    constants (PI). "=" and ";" separate the targets and sources of assignments.
*/
class ExpressionReader
{
public:
    using DataType = Designer::GeneralDataInfo::DataType;

    //! Declares the type of a variable, or of "element.property" if the name of the property alone does not
    //! define it.
    void declare(const QString &name, DataType type) { m_types.insert(name, type); }

    //! Skips what it cannot read; problems() lists it.
    Designer::GeneralDataList read(QStringView text);
    const QStringList &problems() const { return m_problems; }

private:
    Designer::GeneralDataInfo readTerm();
    Designer::GeneralDataInfo readName();
    Designer::GeneralDataInfo readNumber();
    Designer::GeneralDataInfo readOperator();
    QStringView take(qsizetype count);
    bool startsNumber() const;
    DataType propertyType(const QString &path) const;

    QHash<QString, DataType> m_types;
    QStringList m_problems;
    QStringView m_rest;
    bool m_afterOperand = false; //!< determines whether "-" is an operator or a sign
};

} // namespace Halvane::Corvex::Examples
