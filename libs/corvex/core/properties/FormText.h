// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

class QColor;

//! What a property of a kind of value reads, in words that complete "The property takes ...". Translated.
namespace Halvane::Corvex::Designer::FormText {

CORVEX_EXPORT QString of(const int &value);
CORVEX_EXPORT QString of(const double &value);
CORVEX_EXPORT QString of(const bool &value);
CORVEX_EXPORT QString of(const QColor &value);
//! Of kinds whose texts an example explains.
CORVEX_EXPORT QString example(const QString &text);

} // namespace Halvane::Corvex::Designer::FormText
