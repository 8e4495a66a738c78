// SPDX-License-Identifier: MIT
#include "corvex/editors/ColorEditors.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/editors/private/ModelWatch.h"
#include "corvex/editors/private/TextContrast.h"
#include "corvex/editors/private/UsedColors.h"
#include "corvex/project/Project.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/widgets/ColorEdit.h"
#include "corvex/widgets/ColorPicker.h"
#include "corvex/widgets/ColorSwatch.h"
#include "corvex/widgets/KdLineEdit.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

ColorEdit *ColorFieldEditor::createColorEdit(const QString &part)
{
    m_edit = new ColorEdit(this);
    prepareLine(m_edit->line(), part);
    prepareField(m_edit->swatch(), LocalizationHelper::coreString(u"picker"_s));
    connect(m_edit, &ColorEdit::pickerOpens, this, &ColorFieldEditor::preparePicker);
    connect(m_edit, &ColorEdit::chosen, this, [this] { completeEntry(); });
    connect(m_edit, &ColorEdit::stepped, this, [this] { completeStep(); });
    connect(m_edit, &ColorEdit::dragBegan, this, &ColorFieldEditor::gestureBegan);
    connect(m_edit, &ColorEdit::dragEnded, this, &ColorFieldEditor::gestureEnded);
    connect(m_edit, &ColorEdit::dragCancelled, this, &ColorFieldEditor::gestureCancelled);
    return m_edit;
}

void ColorFieldEditor::preparePicker(ColorPicker *picker)
{
    picker->offer(LocalizationHelper::coreString(u"In this project"_s), usedColors());
    if (requests() && requests()->isServed(EditorRequests::Color)) {
        picker->offerPicking();
        connect(picker, &ColorPicker::pickRequested, this, [this] {
            const auto use = [this](const QColor &color) { enterColor(color); };
            emit requests()->colorRequested(answerFor<const QColor &>(use));
        });
    }
}

void ColorFieldEditor::enterColor(const QColor &color)
{
    m_edit->enterColor(color);
}

QList<QColor> ColorFieldEditor::usedColors() const
{
    const SharedProperty first = firstProperty();
    const DesignerObject *object = !first ? nullptr : first->parentObject();
    return object ? UsedColors::near(*object) : QList<QColor>();
}

void ColorEditor::createFields()
{
    fields()->addWidget(createColorEdit());
}

void ColorEditor::showRow()
{
    const SharedProperty first = firstProperty();
    const bool isMixed = row().isMixed || !first;
    colorEdit()->line()->setPlaceholderText(row().isMixed ? mixedText() : QString());
    colorEdit()->setColor(isMixed ? QColor() : ValueConversion::toColor(row().value),
                          isMixed ? QString() : ReadableValue::print(*first, row().value));
    if (first && !hasSeveral() && parameter("isTextColor").toBool()) {
        if (!m_watch) {
            m_watch = new ModelWatch(&TextContrast::dependsOn, this);
            connect(m_watch, &ModelWatch::changed, this, &ColorEditor::showContrast);
        }
        m_watch->follow(first->parentObject()->project());
        m_watch->report(); // looking at all elements of the screen must not delay the panel
    } else {
        setHint({}, Hint::Warning);
    }
}

void ColorEditor::showContrast()
{
    const SharedProperty first = firstProperty();
    std::optional<double> contrast;
    if (first && !hasSeveral() && parameter("isTextColor").toBool()) {
        contrast = TextContrast::of(*first->parentObject(), ValueConversion::toColor(row().value));
    }
    const bool isLow = contrast && *contrast < TextContrast::enough;
    setHint(isLow
                ? LocalizationHelper::coreString(
                      u"Hard to read: the contrast with what is beneath the text is %1 to 1. Aim for 4.5."_s)
                      .arg(std::floor(*contrast * 10) / 10) // a contrast of 4.46 is not 4.5
                : QString(),
            Hint::Warning);
}

PropertyEditor::Entry ColorEditor::entryFor(const DesignerProperty &property) const
{
    const QString text = colorEdit()->line()->text();
    if (!text.trimmed().isEmpty() && !colorEdit()->entry().isValid()) {
        return {{}, ColorEdit::refusalOf(text)};
    }
    const ReadableValue::Reading reading = ReadableValue::read(property, text);
    return {reading.stored, reading.error};
}

QList<QColor> ScreenColorEditor::usedColors() const
{
    QList<QColor> colors;
    const SharedProperty first = firstProperty();
    const Project *project = !first ? nullptr : first->parentObject()->project();
    if (project) {
        colors = UsedColors::ofScreens(*project);
        for (const QColor &color : ColorEditor::usedColors()) {
            if (!colors.contains(color)) {
                colors.append(color);
            }
        }
    }
    return colors;
}

} // namespace Halvane::Corvex::Designer
