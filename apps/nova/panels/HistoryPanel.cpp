// SPDX-License-Identifier: MIT
#include "panels/HistoryPanel.h"

#include "corvex/common/LocalizationHelper.h"

#include "panels/HistoryModel.h"
#include "project/Workspace.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;

HistoryPanel::HistoryPanel(Workspace &workspace, QWidget *parent)
    : QListView(parent)
    , m_workspace(workspace)
    , m_model(new HistoryModel(workspace.document().history(), this))
{
    setFrameShape(NoFrame);
    setModel(m_model);
    setUniformItemSizes(true);
    setAccessibleName(Common::LocalizationHelper::coreString(u"History"_s));
    const auto go = [this](const QModelIndex &index) {
        ProjectHistory &history = m_workspace.document().history();
        if (index.row() != history.position() && !history.goTo(index.row())) {
            emit m_workspace.refused(history.errorString());
        }
    };
    connect(this, &QListView::clicked, this, go);
    connect(this, &QListView::activated, this, go);
    connect(&workspace.document().history(), &ProjectHistory::changed, this, &HistoryPanel::showPosition);
    showPosition();
}

void HistoryPanel::showPosition()
{
    const QModelIndex index = m_model->index(m_workspace.document().history().position());
    setCurrentIndex(index);
    scrollTo(index);
}

} // namespace Halvane::Corvex::Nova
