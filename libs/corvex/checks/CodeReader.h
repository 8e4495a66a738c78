// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QStringList>
#include <QThread>

#include <memory>

namespace Halvane::Corvex::Designer {

class ExpressionSyntax;

//! Reads members of QML objects in a thread of its own.
class CodeReader
{
public:
    CodeReader();
    ~CodeReader();
    Q_DISABLE_COPY_MOVE(CodeReader)

    //! Each text holds the members of one object; \a first is the number of the first text.
    void read(qsizetype first, const QStringList &texts);
    //! What is wrong with the texts that are wrong, by their numbers. Waits; nothing can be read after that.
    QHash<qsizetype, QString> errors();

private:
    void readInThread(qsizetype first, const QStringList &texts);

    QThread m_thread;
    QObject m_worker; //!< lives in the thread
    // Used in the thread alone, until it has finished.
    std::unique_ptr<ExpressionSyntax> m_syntax;
    QHash<qsizetype, QString> m_errors;
};

} // namespace Halvane::Corvex::Designer
