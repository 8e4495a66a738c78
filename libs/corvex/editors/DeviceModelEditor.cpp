// SPDX-License-Identifier: MIT
// The editors of the device model of a project.
#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/commands/ChangeConfiguration.h"
#include "corvex/editing/commands/ValueChange.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/editing/words/Suggestion.h"
#include "corvex/editors/HardwareEditors.h"
#include "corvex/editors/private/FieldButton.h"
#include "corvex/hardware/ChannelList.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/hardware/HardwareConfigurations.h"
#include "corvex/project/Project.h"
#include "corvex/widgets/KdLineEdit.h"
#include "corvex/widgets/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

QList<Configuration *> installedModels()
{
    const HardwareConfigurations *hardware = HardwareConfigurations::instance();
    return hardware ? hardware->installed()->configurations() : QList<Configuration *>();
}

QStringList installedNames()
{
    QStringList names;
    for (const Configuration *model : installedModels()) {
        names.append(model->getIdName());
    }
    return names;
}

//! Channel lists, of which people want to know the number of channels.
constexpr std::array channelLists{
    "analogInputs"_L1, "alarmOutputs"_L1,        "serialCOMPorts"_L1,   "pwmOutputs"_L1,
    "canbusPorts"_L1,  "digitalInputOutputs"_L1, "serialRS485Ports"_L1,
};

//! A change of the configuration in one line; empty for a detail.
QString described(const ValueChange &change)
{
    const DesignerProperty &property = *change.property;
    const QString line = LocalizationHelper::coreString(u"%1: %2 \u2192 %3"_s);
    const auto isIts = [&property](QLatin1StringView id) { return property.id() == id; };
    if (std::ranges::any_of(channelLists, isIts)) {
        const qsizetype before = ChannelList(change.before).count();
        const qsizetype after = ChannelList(change.after).count();
        return before == after ? LocalizationHelper::coreString(u"%1: other uses"_s).arg(property.name())
                               : line.arg(property.name(), QString::number(before), QString::number(after));
    }
    const bool isTold = isIts("screenSize"_L1) || isIts("colorDepth"_L1);
    return isTold ? line.arg(property.name(), ReadableValue::print(property, change.before),
                             ReadableValue::print(property, change.after))
                  : QString();
}

QString described(const ChangeConfiguration::Move &move, const QString &model)
{
    return move.to > 0 ? LocalizationHelper::coreString(u"\"%1\" moves from channel %2 to channel %3."_s)
                             .arg(move.element, QString::number(move.from), QString::number(move.to))
                       : LocalizationHelper::coreString(u"\"%1\" keeps channel %2, which %3 does not have."_s)
                             .arg(move.element, QString::number(move.from), model);
}

} // namespace

void DeviceModelEditor::createFields()
{
    m_line = new KdLineEdit(this);
    addField(m_line, {}, 1);
    connect(m_line, &KdLineEdit::edited, this, [this] {
        markEdited();
        closeQuestion();
    });
    connect(m_line, &KdLineEdit::entered, this, &DeviceModelEditor::ask);
    connect(m_line, &KdLineEdit::restored, this, &PropertyEditor::restore);
    auto *choose =
        new FieldButton(IconSet::More, LocalizationHelper::coreString(u"Choose a model (Alt+Down)"_s), this);
    choose->openFrom(m_line);
    m_choose = choose;
    addField(m_choose, LocalizationHelper::coreString(u"choose"_s));
    connect(m_choose, &QToolButton::clicked, this, &DeviceModelEditor::choose);
}

void DeviceModelEditor::showRow()
{
    const SharedProperty first = firstProperty();
    m_line->setPlaceholderText(row().isMixed ? mixedText() : QString());
    m_line->setShownText(first && !hasSeveral() ? first->parentObject()->getIdName() : QString());
    m_choose->setVisible(!installedModels().isEmpty());
    closeQuestion();
}

void DeviceModelEditor::choose()
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Configuration *model : installedModels()) {
        const QString name = model->getIdName();
        const QString size = ReadableValue::print(*model->screenSize());
        QAction *action = menu->addAction(u"%1  (%2)"_s.arg(name, size), this, [this, name] {
            m_line->enterText(name);
            ask();
        });
        action->setToolTip(model->description()->valueString());
        action->setCheckable(true);
        action->setChecked(name == m_line->shownText());
    }
    menu->setToolTipsVisible(true);
    menu->popup(mapToGlobal(QPoint(0, m_line->height())));
}

QStringList DeviceModelEditor::consequences() const
{
    const SharedProperty first = firstProperty();
    Project *project = !first ? nullptr : first->parentObject()->project();
    const QString model = m_line->text().trimmed();
    const ChangeConfiguration change(project, model);
    QStringList lines;
    for (const ValueChange &value : change.valueChanges()) {
        if (value.property->parentObject() == first->parentObject()) {
            lines.append(described(value));
        }
    }
    lines.removeAll(QString());
    for (const ChangeConfiguration::Move &move : change.moves()) {
        lines.append(described(move, model));
    }
    return lines;
}

