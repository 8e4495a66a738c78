// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QVariantMap>

#include <limits>

namespace Halvane::Corvex::Designer {

//! The range of numbers that a property accepts. Its row sets it as editor parameters: "minimum" and
//! "maximum", or "above" for a limit that the number must exceed.
struct CORVEX_EXPORT NumberRange
{
    double minimum = -std::numeric_limits<double>::infinity();
    double maximum = std::numeric_limits<double>::infinity();
    bool isAbove = false; //!< the minimum itself is excluded

    static NumberRange of(const QVariantMap &editorParameters);

    //! Every range contains NaN.
    bool contains(double number) const
    {
        return !(number < minimum || number > maximum || (isAbove && number == minimum));
    }
    //! "from 10 to 100", "of at least 1"; empty if the range has no limits. Translated.
    QString toString() const;

    friend bool operator==(const NumberRange &, const NumberRange &) = default;
};

} // namespace Halvane::Corvex::Designer
