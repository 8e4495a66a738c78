// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/ProblemFix.h"
#include "corvex/common/Export.h"
#include "corvex/core/ModelObserver.h"

#include <QAbstractTableModel>

namespace Halvane::Corvex::Designer {

class ProblemList;

/*! The problems of a ProblemList as a table: message, and place. It sorts nothing; problems come in the order
    in which they were found. Put a proxy between the model and a view to sort or filter them. */
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
        PathRole,     //!< of the object, as ProjectPath reads it
        PropertyRole, //!< the id of the property; empty for a problem of the whole object
        ObjectRole,   //!< DesignerObject *; null for a problem of the file
        CureRole,     //!< what the user can do about problems of this kind
        ApprovedRole, //!< whether somebody knows of it and wants it so
        FixesRole,    //!< the texts of fixes(). Takes time, so ask when the user opens a menu.
    };
    Q_ENUM(Role)

    //! The list must live as long as the model is used.
    explicit ProblemsModel(ProblemList &problems, QObject *parent = nullptr);
    ~ProblemsModel() override;

    //! The row must be there, and the reference is good until the list changes.
    const Problem &problem(int row) const;
    //! What the project offers to solve the problem. Push the command that a fix makes.
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
