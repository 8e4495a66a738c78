// SPDX-License-Identifier: MIT
#include "corvex/editors/TermTableEditor.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/editors/private/TermTable.h"
#include "corvex/project/Project.h"
#include "corvex/widgets/KdTableView.h"
#include "corvex/widgets/Theme.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

void TermTableEditor::createFields()
{
    auto *layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Theme::gap);
    fields()->addLayout(layout, 1);

    m_mixed = new QLabel(LocalizationHelper::coreString(
        u"The objects have different tables. Select one of them to edit its table."_s));
    m_mixed->setWordWrap(true);
    Theme::setTextColor(m_mixed, &Theme::muted);
    layout->addWidget(m_mixed);

    m_table = new TermTable(columns(), headSize(), parameter("RegType").toInt(), this);
    m_view = new KdTableView(this);
    m_view->setTable(m_table);
    m_view->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_view->horizontalHeader()->setStretchLastSection(true);
    prepareField(m_view);
    layout->addWidget(m_view);

    m_tools = new QWidget(this);
    auto *tools = new QHBoxLayout(m_tools);
    tools->setContentsMargins(0, 0, 0, 0);
    tools->setSpacing(Theme::gap);
    tools->addStretch(1);
    const auto addAction = [&](const QString &text, const QString &key, void (KdTableView::*action)()) {
        auto *button = new QPushButton(LocalizationHelper::coreString(text));
        button->setToolTip(LocalizationHelper::coreString(u"Key: %1"_s).arg(key));
        connect(button, &QPushButton::clicked, m_view, action);
        addTool(button);
    };
    addAction(u"Add"_s, u"Insert"_s, &KdTableView::addRow);
    addAction(u"Delete"_s, u"Delete"_s, &KdTableView::deleteSelectedRows);
    addAction(u"Fill Down"_s, u"Ctrl+D"_s, &KdTableView::fillDown);
    layout->addWidget(m_tools);
    createMore(layout);

    connect(m_table, &TermTable::entered, this, [this] {
        m_table->setConflicts(conflicts());
        showMore();
        completeEntry();
    });
    connect(m_view, &KdTableView::heightChanged, this, &PropertyEditor::heightChanged);
}

void TermTableEditor::showRow()
{
    const SharedProperty first = firstProperty();
    m_mixed->setVisible(row().isMixed);
    m_view->setVisible(!row().isMixed);
    m_tools->setVisible(!row().isMixed && !row().isReadOnly);
    m_table->setReadOnly(row().isReadOnly);
    if (first && !row().isMixed) {
        m_table->setProject(first->parentObject()->project());
        m_table->setTerms(valueAs<GeneralDataListProperty>(first.get()));
        m_table->setConflicts(conflicts());
    }
    showMore();
    emit heightChanged();
}

PropertyEditor::Entry TermTableEditor::entryFor(const DesignerProperty &) const
{
    return {m_table->terms().toString(), m_table->error()};
}

void TermTableEditor::addTool(QPushButton *button)
{
    button->setAccessibleName(row().title + u", "_s + button->text());
    button->setAutoDefault(false);
    auto *tools = static_cast<QHBoxLayout *>(m_tools->layout());
    tools->insertWidget(tools->count() - 1, button); // before the stretch
}

void TermTableEditor::enterTerms(const GeneralDataList &terms)
{
    m_table->setTerms(terms);
    emit m_table->entered();
}

void TermTableEditor::createMore(QVBoxLayout *) { }

void TermTableEditor::showMore() { }

QHash<int, QString> TermTableEditor::conflicts() const
{
    return {};
}

} // namespace Halvane::Corvex::Designer
