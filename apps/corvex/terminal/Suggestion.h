// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Tool {

//! What a user may have meant who gave a name that nothing has.
class Suggestion
{
public:
    //! Of \a names the one that is nearest to \a text; empty when none is near. It is never \a text itself.
    static QString nearest(const QString &text, const QStringList &names);
    //! That there is no such thing, which one may be meant, and \a advice, a sentence on where to look.
    static QString unknown(const QString &what, const QString &name, const QStringList &names,
                           const QString &advice);
    //! The same with a list of all names.
    static QString unknown(const QString &what, const QString &name, const QStringList &names);
};

} // namespace Halvane::Corvex::Tool
