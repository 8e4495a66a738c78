// SPDX-License-Identifier: MIT
#include "corvex/editors/changes/private/ChangeRow.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editors/Editors.h"
#include "corvex/editors/PropertyEditor.h"
#include "corvex/editors/changes/private/NameLine.h"
#include "corvex/editors/expressions/private/ExpressionEdit.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/project/elements/StateTarget.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

constexpr ExpressionPurpose condition{GeneralDataList::BoolExpression};
constexpr ExpressionPurpose assignment{GeneralDataList::AssignExpression};
constexpr ExpressionPurpose singleTerm{GeneralDataList::GeneralExpression, GeneralDataInfo::RawOutput, true};

//! All lines have equal columns, whatever is in them.
void makeColumn(QWidget *field)
{
    field->setSizePolicy(QSizePolicy::Ignored, field->sizePolicy().verticalPolicy());
}

} // namespace

ChangeRow::ChangeRow(const SharedProperty &property, ChangeLines::Form form, QWidget *parent)
    : QWidget(parent)
    , m_property(property)
    , m_form(form)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Theme::gap);
    if (form == ChangeLines::Form::States || form == ChangeLines::Form::Changes) {
        createNames(layout);
    } else {
        createExpressions(layout);
    }
    auto *remove = new QToolButton(this);
    remove->setIcon(IconSet::icon(IconSet::Remove));
    remove->setAutoRaise(true);
    remove->setFixedSize(Theme::fieldHeight(this), Theme::fieldHeight(this));
    remove->setToolTip(LocalizationHelper::coreString(u"Remove this line"_s));
    connect(remove, &QToolButton::clicked, this, &ChangeRow::removeRequested);
    layout->addWidget(remove, 0, Qt::AlignTop);
    m_fields.append(remove);
}

void ChangeRow::createNames(QBoxLayout *layout)
{
    const auto addName = [&](int share, auto names) {
        auto *line = new NameLine(names, this);
        makeColumn(line);
        layout->addWidget(line, share, Qt::AlignTop);
        m_fields.append(line);
        connect(line, &KdLineEdit::edited, this, &ChangeRow::edited);
        connect(line, &KdLineEdit::restored, this, &ChangeRow::restored);
        connect(line, &KdLineEdit::entered, this, [this, line] {
            takeName(line);
            emit entered();
        });
        return line;
    };
    m_target = addName(columns[0], [this] { return elementNames(); });
    m_target->setPlaceholderText(LocalizationHelper::coreString(u"element"_s));
    m_name = addName(columns[1], [this] { return propertyNames(); });
    m_name->setPlaceholderText(LocalizationHelper::coreString(u"property"_s));
    m_valueHolder = new QWidget(this);
    makeColumn(m_valueHolder);
    auto *values = new QHBoxLayout(m_valueHolder);
    values->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_valueHolder, columns[2]);
}

ExpressionEdit *ChangeRow::addExpression(QBoxLayout *layout, const ExpressionPurpose &purpose)
{
    auto *edit = new ExpressionEdit(ExpressionEdit::Shape::Line, this);
    edit->setScope(ExpressionScope(m_property, purpose));
    connect(edit, &ExpressionEdit::edited, this, &ChangeRow::edited);
    // Queued, because the field may be in a layout that is just being arranged.
    connect(edit, &ExpressionEdit::heightChanged, this, &ChangeRow::heightChanged, Qt::QueuedConnection);
    connect(edit, &ExpressionEdit::restored, this, &ChangeRow::restored);
    connect(edit, &ExpressionEdit::entered, this, [this, edit] {
        takeExpression(edit);
        emit entered();
    });
    layout->addWidget(edit, 1, Qt::AlignTop);
    m_fields.append(edit);
    return edit;
}

void ChangeRow::takeName(KdLineEdit *field)
{
    QString &part = field == m_target ? m_line.target : m_line.property;
    const QString name = field->text().trimmed();
    field->setShownText(name);
    if (part != name) {
        part = name;
        m_line.value.clear();
        showValue();
    }
}

