// SPDX-License-Identifier: MIT
#include "corvex/editors/NumericEditor.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/widgets/KdNumberEdit.h"
#include "corvex/widgets/KdSlider.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

constexpr int widthBesideSlider = 72;
constexpr double millisecondStep = 100;
constexpr int mostPositions = 100'000;

const QList<Arithmetic::Unit> &timeUnits()
{
    static const QList<Arithmetic::Unit> units{
        {u"ms"_s, 1}, {u"s"_s, 1000}, {u"min"_s, 60'000}, {u"h"_s, 3'600'000}};
    return units;
}

//! The time in the largest unit that gives a whole number, or in seconds: "5 s", "1.5 s", "2 min".
QString timeText(double milliseconds)
{
    const QList<Arithmetic::Unit> &units = timeUnits();
    const auto unit = std::find_if(units.rbegin(), units.rend() - 2, [milliseconds](const auto &row) {
        return std::fmod(milliseconds, row.factor) == 0;
    });
    return u"%1 %2"_s.arg(ValueConversion::toString(milliseconds / unit->factor), unit->word);
}

} // namespace

void NumericEditor::createFields()
{
    m_line = new KdNumberEdit(this);
    prepareLine(m_line);
    fields()->addWidget(m_line, 1);
    connect(m_line, &KdNumberEdit::stepRequested, this, &NumericEditor::takeSteps);
}

bool NumericEditor::isWhole() const
{
    return row().kind == "IntegerProperty"_L1;
}

QString NumericEditor::unit() const
{
    const QString suffix = parameter("suffix").toString().trimmed();
    return suffix.isEmpty() ? ownUnit() : suffix;
}

QList<Arithmetic::Unit> NumericEditor::units() const
{
    const QString word = unit();
    return word.isEmpty()    ? QList<Arithmetic::Unit>()
           : word == "ms"_L1 ? timeUnits()
                             : QList<Arithmetic::Unit>{{word, 1}};
}

double NumericEditor::step() const
{
    // Rows of plug-ins use both spellings.
    for (const char *key : {"singleStep", "singelStep"}) {
        if (const double step = parameter(key).toDouble(); step > 0) {
            return step;
        }
    }
    return unit() == "ms"_L1 ? millisecondStep : 1;
}

void NumericEditor::showRow()
{
    bool isNumber = false;
    const double number = ValueConversion::toReal(row().value, &isNumber);
    const bool isLongTime = unit() == "ms"_L1 && isNumber && number >= 1000;
    m_line->setUnit(isLongTime ? u"ms = "_s + timeText(number) : unit());
    m_line->setPlaceholderText(row().isMixed ? mixedText() : QString());
    m_line->setShownText(row().value);
    showSlider();
}

//! The positions of the slider are the steps from the minimum.
void NumericEditor::showSlider()
{
    const NumberRange range = NumberRange::of(row().editorParameters);
    const double positions = std::ceil((range.maximum - range.minimum) / step());
    const bool isShown = parameter("showSlider").toBool() && positions >= 1 && positions <= mostPositions;
    if (isShown && !m_slider) {
        m_slider = new KdSlider(this);
        m_slider->setFocusPolicy(Qt::ClickFocus); // with the Tab key, the line is enough
        addField(m_slider, LocalizationHelper::coreString(u"slider"_s), 1);
        connect(m_slider, &KdSlider::dragBegan, this, &NumericEditor::gestureBegan);
        connect(m_slider, &KdSlider::dragged, this, &NumericEditor::drag);
        connect(m_slider, &KdSlider::dragEnded, this, &NumericEditor::gestureEnded);
        connect(m_slider, &KdSlider::dragCancelled, this, &NumericEditor::gestureCancelled);
        connect(m_slider, &KdSlider::stepRequested, this, &NumericEditor::takeSteps);
    }
    m_line->setMaximumWidth(isShown ? widthBesideSlider : QWIDGETSIZE_MAX);
    fields()->setStretchFactor(m_line, isShown ? 0 : 1);
    if (!m_slider) {
        return;
    }
    m_slider->setVisible(isShown);
    m_slider->setEnabled(!row().isReadOnly);
    if (isShown) {
        const QSignalBlocker blocker(m_slider);
        const double number = row().isMixed ? range.minimum : ValueConversion::toReal(row().value);
        m_slider->setRange(0, int(positions));
        m_slider->setValue(int(std::clamp((number - range.minimum) / step(), 0.0, positions)));
    }
}

void NumericEditor::drag(int position)
{
    const NumberRange range = NumberRange::of(row().editorParameters);
    m_dragged = std::min(range.minimum + position * step(), range.maximum);
    completeEntry();
    m_dragged.reset();
}

void NumericEditor::scrub(double steps)
{
    m_rest += steps * step();
    m_change = isWhole() ? std::trunc(m_rest) : m_rest;
    m_rest -= m_change;
    if (m_change != 0) {
        completeEntry();
        m_change = 0;
    }
}

void NumericEditor::takeSteps(double steps)
{
    m_change = steps * step();
    if (isWhole()) {
        m_change = std::copysign(std::max(1.0, std::trunc(std::abs(m_change))), m_change);
    }
    completeStep();
    m_change = 0;
}

//! Steps end at the limits of the range, but lead back from outside of it.
double NumericEditor::withStep(double number) const
{
    const NumberRange range = NumberRange::of(row().editorParameters);
    const double changed = std::clamp(number + m_change, range.minimum, range.maximum);
    return range.contains(changed) ? changed : number;
}

PropertyEditor::Entry NumericEditor::entryFor(const DesignerProperty &property) const
{
    const QString own = valueOf(property);
    if (m_dragged) {
        return stored({.number = *m_dragged}, own, {});
    }
    Entry entry{own, {}};
    if (m_line->hasEntry()) {
        const QString typed = m_line->text().trimmed();
        // Without a digit it is no calculation; the model says what it takes.
        const bool hasDigit = std::ranges::any_of(typed, [](QChar sign) { return sign.isDigit(); });
        const Arithmetic::Result result =
            hasDigit ? Arithmetic::evaluate(typed, ValueConversion::toReal(own), units())
                     : Arithmetic::Result{.isPlain = true};
        entry = result.error.isEmpty() ? stored(result, own, typed) : Entry{{}, result.error};
    }
    bool isNumber = false;
    const double number = ValueConversion::toReal(entry.text, &isNumber);
    if (m_change == 0 || !isNumber) {
        return entry;
    }
    return stored({.number = withStep(number)}, entry.text, {});
}

PropertyEditor::Entry NumericEditor::stored(const Arithmetic::Result &result, const QString &,
                                            const QString &typed) const
{
    bool isReadable = false;
    if (result.isPlain) {
        ValueConversion::toReal(QString(typed).replace(u',', u'.'), &isReadable);
        if (!isReadable || isWhole()) {
            return {typed, {}}; // the model refuses what it cannot take
        }
    }
    const QString text = isWhole() ? QString::number(std::round(result.number), 'f', 0)
                                   : ValueConversion::toString(result.number);
    return {text == "-0"_L1 ? u"0"_s : text, {}};
}

} // namespace Halvane::Corvex::Designer
