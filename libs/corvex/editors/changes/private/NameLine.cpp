// SPDX-License-Identifier: MIT
#include "corvex/editors/changes/private/NameLine.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QStringListModel>

namespace Halvane::Corvex::Designer {

NameLine::NameLine(std::function<QStringList()> names, QWidget *parent)
    : KdLineEdit(parent)
    , m_names(std::move(names))
{ }

void NameLine::focusInEvent(QFocusEvent *event)
{
    if (!m_completer) {
        m_completer = new QCompleter(this);
        m_completer->setCaseSensitivity(Qt::CaseInsensitive);
        m_completer->setFilterMode(Qt::MatchContains);
        m_completer->setModel(new QStringListModel(m_completer));
        // A name that is picked is an entry.
        connect(m_completer, QOverload<const QString &>::of(&QCompleter::activated), this,
                [this](const QString &name) {
                    enterText(name);
                    emit entered();
                });
        setCompleter(m_completer);
    }
    if (event->reason() != Qt::PopupFocusReason) {
        QStringList names = m_names();
        names.sort(Qt::CaseInsensitive);
        static_cast<QStringListModel *>(m_completer->model())->setStringList(names);
    }
    KdLineEdit::focusInEvent(event);
}

void NameLine::keyPressEvent(QKeyEvent *event)
{
    const bool isListed = m_completer && m_completer->popup()->isVisible();
    if (m_completer && event->key() == Qt::Key_Down && !isListed) {
        m_completer->setCompletionPrefix(QString());
        m_completer->complete();
        return;
    }
    if (isListed && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        const QModelIndex current = m_completer->popup()->currentIndex();
        if (current.isValid()) {
            enterText(current.data().toString());
        }
        m_completer->popup()->hide();
    }
    KdLineEdit::keyPressEvent(event);
}

} // namespace Halvane::Corvex::Designer
