// SPDX-License-Identifier: MIT
#include "corvex/editors/expressions/ExpressionBuilder.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editors/expressions/private/ExpressionCalculator.h"
#include "corvex/editors/expressions/private/ExpressionEdit.h"
#include "corvex/editors/expressions/private/ExpressionFix.h"
#include "corvex/editors/expressions/private/ExpressionTokens.h"
#include "corvex/editors/expressions/private/TermsPage.h"
#include "corvex/editors/expressions/private/TestValues.h"
#include "corvex/values/expressions/ExpressionFunction.h"
#include "corvex/widgets/Theme.h"

#include <QButtonGroup>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableView>
#include <QTimer>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

QLabel *heading(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    Theme::setTextColor(label, &Theme::muted);
    return label;
}

QVBoxLayout *column(QWidget *widget)
{
    auto *layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Theme::gap);
    return layout;
}

//! The signature with the argument at the cursor in bold, and what the function returns.
QString signatureOf(const ExpressionFunction &function, qsizetype argument)
{
    QStringList arguments = QString(function.arguments).split(u", "_s, Qt::SkipEmptyParts);
    if (!arguments.isEmpty()) {
        QString &current = arguments[std::min(argument, arguments.size() - 1)];
        current = u"<b>%1</b>"_s.arg(current.toHtmlEscaped());
    }
    return u"%1(%2): %3 \u2013 %4"_s.arg(QString(function.name), arguments.join(u", "_s),
                                         QString(function.result), function.description().toHtmlEscaped());
}

} // namespace

struct ExpressionBuilder::State
{
    explicit State(ExpressionScope place)
        : scope(std::move(place))
    { }

    ExpressionScope scope;
    std::shared_ptr<ExpressionCalculator> calculator = ExpressionCalculator::shared();
    ExpressionScope::Reading reading; //!< of the text or the terms
    QString refusal;                  //!< of another view
    std::optional<ExpressionFix> fix;
    QTimer refresh; //!< of the values
};

ExpressionBuilder::ExpressionBuilder(const SharedProperty &property, QWidget *parent)
    : ExpressionBuilder(std::make_unique<State>(ExpressionScope(property)), parent)
{ }

ExpressionBuilder::ExpressionBuilder(const SharedProperty &property, const ExpressionPurpose &purpose,
                                     QWidget *parent)
    : ExpressionBuilder(std::make_unique<State>(ExpressionScope(property, purpose)), parent)
{ }

ExpressionBuilder::ExpressionBuilder(std::unique_ptr<State> state, QWidget *parent)
    : QWidget(parent)
    , m_state(std::move(state))
{
    column(this);
    createEditors();
    createHelp();
    auto *lower = new QHBoxLayout;
    lower->setSpacing(2 * Theme::margin);
    lower->addWidget(createTestValues(), 1);
    lower->addWidget(createResults(), 1);
    static_cast<QVBoxLayout *>(layout())->addLayout(lower, 2);
    setFocusProxy(m_edit);
    onChanged();
    if (LiveValues *values = m_state->scope.liveValues()) {
        // Many values may change at once.
        m_state->refresh.setSingleShot(true);
        connect(&m_state->refresh, &QTimer::timeout, this, &ExpressionBuilder::showValues);
        connect(values, &LiveValues::changed, &m_state->refresh, qOverload<>(&QTimer::start));
    }
}

ExpressionBuilder::~ExpressionBuilder() = default;

