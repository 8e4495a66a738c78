// SPDX-License-Identifier: MIT
#include "corvex/editors/ExpressionEditors.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/ModelObserver.h"
#include "corvex/core/ModelObservers.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/editors/expressions/ExpressionBuilder.h"
#include "corvex/editors/expressions/ExpressionDialog.h"
#include "corvex/editors/expressions/private/ExpressionCalculator.h"
#include "corvex/editors/expressions/private/ExpressionEdit.h"
#include "corvex/project/Project.h"
#include "corvex/widgets/Theme.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
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
        : m_editor(editor)
    { }

    void follow(Project *project, const GeneralDataList &terms)
    {
        m_names.clear();
        for (const GeneralDataInfo &term : terms) {
            if (const QString name = term.objectName(); !name.isEmpty()) {
                m_names.insert(name.section(u'.', -1));
            }
        }
        if (m_project != project) {
            if (m_project) {
                m_project->observers().remove(this);
            }
            m_project = project;
            if (project) {
                project->observers().add(this);
            }
        }
    }

private:
    void valueChanged(const SharedProperty &property, const QString &) override
    {
        const DesignerObject *owner = m_names.isEmpty() ? nullptr : property->parentObject();
        if (owner && m_names.contains(owner->getIdName())) {
            QTimer::singleShot(0, &m_editor, &ExpressionEditor::showResult);
        }
    }

    ExpressionEditor &m_editor;
    QPointer<Project> m_project;
    QSet<QString> m_names;
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
    m_open->setText(u"\u0192"_s);
    m_open->setFixedSize(Theme::fieldHeight(this), Theme::fieldHeight(this));
    m_open->setFocusPolicy(Qt::TabFocus);
    m_open->setToolTip(LocalizationHelper::coreString(u"Open the expression builder (F4)"_s));
    addField(m_open, LocalizationHelper::coreString(u"expression builder"_s));
    fields()->setAlignment(m_open, Qt::AlignTop);
    connect(m_open, &QToolButton::clicked, this, &ExpressionEditor::openBuilder);

    m_result = new QLabel(this);
    m_result->setTextFormat(Qt::PlainText);
    m_result->setObjectName(u"result"_s);
    m_result->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_result->hide();
    Theme::setTextColor(m_result, &Theme::muted);
    layout()->addWidget(m_result);
    m_watch = std::make_unique<Watch>(*this);
}

void ExpressionEditor::showRow()
{
    const QList<SharedProperty> all = properties();
    const ExpressionScope scope(all.isEmpty() ? SharedProperty() : all.constFirst());
    m_built.clear();
    m_edit->setScope(scope);
    m_edit->setPlaceholderText(row().isMixed ? mixedText() : QString());
    m_edit->setShownText(row().isMixed || all.isEmpty() ? QString()
                                                        : ReadableValue::print(*all.constFirst(), row().value));
    m_open->setVisible(!scope.hasRules());
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
        shown = m_calculator->valueOf(scope, terms, purpose)
                    .described(ExpressionScope::typeOf(purpose, terms));
    }
    m_watch->follow(shown.isEmpty() || !scope.owner() ? nullptr : scope.owner()->project(), terms);
    m_result->setText(shown);
    m_result->setToolTip(LocalizationHelper::coreString(
        u"The type of the result, and its value with the initial values of the variables"_s));
    if (m_result->isHidden() != shown.isEmpty()) {
        m_result->setHidden(shown.isEmpty());
        emit heightChanged();
    }
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
    const QList<SharedProperty> all = properties();
    if (m_dialog || all.isEmpty() || row().isReadOnly || m_edit->scope().hasRules()) {
        return;
    }
    m_dialog = new ExpressionDialog(all.constFirst(), this);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_dialog->setWindowTitle(row().title);
    if (hasEntry() && m_built.isNull()) {
        m_dialog->builder()->setText(m_edit->toPlainText());
    } else {
        m_dialog->builder()->setStored(m_built.isNull() ? row().value : m_built);
    }
    connect(m_dialog, &QDialog::accepted, this, &ExpressionEditor::takeFromBuilder);
    if (sheet()) {
        connect(sheet(), &PropertySheet::modelAboutToBeReset, m_dialog, &ExpressionDialog::discard);
    }
    m_dialog->open();
}

void ExpressionEditor::takeFromBuilder()
{
    const QString text = m_dialog->builder()->text();
    m_edit->setFocus();
    m_edit->replaceText(0, m_edit->toPlainText().size(), text);
    m_built = text.isNull() ? m_dialog->builder()->stored() : QString();
    completeEntry();
}

} // namespace Halvane::Corvex::Designer
