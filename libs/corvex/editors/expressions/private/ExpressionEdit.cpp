// SPDX-License-Identifier: MIT
#include "corvex/editors/expressions/private/ExpressionEdit.h"

#include "corvex/editors/expressions/private/CompletionDelegate.h"
#include "corvex/editors/expressions/private/ExpressionCompletions.h"
#include "corvex/editors/expressions/private/ExpressionHighlighter.h"
#include "corvex/editors/expressions/private/ExpressionTokens.h"
#include "corvex/values/expressions/ExpressionFunction.h"
#include "corvex/values/private/ExpressionWords.h"
#include "corvex/widgets/Theme.h"

#include <QCompleter>
#include <QKeyEvent>
#include <QListView>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Token = ExpressionToken;

constexpr int mostLines = 6;
constexpr int textMargin = 3; // around the text, inside the frame
constexpr int popupWidth = 380;

//! The types of an argument, from the signature of the function.
quint32 argumentTypes(const ExpressionFunction &function, qsizetype argument)
{
    const QStringList arguments = QString(function.arguments).split(u", "_s, Qt::SkipEmptyParts);
    qsizetype place = std::min(argument, arguments.size() - 1);
    if (place > 0 && arguments.at(place) == "..."_L1) {
        --place; // repeats the one before
    }
    return place < 0 ? ExpressionScope::allTypes
                     : ExpressionScope::typesNamed(arguments.at(place).section(u": "_s, 1));
}

} // namespace

ExpressionEdit::ExpressionEdit(Shape shape, QWidget *parent)
    : QPlainTextEdit(parent)
    , m_shape(shape)
    , m_highlighter(new ExpressionHighlighter(document()))
{
    m_highlighter->setPalette(palette());
    document()->setDocumentMargin(textMargin);
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    if (shape != Shape::Page) {
        QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        policy.setHeightForWidth(shape == Shape::Entry);
        setSizePolicy(policy);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setMinimumHeight(Theme::fieldHeight(this));
        setMaximumHeight(shape == Shape::Line ? minimumHeight() : QWIDGETSIZE_MAX);
    }
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (toPlainText() != m_shownText || m_hasEntry) {
            m_hasEntry = true;
            setExtraSelections({});
            fitHeight();
            emit edited();
        }
    });
}

void ExpressionEdit::setScope(const ExpressionScope &scope)
{
    m_scope = scope;
    if (m_completions) {
        m_completions->setScope(scope);
    }
}

void ExpressionEdit::setShownText(const QString &text)
{
    m_shownText = text;
    m_hasEntry = false;
    setExtraSelections({});
    if (toPlainText() != text) {
        setPlainText(text);
        fitHeight();
    }
}

void ExpressionEdit::replaceText(qsizetype position, qsizetype length, const QString &text)
{
    QTextCursor cursor = textCursor();
    cursor.setPosition(int(position));
    cursor.setPosition(int(position + length), QTextCursor::KeepAnchor);
    cursor.insertText(text);
    setTextCursor(cursor);
}

void ExpressionEdit::markError(const std::optional<ExpressionText::Error> &error)
{
    const auto size = qsizetype(toPlainText().size());
    if (!error || size == 0) {
        setExtraSelections({});
        return;
    }
    const qsizetype begin = std::min(error->position, size - 1);
    QTextEdit::ExtraSelection selection;
    selection.cursor = QTextCursor(document());
    selection.cursor.setPosition(int(begin));
    selection.cursor.setPosition(int(std::min(size, begin + std::max<qsizetype>(error->length, 1))),
                                 QTextCursor::KeepAnchor);
    selection.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    selection.format.setUnderlineColor(Theme::error(palette()));
    setExtraSelections({selection});
}

//! The name that the user is typing, from its beginning.
QString ExpressionEdit::pathBeforeCursor() const
{
    const QString text = toPlainText();
    const qsizetype end = textCursor().position();
    qsizetype begin = end;
    while (begin > 0
           && (text.at(begin - 1).isLetterOrNumber() || text.at(begin - 1) == u'_'
               || text.at(begin - 1) == u'.')) {
        --begin;
    }
    while (begin < end && (text.at(begin).isDigit() || text.at(begin) == u'.')) {
        ++begin; // of a number
    }
    return text.sliced(begin, end - begin);
}

//! Whether the cursor is in quotes.
bool ExpressionEdit::isInText() const
{
    const ExpressionTokens tokens(toPlainText().first(textCursor().position()));
    return !tokens.all().isEmpty() && tokens.all().constLast().type == Token::Wrong
           && toPlainText().at(tokens.all().constLast().position) == u'"';
}

