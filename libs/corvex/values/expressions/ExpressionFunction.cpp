// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/ExpressionFunction.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/values/expressions/ExpressionKinds.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

const QList<ExpressionFunction> &ExpressionFunction::all()
{
    static const QList<ExpressionFunction> functions{
        {"abs"_L1, "x: number"_L1, "number"_L1, 1, 1, u"The number without its sign.", u"abs(-2.5)", u"2.5"},
        {"acos"_L1, "x: number"_L1, "number"_L1, 1, 1, u"The angle with the cosine x, in radians.",
         u"acos(1)", u"0"},
        {"asin"_L1, "x: number"_L1, "number"_L1, 1, 1, u"The angle with the sine x, in radians.", u"asin(0)",
         u"0"},
        {"atan"_L1, "x: number"_L1, "number"_L1, 1, 1, u"The angle with the tangent x, in radians.",
         u"atan(0)", u"0"},
        {"atan2"_L1, "y: number, x: number"_L1, "number"_L1, 2, 2,
         u"The angle of the point (x, y) seen from the origin, in radians.", u"atan2(0, 1)", u"0"},
        {"ceil"_L1, "x: number"_L1, "number"_L1, 1, 1, u"The next whole number that is not less than x.",
         u"ceil(2.1)", u"3"},
        {"cos"_L1, "angle: number"_L1, "number"_L1, 1, 1, u"The cosine of an angle in radians.", u"cos(0)",
         u"1"},
        {"exp"_L1, "x: number"_L1, "number"_L1, 1, 1, u"E to the power of x.", u"exp(0)", u"1"},
        {"floor"_L1, "x: number"_L1, "number"_L1, 1, 1, u"The next whole number that is not greater than x.",
         u"floor(2.9)", u"2"},
        {"log"_L1, "x: number"_L1, "number"_L1, 1, 1, u"The natural logarithm of x.", u"log(1)", u"0"},
        {"max"_L1, "x: number, ..."_L1, "number"_L1, 1, anyNumber, u"The greatest of the numbers.",
         u"max(3, 12, 7)", u"12"},
        {"min"_L1, "x: number, ..."_L1, "number"_L1, 1, anyNumber, u"The smallest of the numbers.",
         u"min(3, 12, 7)", u"3"},
        {"pow"_L1, "x: number, exponent: number"_L1, "number"_L1, 2, 2, u"x to the power of the exponent.",
         u"pow(2, 10)", u"1024"},
        {"random"_L1, ""_L1, "number"_L1, 0, 0, u"A random number from 0 to 1, without 1.", u"random()", u""},
        {"round"_L1, "x: number"_L1, "number"_L1, 1, 1, u"The nearest whole number; halves are rounded up.",
         u"round(2.5)", u"3"},
        {"sin"_L1, "angle: number"_L1, "number"_L1, 1, 1, u"The sine of an angle in radians.", u"sin(0)",
         u"0"},
        {"sqrt"_L1, "x: number"_L1, "number"_L1, 1, 1, u"The square root of x.", u"sqrt(16)", u"4"},
        {"tan"_L1, "angle: number"_L1, "number"_L1, 1, 1, u"The tangent of an angle in radians.", u"tan(0)",
         u"0"},
        {"poly"_L1, "x: number, coefficient: number, ..."_L1, "number"_L1, 2, anyNumber,
         u"The polynomial of x with these coefficients; the first one is the constant.", u"poly(2, 1, 0, 3)",
         u"13"},
        {"getValueAt"_L1, "log: log, index: number"_L1, "number"_L1, 2, 2,
         u"A value of a log; the newest one has the index 0.", u"getValueAt(history, 0)", u""},
        {"getLogCount"_L1, "log: log"_L1, "number"_L1, 1, 1, u"The number of values in a log.",
         u"getLogCount(history)", u""},
        {"getLogMax"_L1, "log: log"_L1, "number"_L1, 1, 1, u"The greatest value in a log.",
         u"getLogMax(history)", u""},
        {"getLogMin"_L1, "log: log"_L1, "number"_L1, 1, 1, u"The smallest value in a log.",
         u"getLogMin(history)", u""},
        {"getLogAvg"_L1, "log: log"_L1, "number"_L1, 1, 1, u"The mean of the values in a log.",
         u"getLogAvg(history)", u""},
        {"concat"_L1, "text: text, ..."_L1, "text"_L1, 1, anyNumber, u"All texts, one after the other.",
         u"concat(\"Level \", 5, \" %\")", u"Level 5 %"},
        {"split"_L1, "text: text, separator: text, index: number"_L1, "text"_L1, 2, 3,
         u"One piece of a text that is divided at each separator, counted from 0.",
         u"split(\"a-b-c\", \"-\", 1)", u"b"},
        {"replace"_L1, "text: text, old: text, new: text"_L1, "text"_L1, 3, 3,
         u"The text with each occurrence of the old text replaced.", u"replace(\"1.5.2\", \".\", \",\")",
         u"1,5,2"},
        {"replaceFirst"_L1, "text: text, old: text, new: text"_L1, "text"_L1, 3, 3,
         u"The text with the first occurrence of the old text replaced.",
         u"replaceFirst(\"1.5.2\", \".\", \",\")", u"1,5.2"},
        {"replaceLast"_L1, "text: text, old: text, new: text"_L1, "text"_L1, 3, 3,
         u"The text with the last occurrence of the old text replaced.",
         u"replaceLast(\"1.5.2\", \".\", \",\")", u"1.5,2"},
        {"subString"_L1, "text: text, from: number, to: number"_L1, "text"_L1, 2, 3,
         u"The characters from one position to another, which is not included; to the end without it.",
         u"subString(\"Pump 12\", 0, 4)", u"Pump"},
        {"toLowerCase"_L1, "text: text"_L1, "text"_L1, 1, 1, u"The text in lower case.",
         u"toLowerCase(\"PUMP\")", u"pump"},
        {"toUpperCase"_L1, "text: text"_L1, "text"_L1, 1, 1, u"The text in upper case.",
         u"toUpperCase(\"Pump\")", u"PUMP"},
        {"trim"_L1, "text: text"_L1, "text"_L1, 1, 1, u"The text without blanks at its ends.",
         u"trim(\"  Pump \")", u"Pump"},
        {"length"_L1, "text: text"_L1, "number"_L1, 1, 1, u"The number of characters.", u"length(\"Pump\")",
         u"4"},
    };
    return functions;
}

const ExpressionFunction *ExpressionFunction::find(const QString &name)
{
    const auto function = std::ranges::find(all(), name, &ExpressionFunction::name);
    return function == all().cend() ? nullptr : &*function;
}

QString ExpressionFunction::signature() const
{
    return u"%1(%2): %3"_s.arg(name, arguments, result);
}

QString ExpressionFunction::description() const
{
    return Common::LocalizationHelper::coreString(QString::fromUtf16(sentence));
}

QString ExpressionFunction::usableIn() const
{
    const GeneralDataInfo term(GeneralDataInfo::FunctionValue, GeneralDataInfo::FunctionData, QString(name));
    return ExpressionKinds::of(term).join(Common::LocalizationHelper::coreString(u" and "_s));
}

} // namespace Halvane::Corvex::Designer
