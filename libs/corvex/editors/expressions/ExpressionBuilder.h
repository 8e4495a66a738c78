// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"
#include "corvex/values/expressions/ExpressionPurpose.h"

#include <QWidget>

#include <memory>

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QStackedWidget;
class QTableView;
class QToolButton;

namespace Halvane::Corvex::Designer {

class ExpressionCalculator;
class ExpressionEdit;
class ExpressionScope;
class TermsPage;
class TestValues;
struct ExpressionFix;

/*! Edits an expression as text or as a list of its terms. Beneath it are what is wrong with it and how to
    correct that, the type and value of the selected part, values to try it with, and the code for the device.
    The values are those of the running project (LiveValues), if there are any, or else those of the project.

    The builder changes nothing: its owner reads stored() or text().
*/
class CORVEX_EXPORT ExpressionBuilder : public QWidget
{
    Q_OBJECT

public:
    //! An expression at the place of \a property; its value is not read.
    explicit ExpressionBuilder(const SharedProperty &property, QWidget *parent = nullptr);
    //! A part of it, such as the condition of a rule.
    ExpressionBuilder(const SharedProperty &property, const ExpressionPurpose &purpose,
                      QWidget *parent = nullptr);
    ~ExpressionBuilder() override;

    //! An expression without a readable form is shown as terms.
    void setStored(const QString &stored);
    //! A text that the user has typed, which may be incorrect.
    void setText(const QString &text);

    //! Why the expression cannot be used, with the place; empty if it can.
    QString errorString() const;
    //! Empty if there is an error.
    QString stored() const;
    //! What the user has typed, or the readable form of the terms; null if they have none.
    QString text() const;
    //! Whether it is shown as text; otherwise as terms.
    bool showsText() const;
    //! Returns false if the other view cannot show the whole expression; the builder shows the reason.
    bool showAsText(bool isText);

signals:
    void changed();

private:
    struct State;
    ExpressionBuilder(std::unique_ptr<State> state, QWidget *parent);
    void createEditors();
    void createHelp();
    QWidget *createTestValues();
    QWidget *createResults();
    void onChanged();
    void showProblem();
    void showCall();
    void showPart();
    void showValues();
    void refuse(const QString &reason);
    void applyFix();

    std::unique_ptr<State> m_state;
    QToolButton *m_asText = nullptr;
    QToolButton *m_asTerms = nullptr;
    QStackedWidget *m_pages = nullptr;
    ExpressionEdit *m_edit = nullptr;
    TermsPage *m_terms = nullptr;
    QLabel *m_call = nullptr;
    QLabel *m_problem = nullptr;
    QPushButton *m_fix = nullptr;
    TestValues *m_values = nullptr;
    QLabel *m_valuesTitle = nullptr;
    QLabel *m_partText = nullptr;
    QLabel *m_partValue = nullptr;
    QPlainTextEdit *m_code = nullptr;
};

} // namespace Halvane::Corvex::Designer
