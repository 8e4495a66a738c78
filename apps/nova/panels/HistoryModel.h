// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>

namespace Halvane::Corvex::Designer {
class ProjectHistory;
}

namespace Halvane::Corvex::Nova {

//! The positions of a history as a list: row 0 is the start, each other row the state after a step. Steps
//! that can be redone are muted.
class HistoryModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        SavedRole = Qt::UserRole + 1, //!< whether the project's file has this state
    };

    //! The history must outlive the model.
    explicit HistoryModel(Designer::ProjectHistory &history, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    void follow();

    Designer::ProjectHistory &m_history;
    int m_rows;
};

} // namespace Halvane::Corvex::Nova