void ExpressionBuilder::createEditors()
{
    auto *views = new QHBoxLayout;
    views->setSpacing(Theme::gap);
    auto *group = new QButtonGroup(this);
    const auto addView = [&](const QString &title, const QString &key, bool isText) {
        auto *button = new QToolButton(this);
        button->setText(LocalizationHelper::coreString(title));
        button->setCheckable(true);
        button->setShortcut(QKeySequence(key));
        button->setToolTip(key);
        group->addButton(button);
        views->addWidget(button);
        connect(button, &QToolButton::clicked, this, [this, isText] { showAsText(isText); });
        return button;
    };
    m_asText = addView(u"Text"_s, u"Ctrl+1"_s, true);
    m_asTerms = addView(u"Terms"_s, u"Ctrl+2"_s, false);
    m_asText->setChecked(true);
    views->addStretch();
    views->addWidget(
        heading(LocalizationHelper::coreString(u"Ctrl+Space lists names and functions"_s), this));
    static_cast<QVBoxLayout *>(layout())->addLayout(views);

    m_pages = new QStackedWidget(this);
    m_edit = new ExpressionEdit(ExpressionEdit::Shape::Page, this);
    m_edit->setScope(m_state->scope);
    m_edit->setAccessibleName(LocalizationHelper::coreString(u"Expression"_s));
    m_terms = new TermsPage(this);
    m_terms->model().setScope(m_state->scope);
    m_pages->addWidget(m_edit);
    m_pages->addWidget(m_terms);
    m_pages->setMinimumHeight(6 * Theme::fieldHeight(this));
    static_cast<QVBoxLayout *>(layout())->addWidget(m_pages, 2);

    connect(m_edit, &ExpressionEdit::edited, this, &ExpressionBuilder::onChanged);
    connect(m_edit, &ExpressionEdit::cursorPositionChanged, this, [this] {
        showCall();
        showPart();
    });
    connect(m_edit, &ExpressionEdit::selectionChanged, this, &ExpressionBuilder::showPart);
    connect(&m_terms->model(), &TermsModel::termsChanged, this, &ExpressionBuilder::onChanged);
    connect(m_terms, &TermsPage::selectionChanged, this, &ExpressionBuilder::showPart);
}

void ExpressionBuilder::createHelp()
{
    m_call = new QLabel(this);
    m_call->setTextFormat(Qt::RichText);
    m_call->setWordWrap(true);
    m_call->setObjectName(u"signature"_s);
    Theme::setTextColor(m_call, &Theme::muted);

    m_problem = new QLabel(this);
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    m_problem->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_problem->setObjectName(u"error"_s);
    Theme::setTextColor(m_problem, &Theme::error);
    m_fix = new QPushButton(this);
    m_fix->setAutoDefault(false);
    m_fix->setShortcut(QKeySequence(u"Alt+Return"_s));
    m_fix->setToolTip(u"Alt+Return"_s);
    m_fix->setObjectName(u"fix"_s);
    connect(m_fix, &QPushButton::clicked, this, &ExpressionBuilder::applyFix);

    auto *problem = new QHBoxLayout;
    problem->setSpacing(Theme::margin);
    problem->addWidget(m_problem, 1);
    problem->addWidget(m_fix, 0, Qt::AlignTop);
    // The texts come and go without moving what is beneath them.
    auto *help = new QWidget(this);
    help->setMinimumHeight(3 * Theme::fieldHeight(this));
    auto *lines = column(help);
    lines->addWidget(m_call);
    lines->addLayout(problem);
    lines->addStretch();
    layout()->addWidget(help);
}

QWidget *ExpressionBuilder::createTestValues()
{
    auto *widget = new QWidget(this);
    QVBoxLayout *lines = column(widget);
    m_values = new TestValues(this);
    auto *table = new QTableView(this);
    table->setModel(m_values);
    table->setTabKeyNavigation(false);
    table->setShowGrid(false);
    table->setAlternatingRowColors(true);
    table->setEditTriggers(QAbstractItemView::AllEditTriggers);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(Theme::fieldHeight(this));
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeader()->resizeSection(TestValues::NameColumn, 130);
    table->horizontalHeader()->resizeSection(TestValues::TypeColumn, 70);
    table->setMinimumHeight(5 * Theme::fieldHeight(this));
    table->setAccessibleName(LocalizationHelper::coreString(u"Test values"_s));
    connect(m_values, &TestValues::valueEntered, this, &ExpressionBuilder::showValues);
    m_valuesTitle = heading({}, this);
    lines->addWidget(m_valuesTitle);
    lines->addWidget(table);
    return widget;
}

