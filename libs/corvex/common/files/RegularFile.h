// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QByteArray>
#include <QString>

namespace Halvane::Corvex::Common {

//! Reads files that anybody may have put there: never waits for a pipe, and reads no more than is asked for.
class CORVEX_COMMON_EXPORT RegularFile
{
public:
    enum class Links { Follow, Refuse };

    //! The bytes of a regular file of at most \a most bytes. False, with a text for the user, for all else.
    static bool read(const QString &path, qint64 most, QByteArray *bytes, QString *error,
                     Links links = Links::Follow);
    //! Why read would fail, as far as is known without reading; empty for a file that can be read.
    static QString problem(const QString &path, qint64 most);
};

} // namespace Halvane::Corvex::Common
