// SPDX-License-Identifier: MIT
#include "corvex/editors/PropertyEditor.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/undo/UndoCommand.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/widgets/KdLineEdit.h"
#include "corvex/widgets/Theme.h"
#include "corvex/widgets/WheelGuard.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

PropertyEditor::PropertyEditor(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
    , m_fields(new QHBoxLayout)
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(2);
    m_fields->setSpacing(Theme::gap);
    m_layout->addLayout(m_fields);
}

PropertyEditor::~PropertyEditor() = default;

void PropertyEditor::setProperty(PropertySheet *sheet, const QString &id)
{
    if (m_sheet && m_sheet != sheet) {
        disconnect(m_sheet, nullptr, this, nullptr);
    }
    m_hasEntry = false;
    m_refusal.clear();
    m_elsewhere.clear();
    m_row.id = id;
    if (m_sheet != sheet) {
        m_sheet = sheet;
        if (sheet) {
            connect(sheet, &PropertySheet::dataChanged, this, [this](const QModelIndex &first) {
                if (m_sheet->row(first.row()).id == m_row.id) { // the sheet reports rows one by one
                    update(m_sheet->row(first.row()));
                }
            });
            connect(sheet, &PropertySheet::modelReset, this, [this] {
                m_hasEntry = false; // it was meant for the objects before
                follow();
            });
            connect(sheet, &PropertySheet::rowsInserted, this, &PropertyEditor::follow);
            connect(sheet, &PropertySheet::rowsRemoved, this, &PropertyEditor::follow);
        }
    }
    follow();
}

void PropertyEditor::setElsewhere(const SharedProperty &property, const SheetRow &row)
{
    setProperty(nullptr, row.id);
    m_elsewhere = property;
    setEnabled(true);
    update(row);
}

std::optional<QString> PropertyEditor::takeEntry()
{
    if (!m_hasEntry || !m_elsewhere || m_row.isReadOnly) {
        return {};
    }
    const Entry entry = entryFor(*m_elsewhere);
    const QString reason = entry.error.isEmpty() ? m_elsewhere->refusalOf(entry.text) : entry.error;
    if (!reason.isEmpty()) {
        refuse(reason);
        return {};
    }
    m_hasEntry = false;
    SheetRow row = m_row;
    row.value = entry.text;
    row.error.clear();
    update(row);
    return entry.text;
}

QList<SharedProperty> PropertyEditor::properties() const
{
    if (m_elsewhere) {
        return {m_elsewhere};
    }
    const int row = m_sheet ? m_sheet->rowOf(m_row.id) : -1;
    return row < 0 ? QList<SharedProperty>() : m_sheet->properties(row);
}

SharedProperty PropertyEditor::firstProperty() const
{
    if (m_elsewhere) {
        return m_elsewhere;
    }
    const int row = m_sheet ? m_sheet->rowOf(m_row.id) : -1;
    return row < 0 ? SharedProperty() : m_sheet->firstProperty(row);
}

bool PropertyEditor::hasSeveral() const
{
    return !m_elsewhere && m_sheet && m_sheet->objectCount() > 1;
}

//! Shows the row of the sheet, if there is one.
void PropertyEditor::follow()
{
    const int row = m_sheet ? m_sheet->rowOf(m_row.id) : -1;
    setEnabled(row >= 0);
    if (row >= 0) {
        update(m_sheet->row(row));
    }
}

void PropertyEditor::update(const SheetRow &row)
{
    m_row = row;
    if (!m_hasFields) {
        m_hasFields = true;
        createFields();
    }
    updateAccess();
    if (!m_hasEntry) {
        m_refusal.clear();
        showRow();
    }
    setError(m_refusal.isEmpty() ? m_row.error : m_refusal);
    if (m_row.isVisible == m_isHiddenByRow) {
        m_isHiddenByRow = !m_row.isVisible;
        setHidden(m_isHiddenByRow);
    }
}

