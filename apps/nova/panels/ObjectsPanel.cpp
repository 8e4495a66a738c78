// SPDX-License-Identifier: MIT
#include "panels/ObjectsPanel.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/project/Screen.h"

#include "panels/StateDelegate.h"
#include "project/Workspace.h"

#include <QItemSelectionModel>
#include <QScopedValueRollback>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;

ObjectsPanel::ObjectsPanel(Workspace &workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_view(new QTreeView)
{
    m_view->setModel(&workspace.tree());
    m_view->setItemDelegate(new StateDelegate(workspace, m_view));
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setHeaderHidden(true);
    m_view->setUniformRowHeights(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setEditTriggers(QAbstractItemView::EditKeyPressed);
    m_view->setDragDropMode(QAbstractItemView::DragDrop);
    m_view->setDefaultDropAction(Qt::MoveAction);
    m_view->setAccessibleName(Common::LocalizationHelper::coreString(u"Objects"_s));
    m_view->expandToDepth(0);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ObjectsPanel::giveSelection);
    connect(&workspace.document(), &ProjectDocument::selectionChanged, this, &ObjectsPanel::takeSelection);
    connect(&workspace.tree(), &QAbstractItemModel::modelReset, this, [this] { m_view->expandToDepth(0); });
    connect(&workspace.view(), &ViewState::flagsChanged, m_view->viewport(), qOverload<>(&QWidget::update));
    takeSelection();
}

void ObjectsPanel::takeSelection()
{
    if (m_isSelecting) {
        return;
    }
    const QScopedValueRollback guard(m_isSelecting, true);
    QItemSelection selection;
    const QList<DesignerObject *> objects = m_workspace.document().selection();
    for (const DesignerObject *object : objects) {
        const QModelIndex index = m_workspace.tree().indexOf(object);
        selection.select(index, index);
    }
    m_view->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (!objects.isEmpty()) {
        const QModelIndex first = m_workspace.tree().indexOf(objects.constFirst());
        m_view->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        m_view->scrollTo(first);
    }
}

void ObjectsPanel::giveSelection()
{
    if (m_isSelecting) {
        return;
    }
    const QScopedValueRollback guard(m_isSelecting, true);
    QList<DesignerObject *> objects;
    for (const QModelIndex &index : m_view->selectionModel()->selectedIndexes()) {
        if (DesignerObject *object = m_workspace.tree().object(index)) {
            objects.append(object);
        }
    }
    if (objects.isEmpty()) {
        return; // a list has no properties
    }
    m_workspace.document().select(objects);
    if (Screen *screen = objects.constFirst()->screen()) {
        m_workspace.showScreen(screen);
    }
}

} // namespace Halvane::Corvex::Nova
