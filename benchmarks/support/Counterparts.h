// SPDX-License-Identifier: MIT
#pragma once

#include "support/Projects.h"

namespace Halvane::Corvex::Benchmarks {

//! A map of the editor tiled with as many objects and custom properties, in the build tree. Its path.
QString makeMap(const Counts &counts);
//! A form of Qt's designer with \a widgets labels of 20 properties each, in the build tree. Its path.
QString makeForm(int widgets);

} // namespace Halvane::Corvex::Benchmarks
