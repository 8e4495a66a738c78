// SPDX-License-Identifier: MIT
#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/editors/ReferenceEditors.h"
#include "corvex/editors/private/FieldButton.h"
#include "corvex/values/records/ListInfo.h"
#include "corvex/widgets/ObjectSelector.h"
#include "corvex/widgets/Theme.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QSet>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

constexpr int fewestRows = 2;
constexpr int mostRows = 8;
constexpr auto comma = ", "_L1;

} // namespace

void ItemsOrderEditor::createFields()
{
    m_list = new QListWidget(this);
    m_list->setDragDropMode(QAbstractItemView::InternalMove);
    m_list->setDefaultDropAction(Qt::MoveAction);
    m_list->setUniformItemSizes(true);
    m_list->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::DoubleClicked);
    m_list->installEventFilter(this);
    addField(m_list, {}, 1);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Theme::gap);
    m_count = new QLabel(this);
    Theme::setTextColor(m_count, &Theme::muted);
    buttons->addWidget(m_count, 1);
    buttons->addStretch(1);
    const auto addButton = [&](FieldButton *button, const QString &part, auto act) {
        prepareField(button, part);
        buttons->addWidget(button);
        connect(button, &QToolButton::clicked, this, act);
        return button;
    };
    const auto text = [](const QString &english) { return LocalizationHelper::coreString(english); };
    addButton(new FieldButton(IconSet::Up, text(u"Move up (Alt+Up)"_s), this), text(u"move up"_s),
              [this] { moveCurrent(-1); });
    addButton(new FieldButton(IconSet::Down, text(u"Move down (Alt+Down)"_s), this), text(u"move down"_s),
              [this] { moveCurrent(1); });
    FieldButton *adder = addButton(new FieldButton(IconSet::Add, text(u"Add… (Insert)"_s), this),
                                   text(u"add"_s), [this] { add(); });
    FieldButton *remover = addButton(new FieldButton(IconSet::Remove, text(u"Remove (Delete)"_s), this),
                                     text(u"remove"_s), [this] { removeCurrent(); });
    m_changers = {adder, remover};
    static_cast<QVBoxLayout *>(layout())->insertLayout(1, buttons);

    // Later, because the list still works on its items.
    const auto completeLater = [this] {
        if (!m_isShowing) {
            markEdited();
            QMetaObject::invokeMethod(
                this, [this] { complete(false); }, Qt::QueuedConnection);
        }
    };
    connect(m_list->model(), &QAbstractItemModel::rowsMoved, this, completeLater);
    connect(m_list, &QListWidget::itemChanged, this, completeLater);
}

QStringList ItemsOrderEditor::itemsOf(const DesignerProperty &property) const
{
    const QString text = valueOf(property);
    return property.references() == Form::CommaNames ? text.split(comma, Qt::SkipEmptyParts)
                                                     : ListInfo(text).toList();
}

QString ItemsOrderEditor::textOf(const DesignerProperty &property, const QStringList &items) const
{
    return property.references() == Form::CommaNames ? items.join(comma) : ListInfo(items).toString();
}

bool ItemsOrderEditor::canAdd() const
{
    return parameter("filterType").isValid();
}

void ItemsOrderEditor::addItem(const QString &text)
{
    auto *item = new QListWidgetItem(text, m_list);
    item->setSizeHint({0, Theme::fieldHeight(this)});
    Qt::ItemFlags flags = item->flags() & ~Qt::ItemIsDropEnabled;
    flags.setFlag(Qt::ItemIsEditable, canAdd() && !row().isReadOnly);
    flags.setFlag(Qt::ItemIsDragEnabled, !row().isReadOnly);
    item->setFlags(flags);
}

void ItemsOrderEditor::showRow()
{
    m_isShowing = true;
    const int current = m_list->currentRow();
    m_list->clear();
    const SharedProperty first = firstProperty();
    const QStringList items = row().isMixed || !first ? QStringList() : itemsOf(*first);
    for (const QString &item : items) {
        addItem(item);
    }
    m_list->setCurrentRow(std::min(current, int(items.size()) - 1));
    m_isShowing = false;

    for (QToolButton *button : m_changers) {
        button->setVisible(canAdd());
    }
    m_count->setText(row().isMixed     ? mixedText()
                     : items.isEmpty() ? LocalizationHelper::coreString(u"The list is empty."_s)
                                       : QString());
    const int rows = std::clamp(int(items.size()), fewestRows, mostRows);
    const int height = rows * Theme::fieldHeight(this) + 2 * m_list->frameWidth();
    if (m_list->maximumHeight() != height) {
        m_list->setFixedHeight(height);
        emit heightChanged();
    }
}

PropertyEditor::Entry ItemsOrderEditor::entryFor(const DesignerProperty &property) const
{
    // If the lists differ, the shown items are those that the user has added to all of them.
    QStringList items = row().isMixed ? itemsOf(property) : QStringList();
    for (int i = 0; i < m_list->count(); ++i) {
        items.append(m_list->item(i)->text());
    }
    return {textOf(property, items), {}};
}

void ItemsOrderEditor::complete(bool isStep)
{
    if (isStep) {
        completeStep();
    } else {
        completeEntry();
    }
}

void ItemsOrderEditor::moveCurrent(int by)
{
    const int from = m_list->currentRow();
    const int to = from + by;
    if (row().isReadOnly || from < 0 || to < 0 || to >= m_list->count()) {
        return;
    }
    m_isShowing = true;
    m_list->insertItem(to, m_list->takeItem(from));
    m_list->setCurrentRow(to);
    m_isShowing = false;
    complete(true);
}

void ItemsOrderEditor::removeCurrent()
{
    if (!row().isReadOnly && canAdd() && m_list->currentRow() >= 0) {
        delete m_list->takeItem(m_list->currentRow());
        complete(false);
    }
}

void ItemsOrderEditor::add()
{
    const SharedProperty first = firstProperty();
    if (row().isReadOnly || !canAdd() || !first) {
        return;
    }
    const ObjectLinkInfo link({}, parameter("scopeType").toString(), parameter("filterType").toStringList());
    QList<DesignerObject *> candidates = link.findLinks(first->parentObject(), true);
    const QStringList present = row().isMixed ? QStringList() : itemsOf(*first);
    const QSet<QString> listed(present.cbegin(), present.cend());
    candidates.removeIf([&](const DesignerObject *object) { return listed.contains(object->getIdName()); });
    auto *selector = new ObjectSelector(this);
    selector->setObjects(candidates);
    connect(selector, &ObjectSelector::chosen, this, [this](const DesignerObject *object) {
        m_isShowing = true;
        addItem(object->getIdName());
        m_list->setCurrentRow(m_list->count() - 1);
        m_isShowing = false;
        complete(false);
    });
    selector->openAt(m_list);
}

bool ItemsOrderEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_list && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool isAlt = key->modifiers().testFlag(Qt::AltModifier);
        if (isAlt && (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down)) {
            moveCurrent(key->key() == Qt::Key_Up ? -1 : 1);
            return true;
        }
        if (key->key() == Qt::Key_Delete) {
            removeCurrent();
            return true;
        }
        if (key->key() == Qt::Key_Insert) {
            add();
            return true;
        }
        if (key->key() == Qt::Key_Escape && hasEntry()) {
            restore();
            return true;
        }
    }
    return PropertyEditor::eventFilter(watched, event);
}

} // namespace Halvane::Corvex::Designer