void ChangeRow::takeExpression(ExpressionEdit *field)
{
    QString &part = field == m_first ? m_line.target : m_line.value;
    part = field->toPlainText().trimmed();
    field->setShownText(part);
    field->markError(part.isEmpty() ? std::nullopt : field->scope().read(part).error);
}

bool ChangeRow::takeValue()
{
    if (m_text) {
        m_line.value = m_text->text();
        m_text->setShownText(m_line.value);
        return true;
    }
    const std::optional<QString> text = m_value->takeEntry();
    m_line.value = text.value_or(m_line.value);
    return text.has_value();
}

void ChangeRow::complete()
{
    for (ExpressionEdit *field : {m_first, m_second}) {
        if (field && field->hasEntry()) {
            takeExpression(field);
        }
    }
    for (KdLineEdit *field : {m_target, m_name}) {
        if (field && field->hasEntry()) {
            takeName(field);
        }
    }
    if ((m_text && m_text->hasEntry()) || (m_value && m_value->hasEntry())) {
        takeValue();
    }
}

void ChangeRow::createExpressions(QBoxLayout *layout)
{
    const bool hasRules = m_form == ChangeLines::Form::Rules;
    const auto addWord = [&](QBoxLayout *line, const QString &text) {
        auto *label = new QLabel(text, this);
        label->setFixedHeight(Theme::fieldHeight(this));
        if (hasRules) {
            label->setFixedWidth(fontMetrics().horizontalAdvance(u"when "_s));
        }
        Theme::setTextColor(label, &Theme::muted);
        line->addWidget(label, 0, Qt::AlignTop);
    };
    if (!hasRules) {
        m_first = addExpression(layout, singleTerm);
        addWord(layout, u"="_s);
        m_second = addExpression(layout, singleTerm);
        return;
    }
    auto *lines = new QVBoxLayout;
    lines->setSpacing(Theme::gap);
    layout->addLayout(lines, 1);
    const auto addLine = [&](const QString &word, const ExpressionPurpose &purpose) {
        auto *line = new QHBoxLayout;
        line->setSpacing(Theme::gap);
        lines->addLayout(line);
        addWord(line, word);
        return addExpression(line, purpose);
    };
    m_first = addLine(u"when"_s, condition);
    m_second = addLine(u"do"_s, assignment);
}

void ChangeRow::setLine(const ChangeLine &line)
{
    m_line = line;
    if (m_target) {
        m_target->setShownText(line.target);
        m_name->setShownText(line.property);
        showValue();
        return;
    }
    m_first->setShownText(line.target);
    m_second->setShownText(line.value);
}

void ChangeRow::setRequests(EditorRequests *requests)
{
    m_requests = requests;
    if (m_value) {
        m_value->setRequests(requests);
    }
}

void ChangeRow::setNumber(const QString &title, int number)
{
    const QString name = LocalizationHelper::coreString(u"%1, line %2"_s).arg(title, QString::number(number));
    if (m_title == name) {
        return;
    }
    m_title = name;
    const QStringList parts = m_target ? QStringList{u"element"_s, u"property"_s, u"remove"_s}
                              : m_form == ChangeLines::Form::Assignments
                                  ? QStringList{u"target"_s, u"source"_s, u"remove"_s}
                                  : QStringList{u"condition"_s, u"effect"_s, u"remove"_s};
    for (qsizetype i = 0; i < m_fields.size(); ++i) {
        m_fields.at(i)->setAccessibleName(m_title + u", "_s + LocalizationHelper::coreString(parts.at(i)));
    }
    if (m_value) {
        showValue(); // with the new number
    }
}

void ChangeRow::beginEditing()
{
    QWidget *first = m_fields.constFirst();
    if (m_target && !m_line.target.isEmpty()) {
        first = m_line.property.isEmpty() ? static_cast<QWidget *>(m_name) : m_valueHolder->focusWidget();
    }
    (first ? first : m_name)->setFocus();
}

