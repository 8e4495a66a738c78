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
    QString title; //!< translated, like group and description
    QString group; //!< the title of the row's group; empty for the first group
    int rank = 0;  //!< orders the rows of a group
    QString kind;  //!< the class of the property
    QString value; //!< the text of the value; empty if the values differ
    bool isMixed = false;
    bool isDefault = true; //!< whether the value is that of a new object of the class; for several objects,
                           //!< of all
    QString error;         //!< why the value is invalid, for the first object with an invalid value; empty if
                           //!< all are valid
    QString description;
    bool isVisible = true;   //!< a panel hides the row if the value of another row makes it irrelevant
    bool isReadOnly = false; //!< the value depends on others, or several objects cannot share it
    QString editor;          //!< the name of the editor class
    QVariantMap editorParameters;

    bool operator==(const SheetRow &) const = default;
};

/*! The common properties of one or several objects, as a table with the title in one column and the value in
    the next. Properties are common if they have the same id and kind, and if users may edit them. Rows are
    ordered by group, and within a group by rank; the editor parameter "group" of a property defines its
    group.

    Everything except the value, such as title and editor, is taken from the first object.

    The sheet follows values, validity and descriptors, and reports exactly the changed rows and roles. Values
    that differ before and after a change are reported once when the event loop runs, however many of them
    have changed. An object that leaves the project is removed from the sheet, and added again if it returns.
   An edit of another object costs one table lookup.
*/
class CORVEX_EXPORT PropertySheet
    : public QAbstractTableModel
    , private ModelObserver
{
    Q_OBJECT

public:
    enum Column { TitleColumn, ValueColumn, ColumnCount };
    //! The members of SheetRow, and the readable form. Title and value are also the display text of their
    //! columns.
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
        ReadableRole, //!< readable()
    };
    Q_ENUM(Role)

    //! Creates an empty sheet. The sheet becomes empty when the project is reloaded or destroyed.
    explicit PropertySheet(Project &project, QObject *parent = nullptr);
    ~PropertySheet() override;

    //! Shows the properties of these objects of the project, the active one first.
    void setObjects(const QList<DesignerObject *> &objects);
    QList<DesignerObject *> objects() const;
    qsizetype objectCount() const;

    //! The row must exist.
    const SheetRow &row(int row) const;
    /*! The value in the form that people write, such as `level > 10 and pump.visible`; empty if the values
        differ. It is made at each call, so rows that nobody shows cost nothing.

        It changes with the value, and a rename changes the values that contain the name. If an object that
        the value names appears or disappears without such a change, the next call gives another form, and
        both forms are read as the same value.
    */
    QString readable(int row) const;
    //! -1 if the sheet has no row with that id.
    int rowOf(const QString &id) const;
    //! The property of the row in each object.
    QList<SharedProperty> properties(int row) const;
    //! The first of them.
    SharedProperty firstProperty(int row) const;

    // Edits. Each plans one command for all objects and changes nothing. Push it before the next edit. If the
    // objects have these values already, there is neither a command nor a reason.
    //! Sets the stored form.
    PlannedCommand set(int row, const QString &text) const;
    //! Sets what a person has typed: the readable or the stored form. The reason for a refusal says what is
    //! wrong, and where in the text.
    PlannedCommand enter(int row, const QString &text) const;
    //! Sets each object to the value of a new object of its class.
    PlannedCommand reset(int row) const;
    //! Sets the values in a copied text, for the rows that the sheet has and may change.
    PlannedCommand paste(const QString &text) const;
    //! The values of rows as text: a JSON object with ids and values. Rows with different values are skipped.
    QString copy(const QList<int> &rows) const;

    //! Reports now what would be reported when the event loop runs.
    void flush();

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

    void addProperty(size_t place, qsizetype index, const DesignerProperty &property,
                     const QString &className, size_t &expected);
    void addProperties(size_t place);
    SheetLine *lineOf(const SharedProperty &property, size_t place) const;
    std::vector<SheetLine *> wantedRows() const;
    void arrange();
    void refresh(SheetLine &line);
    void reportLater();

    Project &m_project;
    std::unique_ptr<SheetObjects> m_objects;
    std::unique_ptr<DefaultValues> m_defaults;
    std::vector<std::unique_ptr<SheetLine>> m_lines; //!< of all properties, common or not
    std::vector<SheetLine *> m_rows;
    bool m_isReportDue = false;
    size_t m_expectedCount = 0; //!< of objects
};

} // namespace Halvane::Corvex::Designer
