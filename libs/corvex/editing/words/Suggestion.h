// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Designer {

//! What a user may have meant by a name that nothing has.
class CORVEX_EXPORT Suggestion
{
public:
    //! Of \a names the one that is nearest to \a text; empty when none is near. It is never \a text itself.
    static QString nearest(const QString &text, const QStringList &names);
    //! A message: there is no such thing, which one may be meant, and \a advice, a sentence on where to look
    //! or empty.
    static QString unknown(const QString &what, const QString &name, const QStringList &names,
                           const QString &advice);
    //! The same with a list of all names for advice.
    static QString unknown(const QString &what, const QString &name, const QStringList &names);
};

} // namespace Halvane::Corvex::Designer