quint32 ExpressionEdit::wantedTypes() const
{
    const QString text = toPlainText();
    const qsizetype place = textCursor().position() - pathBeforeCursor().size();
    const ExpressionTokens tokens(text);
    const qsizetype count = tokens.countBefore(place);
    const Token before = count > 0 ? tokens.all().at(count - 1) : Token();
    if (before.type == Token::Sign) {
        const bool isEqual = before.text == "=="_L1 || before.text == "!="_L1 || before.text == u'=';
        const Token &left = count > 1 ? tokens.all().at(count - 2) : before;
        if (isEqual && left.type == Token::Name) {
            const std::optional<GeneralDataInfo> term = m_scope.find(left.text);
            return term ? 1U << term->dataType() : ExpressionScope::allTypes;
        }
        if (QStringView(u"<>+-*/%").contains(before.text.front())) {
            return ExpressionScope::typesNamed(u"number"_s);
        }
    }
    const ExpressionWords::Word *word =
        before.type == Token::Name ? ExpressionWords::find(before.text) : nullptr;
    if ((word && word->valueType == GeneralDataInfo::OperatorValue)
        || (before.type == Token::Name && before.text == ExpressionWords::negation)) {
        return ExpressionScope::typesNamed(u"boolean"_s);
    }
    const std::optional<ExpressionTokens::Call> call = tokens.callAt(place);
    const ExpressionFunction *function = call ? ExpressionFunction::find(call->function) : nullptr;
    return function ? argumentTypes(*function, call->argument) : m_scope.resultTypes();
}

void ExpressionEdit::createCompleter()
{
    m_completions = new ExpressionCompletions(this);
    m_completions->setScope(m_scope);
    auto *list = new QListView;
    list->setUniformItemSizes(true);
    m_completer = new QCompleter(m_completions, this);
    m_completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_completer->setMaxVisibleItems(10);
    m_completer->setWidget(this);
    m_completer->setPopup(list);
    list->setItemDelegate(new CompletionDelegate(list)); // the completer sets its own
    connect(m_completer, QOverload<const QModelIndex &>::of(&QCompleter::activated), this,
            &ExpressionEdit::accept);
}

void ExpressionEdit::complete()
{
    updateCompleter(true);
}

//! Shows the list of names, or hides it if nothing fits. Without \a isWanted it needs a letter.
void ExpressionEdit::updateCompleter(bool isWanted)
{
    const QString path = pathBeforeCursor();
    const bool isShown = isWanted || !path.isEmpty();
    if (!isShown || isReadOnly() || isInText()) {
        if (m_completer) {
            m_completer->popup()->hide();
        }
        return;
    }
    if (!m_completer) {
        createCompleter();
    }
    const ExpressionTokens tokens(toPlainText());
    const qsizetype count = tokens.countBefore(textCursor().position() - path.size());
    const bool operandDue = count == 0 || ExpressionTokens::precedesOperand(tokens.all().at(count - 1));
    m_completions->filter(path, wantedTypes(), operandDue);
    const bool isComplete = m_completions->contains(path);
    if (m_completions->rowCount() == 0 || (isComplete && m_completions->rowCount() == 1)) {
        m_completer->popup()->hide();
        return;
    }
    QRect place = cursorRect();
    place.translate(-fontMetrics().horizontalAdvance(path), 0);
    place.setWidth(popupWidth);
    m_completer->complete(place);
    // Enter after a whole name completes the entry, not the name.
    m_completer->popup()->setCurrentIndex(isComplete ? QModelIndex()
                                                     : m_completer->completionModel()->index(0, 0));
}

void ExpressionEdit::accept(const QModelIndex &completion)
{
    const QString path = pathBeforeCursor();
    QString name = completion.data(Qt::EditRole).toString();
    const bool isCall = completion.data(ExpressionCompletions::CallRole).toBool();
    const bool isMember = completion.data(ExpressionCompletions::MemberRole).toBool();
    const bool isWord = !isCall && ExpressionTokens(name).all().size() == 1
                        && (ExpressionWords::find(name) || ExpressionWords::isMathValue(name)
                            || name == ExpressionWords::negation || name == ExpressionWords::ruleBegin
                            || name == ExpressionWords::ruleEffect);
    if (!isWord && !isCall && !isMember && ExpressionWords::needsQuotes(name)) {
        name = ExpressionLexer::quoted(name, u'\'');
    }
    m_completer->popup()->hide();
    replaceText(textCursor().position() - path.size(), path.size(),
                isCall     ? name + u'('
                : isMember ? name + u'.'
                           : name);
    if (isMember) {
        updateCompleter(true);
    }
}

//! Keys for the list of names. It gets them itself if it has the keyboard.
bool ExpressionEdit::takePopupKey(QKeyEvent *event)
{
    if (!m_completer || !m_completer->popup()->isVisible()) {
        return false;
    }
    const QModelIndex current = m_completer->popup()->currentIndex();
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (current.isValid()) {
            accept(current);
            return true;
        }
        m_completer->popup()->hide();
        return false;
    case Qt::Key_Escape:
        m_completer->popup()->hide();
        return true;
    default:
        return false;
    }
}

