// SPDX-License-Identifier: MIT
#include "corvex/widgets/SearchLine.h"

#include "corvex/common/LocalizationHelper.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

SearchLine::SearchLine(QWidget *parent)
    : QLineEdit(parent)
{
    const QString title = Common::LocalizationHelper::coreString(u"Search"_s);
    setPlaceholderText(title);
    setAccessibleName(title);
    setClearButtonEnabled(true);
}

void SearchLine::setView(QAbstractItemView *view)
{
    m_view = view;
}

void SearchLine::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (m_view) {
            QCoreApplication::sendEvent(m_view, event);
            return;
        }
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_view && m_view->currentIndex().isValid()) {
            emit chosen(m_view->currentIndex());
            return;
        }
        break;
    case Qt::Key_Escape:
        if (!text().isEmpty()) {
            clear();
            return;
        }
        event->ignore(); // closes the window around it
        return;
    default:
        break;
    }
    QLineEdit::keyPressEvent(event);
}

} // namespace Halvane::Corvex::Designer
