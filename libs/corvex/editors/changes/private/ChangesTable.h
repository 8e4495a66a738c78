// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/EditorRequests.h"
#include "corvex/editors/changes/private/ChangeLines.h"

#include <QPointer>
#include <QWidget>

class QHBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace Halvane::Corvex::Designer {

class ChangeRow;

//! The lines of a state, of assignments or of rules, each in fields of its own. An empty line is added with a
//! button. Only the first lines of a long list are shown until the user wants all.
class ChangesTable : public QWidget
{
    Q_OBJECT

public:
    explicit ChangesTable(QWidget *parent = nullptr);

    //! Shows the value of \a property, whose title is \a title. Fields that show the same lines already are
    //! kept, with lines that are not complete.
    void showLines(const SharedProperty &property, const QString &title, const QList<ChangeLine> &lines);
    //! For the editors of the values; may be null.
    void setRequests(EditorRequests *requests);
    //! Moves the buttons to another layout, which the owner shows.
    void moveTools(QHBoxLayout *layout);
    void setToolsVisible(bool isVisible);
    //! What has been completed in the fields, with lines that lack a part.
    QList<ChangeLine> lines() const;
    //! Completes what the user has typed, without a signal.
    void complete();
    //! The number of the first line that is not complete, from 1; 0 if all are.
    int firstIncomplete() const;

public slots:
    //! Adds a line and gives it the keyboard.
    void addLine();

signals:
    void edited();
    void entered();
    void restored();
    void heightChanged();
    void gestureBegan();
    void gestureEnded();
    void gestureCancelled();

private:
    ChangeRow *addRow(const ChangeLine &line);
    void addRows(qsizetype count);
    void remove(ChangeRow *row);
    void clear();
    void number();
    QWidget *createHeadings();

    SharedProperty m_property;
    ChangeLines::Form m_form = ChangeLines::Form::States;
    QString m_title;
    QList<ChangeRow *> m_rows;
    QList<ChangeLine> m_rest; //!< lines without fields
    QPointer<EditorRequests> m_requests;
    QVBoxLayout *m_layout;
    QWidget *m_headings;
    QPushButton *m_add;
    QPushButton *m_more;
    bool m_hasTools = true;
};

} // namespace Halvane::Corvex::Designer
