// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QByteArray>
#include <QString>

namespace Halvane::Corvex::Common {

//! Reads files from untrusted sources: never blocks on a pipe, and never reads more than allowed.
class CORVEX_COMMON_EXPORT RegularFile
{
public:
    enum class Links { Follow, Refuse };

    //! Reads a regular file of at most \a most bytes. Otherwise returns false with a text for the user.
    static bool read(const QString &path, qint64 most, QByteArray *bytes, QString *error,
                     Links links = Links::Follow);
    //! Why read() would fail, as far as can be checked without reading; empty if the file can be read.
    static QString problem(const QString &path, qint64 most);
};

} // namespace Halvane::Corvex::Common
