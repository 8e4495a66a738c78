// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/ModelObserver.h"

#include <QAbstractListModel>
#include <QStringList>

#include <vector>

namespace Halvane::Corvex::Designer {

class DesignerObject;

/*! Objects of one project to choose from, with a search. Names that begin with the text come first.

    A search keeps the objects and only selects rows, so that it stays fast with many thousands of them. When
    an object leaves the project, the model becomes empty.
*/
class CORVEX_EXPORT ObjectListModel
    : public QAbstractListModel
    , private ModelObserver
{
    Q_OBJECT

public:
    enum Role {
        TypeRole = Qt::UserRole + 1, //!< what users call the class
        PathRole,                    //!< the path of the object that contains it; empty for the project
    };
    //! The width and height of icons and thumbnails.
    static constexpr int iconEdge = 28;

    explicit ObjectListModel(QObject *parent = nullptr);
    ~ObjectListModel() override;

    //! All objects must belong to the same project.
    void setObjects(const QList<DesignerObject *> &objects);
    //! Only rows that have each word of \a text in the name or in the type.
    void setSearch(const QString &text);
    //! Only objects of exactly this class; empty for all.
    void setClass(const QString &className);

    //! The classes of all objects, sorted by what users call them.
    QStringList classes() const;
    DesignerObject *object(int row) const;
    //! -1 if the object is not shown.
    int rowOf(const DesignerObject *object) const;
    qsizetype objectCount() const { return qsizetype(m_entries.size()); }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

signals:
    //! An object has left the project; the model is empty now.
    void emptied();

private:
    void aboutToRemove(const SharedProperty &list, qsizetype index, DesignerObject *object) override;
    void aboutToReplace(const SharedProperty &list, qsizetype index, DesignerObject *oldObject,
                        DesignerObject *newObject) override;
    void projectAboutToLoad() override;
    void projectAboutToBeDestroyed() override;

    void empty();
    void select();

    struct Type
    {
        QString className;
        QString title;
        qsizetype count = 0;
    };
    struct Entry
    {
        DesignerObject *object;
        QString name; //!< shared with the object
        int type;
    };
    std::vector<Entry> m_entries;
    std::vector<int> m_rows; //!< the shown entries
    std::vector<Type> m_types;
    QString m_search;
    QString m_class;
};

} // namespace Halvane::Corvex::Designer
