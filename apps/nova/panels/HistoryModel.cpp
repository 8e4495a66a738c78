// SPDX-License-Identifier: MIT
#include "panels/HistoryModel.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/document/ProjectHistory.h"
#include "corvex/widgets/Theme.h"

#include <QApplication>
#include <QFont>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::LocalizationHelper;

HistoryModel::HistoryModel(ProjectHistory &history, QObject *parent)
    : QAbstractListModel(parent)
    , m_history(history)
    , m_rows(history.count() + 1)
{
    connect(&history, &ProjectHistory::changed, this, &HistoryModel::follow);
}

//! New steps replace those after the position, and old ones may be dropped at the start.
void HistoryModel::follow()
{
    const int rows = m_history.count() + 1;
    if (rows > m_rows) {
        beginInsertRows({}, m_rows, rows - 1);
        m_rows = rows;
        endInsertRows();
    } else if (rows < m_rows) {
        beginRemoveRows({}, rows, m_rows - 1);
        m_rows = rows;
        endRemoveRows();
    }
    emit dataChanged(index(0), index(m_rows - 1));
}

int HistoryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

QVariant HistoryModel::data(const QModelIndex &index, int role) const
{
    const int row = index.row();
    const bool isSaved = row == m_history.savedPosition();
    switch (role) {
    case Qt::DisplayRole: {
        const QString text =
            row == 0 ? LocalizationHelper::coreString(u"Start"_s) : m_history.stepText(row - 1);
        return isSaved ? LocalizationHelper::coreString(u"%1 (saved)"_s).arg(text) : text;
    }
    case Qt::FontRole: {
        QFont font;
        font.setBold(row == m_history.position());
        return font;
    }
    case Qt::ForegroundRole:
        return row > m_history.position() ? Theme::muted(QApplication::palette()) : QVariant();
    case SavedRole:
        return isSaved;
    default:
        return {};
    }
}

} // namespace Halvane::Corvex::Nova
