// SPDX-License-Identifier: MIT
#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/properties/GradientStopsProperty.h"
#include "corvex/editors/ColorEditors.h"
#include "corvex/editors/private/GradientBar.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/widgets/Arithmetic.h"
#include "corvex/widgets/ColorEdit.h"
#include "corvex/widgets/ColorSwatch.h"
#include "corvex/widgets/KdNumberEdit.h"
#include "corvex/widgets/Theme.h"

#include <QHBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

const QList<Arithmetic::Unit> &percent()
{
    static const QList<Arithmetic::Unit> units{{u"%"_s, 1}};
    return units;
}

} // namespace

void GradientStopsEditor::createFields()
{
    auto *rows = new QVBoxLayout;
    rows->setSpacing(Theme::gap);
    m_bar = new GradientBar(this);
    m_bar->setToolTip(LocalizationHelper::coreString(
        u"Double-click to add a stop. Drag a stop away or press Delete to remove it."_s));
    prepareField(m_bar, LocalizationHelper::coreString(u"stops"_s));
    rows->addWidget(m_bar);
    auto *line = new QHBoxLayout;
    line->setSpacing(Theme::gap);
    m_position = new KdNumberEdit(this);
    m_position->setUnit(percent().constFirst().word);
    m_position->setFixedWidth(m_position->fontMetrics().horizontalAdvance(u"100 %"_s) + 22);
    prepareLine(m_position, LocalizationHelper::coreString(u"position"_s));
    connect(m_position, &KdNumberEdit::stepRequested, this, [this](double steps) {
        if (!m_position->hasEntry()) {
            m_bar->moveSelectedBy(steps);
        }
    });
    line->addWidget(m_position);
    line->addWidget(createColorEdit(LocalizationHelper::coreString(u"color"_s)), 1);
    rows->addLayout(line);
    fields()->addLayout(rows, 1);

    connect(m_bar, &GradientBar::selectionChanged, this, &GradientStopsEditor::showSelected);
    connect(m_bar, &GradientBar::changed, this, [this] { completeEntry(); });
    connect(m_bar, &GradientBar::dragged, this, [this] { completeEntry(); });
    connect(m_bar, &GradientBar::stepped, this, [this] { completeStep(); });
    connect(m_bar, &GradientBar::dragBegan, this, &GradientStopsEditor::gestureBegan);
    connect(m_bar, &GradientBar::dragEnded, this, &GradientStopsEditor::gestureEnded);
    connect(m_bar, &GradientBar::dragCancelled, this, [this] {
        emit gestureCancelled();
        restore();
    });
    connect(m_bar, &GradientBar::restored, this, &GradientStopsEditor::restore);
}

void GradientStopsEditor::showRow()
{
    m_bar->setStops(row().isMixed ? QGradientStops() : ValueConversion::toGradientStops(row().value));
    m_bar->setText(row().isMixed ? mixedText() : LocalizationHelper::coreString(u"No stops"_s));
    showSelected();
}

void GradientStopsEditor::showSelected()
{
    const int selected = m_bar->selected();
    const QGradientStop stop = selected >= 0 ? m_bar->stops().at(selected) : QGradientStop(0, QColor());
    m_position->setShownText(selected >= 0 ? QString::number(qRound(stop.first * 100)) : QString());
    m_position->setEnabled(selected >= 0);
    colorEdit()->setColor(stop.second);
    colorEdit()->setEnabled(selected >= 0);
}

PropertyEditor::Entry GradientStopsEditor::entryFor(const DesignerProperty &) const
{
    QGradientStops stops = m_bar->stops();
    if (m_bar->selected() >= 0) {
        QGradientStop &stop = stops[m_bar->selected()];
        if (m_position->hasEntry()) {
            const Arithmetic::Result result =
                Arithmetic::evaluate(m_position->text(), qRound(stop.first * 100), percent());
            if (!result.error.isEmpty()) {
                return {{}, result.error};
            }
            if (result.number < 0 || result.number > 100) {
                return {{}, LocalizationHelper::coreString(u"The position takes 0 to 100 %."_s)};
            }
            stop.first = qRound(result.number) / 100.0;
        }
        if (colorEdit()->line()->hasEntry()) {
            stop.second = colorEdit()->entry();
            if (!stop.second.isValid()) {
                return {{}, ColorEdit::refusalOf(colorEdit()->line()->text())};
            }
        }
    } else { // the values differ
        stops = GradientStopsProperty::initValue();
    }
    std::ranges::stable_sort(stops, {}, &QGradientStop::first);
    return {ValueConversion::toString(stops), {}};
}

} // namespace Halvane::Corvex::Designer
