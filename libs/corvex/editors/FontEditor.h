// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/PropertyEditor.h"
#include "corvex/widgets/FontPicker.h"

namespace Halvane::Corvex::Designer {

class FieldButton;

//! A font as text, `bold 24px "DejaVu Sans"`, with a popup for its parts. Of several objects, the popup only
//! changes the part that the user touches.
class CORVEX_EXPORT FontEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

private:
    void openPicker();
    void showMissing();

    KdLineEdit *m_line = nullptr;
    FieldButton *m_open = nullptr;
    QPointer<FontPicker> m_picker; //!< while it is open
    FontPicker::Change m_change;   //!< what was chosen in the popup
};

} // namespace Halvane::Corvex::Designer
