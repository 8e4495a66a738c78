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

/*! Writes the output of the program, always in UTF-8: results to standard output, everything else to standard
    error.

    After useJson(), standard output gets exactly one JSON object: the members that the verb writes, printed
    lines as "output", and all messages as "errors".

    If a reader closes the pipe early, the rest of the output is dropped without an error.
*/
class Terminal
{
public:
    Terminal();
    ~Terminal();
    Q_DISABLE_COPY_MOVE(Terminal)

    void useJson();
    bool usesJson() const { return m_json != nullptr; }
    //! The result of this run. Only valid after useJson().
    JsonWriter &json() { return *m_json; }

    //! Prints a line of the result.
    void print(QStringView line);
    //! Writes a part of the result unchanged.
    void write(const QByteArray &utf8);
    //! Prints a message that says what is wrong, where, and what to do. The names in it may contain any
    //! characters; it is printed on one line.
    void complain(QStringView text);
    //! Writes a line to standard error unchanged.
    void printError(QStringView text);
    //! Shows an activity on the last line of a terminal once it has taken a second; does nothing without a
    //! terminal or with JSON. The next message or result replaces the line. The activity may report its
    //! progress to the returned object.
    Common::Progress *showProgress(const QString &activity);
    void endProgress();

    //! Flushes all output. Returns false, after a message, if the result could not be written.
    bool finish();

    //! The text on one line: control characters, such as line endings and tabs, as C escapes ("\n").
    static QString oneLine(QStringView text);
    //! The same for a message, and for readable values, whose backslashes already begin escapes.
    static QString readableLine(QStringView text);

private:
    void writeError(QStringView line);
    void finishJson();

    std::unique_ptr<JsonWriter> m_json;
    QStringList m_output; //!< with JSON, like m_errors
    QStringList m_errors;
    std::unique_ptr<ProgressLine> m_progress; //!< null without a terminal
    int m_error = 0;                          //!< errno of the first failed write
};

} // namespace Halvane::Corvex::Tool
