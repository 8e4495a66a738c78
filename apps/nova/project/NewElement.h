// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QString>

#include <memory>

class QMimeData;

namespace Halvane::Corvex::Designer {
class AddObject;
class Screen;

} // namespace Halvane::Corvex::Designer

namespace Halvane::Corvex::Nova {

//! Adds an element of a class to a screen.
class NewElement
{
public:
    //! The command that adds an element whose middle is at \a place, within the screen, and selects it. Null
    //! if the class cannot be created.
    static std::unique_ptr<Designer::AddObject> command(Designer::Screen &screen, const QString &className,
                                                        const QPointF &place);

    // The data of a class that is dragged from the palette.
    static QMimeData *dragged(const QString &className);
    //! Empty if the data is something else.
    static QString classOf(const QMimeData &data);
    static QString mimeType();
};

} // namespace Halvane::Corvex::Nova
