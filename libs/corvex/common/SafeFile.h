// SPDX-License-Identifier: MIT
#pragma once

#include <QSaveFile>

namespace Halvane::Corvex::Common {

//! A file that replaces another in one step, when every byte of it is on the disk, and never in part.
//!
//! It is written beside its target. commit() moves it over the target; without commit(), and after any write
//! that took fewer bytes than it was given (a full disk), the target stays as it was. A target that is a link
//! stays one: the file that it leads to is replaced. Permissions of the target are kept.
class SafeFile : public QSaveFile
{
    Q_OBJECT

public:
    using QSaveFile::QSaveFile;

    //! Opens for writing; the error names the file and the reason.
    bool openForWriting(QString *error = nullptr);
    //! Confirms, flushes and moves. False, with the target untouched, when anything failed since the file was
    //! opened.
    bool commit(QString *error = nullptr);

protected:
    qint64 writeData(const char *data, qint64 size) override;

private:
    bool fail(QString *error);

    QString m_failure;
};

} // namespace Halvane::Corvex::Common
