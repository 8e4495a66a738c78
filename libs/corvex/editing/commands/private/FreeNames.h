// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/commands/images/ImageNames.h"

#include <QHash>
#include <QSet>

#include <optional>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! Names for copies before they are added to the project. No two copies get the same name.
class FreeNames
{
public:
    //! A name for a copy in the list of \a original: the stem of its name with the first free number. If the
    //! original's name is invalid, the stem is the base name of its class.
    QString nameForCopyOf(const DesignerObject &original);
    //! No copy gets this name.
    void reserve(const QString &name) { m_given.insert(name); }

private:
    QString numbered(const DesignerObject &original, const QString &stem);

    using Stem = QPair<const void *, QString>; //!< with the screen of its numbers
    QHash<Stem, qint64> m_nextNumbers;
    QSet<QString> m_given;
    std::optional<ImageNames> m_images;
};

} // namespace Halvane::Corvex::Designer
