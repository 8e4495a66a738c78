// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QList>
#include <QString>

namespace Halvane::Corvex::Designer {

/*! The calculations that people type instead of a number: `2 * 48 + 6`, `-(3 + 4) / 2`, `1 min 30 s`. A text
    that begins with an operator and "=" changes the number that is there: `+=8`, `*=2`.

    A comma is read as a decimal point. The result is always finite.
*/
class CORVEX_EXPORT Arithmetic
{
public:
    //! A word that may follow a number, and what it multiplies the number by: "s" by 1000 if the value is in
    //! milliseconds.
    struct Unit
    {
        QString word;
        double factor = 1;
    };
    struct Result
    {
        double number = 0;
        QString error = {};    //!< for the user; empty if the text could be read
        bool isPlain = false;  //!< the text is a single number, without a unit
        bool isChange = false; //!< the text changes the number that is there
    };

    static Result evaluate(const QString &text, double current, const QList<Unit> &units = {});
};

} // namespace Halvane::Corvex::Designer
