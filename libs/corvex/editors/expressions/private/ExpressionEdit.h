// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/expressions/private/ExpressionScope.h"

#include <QPlainTextEdit>

class QCompleter;

namespace Halvane::Corvex::Designer {

class ExpressionCompletions;
class ExpressionHighlighter;

/*! A field for the readable text of an expression, with colors, completion and a line under what is wrong.

    As an entry, the field is as high as its text, Enter completes it and Shift+Enter begins a new line. It
    shows a value until the user types, and keeps what the user types until it is accepted or restored.
    A line is an entry for a place that scrolls: its height is fixed, and changes with the text.
    As a page, Enter begins a new line.
*/
class ExpressionEdit : public QPlainTextEdit
{
    Q_OBJECT

public:
    enum class Shape { Entry, Line, Page };
    explicit ExpressionEdit(Shape shape, QWidget *parent = nullptr);

    void setScope(const ExpressionScope &scope);
    const ExpressionScope &scope() const { return m_scope; }
    //! The text of the value. Replaces what the user has typed.
    void setShownText(const QString &text);
    bool hasEntry() const { return m_hasEntry; }
    //! Replaces a part of the text as typing does, and moves the cursor behind it.
    void replaceText(qsizetype position, qsizetype length, const QString &text);
    //! Underlines the place of the error, or the end of the text.
    void markError(const std::optional<ExpressionText::Error> &error);
    //! The types that are expected at the cursor.
    quint32 wantedTypes() const;
    //! Shows what can be written at the cursor.
    void complete();

    bool hasHeightForWidth() const override { return m_shape == Shape::Entry; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void edited();
    void entered();
    void restored();
    //! The fixed height of a line.
    void heightChanged();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void createCompleter();
    void updateCompleter(bool isWanted);
    void accept(const QModelIndex &completion);
    bool takePopupKey(QKeyEvent *event);
    int linesFor(int width) const;
    void fitHeight();
    QString pathBeforeCursor() const;
    bool isInText() const;

    Shape m_shape;
    ExpressionScope m_scope;
    QString m_shownText;
    bool m_hasEntry = false;
    ExpressionHighlighter *m_highlighter;
    ExpressionCompletions *m_completions = nullptr; //!< created with the first key
    QCompleter *m_completer = nullptr;
};

} // namespace Halvane::Corvex::Designer
