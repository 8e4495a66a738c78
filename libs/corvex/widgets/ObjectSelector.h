// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QFrame>
#include <QModelIndex>

class QHBoxLayout;
class QLabel;
class QListView;

namespace Halvane::Corvex::Designer {

class KdComboBox;
class DesignerObject;
class ObjectListModel;
class SearchLine;

/*! A popup in which the user chooses an object of a project, such as an element, an image or a screen. It has
    a search, a filter by class if there are several, and thumbnails of images.

    Everything works by keyboard: typing searches, the arrow keys move, Enter chooses, Escape closes.
*/
class CORVEX_EXPORT ObjectSelector : public QFrame
{
    Q_OBJECT

public:
    explicit ObjectSelector(QWidget *parent = nullptr);

    //! The objects to choose from, of one project; \a current is selected at first. The popup closes if one
    //! of them leaves the project.
    void setObjects(const QList<DesignerObject *> &objects, const DesignerObject *current = nullptr);
    void setSearch(const QString &text);
    //! Offers to choose nothing.
    void offerNothing(const QString &text);
    //! Offers to create an object of the class.
    void offerNew(const QString &className);

    //! Opens the popup beneath the widget, or above it if there is no room. The popup deletes itself when it
    //! closes.
    void openAt(const QWidget *widget);

    ObjectListModel &model() { return *m_model; }

signals:
    void chosen(Halvane::Corvex::Designer::DesignerObject *object);
    void nothingChosen();
    void newObjectRequested(const QString &className);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void choose(const QModelIndex &index);
    void updateRows();
    void fillClasses();

    ObjectListModel *m_model;
    SearchLine *m_search;
    KdComboBox *m_classes;
    QListView *m_list;
    QLabel *m_empty;
    QHBoxLayout *m_offers;
};

} // namespace Halvane::Corvex::Designer
