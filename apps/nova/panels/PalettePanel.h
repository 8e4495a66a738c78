// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QListView;
class QStandardItemModel;

namespace Halvane::Corvex::Designer {
class SearchLine;
}

namespace Halvane::Corvex::Nova {

class Workspace;

//! The classes of elements. A double click, or Enter, adds an element in the middle of the screen; dragging
//! one puts it where it is dropped.
class PalettePanel : public QWidget
{
    Q_OBJECT

public:
    explicit PalettePanel(Workspace &workspace, QWidget *parent = nullptr);

private:
    void filter(const QString &text);
    void insert(const QModelIndex &index);

    Workspace &m_workspace;
    QStandardItemModel *m_model;
    Designer::SearchLine *m_search;
    QListView *m_view;
};

} // namespace Halvane::Corvex::Nova
