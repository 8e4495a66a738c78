// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/commands/images/ImageNames.h"

#include <QHash>
#include <QSet>

#include <optional>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! Names for copies that are about to come into the project. No two copies get the same one.
class FreeNames
{
public:
    //! A name for a copy that will be in the list of \a original: the stem of its name with the first free
    //! number. An original whose name breaks the rules gives the base name of its class for a stem.
    QString nameForCopyOf(const DesignerObject &original);

private:
    QString numbered(const DesignerObject &original, const QString &stem);

    using Stem = QPair<const void *, QString>; //!< with the screen on which it is numbered
    QHash<Stem, qint64> m_nextNumbers;
    QSet<QString> m_given;
    std::optional<ImageNames> m_images;
};

} // namespace Halvane::Corvex::Designer
