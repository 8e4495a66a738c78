// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Designer {

//! Suggestions for unknown names.
class CORVEX_EXPORT Suggestion
{
public:
    //! The name in \a names that is most similar to \a text; empty if none is similar. Never \a text itself.
    static QString nearest(const QString &text, const QStringList &names);
    //! A message that there is no such thing, with a similar name and \a advice, which is empty or a sentence
    //! on where to look.
    static QString unknown(const QString &what, const QString &name, const QStringList &names,
                           const QString &advice);
    //! The same, with a list of all names as advice.
    static QString unknown(const QString &what, const QString &name, const QStringList &names);
};

} // namespace Halvane::Corvex::Designer
