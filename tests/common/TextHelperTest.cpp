// SPDX-License-Identifier: MIT
#include "corvex/common/TextHelper.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Halvane::Corvex::Common::TextHelper;

namespace {

//! The sorted list must not depend on the order of the input.
template<typename Sort>
void expectSorted(const QStringList &expected, Sort sort)
{
    QStringList list = expected;
    for (int turn = 0; turn < list.size(); ++turn) {
        list = expected;
        std::rotate(list.begin(), list.begin() + turn, list.end());
        std::reverse(list.begin() + turn / 2, list.end());
        sort(list);
        EXPECT_EQ(list, expected);
    }
}

} // namespace

TEST(TextHelper, Base64KeepsEveryText)
{
    const QString texts[] = {u""_s, u"Hello"_s, u"über 100 %"_s, u"\U0001F600"_s, u"\uFEFFmark"_s, u"a\0b"_s};
    for (const QString &text : texts) {
        bool ok = false;
        EXPECT_EQ(TextHelper::convertFromBase64(TextHelper::convertToBase64(text), &ok), text);
        EXPECT_TRUE(ok) << text.toStdString();
    }
    EXPECT_EQ(TextHelper::convertToBase64(u"Hello"_s), u"SGVsbG8="_s);
}

TEST(TextHelper, Base64RefusesWhatItDoesNotWrite)
{
    // Missing padding, blanks, other letters, spare bits, bytes that are not UTF-8, letters beyond Latin-1.
    const QString bad[] = {u"SGVsbG8"_s, u"SGVs bG8="_s, u"SGVsbG8-"_s,   u"SGVsbG9="_s,
                           u"/w=="_s,    u"===="_s,      u"SGVsbG8=\n"_s, u"\u0153GVs"_s};
    for (const QString &text : bad) {
        bool ok = true;
        EXPECT_EQ(TextHelper::convertFromBase64(text, &ok), QString());
        EXPECT_FALSE(ok) << text.toStdString();
    }
    EXPECT_EQ(TextHelper::convertFromBase64(u"!"_s), QString());
}

TEST(TextHelper, QmlValueString)
{
    const struct
    {
        QString text, expected;
    } rows[] = {
        {u"plain ä \U0001F600 'x' %1"_s, u"plain ä \U0001F600 'x' %1"_s},
        {u"say \"hi\" \\n"_s, u"say \\\"hi\\\" \\\\n"_s},
        {u"a\nb\r\tc"_s, u"a\\nb\\r\\tc"_s},
        {u"\u2028\u2029\uFEFF"_s, u"\\u2028\\u2029\\ufeff"_s},
        {u"\x01\x1f\x7f\x85"_s, u"\\u0001\\u001f\\u007f\\u0085"_s},
        {QString(QChar(0)), u"\\u0000"_s},
        {u"x"_s + QChar(0xd83d) + u"y"_s, u"x\\ud83dy"_s},
        {QString(QChar(0xde00)) + QChar(0xd83d), u"\\ude00\\ud83d"_s},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(TextHelper::toQmlValueString(row.text), row.expected) << row.expected.toStdString();
    }
}

TEST(TextHelper, ReservedWords)
{
    for (const QString &word : {u"break"_s, u"yield"_s, u"goto"_s, u"null"_s, u"NaN"_s, u"parseInt"_s,
                                u"JSON"_s, u"Qt"_s, u"console"_s, u"print"_s, u"qmlViewer"_s}) {
        EXPECT_TRUE(TextHelper::isReservedWord(word)) << word.toStdString();
    }
    for (const QString &word : {u""_s, u"Break"_s, u"qt"_s, u"pump"_s, u"break "_s}) {
        EXPECT_FALSE(TextHelper::isReservedWord(word)) << word.toStdString();
    }
    QStringList words = TextHelper::reservedWords();
    EXPECT_EQ(words.removeDuplicates(), 0);
}

