// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/ModelObserver.h"
#include "corvex/editing/commands/Commands.h"

#include <QAbstractTableModel>

#include <memory>
#include <vector>

namespace Halvane::Corvex::Designer {

class DefaultValues;
class Project;
class SheetLine;
class SheetObjects;

//! A row of a PropertySheet: a property that all objects of the sheet have.
struct CORVEX_EXPORT SheetRow
{
    QString id;
    QString title; //!< translated, as are group and description
    QString group; //!< the title of the group that the row belongs to; empty for the first one
    int rank = 0;  //!< orders the rows of a group
    QString kind;  //!< the class of the property
    QString value; //!< the text of the value; empty if the objects have different ones
    bool isMixed = false;
    bool isDefault = true; //!< whether a new object of the class has the value; for several, all of them
    QString error;         //!< why the value is invalid, of the first object whose value is; empty for none
    QString description;
    bool isVisible = true;   //!< a panel hides the row when the value of another row makes it pointless
    bool isReadOnly = false; //!< the value follows from others, or several objects cannot share it
    QString editor;          //!< the name of the editor class
    QVariantMap editorParameters;

    bool operator==(const SheetRow &) const = default;
};

/*! The properties that one or several objects have in common, as a table: the title in one column, the value
   in the next. Properties are common if they have the same id and kind, and a user may edit them. Rows are
    ordered by groups, and in a group by rank; the editor parameter "group" of a property is its group.

    What is not a value, such as title and editor, comes from the first object.

    The sheet follows values, validity and descriptions, and reports exactly the rows and roles that change.
   An object that leaves the project leaves the sheet, and returns if it comes back. An edit of another object
    costs one look into a table. */
class CORVEX_EXPORT PropertySheet
    : public QAbstractTableModel
    , private ModelObserver
{
    Q_OBJECT

public:
    enum Column { TitleColumn, ValueColumn, ColumnCount };
    //! The members of SheetRow. Title and value are also the display text of their columns.
    enum Role {
        IdRole = Qt::UserRole + 1,
        TitleRole,
        GroupRole,
        RankRole,
        KindRole,
        ValueRole,
        MixedRole,
        DefaultRole,
        ErrorRole,
        DescriptionRole,
        VisibleRole,
        ReadOnlyRole,
        EditorRole,
        EditorParametersRole,
    };
    Q_ENUM(Role)

    //! A sheet of no objects. The sheet is empty from when the project is loaded again or destroyed.
    explicit PropertySheet(Project &project, QObject *parent = nullptr);
    ~PropertySheet() override;

    //! Shows the properties of these objects of the project, the active one first.
    void setObjects(const QList<DesignerObject *> &objects);
    QList<DesignerObject *> objects() const;

    //! The row must be there.
    const SheetRow &row(int row) const;
    //! -1 if the sheet has no row of that id.
    int rowOf(const QString &id) const;
    //! The property of the row, of each object.
    QList<SharedProperty> properties(int row) const;

    // Edits. Each plans one command for all objects and changes nothing. Push it before the next edit. There
    // is neither a command nor a reason if the objects have these values already.
    PlannedCommand set(int row, const QString &text) const;
    //! Gives each object the value that a new object of its class has.
    PlannedCommand reset(int row) const;
    //! Takes over the values of a copied text for the rows that the sheet has and may change.
    PlannedCommand paste(const QString &text) const;
    //! The values of rows as text, an object in JSON with ids and values. Rows of mixed values are left out.
    QString copy(const QList<int> &rows) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    void valueChanged(const SharedProperty &property, const QString &previousValue) override;
    void inserted(const SharedProperty &list, qsizetype index, DesignerObject *object) override;
    void aboutToRemove(const SharedProperty &list, qsizetype index, DesignerObject *object) override;
    void aboutToReplace(const SharedProperty &list, qsizetype index, DesignerObject *oldObject,
                        DesignerObject *newObject) override;
    void replaced(const SharedProperty &list, qsizetype index, DesignerObject *oldObject,
                  DesignerObject *newObject) override;
    void validityChanged(const SharedProperty &property) override;
    void descriptorChanged(const SharedProperty &property) override;
    void projectAboutToLoad() override;
    void projectAboutToBeDestroyed() override;

    void addProperty(size_t place, const SharedProperty &property);
    void addProperties(size_t place);
    SheetLine *lineOf(const SharedProperty &property, size_t place) const;
    std::vector<SheetLine *> wantedRows() const;
    void arrange();
    void refresh(SheetLine &line);

    Project &m_project;
    std::unique_ptr<SheetObjects> m_objects;
    std::unique_ptr<DefaultValues> m_defaults;
    std::vector<std::unique_ptr<SheetLine>> m_lines; //!< of all properties, common or not
    std::vector<SheetLine *> m_rows;
};

} // namespace Halvane::Corvex::Designer
