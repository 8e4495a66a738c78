// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"

#include <QAbstractTableModel>
#include <QPointer>
#include <QTimer>

#include <vector>

namespace Halvane::Corvex::Designer {

class Project;

/*! The places of a project that contain a text, or that use an object, as a table with path, property and
    value.

    A search runs in slices while the event loop is idle. It does not follow edits: start it again after them.
*/
class CORVEX_EXPORT SearchModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { PathColumn, PropertyColumn, ValueColumn, ColumnCount };
    enum Role {
        ObjectRole = Qt::UserRole + 1, //!< DesignerObject *; null if it is not in the project any more
        PropertyRole,                  //!< the id of the property
    };
    //! Where a search looks.
    enum Place {
        Names = 1,
        Texts = 2,       //!< values that people write as they are
        Expressions = 4, //!< expressions, states, actions and links, in readable form
        Addresses = 8,   //!< channels, and addresses of fieldbuses and networks
        Everywhere = Names | Texts | Expressions | Addresses,
    };
    Q_DECLARE_FLAGS(Places, Place)

    //! The project must outlive the model; a reload is an edit.
    explicit SearchModel(Project &project, QObject *parent = nullptr);
    ~SearchModel() override;

    //! Finds values that contain the text, in any case. An empty text finds nothing.
    void find(const QString &text, Places places = Everywhere);
    //! Finds the values that name the object, without a search of the project.
    void findUses(const DesignerObject &object);
    //! Ends a running search and keeps what it has found.
    void stop();
    bool isRunning() const { return m_slice.isActive(); }
    //! Does the rest of a search at once.
    void finish();
    //! Whether there are more places than the model lists.
    bool isCut() const { return m_isCut; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    static constexpr qsizetype mostHits = 5000;

signals:
    void finished();

private:
    struct Hit
    {
        QPointer<DesignerObject> object;
        QString path;
        QString property;
        QString title;
        QString value;
    };

    void restart();
    void runSlice();
    //! Searches objects until the time is over; 0 for no limit.
    void search(int milliseconds);
    void searchIn(DesignerObject &object);
    QString excerptOf(const QString &text) const;
    void add(std::vector<Hit> hits);

    Project &m_project;
    std::vector<Hit> m_hits;
    QString m_text;
    Places m_places = Everywhere;
    std::vector<QPointer<DesignerObject>> m_waiting; //!< the last one is the next
    std::vector<Hit> m_found;                        //!< in this slice
    QTimer m_slice;
    bool m_isCut = false;
};
Q_DECLARE_OPERATORS_FOR_FLAGS(SearchModel::Places)

} // namespace Halvane::Corvex::Designer
