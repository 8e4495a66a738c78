// SPDX-License-Identifier: MIT
#include "corvex/core/properties/GradientStopsProperty.h"

#include "corvex/core/properties/ValidationError.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr int minimumStops = 2;
constexpr int maximumStops = 101;

//! Positions are stored in hundredths: two stops in the same hundredth would be the same stop after saving.
bool hasDuplicatePositions(const QGradientStops &stops)
{
    QStringList positions;
    for (const QGradientStop &stop : stops) {
        positions.append(ValueConversion::toString(QGradientStops{{stop.first, Qt::black}}));
    }
    return positions.removeDuplicates() > 0;
}

} // namespace

QGradientStops GradientStopsProperty::initValue()
{
    return {{0, Qt::white}, {1, Qt::black}};
}

bool GradientStopsProperty::validateValue(QString &error) const
{
    const QGradientStops &stops = value();
    const auto all = [&stops](auto check) { return std::all_of(stops.begin(), stops.end(), check); };
    if (stops.size() < minimumStops) {
        return ValidationError::set(error, "The gradient stops must have at least 2 stops.");
    }
    if (stops.size() > maximumStops) {
        return ValidationError::set(error, "The gradient stops cannot have more than %1 stops.",
                                    maximumStops);
    }
    if (hasDuplicatePositions(stops)) {
        return ValidationError::set(error, "Duplicate position values found.");
    }
    if (all([](const QGradientStop &stop) { return stop.second.alpha() == 0; })) {
        return ValidationError::set(error, "Gradient colors cannot be all transparent.");
    }
    if (all([&stops](const QGradientStop &stop) { return stop.second == stops.constFirst().second; })) {
        return ValidationError::set(error, "Gradient colors cannot be all the same.");
    }
    return true;
}

} // namespace Halvane::Corvex::Designer
