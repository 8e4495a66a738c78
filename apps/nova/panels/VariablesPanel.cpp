// SPDX-License-Identifier: MIT
#include "panels/VariablesPanel.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/project/Project.h"
#include "corvex/variables/exchange/Exported.h"
#include "corvex/variables/exchange/VariableExport.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/KdTableView.h"
#include "corvex/widgets/SearchLine.h"
#include "corvex/widgets/Theme.h"

#include "panels/VariablesTable.h"
#include "project/Workspace.h"

#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QMenu>
#include <QScopedValueRollback>
#include <QSet>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::LocalizationHelper;

namespace {

constexpr qint64 largestTable = 64 * 1024 * 1024;
constexpr int nameWidth = 220;
constexpr int typeWidth = 140;
constexpr int valueWidth = 180;

QString tableFilter()
{
    return LocalizationHelper::coreString(u"Tables (*.csv)"_s);
}

} // namespace

VariablesPanel::VariablesPanel(Workspace &workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_table(new VariablesTable(workspace, this))
    , m_search(new SearchLine)
    , m_view(new KdTableView)
{
    m_view->setTable(m_table);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setShowGrid(false);
    m_view->setDragEnabled(true);
    m_view->setDragDropMode(QAbstractItemView::DragOnly);
    m_view->setAlternatingRowColors(true);
    m_view->setAccessibleName(LocalizationHelper::coreString(u"Variables"_s));
    QHeaderView *header = m_view->horizontalHeader();
    header->setStretchLastSection(true);
    header->resizeSection(VariablesTable::NameColumn, nameWidth);
    header->resizeSection(VariablesTable::TypeColumn, typeWidth);
    header->resizeSection(VariablesTable::ValueColumn, valueWidth);

    QToolButton *add = makeButton(LocalizationHelper::coreString(u"Add a variable"_s), IconSet::Add);
    auto *classes = new QMenu(add);
    for (const QString &name : VariablesTable::classNames()) {
        classes->addAction(DesignerFactory::instance()->displayNameForClass(name), this,
                           [this, name] { this->add(name); });
    }
    add->setMenu(classes);
    add->setPopupMode(QToolButton::InstantPopup);
    QToolButton *importing = makeButton(LocalizationHelper::coreString(u"Import a table…"_s), IconSet::Down);
    connect(importing, &QToolButton::clicked, this, &VariablesPanel::importTable);
    QToolButton *exporting = makeButton(LocalizationHelper::coreString(u"Export as a table…"_s), IconSet::Up);
    connect(exporting, &QToolButton::clicked, this, &VariablesPanel::exportTable);

    auto *head = new QHBoxLayout;
    head->setContentsMargins(Theme::margin, Theme::gap, Theme::margin, Theme::gap);
    head->setSpacing(Theme::gap);
    head->addWidget(m_search, 1);
    head->addWidget(add);
    head->addWidget(importing);
    head->addWidget(exporting);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(head);
    layout->addWidget(m_view, 1);
    setFocusProxy(m_view);

    connect(m_search, &QLineEdit::textChanged, m_table, &VariablesTable::setFilter);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &VariablesPanel::giveSelection);
    connect(&workspace.document(), &ProjectDocument::selectionChanged, this, &VariablesPanel::takeSelection);
    takeSelection();
}

QToolButton *VariablesPanel::makeButton(const QString &text, int icon)
{
    auto *button = new QToolButton;
    button->setIcon(IconSet::icon(IconSet::Icon(icon)));
    button->setText(text);
    button->setToolTip(text);
    button->setAutoRaise(true);
    return button;
}

//! Adds a variable and lets the user type its name.
void VariablesPanel::add(const QString &className)
{
    m_search->clear();
    m_table->add(className);
    const QModelIndex index = m_view->currentIndex();
    if (index.isValid()) {
        m_view->setFocus();
        m_view->scrollTo(index);
        m_view->edit(index);
    }
}

void VariablesPanel::giveSelection()
{
    if (m_isSelecting) {
        return;
    }
    const QScopedValueRollback guard(m_isSelecting, true);
    QSet<int> rows;
    QList<DesignerObject *> variables;
    for (const QModelIndex &index : m_view->selectionModel()->selectedIndexes()) {
        if (!rows.contains(index.row())) {
            rows.insert(index.row());
            variables.append(m_table->variable(index.row()));
        }
    }
    if (!variables.isEmpty()) {
        m_workspace.document().select(variables);
    }
}

void VariablesPanel::takeSelection()
{
    const QList<DesignerObject *> selection = m_workspace.document().selection();
    const int row = selection.size() == 1 ? m_table->rowOf(selection.constFirst()) : -1;
    if (!m_isSelecting) {
        const QScopedValueRollback guard(m_isSelecting, true);
        m_view->setCurrentIndex(row >= 0 ? m_table->index(row, 0) : QModelIndex());
        if (row < 0) {
            m_view->clearSelection();
        }
    }
}

void VariablesPanel::importTable()
{
    const QString path = QFileDialog::getOpenFileName(
        this, LocalizationHelper::coreString(u"Import variables"_s), {}, tableFilter());
    if (path.isEmpty()) {
        return;
    }
    QFile file(path);
    if (!file.open(QFile::ReadOnly) || file.size() > largestTable) {
        emit m_workspace.refused(file.isOpen()
                                     ? LocalizationHelper::coreString(u"The table is larger than 64 MB."_s)
                                     : file.errorString());
        return;
    }
    std::unique_ptr<ProjectDocument::ImportJob> importing =
        m_workspace.document().importVariables(file.readAll());
    if (!importing) {
        m_workspace.reportFailure();
        return;
    }
    ProjectDocument::ImportJob *job = importing.get();
    m_workspace.follow(std::move(importing));
    connect(job, &Common::Job::finished, this, [this, job] {
        if (job->outcome() == Common::Job::Outcome::Failed) {
            emit m_workspace.refused(job->errorString());
        } else if (const auto result = job->takeResult()) {
            emit m_workspace.noted({LocalizationHelper::coreString(u"Added: %1, changed values: %2."_s)
                                        .arg(result->addedVariables)
                                        .arg(result->changedValues)});
        }
    });
}

void VariablesPanel::exportTable()
{
    const QString path = QFileDialog::getSaveFileName(
        this, LocalizationHelper::coreString(u"Export variables"_s), u"variables.csv"_s, tableFilter());
    if (path.isEmpty()) {
        return;
    }
    const Exported exported = VariableExport::write(m_workspace.project());
    QString error;
    if (!Common::FileHelper::writeFile(path, exported.files.constFirst().bytes, &error)) {
        emit m_workspace.refused(error);
    }
}

} // namespace Halvane::Corvex::Nova
