// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/expressions/ExpressionBuilder.h"

#include <QDialog>

namespace Halvane::Corvex::Designer {

//! The expression builder in a dialog. It is only accepted without an error, and asks before it discards what
//! the user has entered. Ctrl+Enter accepts it.
class CORVEX_EXPORT ExpressionDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ExpressionDialog(const SharedProperty &property, QWidget *parent = nullptr);
    ExpressionDialog(const SharedProperty &property, const ExpressionPurpose &purpose,
                     QWidget *parent = nullptr);

    ExpressionBuilder *builder() const { return m_builder; }
    //! Closes the dialog without a question.
    void discard();

    void accept() override;
    void reject() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void create();
    QString contents() const;

    ExpressionBuilder *m_builder;
    QString m_shown; //!< the contents at the beginning
};

} // namespace Halvane::Corvex::Designer