//! Names, descriptions and read-only state for people and for screen readers.
void PropertyEditor::updateAccess()
{
    const QString error = errorString();
    QString description = error.isEmpty() ? m_row.description : error;
    setToolTip(description);
    const QString hint =
        m_hintKind == Hint::Offer ? QTextDocumentFragment::fromHtml(m_hint).toPlainText() : m_hint;
    if (error.isEmpty() && !hint.isEmpty()) {
        description = description.isEmpty() ? hint : description + u'\n' + hint;
    }
    for (const auto &[label, text] : {std::pair(m_errorLabel, error), std::pair(m_hintLabel, hint)}) {
        if (label) {
            label->setAccessibleName(m_row.title + u": "_s + text);
        }
    }
    for (const Field &field : m_parts) {
        if (field.widget) {
            updateAccess(field, description);
        }
    }
}

void PropertyEditor::updateAccess(const Field &field, const QString &description) const
{
    const QString name = field.part.isEmpty() ? m_row.title : m_row.title + u", "_s + field.part;
    if (field.widget->accessibleName() != name) { // setting it informs screen readers
        field.widget->setAccessibleName(name);
    }
    if (field.widget->accessibleDescription() != description) {
        field.widget->setAccessibleDescription(description);
    }
    if (auto *line = qobject_cast<QLineEdit *>(field.widget)) {
        line->setReadOnly(m_row.isReadOnly); // so that the text can be copied
    } else if (auto *text = qobject_cast<QPlainTextEdit *>(field.widget)) {
        text->setReadOnly(m_row.isReadOnly);
    } else {
        field.widget->setEnabled(!m_row.isReadOnly);
    }
}

QString PropertyEditor::errorString() const
{
    return m_refusal.isEmpty() ? m_row.error : m_refusal;
}

//! Shows a text in a label, which may be null, or hides it. Returns whether anything changed.
bool PropertyEditor::showMessage(QLabel *&label, const QString &text)
{
    if (!label && !text.isEmpty()) {
        const bool isError = &label == &m_errorLabel;
        const bool hasLinks = !isError && m_hintKind == Hint::Offer;
        label = new QLabel(this);
        label->setObjectName(isError ? u"error"_s : u"hint"_s);
        label->setWordWrap(true);
        label->setTextFormat(hasLinks ? Qt::RichText : Qt::PlainText);
        label->setTextInteractionFlags(hasLinks ? Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard
                                                : Qt::TextInteractionFlags(Qt::TextSelectableByMouse));
        Theme::setTextColor(label, isError                       ? &Theme::error
                                   : m_hintKind == Hint::Warning ? &Theme::warning
                                                                 : &Theme::muted);
        connect(label, &QLabel::linkActivated, this, &PropertyEditor::followOffer,
                Qt::QueuedConnection); // the link may remove the label
        m_layout->insertWidget(isError && m_hintLabel ? m_layout->indexOf(m_hintLabel) : -1, label);
    }
    if (!label || (label->text() == text && label->isHidden() == text.isEmpty())) {
        return false;
    }
    label->setText(text);
    label->setVisible(!text.isEmpty());
    return true;
}

void PropertyEditor::setError(const QString &text)
{
    for (const Field &field : m_parts) {
        if (auto *line = qobject_cast<KdLineEdit *>(field.widget)) {
            line->setInvalid(!text.isEmpty());
        }
    }
    const bool isErrorNew = showMessage(m_errorLabel, text);
    const bool hasHint = text.isEmpty() || m_hintKind == Hint::Offer;
    const bool isHintNew = showMessage(m_hintLabel, hasHint ? m_hint : QString());
    if (isErrorNew || isHintNew) {
        updateAccess();
        emit heightChanged();
    }
}

void PropertyEditor::setHint(const QString &text, Hint kind)
{
    if (m_hintKind != kind && m_hintLabel) {
        delete m_hintLabel;
        m_hintLabel = nullptr; // the next one looks different
    }
    m_hint = text;
    m_hintKind = kind;
    setError(errorString());
}

void PropertyEditor::followOffer(const QString &) { }

