// SPDX-License-Identifier: MIT
#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/properties/BorderProperty.h"
#include "corvex/editors/ColorEditors.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/widgets/ColorEdit.h"
#include "corvex/widgets/KdLineEdit.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

constexpr int widest = 100;
constexpr int coarse = 10;

} // namespace

void BorderEditor::createFields()
{
    m_width = addLine(LocalizationHelper::coreString(u"width"_s), 0);
    m_width->setFixedWidth(m_width->fontMetrics().horizontalAdvance(u"100 px"_s) + 16);
    m_width->installEventFilter(this);
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
    m_width->setShownText(sharesWidth ? u"%1 px"_s.arg(first.width()) : QString());
    colorEdit()->line()->setPlaceholderText(sharesColor ? QString() : mixedText());
    colorEdit()->setColor(sharesColor ? first.color() : QColor());
}

//! Only what was entered replaces the part of each object.
PropertyEditor::Entry BorderEditor::entryFor(const DesignerProperty &property) const
{
    BorderInfo border(valueOf(property));
    if (m_width->hasEntry()) {
        QString text = m_width->text().trimmed();
        if (text.endsWith("px"_L1)) {
            text.chop(2);
        }
        bool isNumber = false;
        const int width = ValueConversion::toInt(text.trimmed(), &isNumber);
        if (!isNumber || width < 0 || width > widest) {
            return {{}, LocalizationHelper::coreString(u"The width takes 0 to 100 whole pixels."_s)};
        }
        border.setWidth(width);
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
    takeStep(int(std::copysign(std::max(1.0, std::abs(steps)), steps)));
    completeEntry();
}

//! The next width is in the field if the objects have the same one, so that a refused width can be seen.
void BorderEditor::takeStep(int steps)
{
    const QList<SharedProperty> all = properties();
    if (m_width->placeholderText().isEmpty() && !all.isEmpty()) {
        const int width = std::clamp(BorderInfo(valueOf(*all.constFirst())).width() + steps, 0, widest);
        m_width->enterText(QString::number(width));
    } else {
        m_steps = steps;
    }
}

void BorderEditor::step(int steps)
{
    if (!row().isReadOnly && !m_width->hasEntry()) {
        takeStep(steps);
        completeStep();
    }
}

bool BorderEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_width && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const int size = key->modifiers() & Qt::ControlModifier ? coarse : 1;
        if (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down) {
            step(key->key() == Qt::Key_Up ? size : -size);
            return true;
        }
    }
    if (watched == m_width && event->type() == QEvent::Wheel && m_width->hasFocus()) {
        const int delta = static_cast<QWheelEvent *>(event)->angleDelta().y();
        if (delta != 0) {
            step(delta > 0 ? 1 : -1);
        }
        return true;
    }
    return PropertyEditor::eventFilter(watched, event);
}

} // namespace Halvane::Corvex::Designer
