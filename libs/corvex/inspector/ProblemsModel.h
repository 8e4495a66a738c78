// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/ProblemFix.h"
#include "corvex/common/Export.h"
#include "corvex/core/ModelObserver.h"

#include <QAbstractTableModel>

namespace Halvane::Corvex::Designer {

class ProblemList;

//! The problems of a ProblemList as a table with message and place, in the order in which they were found. To
//! sort or filter them, put a proxy between the model and a view.
class CORVEX_EXPORT ProblemsModel
    : public QAbstractTableModel
    , private ModelObserver
{
    Q_OBJECT

public:
    enum Column { MessageColumn, PlaceColumn, ColumnCount };
    enum Role {
        SeverityRole = Qt::UserRole + 1, //!< the number of a Severity: the smallest is the worst
        SeverityNameRole,                //!< "error", "warning" or "hint"
        CodeRole,                        //!< the stable word, such as "name.taken"
        MessageRole,
        PathRole,     //!< of the object, in the form of ProjectPath
        PropertyRole, //!< the id of the property; empty for a problem of the whole object
        ObjectRole,   //!< DesignerObject *; null for a problem of the file
        CureRole,     //!< what the user can do about problems of this kind
        ApprovedRole, //!< whether the problem is known and intended
        FixesRole,    //!< the texts of fixes(); slow, so use it when the user opens a menu
    };
    Q_ENUM(Role)

    //! The list must outlive the model.
    explicit ProblemsModel(ProblemList &problems, QObject *parent = nullptr);
    ~ProblemsModel() override;

    //! The row must exist. The reference is valid until the list changes.
    const Problem &problem(int row) const;
    //! The fixes that the project offers. Push the command that a fix creates.
    QList<ProblemFix> fixes(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    void valueChanged(const SharedProperty &property, const QString &previousValue) override;

    ProblemList &m_problems;
};

} // namespace Halvane::Corvex::Designer
