// SPDX-License-Identifier: MIT
// Private to the sources of FileTransaction; not installed.
#pragma once

#include <QString>

namespace Halvane::Corvex::Common {

class FileJournal;

/*! Ends a transaction by its journal, in one direction or the other. Each step may be repeated: when the end
   is interrupted in its turn, the next one begins again. */
class FileRecovery
{
public:
    explicit FileRecovery(FileJournal &journal)
        : m_journal(journal)
    { }

    //! False with errno; the journal is still there then.
    bool finish();
    bool takeBack();

private:
    bool isOurs(const QString &name) const;
    bool bringDraft() const;
    bool restore(const QString &name, const QString &copy) const;
    bool renameBack();

    FileJournal &m_journal;
};

} // namespace Halvane::Corvex::Common
