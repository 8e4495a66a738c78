// SPDX-License-Identifier: MIT
#include "corvex/editors/ChangesEditors.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/editors/changes/private/ChangesTable.h"
#include "corvex/editors/expressions/private/ExpressionEdit.h"
#include "corvex/values/private/ExpressionLexer.h"
#include "corvex/widgets/Theme.h"

#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

ChangesEditor::ChangesEditor(QWidget *parent)
    : PropertyEditor(parent)
{ }

void ChangesEditor::createFields()
{
    m_table = new ChangesTable(this);
    addField(m_table, {}, 1);
    m_text = new ExpressionEdit(ExpressionEdit::Shape::Entry, this);
    addField(m_text, LocalizationHelper::coreString(u"text"_s), 1);
    connect(m_table, &ChangesTable::edited, this, &ChangesEditor::markEdited);
    connect(m_table, &ChangesTable::entered, this, &ChangesEditor::completeEntry);
    connect(m_table, &ChangesTable::restored, this, &ChangesEditor::restore);
    connect(m_table, &ChangesTable::heightChanged, this, &ChangesEditor::heightChanged);
    connect(m_table, &ChangesTable::gestureBegan, this, &ChangesEditor::gestureBegan);
    connect(m_table, &ChangesTable::gestureEnded, this, &ChangesEditor::gestureEnded);
    connect(m_table, &ChangesTable::gestureCancelled, this, &ChangesEditor::gestureCancelled);
    connect(m_text, &ExpressionEdit::edited, this, [this] {
        markEdited();
        emit heightChanged();
    });
    connect(m_text, &ExpressionEdit::entered, this, &ChangesEditor::completeEntry);
    connect(m_text, &ExpressionEdit::restored, this, &ChangesEditor::restore);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Theme::gap);
    buttons->setContentsMargins(0, Theme::gap / 2, 0, 0);
    m_table->moveTools(buttons);
    buttons->addStretch();
    const auto addButton = [&](const QString &text, const QString &help) {
        auto *button = new QToolButton(this);
        button->setText(LocalizationHelper::coreString(text));
        button->setToolTip(LocalizationHelper::coreString(help));
        button->setCheckable(true);
        button->setFixedHeight(Theme::fieldHeight(this));
        buttons->addWidget(button);
        prepareField(button, LocalizationHelper::coreString(text));
        return button;
    };
    m_asText = addButton(u"Text"_s, u"Edit the changes as text"_s);
    m_record = addButton(u"Record"_s, u"Note what is changed on the canvas"_s);
    static_cast<QVBoxLayout *>(layout())->insertLayout(1, buttons);
    connect(m_asText, &QToolButton::clicked, this, [this](bool isText) { showAsText(isText); });
    connect(m_record, &QToolButton::clicked, this,
            [this](bool isOn) { requests()->setRecorded(isOn ? properties().value(0) : SharedProperty()); });
}

void ChangesEditor::showView(bool isText)
{
    m_text->setVisible(isText);
    m_table->setVisible(!isText);
    m_table->setToolsVisible(!isText);
    m_asText->setChecked(isText);
    setFocusProxy(isText ? static_cast<QWidget *>(m_text) : m_table);
    emit heightChanged();
}

void ChangesEditor::showRow()
{
    const QList<SharedProperty> all = properties();
    const bool canRecord = requests() && requests()->isServed(EditorRequests::Recording) && all.size() == 1;
    m_record->setVisible(canRecord);
    m_record->setChecked(canRecord && requests()->recorded() == all.constFirst());
    m_table->setRequests(requests());
    if (all.isEmpty()) {
        return;
    }
    const SharedProperty &property = all.constFirst();
    const std::optional<QList<ChangeLine>> lines =
        row().isMixed ? std::nullopt : ChangeLines::read(*property, row().value);
    m_asText->setVisible(lines.has_value());
    m_text->setScope(ExpressionScope(property));
    m_text->setPlaceholderText(row().isMixed ? mixedText() : QString());
    m_text->setShownText(row().isMixed ? QString() : ReadableValue::print(*property, row().value));
    if (lines) {
        m_table->showLines(property, row().title, *lines);
    }
    setHint(lines || row().isMixed
                ? QString()
                : LocalizationHelper::coreString(u"The table cannot show all parts of this value."_s));
    showView(m_wantsText || !lines);
}

bool ChangesEditor::showAsText(bool isText)
{
    if (hasEntry()) {
        emit entered(); // what was typed, before it is shown in another way
    }
    QString reason;
    if (hasEntry()) {
        reason = errorString();
    } else if (const int line = isText ? m_table->firstIncomplete() : 0) {
        reason = LocalizationHelper::coreString(u"Line %1 is not complete. Complete or remove it first."_s)
                     .arg(line);
    }
    if (!reason.isEmpty()) {
        m_asText->setChecked(!isText);
        refuse(reason);
        return false;
    }
    m_wantsText = isText;
    showRow();
    return true;
}

PlannedCommand ChangesEditor::plan() const
{
    m_table->complete();
    return PropertyEditor::plan();
}

PropertyEditor::Entry ChangesEditor::entryFor(const DesignerProperty &property) const
{
    if (!m_text->isHidden()) {
        const ReadableValue::Reading reading = ReadableValue::read(property, m_text->toPlainText().trimmed());
        return {reading.stored, reading.error};
    }
    const ChangeLines::Writing writing = ChangeLines::write(property, m_table->lines());
    return {writing.stored, writing.error};
}

PlannedCommand ChangesEditor::recordOf(const SharedProperty &changes, const DesignerObject *object,
                                       const QString &property)
{
    const SharedProperty recorded = object ? object->getProperty(property) : SharedProperty();
    const std::optional<ChangeLines::Form> form = changes ? ChangeLines::formOf(*changes) : std::nullopt;
    std::optional<QList<ChangeLine>> lines =
        form ? ChangeLines::read(*changes, changes->valueString()) : std::nullopt;
    if (!recorded || !lines || form == ChangeLines::Form::Rules) {
        return {nullptr, LocalizationHelper::coreString(u"The change cannot be recorded here."_s), {}};
    }
    ChangeLine line{object->getIdName(), property, recorded->valueString()};
    if (form == ChangeLines::Form::Assignments) {
        const QString path = object->getIdName() + u'.' + property;
        const std::optional<GeneralDataInfo> term = ExpressionScope(changes).find(path);
        if (!term) {
            return {
                nullptr, LocalizationHelper::coreString(u"The device cannot set \"%1\"."_s).arg(path), {}};
        }
        const bool isText = term->dataType() == GeneralDataInfo::StringData;
        line = ChangeLine{path, {}, isText ? ExpressionLexer::quoted(line.value, u'"') : line.value};
    }
    const auto known = std::ranges::find_if(*lines, [&line](const ChangeLine &old) {
        return old.target == line.target && old.property == line.property;
    });
    if (known == lines->end()) {
        lines->append(line);
    } else {
        *known = line;
    }
    const ChangeLines::Writing writing = ChangeLines::write(*changes, *lines);
    return writing.error.isEmpty() ? Commands::changeOf({{changes, writing.stored}})
                                   : PlannedCommand{nullptr, writing.error, {}};
}

} // namespace Halvane::Corvex::Designer
