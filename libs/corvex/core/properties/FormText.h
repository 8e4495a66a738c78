// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

class QColor;

//! Describes what properties accept, in words that complete "The property takes ...". Translated.
namespace Halvane::Corvex::Designer::FormText {

CORVEX_EXPORT QString of(const int &value);
CORVEX_EXPORT QString of(const double &value);
CORVEX_EXPORT QString of(const bool &value);
CORVEX_EXPORT QString of(const QColor &value);
//! For types that are best explained by an example.
CORVEX_EXPORT QString example(const QString &text);

} // namespace Halvane::Corvex::Designer::FormText
