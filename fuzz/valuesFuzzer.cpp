// SPDX-License-Identifier: MIT
#include "corvex/values/text/ValueConversion.h"

#include "FuzzSupport.h"

#include <cmath>

using namespace Halvane::Corvex::Designer;
using Convert = ValueConversion;

namespace {

//! A number must read back as precisely as three decimals allow.
void checkReal(const QString &text)
{
    bool ok = false;
    const double value = Convert::toReal(text, &ok);
    const double back = Convert::toReal(Convert::toString(value), &ok);
    Fuzz::require(ok && std::abs(value - back) <= 0.0005 + std::abs(value) * 1e-15, "real", text);
    Fuzz::require(!Convert::toQmlString(value, 20).contains(u'e'), "real in generated code", text);
    for (const int decimals : {0, 2, 9}) {
        const double rounded = Convert::restrictDecimals(value, decimals);
        Fuzz::require(std::abs(rounded - value)
                          <= 0.5000001 * std::pow(10.0, -decimals) + std::abs(value) * 1e-15,
                      "rounded to decimals", text);
    }
}

} // namespace

//! Every type of value must keep its text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = Fuzz::toText(data, size);
    const auto check = [&text](const char *kind, auto(*read)(QStringView, bool *)) {
        Fuzz::checkText(kind, text, read, [](const auto &value) { return Convert::toString(value); });
    };
    check("boolean", Convert::toBoolean);
    check("integer", Convert::toInt);
    check("real", Convert::toReal);
    check("colour", Convert::toColor);
    check("colour list", Convert::toColorList);
    check("font", Convert::toFont);
    check("point", Convert::toPoint);
    check("size", Convert::toSize);
    check("polygon", Convert::toPolygon);
    check("polygon list", Convert::toPolygonList);
    check("gradient", Convert::toGradientStops);
    checkReal(text);
    return 0;
}
