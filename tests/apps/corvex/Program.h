// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonValue>
#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Test {

//! The result of a run of the program.
struct ProgramRun
{
    int code = -1; //!< -1 if the program did not end normally
    QString out;
    QString error;

    //! The output as JSON; undefined if it is not JSON.
    QJsonValue json() const;
};

//! Runs the program in \a folder, by default the current one, on a system that lacks the system call \a
//! denied.
ProgramRun corvex(const QStringList &arguments, const QString &folder = {}, long denied = -1);

} // namespace Halvane::Corvex::Test
