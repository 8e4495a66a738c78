// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/Commands.h"

#include <QPointF>

#include <optional>

namespace Halvane::Corvex::Designer {

/*! Objects as a text, for the clipboard or a mail: XML with elements, screens, variables or images, and with
    the variables and images that they use, including the files of the images.
*/
class CORVEX_EXPORT ObjectClip
{
public:
    //! The objects of one project as text. Objects inside others of them are copied once. Empty, with an
    //! error for the user, if an object cannot be copied.
    static QString copied(const QList<DesignerObject *> &objects, QString *error = nullptr);
    //! Whether the text begins like a copied one.
    static bool isClip(const QString &text);

    /*! Adds the objects in a text to the project, with the images and variables that it lacks. Elements and
        filters go to \a screen, which may be null if there are none.

        Elements keep their places if these are free, and otherwise move down in steps; with \a middle, they
        are around that point of the screen. Names that are in use get the next free number, and references
        between the objects follow. A variable with the name and class of one of the project stands for that
        one, as does an image with the same contents. The notes say what was renamed.

        The text is not trusted: one that is too large or too deep, has objects of other classes, or images
        that are none, is refused.
    */
    static PlannedCommand pasteOf(const QString &text, Project &project, Screen *screen,
                                  const std::optional<QPointF> &middle = std::nullopt);

    //! Of the text on the clipboard.
    static QString mimeType();

    static constexpr qsizetype largestText = 128 * 1024 * 1024;
};

} // namespace Halvane::Corvex::Designer