QWidget *ExpressionBuilder::createResults()
{
    auto *widget = new QWidget(this);
    QVBoxLayout *lines = column(widget);
    m_partText = heading({}, this);
    m_partText->setTextFormat(Qt::PlainText);
    m_partText->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_partValue = new QLabel(this);
    m_partValue->setTextFormat(Qt::PlainText);
    m_partValue->setObjectName(u"result"_s);
    m_partValue->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_partValue->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_code = new QPlainTextEdit(this);
    m_code->setReadOnly(true);
    m_code->setTabChangesFocus(true);
    m_code->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_code->setObjectName(u"code"_s);
    m_code->setAccessibleName(LocalizationHelper::coreString(u"Code on the device"_s));
    lines->addWidget(m_partText);
    lines->addWidget(m_partValue);
    lines->addSpacing(Theme::gap);
    lines->addWidget(heading(LocalizationHelper::coreString(u"On the device"_s), this));
    lines->addWidget(m_code, 1);
    return widget;
}

void ExpressionBuilder::setStored(const QString &stored)
{
    const QString text = m_state->scope.print(stored);
    bool ok = false;
    const GeneralDataList terms(stored, &ok);
    if (text.isNull() && ok) {
        m_pages->setCurrentWidget(m_terms);
        m_asTerms->setChecked(true);
        m_terms->model().setTerms(terms);
        setFocusProxy(m_terms);
        onChanged();
    } else {
        setText(text.isNull() ? stored : text);
    }
}

void ExpressionBuilder::setText(const QString &text)
{
    m_pages->setCurrentWidget(m_edit);
    m_asText->setChecked(true);
    m_edit->setShownText(text);
    m_edit->moveCursor(QTextCursor::End);
    onChanged();
}

bool ExpressionBuilder::showsText() const
{
    return m_pages->currentWidget() == m_edit;
}

QString ExpressionBuilder::text() const
{
    return showsText() ? m_edit->toPlainText().trimmed()
                       : m_state->scope.print(m_terms->model().terms().toString());
}

QString ExpressionBuilder::stored() const
{
    return m_state->reading.error ? QString() : m_state->reading.stored;
}

QString ExpressionBuilder::errorString() const
{
    const std::optional<ExpressionText::Error> &error = m_state->reading.error;
    if (!error) {
        return {};
    }
    if (!showsText()) {
        return error->message;
    }
    const QString place = error->length > 0
                              ? LocalizationHelper::coreString(u"At \"%1\": "_s)
                                    .arg(m_edit->toPlainText().sliced(error->position, error->length))
                              : LocalizationHelper::coreString(u"At the end: "_s);
    return place + error->message;
}

void ExpressionBuilder::refuse(const QString &reason)
{
    m_state->refusal = reason;
    m_asText->setChecked(showsText());
    m_asTerms->setChecked(!showsText());
    showProblem();
}

bool ExpressionBuilder::showAsText(bool isText)
{
    if (isText == showsText()) {
        return true;
    }
    if (!isText) {
        if (m_state->reading.error) {
            refuse(LocalizationHelper::coreString(u"The text has no terms yet. "_s) + errorString());
            return false;
        }
        m_terms->model().setTerms(m_state->reading.terms);
        m_pages->setCurrentWidget(m_terms);
    } else {
        const GeneralDataList &terms = m_terms->model().terms();
        const QString text = m_state->scope.print(terms.toString());
        if (text.isNull()) {
            const qsizetype term = m_state->scope.firstUnreadable(terms);
            refuse(
                term < 0
                    ? LocalizationHelper::coreString(u"These terms have no readable form in this order. "_s)
                          + errorString()
                    : LocalizationHelper::coreString(u"Term %1, \"%2\", has no readable form. Change or "
                                                     "remove it first."_s)
                          .arg(QString::number(term + 1), TermsModel::described(terms.at(term))));
            return false;
        }
        // The user's own form remains if its terms are the same; otherwise Ctrl+Z restores it.
        if (terms != m_state->scope.read(m_edit->toPlainText()).terms) {
            m_edit->replaceText(0, m_edit->toPlainText().size(), text);
        }
        m_pages->setCurrentWidget(m_edit);
    }
    m_asText->setChecked(isText);
    m_asTerms->setChecked(!isText);
    m_pages->currentWidget()->setFocus();
    onChanged();
    return true;
}

