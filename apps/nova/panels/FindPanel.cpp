// SPDX-License-Identifier: MIT
#include "panels/FindPanel.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/commands/Commands.h"
#include "corvex/inspector/SearchModel.h"
#include "corvex/project/Project.h"
#include "corvex/widgets/SearchLine.h"

#include "project/Workspace.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::LocalizationHelper;

namespace {

constexpr int restartPause = 300; // milliseconds
constexpr int pathWidth = 220;
constexpr int titleWidth = 150;

struct Where
{
    const char *title;
    SearchModel::Places places;
};
constexpr Where wheres[] = {
    {"Everywhere", SearchModel::Everywhere}, {"Names", SearchModel::Names},
    {"Texts", SearchModel::Texts},           {"Expressions and links", SearchModel::Expressions},
    {"Addresses", SearchModel::Addresses},
};

} // namespace

FindPanel::FindPanel(Workspace &workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_places(new SearchModel(workspace.project(), this))
    , m_text(new SearchLine)
    , m_where(new QComboBox)
    , m_summary(new QLabel)
    , m_list(new QTreeView)
    , m_renaming(new QWidget)
    , m_name(new QLineEdit)
{
    m_text->setPlaceholderText(
        LocalizationHelper::coreString(u"Find names, texts, expressions, addresses"_s));
    m_text->setAccessibleName(LocalizationHelper::coreString(u"Find"_s));
    m_text->setClearButtonEnabled(true);
    m_text->setView(m_list);
    m_where->setAccessibleName(LocalizationHelper::coreString(u"Where to look"_s));
    for (const Where &where : wheres) {
        m_where->addItem(LocalizationHelper::coreString(QString::fromLatin1(where.title)));
    }
    m_list->setModel(m_places);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setAccessibleName(LocalizationHelper::coreString(u"Places"_s));
    m_list->setColumnWidth(SearchModel::PathColumn, pathWidth);
    m_list->setColumnWidth(SearchModel::PropertyColumn, titleWidth);
    m_name->setAccessibleName(LocalizationHelper::coreString(u"New name"_s));
    auto *button = new QPushButton(LocalizationHelper::coreString(u"Rename everywhere"_s));

    auto *search = new QHBoxLayout;
    search->addWidget(m_text, 1);
    search->addWidget(m_where);
    auto *renaming = new QHBoxLayout(m_renaming);
    renaming->setContentsMargins(0, 0, 0, 0);
    renaming->addWidget(new QLabel(LocalizationHelper::coreString(u"New name"_s)));
    renaming->addWidget(m_name, 1);
    renaming->addWidget(button);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(search);
    layout->addWidget(m_summary);
    layout->addWidget(m_renaming);
    layout->addWidget(m_list, 1);
    m_renaming->hide();
    setFocusProxy(m_text);

    m_again.setSingleShot(true);
    m_again.setInterval(restartPause);
    connect(&m_again, &QTimer::timeout, this, &FindPanel::searchAgain);
    connect(&workspace.document().history(), &ProjectHistory::changed, this, [this] {
        m_places->stop();
        m_again.start();
    });
    connect(m_text, &QLineEdit::textChanged, this, &FindPanel::search);
    connect(m_where, &QComboBox::currentIndexChanged, this, &FindPanel::search);
    connect(m_text, &SearchLine::chosen, this, &FindPanel::show);
    connect(m_list, &QTreeView::clicked, this, &FindPanel::show);
    connect(m_list, &QTreeView::activated, this, &FindPanel::show);
    connect(m_places, &SearchModel::finished, this, &FindPanel::describe);
    connect(m_name, &QLineEdit::returnPressed, this, &FindPanel::rename);
    connect(button, &QPushButton::clicked, this, &FindPanel::rename);
    describe();
}

void FindPanel::search()
{
    m_used = nullptr;
    m_renaming->hide();
    m_summary->setText(LocalizationHelper::coreString(u"Searching…"_s));
    m_places->find(m_text->text(), wheres[m_where->currentIndex()].places);
}

void FindPanel::searchAgain()
{
    if (!m_used) {
        search();
    } else if (m_used->project() == &m_workspace.project()) {
        m_places->findUses(*m_used);
    }
}

void FindPanel::showUses(DesignerObject *object, bool renames)
{
    {
        const QSignalBlocker blocker(m_text);
        m_text->clear();
    }
    m_used = object;
    m_places->findUses(*object);
    m_renaming->show();
    m_name->setText(object->getIdName());
    if (renames) {
        m_name->setFocus(Qt::ShortcutFocusReason);
        m_name->selectAll();
    } else {
        m_list->setFocus(Qt::ShortcutFocusReason);
    }
}

void FindPanel::describe()
{
    const QString count = QString::number(m_places->rowCount());
    if (m_used) {
        m_summary->setText(
            m_places->rowCount() == 0
                ? LocalizationHelper::coreString(u"Nothing uses \"%1\"."_s).arg(m_used->getIdName())
                : LocalizationHelper::coreString(u"Places that use \"%1\": %2"_s)
                      .arg(m_used->getIdName(), count));
    } else if (m_text->text().trimmed().isEmpty()) {
        m_summary->setText(
            LocalizationHelper::coreString(u"The whole project is searched while you type."_s));
    } else if (m_places->isCut()) {
        m_summary->setText(LocalizationHelper::coreString(u"The first %1 places"_s).arg(count));
    } else {
        m_summary->setText(m_places->rowCount() == 0
                               ? LocalizationHelper::coreString(u"Nothing was found."_s)
                               : LocalizationHelper::coreString(u"Places: %1"_s).arg(count));
    }
}

void FindPanel::show(const QModelIndex &index)
{
    if (auto *object = index.data(SearchModel::ObjectRole).value<DesignerObject *>()) {
        m_workspace.reveal(object);
        emit propertyRequested(index.data(SearchModel::PropertyRole).toString());
    }
}

void FindPanel::rename()
{
    if (m_used && m_used->project() == &m_workspace.project()) {
        m_workspace.push(Commands::renameOf(m_used, m_name->text().trimmed()));
        searchAgain();
    }
}

} // namespace Halvane::Corvex::Nova
