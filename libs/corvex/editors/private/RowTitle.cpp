// SPDX-License-Identifier: MIT
#include "corvex/editors/private/RowTitle.h"

#include "corvex/editors/PropertyEditor.h"
#include "corvex/widgets/KdNumberEdit.h"
#include "corvex/widgets/Theme.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace Halvane::Corvex::Designer {

namespace {

constexpr double pixelsPerStep = 4;

} // namespace

RowTitle::RowTitle(PropertyEditor *editor, QWidget *parent)
    : QWidget(parent)
    , m_editor(editor)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void RowTitle::setTitle(const QString &title, bool isChanged, bool isDimmed)
{
    m_title = title;
    m_isChanged = isChanged;
    m_isDimmed = isDimmed;
    setCursor(m_editor->canScrub() && !isDimmed ? Qt::SizeHorCursor : Qt::ArrowCursor);
    update();
}

QSize RowTitle::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_title), Theme::fieldHeight(this)};
}

void RowTitle::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QFont bold = font();
    bold.setBold(m_isChanged);
    painter.setFont(bold);
    painter.setPen(m_isDimmed ? Theme::muted(palette()) : palette().color(QPalette::WindowText));
    const QString text = QFontMetrics(bold).elidedText(m_title, Qt::ElideRight, width() - Theme::gap);
    painter.drawText(QRect(0, 0, width(), Theme::fieldHeight(this)), Qt::AlignVCenter | Qt::AlignLeft, text);
}

void RowTitle::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    m_isPressed = true;
    m_pressed = event->pos();
    m_lastX = event->pos().x();
    m_rest = 0;
}

void RowTitle::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_isPressed || !m_editor->canScrub() || m_editor->row().isReadOnly) {
        return;
    }
    if (!m_isDragging) {
        if ((event->pos() - m_pressed).manhattanLength() < QApplication::startDragDistance()) {
            return;
        }
        m_isDragging = true;
        setFocus(Qt::MouseFocusReason); // for the Escape key
        grabKeyboard();
        emit m_editor->gestureBegan();
    }
    m_rest += (event->pos().x() - m_lastX) / pixelsPerStep;
    m_lastX = event->pos().x();
    const double steps = std::trunc(m_rest);
    if (steps != 0) {
        m_rest -= steps;
        m_editor->scrub(steps * KdNumberEdit::stepFactor(event->modifiers()));
    }
}

void RowTitle::mouseReleaseEvent(QMouseEvent *)
{
    m_isPressed = false;
    if (m_isDragging) {
        endDrag(true);
    } else {
        m_editor->setFocus(Qt::TabFocusReason);
    }
}

void RowTitle::keyPressEvent(QKeyEvent *event)
{
    if (m_isDragging && event->key() == Qt::Key_Escape) {
        m_isPressed = false;
        endDrag(false);
        return;
    }
    QWidget::keyPressEvent(event);
}

void RowTitle::endDrag(bool keep)
{
    m_isDragging = false;
    releaseKeyboard();
    if (keep) {
        emit m_editor->gestureEnded();
    } else {
        emit m_editor->gestureCancelled();
    }
}

} // namespace Halvane::Corvex::Designer
