// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QList>
#include <QString>
#include <QVariantMap>

#include <limits>

namespace Halvane::Corvex::Designer {

//! The range of numbers that a property accepts. Its row sets it as editor parameters: "minimum" and
//! "maximum", or "above" for a limit that the number must exceed, or "values" for a list of the numbers.
struct CORVEX_EXPORT NumberRange
{
    double minimum = -std::numeric_limits<double>::infinity();
    double maximum = std::numeric_limits<double>::infinity();
    bool isAbove = false;  //!< the minimum itself is excluded
    QList<double> choices; //!< the only numbers; empty for all numbers of the range

    static NumberRange of(const QVariantMap &editorParameters);

    //! Every range contains NaN.
    bool contains(double number) const
    {
        return !(number < minimum || number > maximum || (isAbove && number == minimum))
               && (choices.isEmpty() || number != number || choices.contains(number));
    }
    //! "from 10 to 100", "of at least 1", "0, 90 or 180"; empty if the range has no limits. Translated.
    QString toString() const;

    friend bool operator==(const NumberRange &, const NumberRange &) = default;
};

} // namespace Halvane::Corvex::Designer
