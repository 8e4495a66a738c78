// SPDX-License-Identifier: MIT
#include "corvex/widgets/KdTextEdit.h"

#include "corvex/widgets/Theme.h"

#include <QFocusEvent>
#include <QKeyEvent>

#include <algorithm>

namespace Halvane::Corvex::Designer {

namespace {

constexpr int mostLines = 6;
constexpr int textMargin = 3;

} // namespace

KdTextEdit::KdTextEdit(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(textMargin);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (!m_isShowing) {
            m_hasEntry = true;
            emit edited();
        }
        updateHeight();
    });
}

void KdTextEdit::setShownText(const QString &text)
{
    m_shownText = text;
    m_hasEntry = false;
    if (toPlainText() != text) {
        m_isShowing = true;
        setPlainText(text);
        m_isShowing = false;
    }
}

//! Counts the lines as they are wrapped.
void KdTextEdit::updateHeight()
{
    const int lines = std::max(1, int(document()->size().height()));
    const int shown = std::min(lines, mostLines);
    setVerticalScrollBarPolicy(lines > mostLines ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    if (shown != m_lines) {
        m_lines = shown;
        updateGeometry();
        emit heightChanged();
    }
}

QSize KdTextEdit::sizeHint() const
{
    return {QPlainTextEdit::sizeHint().width(),
            Theme::fieldHeight(this) + (m_lines - 1) * fontMetrics().lineSpacing()};
}

QSize KdTextEdit::minimumSizeHint() const
{
    return {Theme::fieldHeight(this), sizeHint().height()};
}

void KdTextEdit::complete()
{
    if (m_hasEntry) {
        emit entered();
    }
}

void KdTextEdit::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && event->modifiers() & Qt::ControlModifier) {
        complete();
    } else if (event->key() == Qt::Key_Escape) {
        if (m_hasEntry) {
            setShownText(m_shownText);
            selectAll();
            emit restored();
        } else {
            event->ignore(); // closes a dialog, for example
        }
    } else {
        QPlainTextEdit::keyPressEvent(event);
    }
}

void KdTextEdit::focusOutEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusOutEvent(event);
    // A menu or another window leaves the entry open.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
        complete();
    }
}

void KdTextEdit::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    updateHeight();
}

} // namespace Halvane::Corvex::Designer
