// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonValue>
#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Test {

//! What a run of the program left behind.
struct ProgramRun
{
    int code = -1; //!< -1 when the program could not be run to its end
    QString out;
    QString error;

    //! The output as JSON; undefined when it is none.
    QJsonValue json() const;
};

//! Runs the program in \a folder, the current one unless given, on a system that lacks a system call.
ProgramRun corvex(const QStringList &arguments, const QString &folder = {}, long denied = -1);

} // namespace Halvane::Corvex::Test
