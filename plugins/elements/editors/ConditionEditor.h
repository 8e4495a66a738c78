// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/PropertyEditor.h"

#include <array>

class QGridLayout;
class QLabel;

namespace Halvane::Corvex::Designer {
class KdComboBox;
class KdNumberEdit;
} // namespace Halvane::Corvex::Designer

namespace Halvane::Corvex::Elements {

//! Two comparisons as a sentence: "above 10, and at most 20".
class ConditionEditor : public Designer::PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

    bool isWide() const override { return true; }

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const Designer::DesignerProperty &property) const override;

private:
    //! A comparison: its words and its number.
    struct Comparison
    {
        Designer::KdComboBox *words = nullptr;
        Designer::KdNumberEdit *number = nullptr;
    };
    Comparison addComparison(QGridLayout *grid, int line);
    void showComparison(const Comparison &comparison, const QString &name, double number) const;

    std::array<Comparison, 2> m_comparisons;
    Designer::KdComboBox *m_joint = nullptr;
    QLabel *m_sentence = nullptr;
    size_t m_stepped = 0;
    double m_change = 0; //!< of the step that is being entered
};

} // namespace Halvane::Corvex::Elements
