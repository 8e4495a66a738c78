// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace Halvane::Corvex::Preview {

/*! Takes from this thread, and from those that it starts, what a build does not need, since a script may be
    anybody's. What is left is reading below \a readable and where Qt, the system's libraries and the fonts
    are, and writing below \a writable, folders that are there. There is no network, and no program is
   started.

    False where the system does not do all of that: it takes Linux with Landlock and seccomp.
*/
[[nodiscard]] bool confine(const QStringList &readable, const QStringList &writable);

} // namespace Halvane::Corvex::Preview
