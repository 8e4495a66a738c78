// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/NumberRange.h"
#include "corvex/editors/PropertyEditor.h"
#include "corvex/widgets/Arithmetic.h"

#include <optional>

namespace Halvane::Corvex::Designer {

class KdNumberEdit;
class KdSlider;

/*! The base of all editors of one number: a field that calculates, with its unit, and a slider if the row has
    the parameter "showSlider".

    The parameters "minimum", "maximum", "above", "singleStep" and "suffix" (the unit) are those of the row.
   With the unit "ms", the field also takes times such as "5 s" or "1 min 30 s".
*/
class CORVEX_EXPORT NumericEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

    bool canScrub() const override { return true; }
    void scrub(double steps) override;

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

    //! The unit of a row without the parameter "suffix".
    virtual QString ownUnit() const { return {}; }
    //! The stored text of a number that was typed or calculated. \a own is the text of the property, \a typed
    //! is empty for a step.
    virtual Entry stored(const Arithmetic::Result &result, const QString &own, const QString &typed) const;
    //! Whether the value is a whole number.
    bool isWhole() const;

private:
    QString unit() const;
    QList<Arithmetic::Unit> units() const;
    double step() const;
    double withStep(double number) const;
    void showSlider();
    void takeSteps(double steps);
    void drag(int position);

    KdNumberEdit *m_line = nullptr;
    KdSlider *m_slider = nullptr; //!< created when the first row needs it
    std::optional<double> m_dragged;
    double m_change = 0; //!< of the step that is being entered
    double m_rest = 0;   //!< of a whole number: the part of a change that was not used yet
};

} // namespace Halvane::Corvex::Designer
