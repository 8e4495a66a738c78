// SPDX-License-Identifier: MIT
#include "corvex/editors/ExpressionEditors.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/ModelObserver.h"
#include "corvex/core/ModelObservers.h"
#include "corvex/document/LiveValues.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/editors/changes/RulesDialog.h"
#include "corvex/editors/expressions/ExpressionBuilder.h"
#include "corvex/editors/expressions/ExpressionDialog.h"
#include "corvex/editors/expressions/private/ExpressionCalculator.h"
#include "corvex/editors/expressions/private/ExpressionEdit.h"
#include "corvex/project/Project.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/Theme.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSet>
#include <QTimer>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

//! Notices new values of the variables and elements that an expression names.
class ExpressionEditor::Watch : public ModelObserver
{
public:
    explicit Watch(ExpressionEditor &editor)
    {
        // Many values may change at once.
        m_refresh.setSingleShot(true);
        QObject::connect(&m_refresh, &QTimer::timeout, &editor, &ExpressionEditor::showResult);
    }

    void follow(const ExpressionScope &scope, const GeneralDataList &terms)
    {
        m_names.clear();
        m_live.clear();
        for (const GeneralDataInfo &term : terms) {
            if (const QString name = term.objectName(); !name.isEmpty()) {
                m_names.insert(name.section(u'.', -1));
                m_live.insert(scope.liveNameOf(term));
            }
        }
        Project *project = scope.owner() && !m_names.isEmpty() ? scope.owner()->project() : nullptr;
        if (m_project != project) {
            if (m_project) {
                m_project->observers().remove(this);
            }
            m_project = project;
            QObject::disconnect(m_changes);
            if (project) {
                project->observers().add(this);
                m_changes = QObject::connect(&LiveValues::of(*project), &LiveValues::changed, &m_refresh,
                                             [this](const QString &name) {
                                                 if (name.isEmpty() || m_live.contains(name)) {
                                                     m_refresh.start();
                                                 }
                                             });
            }
        }
    }

private:
    void valueChanged(const SharedProperty &property, const QString &) override
    {
        const DesignerObject *owner = m_names.isEmpty() ? nullptr : property->parentObject();
        if (owner && m_names.contains(owner->getIdName())) {
            m_refresh.start();
        }
    }

    QPointer<Project> m_project;
    QSet<QString> m_names; //!< of variables and elements
    QSet<QString> m_live;  //!< in LiveValues
    QMetaObject::Connection m_changes;
    QTimer m_refresh;
};

ExpressionEditor::ExpressionEditor(QWidget *parent)
    : PropertyEditor(parent)
{ }

ExpressionEditor::~ExpressionEditor() = default;

bool ExpressionEditor::isWide() const
{
    return row().isMixed || !row().value.isEmpty();
}

void ExpressionEditor::createFields()
{
    m_edit = new ExpressionEdit(ExpressionEdit::Shape::Entry, this);
    addField(m_edit, {}, 1);
    connect(m_edit, &ExpressionEdit::edited, this, [this] {
        m_built.clear();
        markEdited();
        showResult();
        emit heightChanged();
    });
    connect(m_edit, &ExpressionEdit::entered, this, &ExpressionEditor::completeEntry);
    connect(m_edit, &ExpressionEdit::restored, this, [this] {
        m_built.clear();
        restore();
        emit heightChanged();
    });

    m_open = new QToolButton(this);
    m_open->setIcon(IconSet::icon(IconSet::Open));
    m_open->setAutoRaise(true);
    m_open->setFixedSize(Theme::fieldHeight(this), Theme::fieldHeight(this));
    m_open->setFocusPolicy(Qt::TabFocus);
    m_open->setToolTip(LocalizationHelper::coreString(u"Open the expression builder (F4)"_s));
    addField(m_open, LocalizationHelper::coreString(u"expression builder"_s));
    fields()->setAlignment(m_open, Qt::AlignTop);
    connect(m_open, &QToolButton::clicked, this, &ExpressionEditor::openBuilder);
    m_watch = std::make_unique<Watch>(*this);
}

