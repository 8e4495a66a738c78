// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/expressions/GeneralDataList.h"

#include <QHash>
#include <QStringList>

namespace Halvane::Corvex::Examples {

/*! Reads expressions as people write them: "max(0, wellLevel - 5)", "autoMode && wellLevel > 80",
    "concat(flow, ' m3/h')", "pumpRunning = true; flow = 0".

    A name is a variable, a name with a dot a property of an element, a name before "(" a function. Constants
   are numbers, texts in single quotes, true and false, colours #AARRGGBB and the values of mathematics (PI).
   "=" and ";" only part the targets and sources of assignments.
*/
class ExpressionReader
{
public:
    using DataType = Designer::GeneralDataInfo::DataType;

    /*! Makes a name known: that of a variable, or "element.property" where the name of the property alone
       does not tell what it holds. */
    void declare(const QString &name, DataType type) { m_types.insert(name, type); }

    //! What cannot be read is left out and told by problems().
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
    bool m_afterOperand = false; //!< decides whether "-" is an operator or a sign
};

} // namespace Halvane::Corvex::Examples
