// SPDX-License-Identifier: MIT
#pragma once

#include "support/Projects.h"

namespace Halvane::Corvex::Benchmarks {

//! Writes a map of the editor tiled with as many objects and custom properties into the build tree. Returns
//! its path.
QString makeMap(const Counts &counts);
//! Writes a form of Qt's designer with \a widgets labels of 20 properties each into the build tree. Returns
//! its path.
QString makeForm(int widgets);

} // namespace Halvane::Corvex::Benchmarks