void ExpressionEditor::showRow()
{
    const SharedProperty first = firstProperty();
    const ExpressionScope scope(!first ? SharedProperty() : first);
    m_built.clear();
    m_edit->setScope(scope);
    m_edit->setPlaceholderText(row().isMixed ? mixedText() : QString());
    m_edit->setShownText(row().isMixed || !first ? QString() : ReadableValue::print(*first, row().value));
    showResult();
    emit heightChanged();
}

//! The error in the text, or the type and the value of the result.
void ExpressionEditor::showResult()
{
    const ExpressionScope &scope = m_edit->scope();
    const QString text = m_edit->toPlainText();
    const bool isStored = ExpressionText::isStored(text);
    const ExpressionScope::Reading reading =
        text.trimmed().isEmpty() || isStored ? ExpressionScope::Reading() : scope.read(text);
    m_edit->markError(reading.error);
    const GeneralDataList terms = isStored ? GeneralDataList(text) : reading.terms;
    const ExpressionPurpose purpose = scope.purposeOf(terms);
    QString shown;
    if (!terms.isEmpty() && !reading.error && !scope.hasRules() && !purpose.isAssignment()) {
        if (!m_calculator) {
            m_calculator = ExpressionCalculator::shared();
        }
        shown =
            m_calculator->valueOf(scope, terms, purpose).described(ExpressionScope::typeOf(purpose, terms));
    }
    m_watch->follow(scope, shown.isEmpty() ? GeneralDataList() : terms);
    setHint(shown);
}

PropertyEditor::Entry ExpressionEditor::entryFor(const DesignerProperty &property) const
{
    if (!m_built.isNull()) {
        return {m_built, {}};
    }
    const ReadableValue::Reading reading = ReadableValue::read(property, m_edit->toPlainText().trimmed());
    return {reading.stored, reading.error};
}

void ExpressionEditor::keyPressEvent(QKeyEvent *event)
{
    const bool isCtrlE = event->key() == Qt::Key_E && event->modifiers() == Qt::ControlModifier;
    if (event->key() == Qt::Key_F4 || isCtrlE) {
        openBuilder();
        return;
    }
    PropertyEditor::keyPressEvent(event);
}

void ExpressionEditor::openBuilder()
{
    const SharedProperty first = firstProperty();
    if (m_dialog || !first || row().isReadOnly) {
        return;
    }
    if (m_edit->scope().hasRules()) {
        openRules(first);
    } else {
        openExpressionBuilder(first);
    }
}

void ExpressionEditor::open(QDialog *dialog)
{
    m_dialog = dialog;
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(row().title);
    if (sheet()) { // for other objects it would be wrong
        connect(sheet(), &PropertySheet::modelAboutToBeReset, dialog,
                [dialog] { dialog->done(QDialog::Rejected); });
    }
    dialog->open();
}

void ExpressionEditor::openExpressionBuilder(const SharedProperty &property)
{
    auto *dialog = new ExpressionDialog(property, this);
    if (hasEntry() && m_built.isNull()) {
        dialog->builder()->setText(m_edit->toPlainText());
    } else {
        dialog->builder()->setStored(m_built.isNull() ? row().value : m_built);
    }
    connect(dialog, &QDialog::accepted, this,
            [this, dialog] { take(dialog->builder()->text(), dialog->builder()->stored()); });
    open(dialog);
}

void ExpressionEditor::openRules(const SharedProperty &property)
{
    const Entry entry = hasEntry() ? entryFor(*property) : Entry{row().value, {}};
    auto *dialog = new RulesDialog(property, this);
    if (!entry.error.isEmpty() || !dialog->setStored(entry.text)) {
        delete dialog;
        refuse(entry.error.isEmpty()
                   ? LocalizationHelper::coreString(u"The rules have parts without a readable form."_s)
                   : entry.error);
        return;
    }
    connect(dialog, &QDialog::accepted, this,
            [this, dialog] { take(m_edit->scope().print(dialog->stored()), dialog->stored()); });
    open(dialog);
}

//! An entry from a dialog; \a text is null if it has no readable form.
void ExpressionEditor::take(const QString &text, const QString &stored)
{
    m_edit->setFocus();
    m_edit->replaceText(0, m_edit->toPlainText().size(), text);
    m_built = text.isNull() ? stored : QString();
    completeEntry();
}

} // namespace Halvane::Corvex::Designer
