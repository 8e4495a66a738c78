// SPDX-License-Identifier: MIT
#include "corvex/variables/LogVariable.h"

#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/EnumProperty.h"

#include <limits>

namespace Halvane::Corvex::Designer {

bool LogVariable::initializeProperties()
{
    const auto integer = [](const char *id, const char *title, int initial) {
        return row<IntegerProperty>(id, title, initial).allowInvalid();
    };
    static const PropertyTable table{
        fixedPersistence(false),
        integer("maxDataPoints", "Maximum data points", 10000)
            .description("The number of values after which the log is full.")
            .rank(12)
            .editor("RepeatTimerEditor")
            .parameter("minimum", 5)
            .parameter("maximum", 100000),
        enumRow("behavior", "Roll-Over Behavior", "RollOverBehavior")
            .description("What a full log does: overwrite the oldest value, stop, or save its values to a "
                         "file and begin again.")
            .rank(13),
        integer("interval", "Interval", 5000)
            .description("The time between two samples, in milliseconds.")
            .example("10000")
            .rank(14)
            .parameter("minimum", 3000)
            .parameter("maximum", std::numeric_limits<int>::max())
            .parameter("singleStep", 100)
            .parameter("suffix", QStringLiteral(" ms")),
        integer("startDelay", "Start Delay", 0)
            .rank(15)
            .editor("StartDelayEditor")
            .description("<ul><li>0: The timer is triggered immediately when started.</li><li>Positive "
                         "Number: The timer is triggered after a specified delay.</li></ul>"),
        row<BooleanProperty>("autoStart", "Automatic Start", true)
            .rank(16)
            .allowInvalid()
            .description("If set to true, the timer will start automatically after the screen is loaded."),
    };
    return ProjectVariable::initializeProperties() && addProperties(table);
}

SharedProperty LogVariable::initializeValueProperty()
{
    return NumberVariable::numberRow().make(this);
}

} // namespace Halvane::Corvex::Designer
