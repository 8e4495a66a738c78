// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/ModelObserver.h"

#include <QAbstractItemModel>
#include <QPointer>

#include <memory>

namespace Halvane::Corvex::Designer {

class ObjectTree;
class ProblemList;
class ProjectDocument;
struct PlannedCommand;

/*! The objects of a project as a tree of one column. The project is the only row at the top. Below it are its
    lists (screens, variables, images), then their items. A screen holds its elements and after them its
    filters; a group holds its members. Rows have the order of the lists.

    The model follows all changes of the project. Users rename objects in place, and move or copy them by drag
    and drop; each is one step of the document's history.
*/
class CORVEX_EXPORT ObjectTreeModel
    : public QAbstractItemModel
    , private ModelObserver
{
    Q_OBJECT

public:
    enum Role {
        ObjectRole = Qt::UserRole + 1, //!< DesignerObject *; null for a list
        ClassRole,                     //!< the class name; empty for a list
        TitleRole,                     //!< the name of the class for users
        IconNameRole,                  //!< the class that determines the icon, see
                                       //!< DesignerFactory::getObjectIcon()
        //! In the form of ProjectPath. Includes the names of the rows above; when one of these changes, only
        //! that row is reported.
        PathRole,
        ValidRole,  //!< whether it is valid, including everything in it
        ErrorsRole, //!< the reasons if it is invalid: texts for the user, "title of the property: reason"
        //! The number of the worst Severity among the object's own problems, ignoring approved ones. Invalid
        //! for an object without problems. See setProblems().
        SeverityRole,
    };
    Q_ENUM(Role)

    //! The document must outlive the model. The model continues with a reloaded project.
    explicit ObjectTreeModel(ProjectDocument &document, QObject *parent = nullptr);
    ~ObjectTreeModel() override;

    //! Sets the list for SeverityRole; may be null. Not owned.
    void setProblems(const ProblemList *problems);

    //! Null for a list.
    DesignerObject *object(const QModelIndex &index) const;
    //! Invalid if the object has no row.
    QModelIndex indexOf(const DesignerObject *object) const;
    //! The row of a list of the project, such as Project::screens().
    QModelIndex indexOf(const SharedProperty &list) const;
    //! Why the last renaming or drop was refused, for the user; empty if it succeeded.
    const QString &errorString() const { return m_error; }

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    //! Renames an object, with all references to it.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    // Drag and drop within one model. The text form of the data contains the paths of the objects, one per
    // line.
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction | Qt::CopyAction; }
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                         const QModelIndex &parent) const override;
    //! The objects in data that this model has created, for a drop elsewhere; empty for other data.
    QList<DesignerObject *> draggedObjects(const QMimeData *data) const;
    //! Moves objects before the row, or to the end of the list for row -1. Copies are always added to the
    //! list of the original.
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

signals:
    //! Notes for the user about a renaming or a drop that was made.
    void noted(const QStringList &notes);

private:
    void valueChanged(const SharedProperty &property, const QString &previousValue) override;
    void inserted(const SharedProperty &list, qsizetype index, DesignerObject *object) override;
    void aboutToRemove(const SharedProperty &list, qsizetype index, DesignerObject *object) override;
    void moved(const SharedProperty &list, qsizetype from, qsizetype to) override;
    void aboutToReplace(const SharedProperty &list, qsizetype index, DesignerObject *oldObject,
                        DesignerObject *newObject) override;
    void replaced(const SharedProperty &list, qsizetype index, DesignerObject *oldObject,
                  DesignerObject *newObject) override;
    void reordered(const SharedProperty &list) override;
    void validityChanged(const SharedProperty &property) override;
    void objectValidityChanged(DesignerObject *object) override;
    void descriptorChanged(const SharedProperty &property) override;
    void projectAboutToLoad() override;
    void projectLoaded() override;
    void projectAboutToBeDestroyed() override;

    struct Drop;
    bool readDrop(const QMimeData *data, Qt::DropAction action, int row, const QModelIndex &parent,
                  Drop &drop) const;
    void clear();
    QVariant severityOf(const DesignerObject *object) const;
    void reportSeverities(qsizetype firstProblem, qsizetype lastProblem);
    void reportData(const DesignerObject *object, const QList<int> &roles);
    bool push(PlannedCommand planned);

    ProjectDocument &m_document;
    std::unique_ptr<ObjectTree> m_tree;
    QPointer<const ProblemList> m_problems;
    QString m_error;
};

} // namespace Halvane::Corvex::Designer
