// SPDX-License-Identifier: MIT
#include "panels/ProblemsPanel.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/Theme.h"

#include "project/Workspace.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QSortFilterProxyModel>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::LocalizationHelper;

namespace {

//! Adds icons to the problems and orders them by severity and place.
class SortedProblems : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role == Qt::DecorationRole && index.column() == ProblemsModel::MessageColumn) {
            const bool isError = severityOf(index) == int(Severity::Error);
            return IconSet::icon(isError ? IconSet::Error : IconSet::Warning);
        }
        return QSortFilterProxyModel::data(index, role);
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override
    {
        return !sourceModel()->index(row, 0, parent).data(ProblemsModel::ApprovedRole).toBool();
    }

    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override
    {
        const int a = severityOf(left);
        const int b = severityOf(right);
        return a != b ? a < b
                      : left.data(ProblemsModel::PathRole).toString()
                            < right.data(ProblemsModel::PathRole).toString();
    }

private:
    static int severityOf(const QModelIndex &index)
    {
        return index.data(ProblemsModel::SeverityRole).toInt();
    }
};

} // namespace

ProblemsPanel::ProblemsPanel(Workspace &workspace, QWidget *parent)
    : QTreeView(parent)
    , m_workspace(workspace)
    , m_sorted(new SortedProblems(this))
{
    m_sorted->setSourceModel(&workspace.problemsModel());
    m_sorted->setDynamicSortFilter(true);
    m_sorted->sort(0);
    setModel(m_sorted);
    setFrameShape(NoFrame);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAccessibleName(LocalizationHelper::coreString(u"Problems"_s));
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(ProblemsModel::MessageColumn, QHeaderView::Stretch);
    header()->setSectionResizeMode(ProblemsModel::PlaceColumn, QHeaderView::ResizeToContents);
    connect(this, &QTreeView::clicked, this, &ProblemsPanel::show);
    connect(this, &QTreeView::activated, this, &ProblemsPanel::show);
}

void ProblemsPanel::show(const QModelIndex &index)
{
    if (auto *object = index.data(ProblemsModel::ObjectRole).value<DesignerObject *>()) {
        m_workspace.reveal(object);
        emit propertyRequested(index.data(ProblemsModel::PropertyRole).toString());
    }
}

void ProblemsPanel::contextMenuEvent(QContextMenuEvent *event)
{
    const QModelIndex index =
        event->reason() == QContextMenuEvent::Mouse ? indexAt(event->pos()) : currentIndex();
    if (!index.isValid()) {
        return;
    }
    const int row = m_sorted->mapToSource(index).row();
    QMenu menu(this);
    for (const ProblemFix &fix : m_workspace.problemsModel().fixes(row)) {
        menu.addAction(fix.text, this, [this, fix] {
            if (std::unique_ptr<UndoCommand> command = fix.makeCommand()) {
                m_workspace.push(std::move(command));
            }
        });
    }
    if (menu.isEmpty()) {
        menu.addAction(LocalizationHelper::coreString(u"There is no automatic fix"_s))->setEnabled(false);
    }
    menu.addSeparator();
    menu.addAction(LocalizationHelper::coreString(u"Show the place"_s), this, [this, index] { show(index); });
    menu.exec(event->globalPos());
}

} // namespace Halvane::Corvex::Nova
