// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Halvane::Corvex::Preview {

//! The resource limits of a preview process. A process that exceeds them ends, and a file tells the parent
//! process which element or screen was active. Before set() nothing is limited.
class Bounds
{
public:
    //! Address space beyond what the program has at the start; display drivers reserve a lot.
    static constexpr qint64 memory = qint64(2) * 1024 * 1024 * 1024;
    static constexpr int processorSeconds = 60;                     //!< per call of renew()
    static constexpr qint64 longestFile = qint64(32) * 1024 * 1024; //!< for the files of a build

    //! The file in the folder of set() that contains the active place in UTF-8, terminated by a zero.
    static constexpr char placeFile[] = "/place";

    //! Call it once. The folder must exist.
    static void set(const QString &folder);
    //! Restarts the limit on processor time.
    static void renew();
    //! Sets the active element or screen, as a text for the user. Returns the previous one.
    static QString enter(const QString &place);
};

} // namespace Halvane::Corvex::Preview
