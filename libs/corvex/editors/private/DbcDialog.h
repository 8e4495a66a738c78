// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/variables/exchange/DbcFile.h"

#include <QDialog>

#include <functional>

class QLabel;
class QListView;
class QPushButton;
class QSortFilterProxyModel;
class QStandardItemModel;
class QTableWidget;

namespace Halvane::Corvex::Designer {

class SearchLine;

//! Chooses a message of a CAN database: the messages with a search, and the signals of the current message
//! with what is left out, and why.
class DbcDialog : public QDialog
{
    Q_OBJECT

public:
    //! Returns the names of other variables with a parameter group.
    using Users = std::function<QStringList(int pgn)>;
    DbcDialog(const DbcFile &database, Users users, QWidget *parent = nullptr);

    //! The current message; null if there is none that can be used.
    const DbcMessage *message() const;

    void accept() override;

private:
    QWidget *createMessages();
    QWidget *createSignals();
    void search(const QString &text);
    void showCurrent();
    //! What the user must know about the message.
    QString noteOn(const DbcMessage &message) const;
    const DbcMessage *current() const;

    DbcFile m_database;
    Users m_users;
    QStandardItemModel *m_messages;
    QSortFilterProxyModel *m_found;
    SearchLine *m_search;
    QListView *m_list;
    QTableWidget *m_table;
    QLabel *m_title;
    QLabel *m_note;
    QPushButton *m_ok = nullptr;
};

} // namespace Halvane::Corvex::Designer
