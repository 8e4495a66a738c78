// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/PropertyEditor.h"

class QToolButton;

namespace Halvane::Corvex::Designer {

class ChangesTable;
class ExpressionEdit;

/*! Edits what a state, an action or a press of a button changes: as a table with a line for each change, or
   as readable text. Each value has the editor of its property.
*/
class CORVEX_EXPORT ChangesEditor : public PropertyEditor
{
    Q_OBJECT

public:
    explicit ChangesEditor(QWidget *parent = nullptr);

    bool isWide() const override { return true; }
    //! Adds a line to \a changes that sets the property of the element to its current value, or updates the
    //! line that it has. For changes on the canvas while EditorRequests::recorded() is set.
    static PlannedCommand recordOf(const SharedProperty &changes, const DesignerObject *object,
                                   const QString &property);
    //! Returns false if the other view cannot show the whole value; the editor shows the reason.
    bool showAsText(bool isText);

protected:
    void createFields() override;
    void showRow() override;
    PlannedCommand plan() const override;
    Entry entryFor(const DesignerProperty &property) const override;

private:
    void showView(bool isText);

    ChangesTable *m_table = nullptr;
    ExpressionEdit *m_text = nullptr;
    QToolButton *m_asText = nullptr;
    QToolButton *m_record = nullptr;
    bool m_wantsText = false; //!< the user has chosen the text
};

//! The changes of a state: element, property and value.
class CORVEX_EXPORT ElementPropertyChangesEditor : public ChangesEditor
{
    Q_OBJECT

public:
    using ChangesEditor::ChangesEditor;
};

//! The changes of an action, or assignments.
class CORVEX_EXPORT PropertyChangesEditor : public ChangesEditor
{
    Q_OBJECT

public:
    using ChangesEditor::ChangesEditor;
};

} // namespace Halvane::Corvex::Designer
