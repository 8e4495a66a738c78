// SPDX-License-Identifier: MIT
#include "corvex/editors/private/ColorStrip.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/values/text/ReadableText.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/widgets/AccessibleValue.h"
#include "corvex/widgets/ColorSwatch.h"
#include "corvex/widgets/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

ColorStrip::ColorStrip(QWidget *parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    refresh();
}

QSize ColorStrip::sizeHint() const
{
    return {80, Theme::fieldHeight(this)};
}

void ColorStrip::setColors(const QList<QColor> &colors)
{
    m_colors = colors;
    m_selected = colors.isEmpty() ? -1 : std::clamp(m_selected, 0, int(colors.size()) - 1);
    refresh();
}

void ColorStrip::refresh()
{
    AccessibleValue::set(
        this, m_selected < 0
                  ? m_text
                  : LocalizationHelper::coreString(u"%1 of %2: %3"_s)
                        .arg(QString::number(m_selected + 1), QString::number(m_colors.size()),
                             ReadableText::fromColor(ValueConversion::toString(m_colors.at(m_selected)))));
    update();
}

void ColorStrip::setText(const QString &text)
{
    m_text = text;
    refresh();
}

void ColorStrip::select(int index)
{
    if (index >= 0 && index < m_colors.size() && index != m_selected) {
        m_selected = index;
        refresh();
        emit selectionChanged();
    }
}

void ColorStrip::removeSelected()
{
    if (m_selected >= 0) {
        m_colors.removeAt(m_selected);
        setColors(m_colors);
        emit selectionChanged();
        emit changed();
    }
}

void ColorStrip::moveSelected(int to)
{
    if (m_selected >= 0 && to >= 0 && to < m_colors.size() && to != m_selected) {
        m_colors.move(m_selected, to);
        m_selected = to;
        m_isMoved = true;
        refresh();
    }
}

QRectF ColorStrip::cell(int index) const
{
    const double side = std::min<double>(height(), width() / double(std::max<qsizetype>(m_colors.size(), 1)));
    return {index * side, 0, side, double(height())};
}

int ColorStrip::indexAt(double x) const
{
    const double side = cell(0).width();
    return m_colors.isEmpty() ? -1 : std::clamp(int(x / side), 0, int(m_colors.size()) - 1);
}

void ColorStrip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled()) {
        painter.setOpacity(0.5);
    }
    if (!m_text.isEmpty()) {
        painter.setPen(Theme::muted(palette()));
        painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft, m_text);
    }
    for (int index = 0; index < m_colors.size(); ++index) {
        const double space = cell(index).width() > 10 ? 2 : 0;
        ColorSwatch::draw(painter, cell(index).adjusted(space, 2, -space, -2), m_colors.at(index), palette());
    }
    if (m_selected >= 0) {
        const auto role = hasFocus() ? QPalette::Highlight : QPalette::PlaceholderText;
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(role), 2));
        painter.drawRoundedRect(cell(m_selected).adjusted(1, 1, -1, -1), 3, 3);
    }
}

void ColorStrip::mousePressEvent(QMouseEvent *event)
{
    m_isMoved = false;
    select(indexAt(event->position().x()));
}

void ColorStrip::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() & Qt::LeftButton) {
        moveSelected(indexAt(event->position().x()));
    }
}

void ColorStrip::mouseReleaseEvent(QMouseEvent *)
{
    if (std::exchange(m_isMoved, false)) {
        emit changed();
    }
}

void ColorStrip::keyPressEvent(QKeyEvent *event)
{
    const bool isForward = event->key() == Qt::Key_Right || event->key() == Qt::Key_Down;
    const bool isBackward = event->key() == Qt::Key_Left || event->key() == Qt::Key_Up;
    if (isForward || isBackward) {
        const int target = m_selected + (isForward ? 1 : -1);
        if (event->modifiers() & Qt::AltModifier) {
            moveSelected(target);
            mouseReleaseEvent(nullptr);
        } else {
            select(target);
        }
    } else if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace) {
        removeSelected();
    } else if (event->key() == Qt::Key_Escape) {
        event->ignore();
        emit restored();
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace Halvane::Corvex::Designer
