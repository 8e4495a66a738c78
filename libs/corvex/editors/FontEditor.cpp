// SPDX-License-Identifier: MIT
#include "corvex/editors/FontEditor.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/editors/private/FieldButton.h"
#include "corvex/values/text/ReadableText.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/widgets/KdLineEdit.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

void FontEditor::createFields()
{
    m_line = addLine();
    connect(m_line, &KdLineEdit::edited, this, [this] { m_change = nullptr; });
    m_open = new FieldButton(IconSet::More,
                             LocalizationHelper::coreString(u"Choose family, size and style"_s), this);
    m_open->openFrom(m_line);
    addField(m_open, LocalizationHelper::coreString(u"family, size and style"_s));
    connect(m_open, &FieldButton::clicked, this, &FontEditor::openPicker);
    if (const DesignerFactory *factory = DesignerFactory::instance()) {
        connect(factory, &DesignerFactory::fontsChanged, this, &FontEditor::showMissing);
    }
}

void FontEditor::showRow()
{
    m_change = nullptr;
    const SharedProperty first = firstProperty();
    if (!first) {
        return;
    }
    m_line->setPlaceholderText(row().isMixed ? mixedText() : QString());
    m_line->setShownText(row().isMixed ? QString() : ReadableValue::print(*first, row().value));
    if (m_picker) {
        m_picker->setFont(ValueConversion::toFont(valueOf(*first)));
    }
    showMissing();
}

void FontEditor::showMissing()
{
    const QString family = row().isMixed ? QString() : ValueConversion::toFont(row().value).family();
    setHint(family.isEmpty() || !FontPicker::isMissing(family)
                ? QString()
                : LocalizationHelper::coreString(
                      u"The device does not have the font \"%1\" and shows another one."_s)
                      .arg(family),
            Hint::Warning);
}

void FontEditor::openPicker()
{
    const SharedProperty first = firstProperty();
    if (!first) {
        return;
    }
    m_picker = new FontPicker(m_open);
    m_picker->setFont(ValueConversion::toFont(valueOf(*first)));
    connect(m_picker, &FontPicker::changed, this, [this](const FontPicker::Change &change, bool isStep) {
        m_change = change;
        if (isStep) {
            completeStep();
        } else {
            completeEntry();
        }
    });
    m_picker->open();
}

PropertyEditor::Entry FontEditor::entryFor(const DesignerProperty &property) const
{
    if (m_change) {
        QFont font = ValueConversion::toFont(valueOf(property));
        m_change(font);
        return {ValueConversion::toString(font), {}};
    }
    const QString text = m_line->text();
    bool isStored = false;
    ValueConversion::toFont(text, &isStored);
    if (!isStored && ReadableText::toFont(text).isNull()) {
        return {
            {},
            LocalizationHelper::coreString(
                u"A font has styles, a size in px or pt, and a family in quotes: bold 24px \"DejaVu Sans\". "
                u"Styles are bold, italic, underline, overline and strikeout."_s)};
    }
    const ReadableValue::Reading reading = ReadableValue::read(property, text);
    return {reading.stored, reading.error};
}

} // namespace Halvane::Corvex::Designer
