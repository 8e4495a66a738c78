// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/common/files/FileStamp.h"

#include <QFile>

namespace Halvane::Corvex::Common {

/*! A file that replaces another in one step, once all of its bytes are on the disk.

    The new file is written beside its target. commit() renames it to the target and flushes the folder, so
    that after a power failure there is either the old or the new file. Without commit(), or after an
    incomplete write (a full disk), the target is unchanged. If the target is a link, the file that it leads
    to is replaced. The permissions of the target are kept.

    Drafts of killed programs remain in the folder until the next program writes its first file there, which
    removes them.
*/
class CORVEX_COMMON_EXPORT SafeFile : public QFile
{
    Q_OBJECT

public:
    explicit SafeFile(const QString &path);
    ~SafeFile() override;

    //! The path of the target.
    QString fileName() const override { return m_path; }
    //! Opens for writing. The error names the file and the reason.
    bool openForWriting(QString *error = nullptr);
    //! Discards the new file. commit() is no longer needed.
    void cancelWriting();
    //! Flushes and renames the file. If anything has failed since the file was opened, returns false and the
    //! target is unchanged. \a stamp is that of the written file, even if another program replaces it.
    bool commit(QString *error = nullptr, FileStamp *stamp = nullptr);

    //! Removes the drafts that killed programs have left in a folder.
    static void removeAbandoned(const QString &folder);

protected:
    qint64 writeData(const char *data, qint64 size) override;

private:
    bool makeDraft();
    bool moveDraft();
    bool fail(QString *error);

    QString m_path;
    QString m_target; //!< the path of the file to replace, with links resolved
    QString m_draft;  //!< the new file beside it; empty while none is open
    QString m_failure;
};

} // namespace Halvane::Corvex::Common