void PropertyEditor::setRequests(EditorRequests *requests)
{
    if (m_requests == requests) {
        return;
    }
    if (m_requests) {
        disconnect(m_requests, nullptr, this, nullptr);
    }
    m_requests = requests;
    const auto update = [this] {
        if (m_hasFields && !m_hasEntry) {
            showRow();
        }
    };
    if (requests) {
        connect(requests, &EditorRequests::changed, this, update);
    }
    update();
}

UndoCommand *PropertyEditor::createUpdateCommand()
{
    m_notes.clear();
    if (!m_hasEntry || m_row.isReadOnly) {
        return nullptr;
    }
    PlannedCommand planned = plan();
    m_notes = planned.notes;
    if (!planned && !planned.reason.isEmpty()) {
        refuse(planned.reason);
        return nullptr;
    }
    // The field keeps the text until the command is pushed. Without a command, the value is the same, perhaps
    // in another spelling.
    m_hasEntry = false;
    m_refusal.clear();
    if (!planned) {
        showRow();
    }
    setError(m_row.error);
    return planned.command.release();
}

PlannedCommand PropertyEditor::plan() const
{
    QList<RequestedValue> values;
    for (const SharedProperty &property : properties()) {
        const Entry entry = entryFor(*property);
        if (!entry.error.isEmpty()) {
            return {nullptr, entry.error, {}};
        }
        values.append({property, entry.text});
    }
    return Commands::changeOf(values);
}

void PropertyEditor::refuse(const QString &reason)
{
    m_hasEntry = true;
    m_refusal = reason;
    setError(reason);
}

void PropertyEditor::restore()
{
    m_hasEntry = false;
    m_refusal.clear();
    if (m_hasFields) {
        showRow();
    }
    setError(m_row.error);
}

void PropertyEditor::scrub(double) { }

void PropertyEditor::createFields()
{
    m_text = addLine();
}

void PropertyEditor::showRow()
{
    const SharedProperty first = firstProperty();
    m_text->setPlaceholderText(m_row.isMixed ? mixedText() : QString());
    m_text->setShownText(m_row.isMixed || !first ? QString() : ReadableValue::print(*first, m_row.value));
}

QString PropertyEditor::valueOf(const DesignerProperty &property) const
{
    return m_elsewhere ? m_row.value : property.valueString();
}

PropertyEditor::Entry PropertyEditor::entryFor(const DesignerProperty &property) const
{
    const ReadableValue::Reading reading = ReadableValue::read(property, m_text->text());
    return {reading.stored, reading.error};
}

void PropertyEditor::prepareField(QWidget *field, const QString &part)
{
    WheelGuard::protect(field);
    m_parts.push_back({field, part});
    updateAccess(m_parts.back(), m_row.description);
    if (!focusProxy()) {
        setFocusProxy(field);
    }
}

void PropertyEditor::addField(QWidget *field, const QString &part, int stretch)
{
    prepareField(field, part);
    m_fields->addWidget(field, stretch);
}

KdLineEdit *PropertyEditor::addLine(const QString &part, int stretch)
{
    auto *line = prepareLine(new KdLineEdit(this), part);
    m_fields->addWidget(line, stretch);
    return line;
}

KdLineEdit *PropertyEditor::prepareLine(KdLineEdit *line, const QString &part)
{
    prepareField(line, part);
    connect(line, &KdLineEdit::edited, this, &PropertyEditor::markEdited);
    connect(line, &KdLineEdit::entered, this, &PropertyEditor::completeEntry);
    connect(line, &KdLineEdit::restored, this, &PropertyEditor::restore);
    return line;
}

void PropertyEditor::markEdited()
{
    m_hasEntry = true;
}

void PropertyEditor::completeEntry()
{
    m_hasEntry = true;
    emit entered();
}

void PropertyEditor::completeStep()
{
    m_hasEntry = true;
    emit stepped();
}

QString PropertyEditor::mixedText()
{
    return LocalizationHelper::coreString(u"Mixed"_s);
}

} // namespace Halvane::Corvex::Designer
