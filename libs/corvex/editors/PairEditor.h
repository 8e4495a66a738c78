// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/PropertyEditor.h"

#include <QPointF>

#include <array>
#include <optional>

namespace Halvane::Corvex::Designer {

class KdNumberEdit;

/*! The base of editors of two numbers, such as width and height: a field for each. An entry in one field
   changes that number of every object and keeps the other. Both fields calculate, and take both numbers in
   the readable form of the value ("120 x 40").
*/
class CORVEX_EXPORT PairEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

protected:
    using Pair = std::array<double, 2>;
    //! A field: its name for screen readers, and the sign in front of its number.
    struct Part
    {
        QString name;
        QString sign;
    };

    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

    virtual std::array<Part, 2> parts() const = 0;
    virtual std::optional<Pair> read(const QString &stored) const = 0;
    //! \a own is the text of the property, for what else is in the value.
    virtual QString print(const Pair &pair, const QString &own) const = 0;
    //! What separates the numbers in the readable form.
    virtual QString separator() const = 0;
    //! Changes the other number after \a place has changed.
    virtual void adjust(const Pair & /*own*/, size_t /*place*/, Pair & /*changed*/) const { }
    //! Shows a reason against the entry while the user types.
    virtual bool checksWhileTyping() const { return false; }
    //! For what a derived class adds to its layout.
    KdNumberEdit *line(size_t place) const { return m_lines[place]; }

private:
    QString unit() const;
    void check();

    std::array<KdNumberEdit *, 2> m_lines{};
    size_t m_stepped = 0;
    double m_change = 0; //!< of the step that is being entered
};

} // namespace Halvane::Corvex::Designer
