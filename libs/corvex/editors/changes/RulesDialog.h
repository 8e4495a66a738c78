// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"

#include <QDialog>

class QLabel;

namespace Halvane::Corvex::Designer {

class ChangesTable;

//! The rules of a property in a dialog, each with its condition and its effect. Ctrl+Enter accepts it.
class CORVEX_EXPORT RulesDialog : public QDialog
{
    Q_OBJECT

public:
    explicit RulesDialog(const SharedProperty &property, QWidget *parent = nullptr);

    //! Returns false if the rules have no readable form.
    bool setStored(const QString &stored);
    QString stored() const { return m_stored; }

    void accept() override;
    //! Asks first if rules were changed.
    void reject() override;
    //! Closes without a question.
    void discard();

private:
    QString problem();

    SharedProperty m_property;
    ChangesTable *m_table;
    QLabel *m_problem;
    QString m_stored;
    QString m_shown; //!< the rules at the beginning
};

} // namespace Halvane::Corvex::Designer
