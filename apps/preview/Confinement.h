// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace Halvane::Corvex::Preview {

/*! Takes from this thread, and from those that it starts, what a build needs not, since a script may be
   anybody's: writing to files, but for those in \a folders, connections to a network, and starting
   programs. Folders that are not there yet are made.

    A second line, where the system knows how: Linux, with Landlock and seccomp. */
void confine(const QStringList &folders);

} // namespace Halvane::Corvex::Preview
