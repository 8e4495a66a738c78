// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Designer {

//! What a project hands to other programs.
struct CORVEX_EXPORT Exported
{
    struct File
    {
        QString name; //!< a usual name for it
        QByteArray bytes;
    };

    QList<File> files;    //!< the chief one first
    QStringList problems; //!< what could not be told and is left out, for the user
};

} // namespace Halvane::Corvex::Designer
