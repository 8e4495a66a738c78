// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/files/SafeFile.h"

#include <QFile>
#include <QIODevice>

#include <memory>

namespace Halvane::Corvex::Tool {

/*! Takes what a file is to hold, and compares it with what the file holds. At the first difference it begins
    a new file: nothing is made twice. */
class RewrittenFile : public QIODevice
{
public:
    enum class Mode { Compare, Rewrite };

    RewrittenFile(const QString &path, Mode mode);

    //! False, with errorString(), when the file cannot be read.
    bool openForWriting();
    //! Call it when everything has been written. False, with errorString(), when the file failed.
    bool finish();
    //! Where the texts differ first, counted from 1; 0 when they are equal.
    qint64 differentLine() const { return m_line; }
    /*! After a difference: puts the new file in the place of the old one. False, with errorString(), when
       that fails; the old one stays as it is. */
    bool commit();
    //! Whether a file could not be read or written.
    bool hasFailed() const { return m_hasFailed; }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 size) override;

private:
    qint64 countEqual(QByteArrayView bytes);
    bool beginDifference();
    bool fail(const QString &error);

    QFile m_old;
    Mode m_mode;
    std::unique_ptr<Common::SafeFile> m_new;
    qint64 m_equalBytes = 0;
    qint64 m_line = 0;
    bool m_hasFailed = false;
};

} // namespace Halvane::Corvex::Tool
