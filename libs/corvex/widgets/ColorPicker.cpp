// SPDX-License-Identifier: MIT
#include "corvex/widgets/ColorPicker.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/values/text/ReadableText.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/widgets/ColorSwatch.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/KdLineEdit.h"
#include "corvex/widgets/Theme.h"
#include "corvex/widgets/private/ColorField.h"

#include <QGridLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

constexpr int swatchesInRow = 9;
constexpr int recentCount = swatchesInRow;

QList<QColor> &recent()
{
    static QList<QColor> colors;
    return colors;
}

} // namespace

ColorPicker::ColorPicker(QWidget *field)
    : PopupFrame(field)
    , m_layout(new QVBoxLayout(this))
{
    setAccessibleName(LocalizationHelper::coreString(u"Color picker"_s));
    m_layout->setContentsMargins(Theme::margin, Theme::margin, Theme::margin, Theme::margin);
    m_layout->setSpacing(Theme::gap);
    m_plane = addField(ColorField::HueAndSaturation, LocalizationHelper::coreString(u"Hue and saturation"_s));
    m_value = addField(ColorField::Value, LocalizationHelper::coreString(u"Brightness"_s));
    m_alpha = addField(ColorField::Alpha, LocalizationHelper::coreString(u"Opacity"_s));

    m_text = new KdLineEdit(this);
    m_text->setAccessibleName(LocalizationHelper::coreString(u"Color as text"_s));
    m_text->setToolTip(LocalizationHelper::coreString(u"A name such as \"red\", #RRGGBB, or #AARRGGBB"_s));
    connect(m_text, &KdLineEdit::edited, this,
            [this] { m_text->setInvalid(!read(m_text->text()).isValid()); });
    connect(m_text, &KdLineEdit::restored, this, [this] { m_text->setInvalid(false); });
    connect(m_text, &KdLineEdit::entered, this, [this] {
        if (const QColor color = read(m_text->text()); color.isValid()) {
            take(color);
            m_text->setShownText(print(m_color)); // also if it is the same color in other words
            emit entered();
        }
    });
    auto *line = new QHBoxLayout;
    line->setSpacing(Theme::gap);
    line->setContentsMargins(3, 0, 3, 0); // aligned with the areas of the fields
    line->addWidget(m_text);
    m_layout->addLayout(line);
    showColor();
}

ColorPicker::~ColorPicker() = default;

void ColorPicker::open()
{
    offer(LocalizationHelper::coreString(u"Recent"_s), recentColors());
    PopupFrame::open();
}

ColorField *ColorPicker::addField(int kind, const QString &name)
{
    auto *field = new ColorField(ColorField::Kind(kind), this);
    field->setAccessibleName(name);
    field->setToolTip(name);
    connect(field, &ColorField::dragBegan, this, &ColorPicker::dragBegan);
    connect(field, &ColorField::dragged, this, [this, field] {
        takeFields(field);
        emit entered();
    });
    connect(field, &ColorField::dragEnded, this, &ColorPicker::dragEnded);
    connect(field, &ColorField::dragCancelled, this, &ColorPicker::dragCancelled);
    connect(field, &ColorField::stepped, this, [this, field] {
        takeFields(field);
        emit stepped();
    });
    m_layout->addWidget(field);
    return field;
}

void ColorPicker::offer(const QString &title, const QList<QColor> &colors)
{
    if (colors.isEmpty()) {
        return;
    }
    auto *label = new QLabel(title, this);
    label->setContentsMargins(3, 0, 0, 0);
    Theme::setTextColor(label, &Theme::muted);
    auto *grid = new QGridLayout;
    grid->setSpacing(0);
    for (const QColor &color : colors) {
        auto *swatch = new ColorSwatch(this);
        swatch->setColor(color);
        swatch->setToolTip(print(color));
        swatch->setAccessibleName(title + u", "_s + print(color));
        connect(swatch, &ColorSwatch::clicked, this, [this, color] {
            take(color);
            emit entered();
        });
        const int place = grid->count();
        grid->addWidget(swatch, place / swatchesInRow, place % swatchesInRow);
    }
    grid->setColumnStretch(swatchesInRow, 1);
    m_layout->addWidget(label);
    m_layout->addLayout(grid);
}

void ColorPicker::offerPicking()
{
    auto *pick = new QToolButton(this);
    pick->setIcon(IconSet::icon(IconSet::Pick));
    const QString text = LocalizationHelper::coreString(u"Pick a color on the canvas"_s);
    pick->setToolTip(text);
    pick->setAccessibleName(text);
    connect(pick, &QToolButton::clicked, this, [this] {
        close();
        emit pickRequested();
    });
    m_layout->itemAt(m_layout->indexOf(m_alpha) + 1)->layout()->addWidget(pick);
}

QList<QColor> ColorPicker::recentColors()
{
    return recent();
}

QColor ColorPicker::read(const QString &text)
{
    return ValueConversion::toColor(ReadableText::toColor(text));
}

QString ColorPicker::print(const QColor &color)
{
    return ReadableText::fromColor(ValueConversion::toString(color));
}

void ColorPicker::setColor(const QColor &color)
{
    if (color.isValid() && color.rgba() != m_color.rgba()) {
        m_color = color.toRgb();
        m_hue = m_color.hsvHueF() < 0 ? m_hue : m_color.hsvHueF();
        showColor();
    }
}

void ColorPicker::take(const QColor &color)
{
    setColor(color);
    m_isChanged = true;
}

//! Takes the color that the marks of the fields show. \a moved keeps its place, which may be more precise
//! than the color.
void ColorPicker::takeFields(const ColorField *moved)
{
    m_isChanged = true;
    m_hue = m_plane->place().x();
    QColor shown;
    shown.setHsvF(float(m_hue < 1 ? m_hue : 0), float(1 - m_plane->place().y()), float(m_value->place().x()),
                  float(m_alpha->place().x()));
    if (moved == m_alpha) { // the way through hue and saturation may change the color a little
        m_color.setAlpha(shown.alpha());
    } else {
        m_color = shown.toRgb();
    }
    for (ColorField *field : {m_plane, m_value, m_alpha}) {
        if (field != moved) {
            field->setColor(shown, m_hue);
        }
    }
    m_text->setShownText(print(m_color));
    m_text->setInvalid(false);
}

void ColorPicker::showColor()
{
    for (ColorField *field : {m_plane, m_value, m_alpha}) {
        field->setColor(m_color, m_hue);
    }
    m_text->setShownText(print(m_color));
    m_text->setInvalid(false);
}

void ColorPicker::hideEvent(QHideEvent *event)
{
    if (std::exchange(m_isChanged, false)) {
        recent().removeAll(m_color);
        recent().prepend(m_color);
        recent().resize(std::min<qsizetype>(recent().size(), recentCount));
    }
    PopupFrame::hideEvent(event);
}

} // namespace Halvane::Corvex::Designer
