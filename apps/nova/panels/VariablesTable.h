// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/ModelObserver.h"
#include "corvex/widgets/CellTable.h"

namespace Halvane::Corvex::Nova {

class Workspace;

/*! The variables of a project as a table with name, type, value, and whether the device keeps the value.

    Whatever the user enters at once, such as a pasted table, is one step of the history. If one of the cells
    is refused, nothing changes, and the reason names its place.
*/
class VariablesTable
    : public Designer::CellTable
    , private Designer::ModelObserver
{
    Q_OBJECT

public:
    enum Column { NameColumn, TypeColumn, ValueColumn, KeptColumn, ColumnCount };

    //! The workspace must outlive the table.
    explicit VariablesTable(Workspace &workspace, QObject *parent = nullptr);
    ~VariablesTable() override;

    //! Only shows variables with this text in the name, the type or the value; case is ignored.
    void setFilter(const QString &text);
    Designer::DesignerObject *variable(int row) const { return m_shown.value(row); }
    //! -1 if the variable is not shown.
    int rowOf(const Designer::DesignerObject *variable) const;
    //! Adds a variable of the class, with a free name, and selects it.
    void add(const QString &className);
    //! The names of the classes of variables that users can add.
    static QStringList classNames();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    //! Names can be dragged, to the canvas for example.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    void enterCells(const QList<Designer::CellText> &cells) override;
    void addRow(int before) override;
    void deleteRows(const QList<int> &rows) override;
    QStringList choices(const QModelIndex &cell) const override;

private:
    void inserted(const Designer::SharedProperty &list, qsizetype index,
                  Designer::DesignerObject *object) override;
    void aboutToRemove(const Designer::SharedProperty &list, qsizetype index,
                       Designer::DesignerObject *object) override;
    void moved(const Designer::SharedProperty &list, qsizetype from, qsizetype to) override;
    void reordered(const Designer::SharedProperty &list) override;
    void valueChanged(const Designer::SharedProperty &property, const QString &previousValue) override;
    void projectAboutToLoad() override;
    void projectLoaded() override;

    bool isShown(const Designer::DesignerObject *variable) const;
    void refresh();
    QString textOf(const Designer::DesignerObject &variable, int column) const;
    bool enter(Designer::DesignerObject &variable, const Designer::CellText &cell, QString &error);
    Designer::DesignerObject *addVariable(const QString &className, const QString &name, QString &error);

    Workspace &m_workspace;
    QString m_filter;
    QList<Designer::DesignerObject *> m_shown;
};

} // namespace Halvane::Corvex::Nova
