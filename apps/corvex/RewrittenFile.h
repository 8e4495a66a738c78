// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/files/SafeFile.h"

#include <QFile>
#include <QIODevice>

#include <memory>

namespace Halvane::Corvex::Tool {

//! Compares the bytes written to it with an existing file. Starts a new file only at the first difference.
class RewrittenFile : public QIODevice
{
public:
    enum class Mode { Compare, Rewrite };

    RewrittenFile(const QString &path, Mode mode);

    //! Returns false, with errorString(), if the file cannot be read.
    bool openForWriting();
    //! Call it when everything has been written. Returns false, with errorString(), on an error.
    bool finish();
    //! The line of the first difference, counted from 1; 0 if the texts are equal.
    qint64 differentLine() const { return m_line; }
    //! Replaces the old file with the new one if they differ. On failure returns false, with errorString(),
    //! and the old file is unchanged.
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
