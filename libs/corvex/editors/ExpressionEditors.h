// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/PropertyEditor.h"

#include <memory>

class QDialog;
class QToolButton;

namespace Halvane::Corvex::Designer {

class ExpressionCalculator;
class ExpressionEdit;

/*! Edits an expression or rules as readable text, with completion. Beneath it are the type of the result and
    its value today, with the initial values of the variables. A button, F4 and Ctrl+E open the builder.
*/
class CORVEX_EXPORT ExpressionEditor : public PropertyEditor
{
    Q_OBJECT

public:
    explicit ExpressionEditor(QWidget *parent = nullptr);
    ~ExpressionEditor() override;

    //! An expression needs the width of the panel, an empty field does not.
    bool isWide() const override;
    //! Opens the builder with the text in the field. What it returns is an entry.
    void openBuilder();

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    class Watch;
    void showResult();
    void openExpressionBuilder(const SharedProperty &property);
    void openRules(const SharedProperty &property);
    void open(QDialog *dialog);
    void take(const QString &text, const QString &stored);

    ExpressionEdit *m_edit = nullptr;
    QToolButton *m_open = nullptr;
    QString m_built; //!< the stored form of an entry from the builder that has no readable form
    QPointer<QDialog> m_dialog;
    std::shared_ptr<ExpressionCalculator> m_calculator;
    std::unique_ptr<Watch> m_watch;
};

class CORVEX_EXPORT VerticalBooleanExpressionEditor : public ExpressionEditor
{
    Q_OBJECT

public:
    using ExpressionEditor::ExpressionEditor;
};

class CORVEX_EXPORT VerticalMathExpressionEditor : public ExpressionEditor
{
    Q_OBJECT

public:
    using ExpressionEditor::ExpressionEditor;
};

class CORVEX_EXPORT VerticalStringExpressionEditor : public ExpressionEditor
{
    Q_OBJECT

public:
    using ExpressionEditor::ExpressionEditor;
};

} // namespace Halvane::Corvex::Designer
