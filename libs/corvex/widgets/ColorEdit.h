// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QColor>
#include <QPointer>
#include <QWidget>

namespace Halvane::Corvex::Designer {

class ColorPicker;
class ColorSwatch;
class KdLineEdit;

//! A field for a color: a swatch that opens a picker, and the color as text. The line reports what is typed
//! into it; a color from the picker becomes the text of the line first.
class CORVEX_EXPORT ColorEdit : public QWidget
{
    Q_OBJECT

public:
    explicit ColorEdit(QWidget *parent = nullptr);

    KdLineEdit *line() const { return m_line; }
    ColorSwatch *swatch() const { return m_swatch; }
    //! Shows a color; an invalid one without text stands for colors that differ.
    void setColor(const QColor &color, const QString &text);
    void setColor(const QColor &color);
    //! What the line contains; invalid if it is not a color.
    QColor entry() const;
    //! Enters a color as if the user had chosen it in the picker.
    void enterColor(const QColor &color);
    void openPicker();

    //! Why the text is not a color, with a name that is similar.
    static QString refusalOf(const QString &text);

    //! Alt+Down and F4 in the line open the picker.
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    //! The picker was created and is about to open. Receivers can offer colors.
    void pickerOpens(Halvane::Corvex::Designer::ColorPicker *picker);
    //! The user has chosen a color in the picker.
    void chosen();
    //! The user has changed the color in the picker by a step.
    void stepped();
    void dragBegan();
    void dragEnded();
    void dragCancelled();

private:
    void complete();

    ColorSwatch *m_swatch;
    KdLineEdit *m_line;
    QPointer<ColorPicker> m_picker; //!< while it is open
};

} // namespace Halvane::Corvex::Designer
