// SPDX-License-Identifier: MIT
#pragma once

#include "elements/visual/Text.h"

#include <QString>

namespace Halvane::Corvex::Elements {

//! How a text shows the numbers of its expression. The device formats them, so the format becomes code.
struct NumberFormat
{
    static constexpr int allDecimals = -1;
    static constexpr int mostDecimals = 20; //!< more is an error on the device

    int decimals = allDecimals; //!< after rounding; allDecimals leaves the number as it is
    Text::Thousands thousands = Text::None;
    QString prefix;
    QString suffix;

    //! From the properties of a text.
    static NumberFormat of(const Designer::DesignerObject &text);

    /*! JavaScript that formats the value of \a code, an expression. Values that are not numbers, such as
        texts, and numbers that are not finite stay as they are. Very large numbers keep their exponent.
        The code is \a code itself if there is nothing to format.
    */
    QString apply(const QString &code) const;

    friend bool operator==(const NumberFormat &, const NumberFormat &) = default;
};

} // namespace Halvane::Corvex::Elements
