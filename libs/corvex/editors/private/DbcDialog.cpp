// SPDX-License-Identifier: MIT
#include "corvex/editors/private/DbcDialog.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/widgets/SearchLine.h"
#include "corvex/widgets/Theme.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QLocale>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QStandardItemModel>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

enum Role {
    SearchRole = Qt::UserRole + 1, //!< all names and numbers of a message
};

//! The columns of the signals.
struct Column
{
    const char *title;
    QString (*text)(const DbcSignal &signal);
    bool isNumber;
};

QString number(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

//! In the words of the standard: byte.bit, from 1.
QString bitsOf(const DbcSignal &signal)
{
    const CanParameter &parameter = signal.parameter;
    return LocalizationHelper::coreString(u"%1.%2, %3 bits"_s)
        .arg(QString::number(parameter.byte), QString::number(parameter.bit),
             QString::number(parameter.length));
}

const Column columns[] = {
    {"Signal", [](const DbcSignal &signal) { return signal.name; }, false},
    {"SPN", [](const DbcSignal &signal) { return QString::number(signal.parameter.spn); }, true},
    {"Byte.Bit", &bitsOf, false},
    {"Factor", [](const DbcSignal &signal) { return number(signal.parameter.scaling); }, true},
    {"Offset", [](const DbcSignal &signal) { return number(signal.parameter.offset); }, true},
    {"Unit", [](const DbcSignal &signal) { return signal.parameter.units; }, false},
    {"Range",
     [](const DbcSignal &signal) {
         return u"%1 \u2013 %2"_s.arg(number(signal.parameter.minimum), number(signal.parameter.maximum));
     },
     false},
    {"Left Out", [](const DbcSignal &signal) { return signal.obstacle; }, false},
};

QStandardItem *itemFor(const DbcMessage &message)
{
    const QString title = message.obstacle.isEmpty()
                              ? u"%1 (%2)"_s.arg(message.name, QString::number(message.pgn()))
                              : message.name;
    QStringList words{title, QString::number(message.pgn(), 16), message.comment};
    for (const DbcSignal &signal : message.content) {
        words += {signal.name, QString::number(signal.parameter.spn), signal.comment};
    }
    auto *item = new QStandardItem(title);
    item->setToolTip(message.comment);
    item->setData(words.join(u'\n'), SearchRole);
    return item;
}

} // namespace

DbcDialog::DbcDialog(const DbcFile &database, Users users, QWidget *parent)
    : QDialog(parent)
    , m_database(database)
    , m_users(std::move(users))
{
    setWindowTitle(LocalizationHelper::coreString(u"Import from a CAN Database"_s));
    auto *parts = new QSplitter(this);
    parts->addWidget(createMessages());
    parts->addWidget(createSignals());
    parts->setStretchFactor(1, 1);
    parts->setChildrenCollapsible(false);
    parts->setHandleWidth(2 * Theme::margin);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    m_ok->setText(LocalizationHelper::coreString(u"Import"_s));
    connect(buttons, &QDialogButtonBox::accepted, this, &DbcDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &DbcDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2 * Theme::margin, 2 * Theme::margin, 2 * Theme::margin, 2 * Theme::margin);
    layout->setSpacing(2 * Theme::margin);
    layout->addWidget(parts, 1);
    layout->addWidget(buttons);
    resize(900, 480);
    search({});
    m_search->setFocus();
}

QWidget *DbcDialog::createMessages()
{
    m_messages = new QStandardItemModel(this);
    for (const DbcMessage &message : m_database.messages()) {
        m_messages->appendRow(itemFor(message));
    }
    m_found = new QSortFilterProxyModel(this);
    m_found->setSourceModel(m_messages);
    m_found->setFilterRole(SearchRole);
    m_found->setFilterCaseSensitivity(Qt::CaseInsensitive);

    auto *widget = new QWidget(this);
    m_search = new SearchLine(widget);
    m_search->setPlaceholderText(LocalizationHelper::coreString(u"Name, PGN or SPN"_s));
    m_list = new QListView(widget);
    m_list->setModel(m_found);
    m_list->setUniformItemSizes(true);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setAccessibleName(LocalizationHelper::coreString(u"Messages"_s));
    m_search->setView(m_list);
    auto *layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Theme::margin);
    layout->addWidget(m_search);
    layout->addWidget(m_list, 1);
    connect(m_search, &QLineEdit::textChanged, this, &DbcDialog::search);
    connect(m_search, &SearchLine::chosen, this, &DbcDialog::accept);
    connect(m_list, &QListView::activated, this, &DbcDialog::accept);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this, &DbcDialog::showCurrent);
    return widget;
}

