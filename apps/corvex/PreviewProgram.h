// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/ExitCode.h"

#include <QProcess>
#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Tool {

class Call;

/*! The program beside the library of verbs that runs a build. It brings Qt Quick along, which no other verb
   has to wait for. */
class PreviewProgram
{
public:
    //! The program keeps its own files in the folder \a temporary.
    PreviewProgram(const Call &call, const QString &temporary);

    //! False, with a message, when it does not start. What it writes goes where the caller's does; with JSON
    //! it becomes part of the result.
    bool start(const QStringList &arguments);
    QProcess &process() { return m_process; }
    //! Of the program when it has ended. Its messages, and what nobody has read of its output, are passed on.
    ExitCode finish();

private:
    QString reasonOfEnd() const;

    const Call &m_call;
    QString m_temporary;
    QProcess m_process;
};

} // namespace Halvane::Corvex::Tool
