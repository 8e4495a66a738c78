// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerObject.h"
#include "corvex/editors/EditorRequests.h"
#include "corvex/editors/changes/private/ChangeLines.h"

#include <QPointer>
#include <QWidget>

class QBoxLayout;

namespace Halvane::Corvex::Designer {

class ExpressionEdit;
class KdLineEdit;
class PropertyEditor;
struct ExpressionPurpose;

//! The fields of one line of changes, with a button that removes it.
class ChangeRow : public QWidget
{
    Q_OBJECT

public:
    //! The shares of the columns of a line with names: element, property, value.
    static constexpr int columns[] = {4, 3, 4};

    ChangeRow(const SharedProperty &property, ChangeLines::Form form, QWidget *parent);

    void setLine(const ChangeLine &line);
    void setRequests(EditorRequests *requests);
    //! What has been completed in the fields.
    const ChangeLine &line() const { return m_line; }
    //! Completes what the user has typed, without a signal.
    void complete();
    //! Names the fields for screen readers.
    void setNumber(const QString &title, int number);
    //! Gives the keyboard to the first empty field.
    void beginEditing();

signals:
    //! The user has typed something, but has not completed it.
    void edited();
    //! The line has changed.
    void entered();
    void restored();
    void heightChanged();
    void removeRequested();
    void gestureBegan();
    void gestureEnded();
    void gestureCancelled();

private:
    void createNames(QBoxLayout *layout);
    void createExpressions(QBoxLayout *layout);
    ExpressionEdit *addExpression(QBoxLayout *layout, const ExpressionPurpose &purpose);
    void takeName(KdLineEdit *field);
    void takeExpression(ExpressionEdit *field);
    //! Returns false if the value is refused.
    bool takeValue();
    void showValue();
    void clearValue();
    const DesignerObject *element() const;
    QStringList elementNames() const;
    QStringList propertyNames() const;

    SharedProperty m_property;
    ChangeLines::Form m_form;
    ChangeLine m_line;
    QString m_title;
    QList<QWidget *> m_fields;          //!< in the order of the keyboard, without the value
    ExpressionEdit *m_first = nullptr;  //!< the target or the condition
    ExpressionEdit *m_second = nullptr; //!< the source or the effect
    KdLineEdit *m_target = nullptr;
    KdLineEdit *m_name = nullptr;
    QWidget *m_valueHolder = nullptr;
    QPointer<EditorRequests> m_requests;
    PropertyEditor *m_value = nullptr; //!< null while the property is unknown
    KdLineEdit *m_text = nullptr;      //!< of the value of an unknown property
};

} // namespace Halvane::Corvex::Designer
