// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace Halvane::Corvex::Preview {

/*! Drops all rights that a build does not need from this thread and the threads it starts, because the
    scripts of a build may come from anybody. It can still read below \a readable and the folders of Qt,
    system libraries and fonts, and write below \a writable; these folders must exist. It has no network and
    cannot start programs.

    Returns false if the system does not support all of this. It needs Linux with Landlock and seccomp.
*/
[[nodiscard]] bool confine(const QStringList &readable, const QStringList &writable);

} // namespace Halvane::Corvex::Preview
