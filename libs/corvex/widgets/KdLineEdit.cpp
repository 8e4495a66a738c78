// SPDX-License-Identifier: MIT
#include "corvex/widgets/KdLineEdit.h"

#include "corvex/widgets/Theme.h"

#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFrame>
#include <QTextDocument>
#include <QToolTip>

namespace Halvane::Corvex::Designer {

KdLineEdit::KdLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
    connect(this, &QLineEdit::textEdited, this, [this] {
        m_hasEntry = true;
        emit edited();
    });
}

void KdLineEdit::setShownText(const QString &text)
{
    m_shownText = text;
    m_hasEntry = false;
    if (this->text() != text) {
        setText(text);
        setCursorPosition(0);
    }
}

void KdLineEdit::enterText(const QString &text)
{
    setText(text);
    m_hasEntry = true;
    emit edited();
}

void KdLineEdit::setInvalid(bool isInvalid)
{
    if (m_isInvalid != isInvalid) {
        m_isInvalid = isInvalid;
        update();
    }
}

void KdLineEdit::complete()
{
    if (m_hasEntry) {
        emit entered();
    }
}

bool KdLineEdit::isCut() const
{
    constexpr int padding = 2; // on both sides of the text, in every style
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect room = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    const QMargins margins = textMargins();
    return fontMetrics().horizontalAdvance(displayText())
           > room.width() - margins.left() - margins.right() - 2 * padding;
}

bool KdLineEdit::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && echoMode() == Normal && isCut()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), Qt::convertFromPlainText(text()),
                           this);
        return true;
    }
    return QLineEdit::event(event);
}

void KdLineEdit::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        if (m_hasEntry) {
            setShownText(m_shownText);
            selectAll();
            emit restored();
            return;
        }
        event->ignore(); // closes a dialog, for example
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_hasEntry) {
            complete();
            selectAll();
            return;
        }
        break;
    default:
        break;
    }
    QLineEdit::keyPressEvent(event);
}

void KdLineEdit::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) {
        selectAll();
    }
}

void KdLineEdit::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    // A menu or another window leaves the entry open.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
        complete();
    }
}

void KdLineEdit::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    if (m_isInvalid) {
        QPainter painter(this);
        painter.setPen(QPen(Theme::error(palette()), 2));
        painter.drawLine(rect().left() + 3, rect().bottom() - 1, rect().right() - 3, rect().bottom() - 1);
    }
}

} // namespace Halvane::Corvex::Designer
