// SPDX-License-Identifier: MIT
#include "corvex/common/LocalizationHelper.h"
#include "corvex/editors/ColorEditors.h"
#include "corvex/editors/private/ColorStrip.h"
#include "corvex/editors/private/FieldButton.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/widgets/ColorEdit.h"
#include "corvex/widgets/ColorSwatch.h"
#include "corvex/widgets/KdLineEdit.h"
#include "corvex/widgets/Theme.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

void ColorListEditor::createFields()
{
    const QString addText = LocalizationHelper::coreString(u"add a color"_s);
    const QString removeText = LocalizationHelper::coreString(u"remove the selected color"_s);
    m_strip = new ColorStrip(this);
    m_add = new FieldButton(IconSet::Add, addText, this);
    m_remove = new FieldButton(IconSet::Remove, removeText, this);
    auto *rows = new QVBoxLayout;
    rows->setSpacing(Theme::gap);
    auto *first = new QHBoxLayout;
    first->setSpacing(0);
    first->addWidget(m_strip, 1);
    first->addWidget(m_add);
    first->addWidget(m_remove);
    rows->addLayout(first);
    prepareField(m_strip, LocalizationHelper::coreString(u"colors"_s));
    prepareField(m_add, addText);
    prepareField(m_remove, removeText);
    rows->addWidget(createColorEdit(LocalizationHelper::coreString(u"selected color"_s)));
    fields()->addLayout(rows, 1);

    connect(m_strip, &ColorStrip::selectionChanged, this, &ColorListEditor::showSelected);
    connect(m_strip, &ColorStrip::changed, this, [this] { completeEntry(); });
    connect(m_strip, &ColorStrip::restored, this, &ColorListEditor::restore);
    connect(m_add, &FieldButton::clicked, this, &ColorListEditor::add);
    connect(m_remove, &FieldButton::clicked, m_strip, &ColorStrip::removeSelected);
}

void ColorListEditor::showRow()
{
    // An empty list and an unreadable one have no valid color.
    bool ok = false;
    const QList<QColor> colors = ValueConversion::toColorList(row().value, &ok);
    m_strip->setColors(ok && !row().isMixed ? colors : QList<QColor>());
    m_strip->setText(row().isMixed               ? mixedText()
                     : m_strip->colors().empty() ? LocalizationHelper::coreString(u"No colors"_s)
                                                 : QString());
    showSelected();
}

void ColorListEditor::showSelected()
{
    const int selected = m_strip->selected();
    colorEdit()->setColor(selected >= 0 ? m_strip->colors().at(selected) : QColor());
    colorEdit()->setEnabled(selected >= 0);
    m_remove->setEnabled(selected >= 0 && !row().isReadOnly);
}

//! Adds a color after the selected one, and selects it.
void ColorListEditor::add()
{
    QList<QColor> colors = m_strip->colors();
    const int selected = m_strip->selected();
    colors.insert(selected + 1, selected >= 0 ? colors.at(selected) : QColor(Qt::black));
    m_strip->setColors(colors);
    m_strip->select(selected + 1);
    completeEntry();
}

PropertyEditor::Entry ColorListEditor::entryFor(const DesignerProperty &) const
{
    QList<QColor> colors = m_strip->colors();
    if (colorEdit()->line()->hasEntry() && m_strip->selected() >= 0) {
        const QColor color = colorEdit()->entry();
        if (!color.isValid()) {
            return {{}, ColorEdit::refusalOf(colorEdit()->line()->text())};
        }
        colors[m_strip->selected()] = color;
    }
    return {ValueConversion::toString(colors), {}};
}

} // namespace Halvane::Corvex::Designer
