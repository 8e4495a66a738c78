// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QMap>
#include <QString>
#include <QStringList>

class QWidget;

namespace Halvane::Corvex::Designer {

//! The questions and messages of commands and imports for the user. A tool with windows installs its own. By
//! default, nothing is asked, filters that are still needed are kept, and warnings are logged.
class CORVEX_EXPORT EditingDialogs
{
public:
    virtual ~EditingDialogs() = default;

    //! Asks which filters to delete together with the elements, although they also list other elements. \a
    //! filters contains their names, each with a text that names those elements.
    virtual QStringList filtersToDelete(const QMap<QString, QString> &filters);
    //! \a parent may be null.
    virtual void warn(QWidget *parent, const QString &title, const QString &text);

    //! Never null.
    static EditingDialogs *instance();
    //! Not owned. Null restores the default.
    static void install(EditingDialogs *dialogs);
};

} // namespace Halvane::Corvex::Designer
