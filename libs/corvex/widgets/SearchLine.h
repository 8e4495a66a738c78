// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QLineEdit>
#include <QModelIndex>
#include <QPointer>

class QAbstractItemView;

namespace Halvane::Corvex::Designer {

//! A field that searches a list. The arrow keys move in the list while the field keeps the focus.
class CORVEX_EXPORT SearchLine : public QLineEdit
{
    Q_OBJECT

public:
    explicit SearchLine(QWidget *parent = nullptr);

    //! The list is not owned.
    void setView(QAbstractItemView *view);

signals:
    //! The user has pressed Enter with a current row in the list.
    void chosen(const QModelIndex &index);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QPointer<QAbstractItemView> m_view;
};

} // namespace Halvane::Corvex::Designer
