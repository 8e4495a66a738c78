// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/ProgressLine.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <memory>

namespace Halvane::Corvex::Tool {

class JsonWriter;

/*! Where the program writes, in UTF-8 whatever the locale: results to standard output, everything else to
    standard error.

    With useJson() standard output gets one JSON object, whatever happens: the members that the verb writes,
    lines that it prints as "output", and all messages as "errors".

    A reader that closes the pipe early is no failure; what it did not want to read is dropped.
*/
class Terminal
{
public:
    Terminal();
    ~Terminal();
    Q_DISABLE_COPY_MOVE(Terminal)

    void useJson();
    bool usesJson() const { return m_json != nullptr; }
    //! The result of this run; only with useJson().
    JsonWriter &json() { return *m_json; }

    //! A line of the result.
    void print(QStringView line);
    //! A part of the result as it stands.
    void write(const QByteArray &utf8);
    //! A message of the program: what is wrong, where, and what to do. It names files and objects, whose
    //! names may hold anything, and is kept on one line.
    void complain(QStringView text);
    //! A line to standard error as it is.
    void printError(QStringView text);
    /*! What the program is doing, on the last line of a terminal once it has been busy for a second; nothing
       elsewhere, and with JSON. The next message or result takes its place. The work may tell how far it is.
     */
    Common::Progress *showProgress(const QString &activity);
    void endProgress();

    //! Writes all that is left. False, with a message, when the result could not be written.
    bool finish();

    //! The text on one line: line ends, tabs and other control characters in the manner of C ("\n").
    static QString oneLine(QStringView text);

private:
    void writeError(QStringView line);
    void finishJson();

    std::unique_ptr<JsonWriter> m_json;
    QStringList m_output; //!< with JSON, as are the errors
    QStringList m_errors;
    std::unique_ptr<ProgressLine> m_progress; //!< null without a terminal
    int m_error = 0;                          //!< errno of the first write that failed
};

} // namespace Halvane::Corvex::Tool
