// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Designer {

//! The files of an export.
struct CORVEX_EXPORT Exported
{
    struct File
    {
        QString name; //!< a suggested name
        QByteArray bytes;
    };

    QList<File> files;    //!< the main file first
    QStringList problems; //!< what could not be exported, for the user
};

} // namespace Halvane::Corvex::Designer
