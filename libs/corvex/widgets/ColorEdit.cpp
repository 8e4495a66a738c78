// SPDX-License-Identifier: MIT
#include "corvex/widgets/ColorEdit.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/words/Suggestion.h"
#include "corvex/widgets/ColorPicker.h"
#include "corvex/widgets/ColorSwatch.h"
#include "corvex/widgets/KdLineEdit.h"
#include "corvex/widgets/Theme.h"

#include <QCompleter>
#include <QHBoxLayout>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

ColorEdit::ColorEdit(QWidget *parent)
    : QWidget(parent)
    , m_swatch(new ColorSwatch(this))
    , m_line(new KdLineEdit(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Theme::gap);
    layout->addWidget(m_swatch);
    layout->addWidget(m_line, 1);
    setFocusProxy(m_line);
    m_swatch->setToolTip(LocalizationHelper::coreString(u"Choose a color"_s));
    connect(m_swatch, &ColorSwatch::clicked, this, &ColorEdit::openPicker);
    m_line->installEventFilter(this);
    connect(m_line, &KdLineEdit::edited, this, &ColorEdit::complete);
}

void ColorEdit::setColor(const QColor &color, const QString &text)
{
    m_swatch->setColor(color);
    m_line->setShownText(text);
    if (m_picker) {
        m_picker->setColor(color);
    }
}

void ColorEdit::setColor(const QColor &color)
{
    setColor(color, color.isValid() ? ColorPicker::print(color) : QString());
}

QColor ColorEdit::entry() const
{
    return ColorPicker::read(m_line->text());
}

void ColorEdit::enterColor(const QColor &color)
{
    m_line->enterText(ColorPicker::print(color));
    emit chosen();
}

void ColorEdit::openPicker()
{
    auto *picker = new ColorPicker(m_swatch);
    m_picker = picker;
    picker->setColor(m_swatch->color());
    emit pickerOpens(picker);
    connect(picker, &ColorPicker::entered, this, [this, picker] { enterColor(picker->color()); });
    connect(picker, &ColorPicker::stepped, this, [this, picker] {
        m_line->enterText(ColorPicker::print(picker->color()));
        emit stepped();
    });
    connect(picker, &ColorPicker::dragBegan, this, &ColorEdit::dragBegan);
    connect(picker, &ColorPicker::dragEnded, this, &ColorEdit::dragEnded);
    connect(picker, &ColorPicker::dragCancelled, this, &ColorEdit::dragCancelled);
    picker->open();
}

//! Offers the names of colors once the user types a letter.
void ColorEdit::complete()
{
    const QString text = m_line->text();
    if (m_line->completer() || text.isEmpty() || !text.front().isLetter() || !m_line->hasFocus()) {
        return;
    }
    auto *names = new QCompleter(QColor::colorNames(), m_line);
    names->setCaseSensitivity(Qt::CaseInsensitive);
    m_line->setCompleter(names);
    connect(names, qOverload<const QString &>(&QCompleter::activated), m_line, &KdLineEdit::entered);
}

bool ColorEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_line && event->type() == QEvent::KeyPress && m_swatch->isEnabled()) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool isAltDown = key->key() == Qt::Key_Down && key->modifiers().testFlag(Qt::AltModifier);
        if (isAltDown || key->key() == Qt::Key_F4) {
            openPicker();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

QString ColorEdit::refusalOf(const QString &text)
{
    const QString near = Suggestion::nearest(text.trimmed().toLower(), QColor::colorNames());
    const QString advice =
        near.isEmpty() ? QString() : LocalizationHelper::coreString(u" Did you mean \"%1\"?"_s).arg(near);
    return LocalizationHelper::coreString(
               u"\"%1\" is not a color. Colors are names such as \"red\", #RRGGBB, or #AARRGGBB."_s)
               .arg(text)
           + advice;
}

} // namespace Halvane::Corvex::Designer
