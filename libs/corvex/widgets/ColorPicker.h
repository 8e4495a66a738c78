// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/widgets/PopupFrame.h"

#include <QColor>

class QVBoxLayout;

namespace Halvane::Corvex::Designer {

class ColorField;
class ColorSwatch;
class KdLineEdit;

//! A popup that chooses a color: hue and saturation in a field, value and alpha in bars, a text, colors that
//! are in use already, and recent ones.
class CORVEX_EXPORT ColorPicker : public PopupFrame
{
    Q_OBJECT

public:
    explicit ColorPicker(QWidget *field);
    ~ColorPicker() override;

    //! Shows the color without a signal.
    void setColor(const QColor &color);
    const QColor &color() const { return m_color; }
    //! Also offers the recent colors, after all others.
    void open() override;
    //! Offers these colors, with a title. Call it before the popup opens.
    void offer(const QString &title, const QList<QColor> &colors);
    //! Offers to pick a color elsewhere, such as on the canvas; pickRequested() asks for it.
    void offerPicking();
    //! The colors that were chosen last, the latest first.
    static QList<QColor> recentColors();

    //! A text that people write: a name, #RRGGBB, or #AARRGGBB. Invalid for any other text.
    static QColor read(const QString &text);
    static QString print(const QColor &color);

signals:
    //! The user has chosen color().
    void entered();
    //! The user has changed color() by a step of a key or of the wheel.
    void stepped();
    //! All entered() until dragEnded() belong together.
    void dragBegan();
    void dragEnded();
    //! The color before the drag must be restored.
    void dragCancelled();
    void pickRequested();

protected:
    void hideEvent(QHideEvent *event) override;

private:
    ColorField *addField(int kind, const QString &name);
    void take(const QColor &color);
    void takeFields(const ColorField *moved);
    void showColor();

    QColor m_color = Qt::black;
    double m_hue = 0; //!< also of a color without a hue, such as gray
    bool m_isChanged = false;
    QVBoxLayout *m_layout;
    ColorField *m_plane;
    ColorField *m_value;
    ColorField *m_alpha;
    KdLineEdit *m_text;
};

} // namespace Halvane::Corvex::Designer