QWidget *DbcDialog::createSignals()
{
    auto *widget = new QWidget(this);
    m_title = new QLabel(widget);
    m_title->setTextFormat(Qt::PlainText);
    m_title->setWordWrap(true);
    m_table = new QTableWidget(0, int(std::size(columns)), widget);
    for (int column = 0; column < m_table->columnCount(); ++column) {
        auto *header =
            new QTableWidgetItem(LocalizationHelper::coreString(QString::fromLatin1(columns[column].title)));
        header->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        m_table->setHorizontalHeaderItem(column, header);
    }
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false);
    m_table->setShowGrid(false);
    m_table->setAlternatingRowColors(true);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(Theme::fieldHeight(this));
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->setAccessibleName(LocalizationHelper::coreString(u"Signals"_s));
    m_note = new QLabel(widget);
    m_note->setObjectName(u"note"_s);
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    m_note->setTextInteractionFlags(Qt::TextSelectableByMouse);
    Theme::setTextColor(m_note, &Theme::warning);
    auto *layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Theme::margin);
    layout->addWidget(m_title);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_note);
    return widget;
}

void DbcDialog::search(const QString &text)
{
    m_found->setFilterFixedString(text.trimmed());
    if (!m_list->currentIndex().isValid()) {
        m_list->setCurrentIndex(m_found->index(0, 0));
    }
    showCurrent();
}

const DbcMessage *DbcDialog::current() const
{
    const QModelIndex index = m_found->mapToSource(m_list->currentIndex());
    return index.isValid() ? &m_database.messages().at(index.row()) : nullptr;
}

const DbcMessage *DbcDialog::message() const
{
    const DbcMessage *message = current();
    const bool isUsable = message && message->obstacle.isEmpty()
                          && std::ranges::any_of(message->content, [](const DbcSignal &signal) {
                                 return signal.obstacle.isEmpty();
                             });
    return isUsable ? message : nullptr;
}

QString DbcDialog::noteOn(const DbcMessage &message) const
{
    if (!message.obstacle.isEmpty()) {
        return message.obstacle;
    }
    QStringList notes;
    const auto left = std::ranges::count_if(
        message.content, [](const DbcSignal &signal) { return !signal.obstacle.isEmpty(); });
    if (message.content.isEmpty()) {
        notes.append(LocalizationHelper::coreString(u"The message has no signals."_s));
    } else if (left > 0) {
        notes.append(LocalizationHelper::coreString(u"%1 of %2 signals are left out; the table says why."_s)
                         .arg(QString::number(left), QString::number(message.content.size())));
    }
    if (const QStringList users = m_users(message.pgn()); !users.isEmpty()) {
        notes.append(LocalizationHelper::coreString(u"The parameter group %1 is also in %2."_s)
                         .arg(QString::number(message.pgn()), users.join(u", "_s)));
    }
    return notes.join(u'\n');
}

void DbcDialog::showCurrent()
{
    const DbcMessage *message = current();
    m_table->setRowCount(message ? int(message->content.size()) : 0);
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const DbcSignal &signal = message->content.at(row);
        for (int column = 0; column < m_table->columnCount(); ++column) {
            auto *item = new QTableWidgetItem(columns[column].text(signal));
            item->setToolTip(signal.comment.isEmpty() ? item->text() : signal.comment);
            item->setTextAlignment((columns[column].isNumber ? Qt::AlignRight : Qt::AlignLeft)
                                   | Qt::AlignVCenter);
            if (!signal.obstacle.isEmpty()) {
                item->setForeground(Theme::muted(palette()));
            }
            m_table->setItem(row, column, item);
        }
    }
    m_table->resizeColumnsToContents();
    m_title->setText(!message                     ? QString()
                     : message->comment.isEmpty() ? message->name
                                                  : u"%1 \u2013 %2"_s.arg(message->name, message->comment));
    QString note =
        message
            ? noteOn(*message)
            : LocalizationHelper::coreString(u"Nothing in the file matches \"%1\"."_s).arg(m_search->text());
    if (const QList<CsvText::Problem> &problems = m_database.problems(); !problems.isEmpty()) {
        note += LocalizationHelper::coreString(u"\nLines with problems: %1. The first: %2"_s)
                    .arg(QString::number(problems.size()), problems.constFirst().toString());
    }
    m_note->setText(note.trimmed());
    m_note->setVisible(!m_note->text().isEmpty());
    m_ok->setEnabled(this->message());
}

void DbcDialog::accept()
{
    if (message()) {
        QDialog::accept();
    }
}

} // namespace Halvane::Corvex::Designer
