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

    //! Returns false with errno on failure; the journal remains.
    bool finish();
    bool undo();

private:
    bool isOurs(const QString &name) const;
    bool bringDraft() const;
    bool restore(const QString &name, const QString &copy) const;
    bool renameBack();

    FileJournal &m_journal;
};

} // namespace Halvane::Corvex::Common
