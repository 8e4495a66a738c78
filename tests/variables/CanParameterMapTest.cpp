// SPDX-License-Identifier: MIT
#include "corvex/variables/CanParameterMap.h"

#include <gtest/gtest.h>

using namespace Halvane::Corvex::Designer;
using namespace Qt::StringLiterals;
using Info = GeneralDataInfo;

namespace {

//! Two parameters of the electronic engine controller 1.
CanParameterMap engineController()
{
    CanParameterMap map;
    map.setPgn(61444);
    map.setPriority(3);
    map.append({190, u"rpm"_s, 4, 1, 16, 0, 0, 8031.875, 0.125});
    map.append({899, {}, 1, 1, 4, 0, 0, 15, 1});
    return map;
}

Info integer(int number)
{
    return {Info::ConstantValue, Info::IntegerData, QString::number(number)};
}

Info number(const QString &text)
{
    return {Info::ConstantValue, Info::FloatData, text};
}

QString problem(const GeneralDataList &terms)
{
    CanParameterMap map;
    QString error;
    const bool good = map.read(terms, error);
    EXPECT_EQ(good, error.isEmpty());
    EXPECT_EQ(good, !map.parameters().isEmpty());
    return error;
}

//! The positions of the fields in the first parameter, after the three terms of the head.
enum Place { Pgn, Priority, Source, Spn, Units, Byte, Bit, Length, Offset, Minimum, Maximum, Scaling };

TEST(CanParameterMap, IdentifierHas29Bits)
{
    CanParameterMap map = engineController();
    EXPECT_EQ(map.identifier(), 217056256U);
    map.setPgn(0x3FFFF);
    map.setPriority(7);
    map.setSourceAddress(253);
    EXPECT_EQ(map.identifier(), 0x1FFFFFFDU);
}

TEST(CanParameterMap, NeedsCompleteEntries)
{
    const GeneralDataList whole = engineController().toTerms();
    EXPECT_EQ(problem({}), u"At least one SPN required"_s);
    EXPECT_EQ(problem(whole.toList().first(3)), u"At least one SPN required"_s);
    EXPECT_EQ(problem(whole.toList().first(12)), QString());
    for (const qsizetype count : {4, 11, 13, 20}) {
        EXPECT_EQ(problem(whole.toList().first(count)), u"Empty entry"_s) << count;
    }
    for (qsizetype i = 0; i < whole.count(); ++i) {
        GeneralDataList terms = whole;
        terms.replace(i, Info());
        EXPECT_EQ(problem(terms), u"Empty entry"_s) << i;
    }
}

TEST(CanParameterMap, ReportsValuesOutOfRange)
{
    const Info variable(Info::VariableValue, Info::NumberData, u"speed"_s);
    const struct
    {
        Place place;
        Info term;
        const char *error;
    } cases[] = {
        {Pgn, integer(262144), "The PGN must be a whole number from 0 to 262143."},
        {Pgn, integer(-1), "The PGN must be a whole number from 0 to 262143."},
        {Pgn, integer(262143), ""},
        {Priority, integer(8), "The priority must be a whole number from 0 to 7."},
        {Source, integer(254), "The source address must be a whole number from 0 to 253."},
        {Source, variable, "The source address must be a whole number from 0 to 253."},
        {Spn, integer(524287), ""},
        {Spn, integer(524288), "Entry 1: The SPN must be a whole number from 0 to 524287."},
        {Spn, number(u"190"_s), "Entry 1: The SPN must be a whole number from 0 to 524287."},
        {Spn, integer(899), "Entry 2: The SPN is listed twice."},
        {Units, integer(1), "Entry 1: The unit must be a text."},
        {Byte, integer(0), "Entry 1: The byte must be a whole number from 1 to 8."},
        {Byte, integer(9), "Entry 1: The byte must be a whole number from 1 to 8."},
        {Byte, integer(8), "Entry 1: The bits reach beyond the eight bytes of the message."},
        {Byte, integer(7), ""},
        {Byte, integer(1), "Entry 2: The bits overlap those of another entry."},
        {Bit, integer(9), "Entry 1: The bit must be a whole number from 1 to 8."},
        {Length, integer(65), "Entry 1: The length must be a whole number from 1 to 64."},
        {Length, integer(40), ""},
        {Length, integer(41), "Entry 1: The bits reach beyond the eight bytes of the message."},
        {Offset, number(u"Infinity"_s), "Entry 1: The offset must be a number."},
        {Offset, integer(-40), ""},
        {Minimum, variable, "Entry 1: The minimum must be a number."},
        {Maximum, number(u"-0.5"_s), "Entry 1: The minimum is greater than the maximum."},
        {Scaling, number(u"0.0"_s), "Entry 1: The scaling must not be 0."},
        {Scaling, number(u"fast"_s), "Entry 1: The scaling must be a number."},
    };
    for (const auto &[place, term, error] : cases) {
        GeneralDataList terms = engineController().toTerms();
        terms.replace(place, term);
        EXPECT_EQ(problem(terms), QString::fromLatin1(error)) << place << " " << qPrintable(term.value());
    }

    // The whole message may be one parameter.
    GeneralDataList terms = engineController().toTerms().toList().first(12);
    terms.replace(Byte, integer(1));
    terms.replace(Length, integer(64));
    EXPECT_EQ(problem(terms), QString());
}

} // namespace