//! Lists what the change will do, and waits for the user's decision.
void DeviceModelEditor::ask()
{
    const QString model = m_line->text().trimmed();
    if (model == m_line->shownText()) {
        restore();
        return;
    }
    const QStringList names = installedNames();
    if (!names.contains(model)) {
        refuse(Suggestion::unknown(LocalizationHelper::coreString(u"device model"_s), model, names));
        return;
    }
    markEdited();
    if (!m_question) {
        m_question = new QLabel(this);
        m_question->setWordWrap(true);
        m_question->setTextFormat(Qt::PlainText);
        Theme::setTextColor(m_question, &Theme::warning);
        auto *rows = static_cast<QVBoxLayout *>(layout());
        rows->insertWidget(1, m_question);
        m_buttons = new QWidget(this);
        auto *buttons = new QHBoxLayout(m_buttons);
        buttons->setContentsMargins(0, Theme::gap, 0, Theme::gap);
        buttons->setSpacing(Theme::gap);
        m_confirm = new QPushButton(LocalizationHelper::coreString(u"Change Model"_s), m_buttons);
        auto *keep = new QPushButton(LocalizationHelper::coreString(u"Keep"_s), m_buttons);
        for (QPushButton *button : {m_confirm, keep}) {
            button->setAutoDefault(true); // Enter presses it
        }
        buttons->addStretch(1);
        buttons->addWidget(keep);
        buttons->addWidget(m_confirm);
        rows->insertWidget(2, m_buttons);
        connect(m_confirm, &QPushButton::clicked, this, [this] {
            m_isConfirmed = true;
            completeEntry();
            m_isConfirmed = false;
        });
        connect(keep, &QPushButton::clicked, this, [this] {
            restore();
            m_line->setFocus();
        });
    }
    const QStringList lines = consequences();
    const QString first =
        LocalizationHelper::coreString(u"The model changes from %1 to %2:"_s).arg(m_line->shownText(), model);
    m_question->setText(lines.isEmpty() ? first.chopped(1) + u'.'
                                        : first + u"\n\u2022 "_s + lines.join(u"\n\u2022 "_s));
    m_question->show();
    m_buttons->show();
    emit heightChanged();
    m_confirm->setFocus(Qt::OtherFocusReason);
}

void DeviceModelEditor::closeQuestion()
{
    if (m_question && !m_question->isHidden()) {
        m_question->hide();
        m_buttons->hide();
        emit heightChanged();
    }
}

PlannedCommand DeviceModelEditor::plan() const
{
    const SharedProperty first = firstProperty();
    if ((!first || hasSeveral()) || m_line->text().trimmed() == m_line->shownText()) {
        return {};
    }
    if (!m_isConfirmed) {
        return {
            nullptr, LocalizationHelper::coreString(u"Press \"Change Model\" to change the model."_s), {}};
    }
    auto command =
        std::make_unique<ChangeConfiguration>(first->parentObject()->project(), m_line->text().trimmed());
    if (!command->isValid()) {
        return {nullptr, command->errorString(), {}};
    }
    return {std::move(command), {}, {}};
}

void CompatibleModelsEditor::createFields()
{
    m_list = new QListWidget(this);
    m_list->setUniformItemSizes(true);
    addField(m_list, {}, 1);
    connect(m_list, &QListWidget::itemChanged, this, [this] {
        if (!m_isShowing) {
            markEdited();
            // Later, because the list still works on its item.
            QMetaObject::invokeMethod(
                this, [this] { completeEntry(); }, Qt::QueuedConnection);
        }
    });
}

void CompatibleModelsEditor::showRow()
{
    constexpr int fewestRows = 2;
    constexpr int mostRows = 6;
    m_isShowing = true;
    const int current = m_list->currentRow();
    m_list->clear();
    const SharedProperty first = firstProperty();
    const auto *model = first && !hasSeveral() ? kindCast<Configuration>(first->parentObject()) : nullptr;
    const QStringList compatible = model ? model->allCompatibleModels().mid(1) : QStringList();
    const QStringList installed = installedNames();
    QStringList names = compatible;
    for (const QString &name : installed) {
        if (model && name != model->getIdName() && !names.contains(name)) {
            names.append(name);
        }
    }
    for (const QString &name : std::as_const(names)) {
        const QString text = installed.contains(name)
                                 ? name
                                 : LocalizationHelper::coreString(u"%1 (not installed)"_s).arg(name);
        auto *item = new QListWidgetItem(text, m_list);
        item->setData(Qt::UserRole, name);
        item->setSizeHint({0, Theme::fieldHeight(this)});
        Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
        flags.setFlag(Qt::ItemIsUserCheckable, !row().isReadOnly);
        item->setFlags(flags);
        item->setCheckState(compatible.contains(name) ? Qt::Checked : Qt::Unchecked);
    }
    m_list->setCurrentRow(std::min(current, int(names.size()) - 1));
    m_isShowing = false;
    const int rows = std::clamp(int(names.size()), fewestRows, mostRows);
    const int height = rows * Theme::fieldHeight(this) + 2 * m_list->frameWidth();
    if (m_list->maximumHeight() != height) {
        m_list->setFixedHeight(height);
        emit heightChanged();
    }
}

PropertyEditor::Entry CompatibleModelsEditor::entryFor(const DesignerProperty &) const
{
    QStringList checked;
    for (int i = 0; i < m_list->count(); ++i) {
        if (m_list->item(i)->checkState() == Qt::Checked) {
            checked.append(m_list->item(i)->data(Qt::UserRole).toString());
        }
    }
    return {checked.join(u'|'), {}};
}

} // namespace Halvane::Corvex::Designer