TEST(TextHelper, NaturalOrder)
{
    expectSorted({u""_s, u"1"_s, u"2"_s, u"10"_s, u"99999999999999999999"_s, u"100000000000000000000"_s},
                 TextHelper::sortStringList);
    expectSorted({u"item"_s, u"Item1"_s, u"item01"_s, u"item1"_s, u"item1a"_s, u"Item2"_s, u"item10"_s,
                  u"item10b2"_s, u"item10b10"_s, u"itemA"_s, u"itema"_s, u"itemB"_s, u"Überlauf"_s,
                  u"überlauf"_s},
                 TextHelper::sortStringList);
    EXPECT_FALSE(TextHelper::naturalLess(u"a1", u"a1"));
}

TEST(TextHelper, LineEnds)
{
    const QString mixed = u"a\r\nb\rc\n\n\r\r\nd"_s;
    EXPECT_EQ(TextHelper::normalizeLineEnds(mixed), u"a\nb\nc\n\n\n\nd"_s);
    EXPECT_EQ(TextHelper::toCrLf(mixed), u"a\r\nb\r\nc\r\n\r\n\r\n\r\nd"_s);
    EXPECT_EQ(TextHelper::toCrLf(TextHelper::toCrLf(mixed)), TextHelper::toCrLf(mixed));
}

TEST(TextHelper, NumberFromString)
{
    const struct
    {
        QString name, stem;
        qint64 number;
    } rows[] = {
        {u"Image12"_s, u"Image"_s, 12},
        {u""_s, u""_s, -1},
        {u"a007"_s, u"a00"_s, 7},
        {u"a000"_s, u"a00"_s, 0},
        {u"x9999999999999999999"_s, u"x9"_s, 999999999999999999},
    };
    for (const auto &row : rows) {
        QString stem;
        EXPECT_EQ(TextHelper::numberFromString(row.name, &stem), row.number) << row.name.toStdString();
        EXPECT_EQ(stem, row.stem) << row.name.toStdString();
    }
}

TEST(TextHelper, CipherIsStableAndNoticesChanges)
{
    const QString text = u"Pump Station ü-4.0.0"_s;
    const QString cipher = TextHelper::encryptString(text);
    EXPECT_EQ(cipher, TextHelper::encryptString(text));
    EXPECT_NE(cipher, TextHelper::encryptString(text + u' '));
    EXPECT_EQ(TextHelper::decryptString(TextHelper::encryptString(u""_s)), u""_s);
    bool ok = false;
    EXPECT_EQ(TextHelper::decryptString(cipher, &ok), text);
    EXPECT_TRUE(ok);
    for (qsizetype i = 0; i < cipher.size(); ++i) {
        QString changed = cipher;
        changed[i] = changed[i] == u'A' ? u'B' : u'A';
        EXPECT_EQ(TextHelper::decryptString(changed, &ok), QString());
        EXPECT_FALSE(ok) << i;
    }
    EXPECT_EQ(TextHelper::decryptString(cipher.first(20), &ok), QString());
    EXPECT_FALSE(ok);
}

TEST(TextHelper, DeviceNames)
{
    for (const QStringView name : {u"aux", u"aux.png", u"COM1", u"Lpt9.tar.gz", u"con.", u"nul", u"prn.a"}) {
        EXPECT_TRUE(TextHelper::isReservedDeviceName(name)) << name.toString().toStdString();
    }
    for (const QStringView name :
         {u"", u"aux_image.png", u"image.aux.png", u"COM0", u"com10", u".aux", u"COMX"}) {
        EXPECT_FALSE(TextHelper::isReservedDeviceName(name)) << name.toString().toStdString();
    }
}

TEST(TextHelper, FileNameFormat)
{
    EXPECT_TRUE(TextHelper::isValidFileNameFormat(u"a~`!@#$%&'()-_+={}[],. 1.png"));
    EXPECT_TRUE(TextHelper::isValidFileNameFormat(u"Übersicht u\u0308ber \u0939\u093F.png"));
    for (const QStringView name :
         {u"", u"a", u" a.png", u".png", u"..", u"a/b", u"a\\b", u"a\nb", u"a\U0001F600"}) {
        EXPECT_FALSE(TextHelper::isValidFileNameFormat(name)) << name.toString().toStdString();
    }
    EXPECT_EQ(TextHelper::forbiddenFileNameCharacters(u"a?b*?\U0001F600*^:"),
              QStringList({u"?"_s, u"*"_s, u"\U0001F600"_s, u"^"_s, u":"_s}));
}
