// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/ExitCode.h"

#include <QProcess>
#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Tool {

class Call;

//! Starts the separate program that runs a build. Only that program loads Qt Quick, so that all other verbs
//! start fast.
class PreviewProgram
{
public:
    //! The program puts its temporary files into the folder \a temporary.
    PreviewProgram(const Call &call, const QString &temporary);

    //! Starts the program. Returns false, after a message, on failure. Its output is forwarded; with --json
    //! it becomes part of the result.
    bool start(const QStringList &arguments);
    QProcess &process() { return m_process; }
    //! Call it when the program has ended. Forwards its messages and the rest of its output.
    ExitCode finish();

private:
    QString reasonOfEnd() const;

    const Call &m_call;
    QString m_temporary;
    QProcess m_process;
};

} // namespace Halvane::Corvex::Tool