const DesignerObject *ChangeRow::element() const
{
    const DesignerObject *owner = m_property->parentObject();
    const Screen *screen = owner ? owner->screen() : nullptr;
    return screen ? screen->getElement(m_line.target) : nullptr;
}

QStringList ChangeRow::elementNames() const
{
    const DesignerObject *owner = m_property->parentObject();
    const Screen *screen = owner ? owner->screen() : nullptr;
    return screen ? screen->getElementNames() : QStringList();
}

//! What a state can set: what the user edits and the device knows.
QStringList ChangeRow::propertyNames() const
{
    QStringList names;
    if (const DesignerObject *changed = element()) {
        for (const SharedProperty &property : changed->properties()) {
            if (StateTarget::canBeSet(*property) && property->hasFlag(EditableFlag) && !property->isList()
                && !property->isObject() && property != changed->idProperty()) {
                names.append(property->id());
            }
        }
    }
    return names;
}

void ChangeRow::clearValue()
{
    // The editor may be the sender.
    if (m_value) {
        m_value->hide();
        m_value->deleteLater();
        m_value = nullptr;
    }
    if (m_text) {
        m_text->hide();
        m_text->deleteLater();
        m_text = nullptr;
    }
}

//! Shows the value in the editor of its kind.
void ChangeRow::showValue()
{
    const DesignerObject *changed = element();
    const SharedProperty target = changed ? changed->getProperty(m_line.property) : SharedProperty();
    SheetRow row;
    if (target) {
        PropertySheet sheet(*changed->project());
        sheet.setObjects({const_cast<DesignerObject *>(changed)});
        if (const int number = sheet.rowOf(m_line.property); number >= 0) {
            row = sheet.row(number);
        }
    }
    if (!row.id.isEmpty() && m_line.value.isEmpty()) {
        m_line.value = row.value; // a new line begins with the value of the element
    }
    row.value = m_line.value;
    row.error.clear();
    row.isMixed = false;
    row.isVisible = true;
    row.isReadOnly = false;
    row.editorParameters.insert(u"showSlider"_s, false); // a line has no room for it
    row.title = m_title + u", "_s + m_line.target + u'.' + m_line.property;
    if (m_value && !row.id.isEmpty() && m_value->propertyId() == row.id
        && m_value->properties() == QList<SharedProperty>{target}) {
        m_value->setElsewhere(target, row);
        return;
    }
    clearValue();
    if (row.id.isEmpty()) {
        m_text = new KdLineEdit(m_valueHolder);
        m_text->setShownText(m_line.value);
        m_text->setEnabled(!m_line.property.isEmpty());
        m_text->setInvalid(!m_line.property.isEmpty());
        m_text->setAccessibleName(row.title);
        connect(m_text, &KdLineEdit::edited, this, &ChangeRow::edited);
        connect(m_text, &KdLineEdit::restored, this, &ChangeRow::restored);
        connect(m_text, &KdLineEdit::entered, this, [this] {
            takeValue();
            emit entered();
        });
        m_valueHolder->layout()->addWidget(m_text);
        m_text->show();
        return;
    }
    m_value = Editors::createFor(row, m_valueHolder);
    m_value->setRequests(m_requests);
    m_value->setElsewhere(target, row);
    const auto take = [this] {
        if (takeValue()) {
            emit entered();
        }
    };
    connect(m_value, &PropertyEditor::entered, this, take);
    connect(m_value, &PropertyEditor::stepped, this, take);
    connect(m_value, &PropertyEditor::heightChanged, this, &ChangeRow::heightChanged);
    connect(m_value, &PropertyEditor::gestureBegan, this, &ChangeRow::gestureBegan);
    connect(m_value, &PropertyEditor::gestureEnded, this, &ChangeRow::gestureEnded);
    connect(m_value, &PropertyEditor::gestureCancelled, this, &ChangeRow::gestureCancelled);
    m_valueHolder->layout()->addWidget(m_value);
    m_value->show();
}

} // namespace Halvane::Corvex::Designer
