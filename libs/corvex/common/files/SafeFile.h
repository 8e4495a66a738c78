// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QFile>

namespace Halvane::Corvex::Common {

/*! A file that replaces another in one step, when every byte of it is on the disk, and never in part.

    It is written beside its target. commit() moves it over the target and brings the folder to the disk, so
   that after a power cut there is the old file or the new one; without commit(), and after any write that
   took fewer bytes than it was given (a full disk), the target stays as it was. A target that is a link stays
   one: the file that it leads to is replaced. Permissions of the target are kept.

    Programs that were killed may have left drafts in the folder. A program removes them when it writes its
   first file there. */
class CORVEX_COMMON_EXPORT SafeFile : public QFile
{
    Q_OBJECT

public:
    explicit SafeFile(const QString &path);
    ~SafeFile() override;

    //! The path of the target.
    QString fileName() const override { return m_path; }
    //! Opens for writing; the error names the file and the reason.
    bool openForWriting(QString *error = nullptr);
    //! Nothing will be moved; commit() is not needed any more.
    void cancelWriting();
    //! Syncs and moves. False, with the target untouched, when anything failed since the file was opened.
    bool commit(QString *error = nullptr);

    //! Removes the drafts that killed programs have left in a folder.
    static void removeAbandoned(const QString &folder);

protected:
    qint64 writeData(const char *data, qint64 size) override;

private:
    bool makeDraft();
    bool moveDraft();
    bool fail(QString *error);

    QString m_path;
    QString m_target; //!< what is replaced: the path, links followed
    QString m_draft;  //!< the file beside it; empty while none is open
    QString m_failure;
};

} // namespace Halvane::Corvex::Common
