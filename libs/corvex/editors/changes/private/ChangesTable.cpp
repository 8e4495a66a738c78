// SPDX-License-Identifier: MIT
#include "corvex/editors/changes/private/ChangesTable.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/editors/changes/private/ChangeRow.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

constexpr qsizetype linesAtFirst = 12;

//! Actions sort their changes by name, so that only the set of lines tells whether something has changed.
QList<ChangeLine> sorted(QList<ChangeLine> lines)
{
    std::ranges::stable_sort(lines, [](const ChangeLine &a, const ChangeLine &b) {
        return a.target != b.target ? a.target < b.target : a.property < b.property;
    });
    return lines;
}

} // namespace

ChangesTable::ChangesTable(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
    , m_headings(createHeadings())
    , m_add(new QPushButton(this))
    , m_more(new QPushButton(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(Theme::gap);
    m_layout->addWidget(m_headings);
    auto *tools = new QHBoxLayout;
    tools->setSpacing(Theme::gap);
    for (QPushButton *button : {m_add, m_more}) {
        button->setAutoDefault(false);
        button->setFixedHeight(Theme::fieldHeight(this));
        tools->addWidget(button);
    }
    tools->addStretch();
    m_layout->addLayout(tools);
    m_layout->addStretch();
    m_add->setIcon(IconSet::icon(IconSet::Add));
    connect(m_add, &QPushButton::clicked, this, &ChangesTable::addLine);
    connect(m_more, &QPushButton::clicked, this, [this] { addRows(m_rest.size()); });
    m_more->hide();
    setFocusProxy(m_add);
}

//! The titles of the columns of lines with names. Expressions have words between them instead.
QWidget *ChangesTable::createHeadings()
{
    auto *headings = new QWidget(this);
    auto *layout = new QHBoxLayout(headings);
    layout->setContentsMargins(0, 0, Theme::fieldHeight(this) + Theme::gap, 0);
    layout->setSpacing(Theme::gap);
    size_t column = 0;
    for (const QString &title : {u"Element"_s, u"Property"_s, u"Value"_s}) {
        auto *label = new QLabel(LocalizationHelper::coreString(title), headings);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        Theme::setTextColor(label, &Theme::muted);
        layout->addWidget(label, ChangeRow::columns[column++]);
    }
    headings->hide();
    return headings;
}

void ChangesTable::moveTools(QHBoxLayout *layout)
{
    layout->addWidget(m_add);
    layout->addWidget(m_more);
}

void ChangesTable::setToolsVisible(bool isVisible)
{
    m_hasTools = isVisible;
    m_add->setVisible(isVisible);
    m_more->setVisible(isVisible && !m_rest.isEmpty());
}

void ChangesTable::setRequests(EditorRequests *requests)
{
    m_requests = requests;
    for (ChangeRow *row : std::as_const(m_rows)) {
        row->setRequests(requests);
    }
}

void ChangesTable::showLines(const SharedProperty &property, const QString &title,
                             const QList<ChangeLine> &lines)
{
    QList<ChangeLine> complete;
    for (const ChangeLine &line : this->lines()) {
        if (ChangeLines::isComplete(m_form, line)) {
            complete.append(line);
        }
    }
    const bool isSame =
        m_property == property && m_title == title
        && (m_form == ChangeLines::Form::Changes ? sorted(complete) == sorted(lines) : complete == lines);
    if (isSame) {
        return;
    }
    clear();
    m_property = property;
    m_title = title;
    m_form = ChangeLines::formOf(*property).value_or(ChangeLines::Form::States);
    m_add->setText(
        LocalizationHelper::coreString(m_form == ChangeLines::Form::Rules ? u"Add Rule"_s : u"Add Line"_s));
    m_add->setAccessibleName(m_title + u", "_s + m_add->text());
    m_rest = lines;
    addRows(linesAtFirst);
}

void ChangesTable::clear()
{
    for (ChangeRow *row : std::as_const(m_rows)) {
        row->hide();
        row->deleteLater(); // it may be the sender
    }
    m_rows.clear();
    m_rest.clear();
}

void ChangesTable::addRows(qsizetype count)
{
    for (; count > 0 && !m_rest.isEmpty(); --count) {
        addRow(m_rest.takeFirst());
    }
    m_more->setText(LocalizationHelper::coreString(u"Show %1 More"_s).arg(m_rest.size()));
    m_more->setVisible(m_hasTools && !m_rest.isEmpty());
    number();
    emit heightChanged();
}

ChangeRow *ChangesTable::addRow(const ChangeLine &line)
{
    auto *row = new ChangeRow(m_property, m_form, this);
    m_rows.append(row);
    row->setRequests(m_requests);
    row->setNumber(m_title, int(m_rows.size()));
    row->setLine(line);
    m_layout->insertWidget(int(m_rows.size()), row);
    row->show();
    connect(row, &ChangeRow::edited, this, [this] {
        emit edited();
        emit heightChanged();
    });
    connect(row, &ChangeRow::entered, this, [this] {
        emit entered();
        emit heightChanged();
    });
    connect(row, &ChangeRow::heightChanged, this, &ChangesTable::heightChanged);
    connect(row, &ChangeRow::restored, this, &ChangesTable::restored);
    connect(row, &ChangeRow::removeRequested, this, [this, row] { remove(row); });
    connect(row, &ChangeRow::gestureBegan, this, &ChangesTable::gestureBegan);
    connect(row, &ChangeRow::gestureEnded, this, &ChangesTable::gestureEnded);
    connect(row, &ChangeRow::gestureCancelled, this, &ChangesTable::gestureCancelled);
    return row;
}

void ChangesTable::remove(ChangeRow *row)
{
    m_rows.removeOne(row);
    row->hide();
    row->deleteLater();
    number();
    m_add->setFocus();
    emit entered();
    emit heightChanged();
}

//! The fields have names with the number of their line, and the keyboard goes through the lines in order.
void ChangesTable::number()
{
    for (qsizetype i = 0; i < m_rows.size(); ++i) {
        m_rows.at(i)->setNumber(m_title, int(i + 1));
    }
    const bool hasNames = m_form == ChangeLines::Form::States || m_form == ChangeLines::Form::Changes;
    m_headings->setVisible(hasNames && !m_rows.isEmpty());
}

QList<ChangeLine> ChangesTable::lines() const
{
    QList<ChangeLine> lines;
    for (const ChangeRow *row : m_rows) {
        lines.append(row->line());
    }
    return lines + m_rest;
}

void ChangesTable::complete()
{
    for (ChangeRow *row : std::as_const(m_rows)) {
        row->complete();
    }
}

int ChangesTable::firstIncomplete() const
{
    const auto row = std::ranges::find_if(
        m_rows, [this](const ChangeRow *shown) { return !ChangeLines::isComplete(m_form, shown->line()); });
    return row == m_rows.end() ? 0 : int(row - m_rows.begin()) + 1;
}

void ChangesTable::addLine()
{
    if (!m_property) {
        return;
    }
    addRows(m_rest.size());
    ChangeLine line;
    const DesignerObject *owner = m_property->parentObject();
    // A state describes the element that a link of its owner names.
    const SharedProperty link = owner && !m_property->statesOf().isEmpty()
                                    ? owner->getProperty(m_property->statesOf())
                                    : SharedProperty();
    if (const auto *typed = link ? propertyCast<LinkProperty>(link) : nullptr) {
        line.target = typed->value().objectId();
    }
    ChangeRow *row = addRow(line);
    number();
    emit heightChanged();
    row->beginEditing();
}

} // namespace Halvane::Corvex::Designer