//! Reads the expression, and shows everything that depends on it.
void ExpressionBuilder::onChanged()
{
    State &state = *m_state;
    state.refusal.clear();
    state.fix.reset();
    if (showsText()) {
        const QString text = m_edit->toPlainText();
        state.reading = text.trimmed().isEmpty() ? ExpressionScope::Reading() : state.scope.read(text);
        m_edit->markError(state.reading.error);
        if (state.reading.error) {
            state.fix = ExpressionFix::of(state.scope, text, *state.reading.error);
        }
    } else {
        const GeneralDataList &terms = m_terms->model().terms();
        state.reading = {terms, terms.toString(), {}};
        if (const ExpressionPurpose purpose = state.scope.purposeOf(terms); !purpose.isTermList) {
            const QString obstacle = terms.isEmpty() ? QString() : terms.obstacle(purpose.kind);
            const bool hasCode = terms.isEmpty() || !state.scope.codeOf(terms).isEmpty();
            if (!obstacle.isEmpty() || !hasCode) {
                state.reading.error = ExpressionText::Error{
                    0,
                    0,
                    obstacle.isEmpty()
                        ? LocalizationHelper::coreString(u"The device has no code for this expression."_s)
                        : obstacle,
                    {}};
            }
        }
    }
    m_values->follow(state.scope, state.reading.terms);
    m_code->setPlainText(state.reading.error ? QString() : state.scope.codeOf(state.reading.terms));
    showProblem();
    showCall();
    showValues();
    emit changed();
}

//! The values and what follows from them.
void ExpressionBuilder::showValues()
{
    m_values->refresh();
    m_valuesTitle->setText(LocalizationHelper::coreString(
        m_values->isLive() ? u"Values of the running project, or what you enter"_s
                           : u"Try it with these values"_s));
    showPart();
}

void ExpressionBuilder::showProblem()
{
    m_problem->setText(m_state->refusal.isEmpty() ? errorString() : m_state->refusal);
    m_problem->setVisible(!m_problem->text().isEmpty());
    m_fix->setVisible(m_state->fix && m_state->refusal.isEmpty());
    m_fix->setText(m_state->fix ? m_state->fix->title : QString());
}

void ExpressionBuilder::applyFix()
{
    if (m_state->fix) {
        const ExpressionFix fix = *m_state->fix; // typing replaces it
        m_edit->replaceText(fix.position, fix.length, fix.text);
        m_edit->setFocus();
    }
}

//! The function around the cursor.
void ExpressionBuilder::showCall()
{
    const std::optional<ExpressionTokens::Call> call =
        showsText() ? ExpressionTokens(m_edit->toPlainText()).callAt(m_edit->textCursor().position())
                    : std::nullopt;
    const ExpressionFunction *function = call ? ExpressionFunction::find(call->function) : nullptr;
    m_call->setText(function ? signatureOf(*function, call->argument) : QString());
    m_call->setVisible(function);
}

//! The selected part or the whole expression: its type and value.
void ExpressionBuilder::showPart()
{
    const ExpressionScope &scope = m_state->scope;
    ExpressionScope::Part part;
    QString text;
    if (!showsText()) {
        part.terms = m_terms->selected();
        part.purpose = scope.purposeOf(part.terms);
        for (const GeneralDataInfo &term : part.terms) {
            text += (text.isEmpty() ? ""_L1 : " "_L1) + term.value();
        }
    } else if (m_edit->textCursor().hasSelection()) {
        text = m_edit->textCursor().selectedText().simplified();
        part = scope.readPart(text);
    }
    const bool isWhole = text.isEmpty();
    if (isWhole && !m_state->reading.error) {
        part = {m_state->reading.terms, scope.purposeOf(m_state->reading.terms)};
    }
    m_partText->setText(isWhole ? LocalizationHelper::coreString(u"The whole expression"_s) : text);
    const QString type = part.terms.isEmpty() ? QString() : ExpressionScope::typeOf(part.purpose, part.terms);
    const ExpressionCalculator::Result result =
        m_state->calculator->valueOf(scope, part.terms, part.purpose, m_values->given());
    const QString shown = result.described(type);
    m_partValue->setText(shown.isEmpty() ? u"\u2013"_s : shown);
}

} // namespace Halvane::Corvex::Designer