void ExpressionEdit::keyPressEvent(QKeyEvent *event)
{
    if (takePopupKey(event)) {
        return;
    }
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::ControlModifier) {
        complete();
        return;
    }
    if (isEnter && event->modifiers().testFlag(Qt::ControlModifier)) {
        event->ignore(); // accepts a dialog
        return;
    }
    if (m_shape != Shape::Page && isEnter && !event->modifiers().testFlag(Qt::ShiftModifier)) {
        if (m_hasEntry) {
            emit entered();
        } else {
            event->ignore();
        }
        return;
    }
    if (event->key() == Qt::Key_Escape) {
        if (m_shape != Shape::Page && m_hasEntry) {
            setShownText(m_shownText);
            selectAll();
            emit restored();
        } else {
            event->ignore();
        }
        return;
    }
    const int revision = document()->revision();
    QPlainTextEdit::keyPressEvent(event);
    const bool isTyped = !event->text().isEmpty() && event->text().front().isPrint()
                         && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    const bool isShown = m_completer && m_completer->popup()->isVisible();
    if (document()->revision() != revision && (isTyped || isShown)) {
        updateCompleter(false);
    } else if (isShown && document()->revision() == revision) {
        m_completer->popup()->hide(); // the cursor has moved
    }
}

bool ExpressionEdit::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && !m_hasEntry && m_shape != Shape::Page) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            event->ignore(); // belongs to the history of the project
            return false;
        }
    }
    return QPlainTextEdit::event(event);
}

void ExpressionEdit::focusInEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusInEvent(event);
    if (m_shape != Shape::Page
        && (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)) {
        selectAll();
    }
}

void ExpressionEdit::focusOutEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusOutEvent(event);
    // A menu or another window leaves the entry open.
    if (m_shape != Shape::Page && m_hasEntry && event->reason() != Qt::PopupFocusReason
        && event->reason() != Qt::ActiveWindowFocusReason) {
        emit entered();
    }
}

void ExpressionEdit::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        m_highlighter->setPalette(palette());
    }
}

//! The lines of the text in a field of that width; one more than are shown if there are more.
int ExpressionEdit::linesFor(int width) const
{
    const double inside = std::max(20, width - 2 * frameWidth() - 2 * textMargin);
    QTextOption option;
    option.setWrapMode(wordWrapMode());
    int lines = 0;
    for (QTextBlock block = document()->begin(); block.isValid() && lines <= mostLines;
         block = block.next()) {
        QTextLayout layout(block.text(), font());
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(inside);
            ++lines;
        }
        layout.endLayout();
        lines += layout.lineCount() == 0 ? 1 : 0;
    }
    return lines;
}

int ExpressionEdit::heightForWidth(int width) const
{
    const int height = std::clamp(linesFor(width), 1, mostLines) * fontMetrics().lineSpacing();
    return std::max(Theme::fieldHeight(this), height + 2 * frameWidth() + 2 * textMargin);
}

//! An entry shows its text without scrolling, unless it is long.
void ExpressionEdit::fitHeight()
{
    if (m_shape == Shape::Page) {
        return;
    }
    updateGeometry();
    if (!isVisible()) {
        return; // a field gets its width when it is shown
    }
    setVerticalScrollBarPolicy(linesFor(width()) > mostLines ? Qt::ScrollBarAsNeeded
                                                             : Qt::ScrollBarAlwaysOff);
    if (m_shape == Shape::Line && maximumHeight() != heightForWidth(width())) {
        setFixedHeight(heightForWidth(width()));
        emit heightChanged();
    }
}

void ExpressionEdit::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) {
        fitHeight();
    }
}

bool ExpressionEdit::focusNextPrevChild(bool next)
{
    // The tabulator takes a name from the list first.
    const bool isListed = next && m_completer && m_completer->popup()->isVisible();
    if (isListed && m_completer->popup()->currentIndex().isValid()) {
        accept(m_completer->popup()->currentIndex());
        return true;
    }
    return QPlainTextEdit::focusNextPrevChild(next);
}

QSize ExpressionEdit::sizeHint() const
{
    return m_shape == Shape::Page ? QPlainTextEdit::sizeHint()
                                  : QSize(200, heightForWidth(width() > 0 ? width() : 200));
}

QSize ExpressionEdit::minimumSizeHint() const
{
    return m_shape == Shape::Page ? QPlainTextEdit::minimumSizeHint() : QSize(60, Theme::fieldHeight(this));
}

} // namespace Halvane::Corvex::Designer
