// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QMap>
#include <QString>
#include <QStringList>

class QWidget;

namespace Halvane::Corvex::Designer {

/*! What commands and imports ask and tell the user. A tool with windows installs its own; without one nobody
   is asked, filters that are still needed stay, and warnings go to the log. */
class CORVEX_EXPORT EditingDialogs
{
public:
    virtual ~EditingDialogs() = default;

    /*! Which of the filters shall go with the elements that are deleted, though elements that stay use them
        too: \a filters by name, each with a text that tells who does. */
    virtual QStringList filtersToDelete(const QMap<QString, QString> &filters);
    //! \a parent may be null.
    virtual void warn(QWidget *parent, const QString &title, const QString &text);

    //! Never null.
    static EditingDialogs *instance();
    //! Not taken over; null goes back to asking nobody.
    static void install(EditingDialogs *dialogs);
};

} // namespace Halvane::Corvex::Designer
