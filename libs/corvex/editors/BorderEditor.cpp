// SPDX-License-Identifier: MIT
#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/properties/BorderProperty.h"
#include "corvex/editors/ColorEditors.h"
#include "corvex/widgets/Arithmetic.h"
#include "corvex/widgets/ColorEdit.h"
#include "corvex/widgets/KdNumberEdit.h"

#include <QHBoxLayout>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

constexpr int widest = 100;

const QList<Arithmetic::Unit> &pixels()
{
    static const QList<Arithmetic::Unit> units{{u"px"_s, 1}};
    return units;
}

} // namespace

void BorderEditor::createFields()
{
    m_width = new KdNumberEdit(this);
    m_width->setUnit(pixels().constFirst().word);
    m_width->setFixedWidth(m_width->fontMetrics().horizontalAdvance(u"100 px"_s) + 22);
    prepareLine(m_width, LocalizationHelper::coreString(u"width"_s));
    fields()->addWidget(m_width);
    connect(m_width, &KdNumberEdit::stepRequested, this, [this](double steps) {
        if (!m_width->hasEntry()) {
            takeSteps(steps);
            completeStep();
        }
    });
    fields()->addWidget(createColorEdit(LocalizationHelper::coreString(u"color"_s)), 1);
}

void BorderEditor::showRow()
{
    m_steps = 0;
    const QList<SharedProperty> all = properties();
    if (all.isEmpty()) {
        return;
    }
    const BorderInfo first(valueOf(*all.constFirst()));
    const bool sharesWidth = std::ranges::all_of(all, [this, &first](const SharedProperty &property) {
        return BorderInfo(valueOf(*property)).width() == first.width();
    });
    const bool sharesColor = std::ranges::all_of(all, [this, &first](const SharedProperty &property) {
        return BorderInfo(valueOf(*property)).color() == first.color();
    });
    m_width->setPlaceholderText(sharesWidth ? QString() : mixedText());
    m_width->setShownText(sharesWidth ? QString::number(first.width()) : QString());
    colorEdit()->line()->setPlaceholderText(sharesColor ? QString() : mixedText());
    colorEdit()->setColor(sharesColor ? first.color() : QColor());
}

//! Only what was entered replaces the part of each object.
PropertyEditor::Entry BorderEditor::entryFor(const DesignerProperty &property) const
{
    BorderInfo border(valueOf(property));
    if (m_width->hasEntry()) {
        const Arithmetic::Result result = Arithmetic::evaluate(m_width->text(), border.width(), pixels());
        if (!result.error.isEmpty()) {
            return {{}, result.error};
        }
        if (result.number < 0 || result.number > widest || result.number != std::trunc(result.number)) {
            return {{}, LocalizationHelper::coreString(u"The width takes 0 to 100 whole pixels."_s)};
        }
        border.setWidth(int(result.number));
    } else if (m_steps != 0) {
        border.setWidth(std::clamp(border.width() + m_steps, 0, widest));
    }
    if (colorEdit()->line()->hasEntry()) {
        const QColor color = colorEdit()->entry();
        if (!color.isValid()) {
            return {{}, ColorEdit::refusalOf(colorEdit()->line()->text())};
        }
        border.setColor(color);
    }
    return {border.toString(), {}};
}

void BorderEditor::scrub(double steps)
{
    takeSteps(steps);
    completeEntry();
}

//! The next width is in the field if the objects have the same one, so that a refused width can be seen.
void BorderEditor::takeSteps(double steps)
{
    const int change = int(std::copysign(std::max(1.0, std::trunc(std::abs(steps))), steps));
    const SharedProperty first = firstProperty();
    if (m_width->placeholderText().isEmpty() && first) {
        const int width = std::clamp(BorderInfo(valueOf(*first)).width() + change, 0, widest);
        m_width->enterText(QString::number(width));
    } else {
        m_steps = change;
    }
}

} // namespace Halvane::Corvex::Designer
