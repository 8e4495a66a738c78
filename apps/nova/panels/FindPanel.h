// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeView;

namespace Halvane::Corvex::Designer {
class DesignerObject;
class SearchLine;
class SearchModel;
} // namespace Halvane::Corvex::Designer

namespace Halvane::Corvex::Nova {

class Workspace;

/*! Finds texts in the whole project, and the uses of an object, which can be renamed there with all of them.
    A click on a place shows it. The places follow edits.
*/
class FindPanel : public QWidget
{
    Q_OBJECT

public:
    explicit FindPanel(Workspace &workspace, QWidget *parent = nullptr);

    //! Shows the uses of the object, and a field for a new name.
    void showUses(Designer::DesignerObject *object, bool renames);

    Designer::SearchModel &places() const { return *m_places; }

signals:
    //! The user wants to see this property of the selected object.
    void propertyRequested(const QString &id);

private:
    void search();
    void searchAgain();
    void show(const QModelIndex &index);
    void describe();
    void rename();

    Workspace &m_workspace;
    Designer::SearchModel *m_places;
    Designer::SearchLine *m_text;
    QComboBox *m_where;
    QLabel *m_summary;
    QTreeView *m_list;
    QWidget *m_renaming;
    QLineEdit *m_name;
    QTimer m_again;                            //!< after an edit
    QPointer<Designer::DesignerObject> m_used; //!< null while a text is searched
};

} // namespace Halvane::Corvex::Nova
