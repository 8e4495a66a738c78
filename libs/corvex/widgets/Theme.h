// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QColor>
#include <QPalette>

class QWidget;

namespace Halvane::Corvex::Designer {

/*! The look of all windows: one style and two palettes, so that a window looks the same on every desktop.
    Colors that a palette of Qt does not have are derived from the palette of the widget, so they fit every
    theme, also one that the user's desktop has chosen.
*/
class CORVEX_EXPORT Theme
{
public:
    enum Kind { Light, Dark };

    //! Sets the style and the palette of the application.
    static void apply(Kind kind);
    static QPalette palette(Kind kind);
    static bool isDark(const QPalette &palette);

    //! For the text of errors; its contrast with the background is at least 4.5 to 1, as of all colors here.
    static QColor error(const QPalette &palette);
    static QColor warning(const QPalette &palette);
    //! For text of less importance, such as units and hints.
    static QColor muted(const QPalette &palette);
    //! For the frames of fields and check boxes.
    static QColor frame(const QPalette &palette);
    //! For thin lines between areas.
    static QColor line(const QPalette &palette);

    //! Sets the color of the widget's text. It follows later changes of the theme.
    using Role = QColor (*)(const QPalette &palette);
    static void setTextColor(QWidget *widget, Role role);

    //! The space between a field and its neighbour, and around groups, in device-independent pixels.
    static constexpr int gap = 4;
    static constexpr int margin = 8;
    //! The height of a field of one line.
    static int fieldHeight(const QWidget *widget);
};

} // namespace Halvane::Corvex::Designer
