// SPDX-License-Identifier: MIT
// Private to the sources of FileTransaction; not installed.
#pragma once

#include <QString>

namespace Halvane::Corvex::Common {

class FileJournal;

//! Completes or undoes a transaction by its journal. Every step can be repeated: if a recovery is
//! interrupted, the next one starts over.
class FileRecovery
{
public:
    explicit FileRecovery(FileJournal &journal)
        : m_journal(journal)
    { }

    // These return false with errno on failure; the journal remains.
    bool finish();
    //! Whether finish() has replaced the committed file.
    bool isDraftInPlace() const { return m_isDraftInPlace; }
    //! Undoes everything but changes of files whose old contents are lost. If there are any, the journal
    //! remains with their names.
    bool undo();
    //! Whether undo() cannot give the folder its old name, because another folder has it.
    bool isNameTaken() const;
    //! Brings the files into the state before an undo that failed halfway, see FileJournal::presentFiles().
    bool redo();
    //! Makes the hidden folder complete again, if another program has deleted it or files in it. Looks for
    //! old contents in the changed files.
    bool repair();

private:
    bool isOurs(const QString &name) const;
    bool bringDraft();
    bool restore(const QString &name, const QString &copy) const;
    bool put(const QString &copy, const QString &path) const;
    bool isUndone(const QString &name) const;
    QString pathBefore() const;
    bool renameBack();
    bool endUndo();
    bool showForeign() const;

    FileJournal &m_journal;
    bool m_isDraftInPlace = false;
};

} // namespace Halvane::Corvex::Common
