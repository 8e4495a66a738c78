// SPDX-License-Identifier: MIT
#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/StringsFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Halvane::Corvex::Common::LocalizationHelper;
using Halvane::Corvex::Common::StringsFile;

TEST(StringsFile, ReadsEntriesEscapesAndComments)
{
    const QByteArray bytes =
        "/* head; \"no\" = \"entry\"; */\n"
        "\"KEY\" = \"a \\\"b\\\" \\\\ \\n\\t\\u00e4 \xc3\xb6\"; // tail\r\n"
        "\"line\nbreak\"\n=\n\"\" ;\"KEY2\"=\"// no comment /* \";\"KEY2\"=\"last\";//end";
    StringsFile table;
    QString error;
    ASSERT_TRUE(table.parse(bytes, &error)) << error.toStdString();
    EXPECT_EQ(table.count(), 3);
    EXPECT_EQ(table.value(u"KEY"_s), u"a \"b\" \\ \n\tä ö"_s);
    EXPECT_EQ(table.value(u"line\nbreak"_s), u""_s);
    EXPECT_EQ(table.value(u"KEY2"_s), u"last"_s);
    EXPECT_EQ(LocalizationHelper::localizedString(table, u"other"_s), u"other"_s);
}

TEST(StringsFile, Encodings)
{
    const QString text = u"\"k\" = \"ä\U0001F600\";"_s;
    QByteArray little("\xff\xfe", 2);
    QByteArray big("\xfe\xff", 2);
    for (const QChar c : text) {
        little.append(char(c.cell())).append(char(c.row()));
        big.append(char(c.row())).append(char(c.cell()));
    }
    for (const QByteArray &bytes : {text.toUtf8(), "\xef\xbb\xbf" + text.toUtf8(), little, big}) {
        StringsFile table;
        EXPECT_TRUE(table.parse(bytes));
        EXPECT_EQ(table.value(u"k"_s), u"ä\U0001F600"_s);
    }
}

TEST(StringsFile, ErrorsNameTheLineAndLeaveTheTableEmpty)
{
    const struct
    {
        QByteArray bytes;
        QString line;
    } rows[] = {
        {"\"a\" = \"b\"", u"Line 1:"_s},
        {"\"a\" = \"b\";\n\n\"c\" \"d\";", u"Line 3:"_s},
        {"\"a\" = \"b\";\n\"c\" = \"d;\n\n", u"Line 4:"_s},
        {"// x\n/* open", u"Line 2:"_s},
        {"\"a\" = \"\\u00g0\";", u"Line 1:"_s},
        {"\"a\" = \"\\u00", u"Line 1:"_s},
        {"\"a\" = \"\\", u"Line 1:"_s},
        {"key = \"a\";", u"Line 1:"_s},
        {"\"a\" = \"\xff\";", u"UTF-8"_s},
    };
    for (const auto &row : rows) {
        StringsFile table;
        QString error;
        ASSERT_TRUE(table.parse("\"a\"=\"b\";"));
        EXPECT_FALSE(table.parse(row.bytes, &error)) << row.bytes.toStdString();
        EXPECT_TRUE(error.contains(row.line)) << error.toStdString();
        EXPECT_EQ(table.count(), 0);
    }
    QString error;
    EXPECT_FALSE(StringsFile().load(u"/missing/Localizable.strings"_s, &error));
    EXPECT_TRUE(error.contains(u"/missing"_s)) << error.toStdString();
}

TEST(LocalizationHelper, CoreStringsFollowTheLocale)
{
    const QTemporaryDir folder;
    const auto put = [&folder](const QString &locale, const QByteArray &bytes) {
        QDir(folder.path()).mkpath(locale);
        QFile file(folder.filePath(locale + u"/Localizable.strings"_s));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    };
    ASSERT_TRUE(put(u"de"_s, "\"Name\" = \"Name (de)\";") && put(u"de_AT"_s, "\"Name\" = \"Name (at)\";"));
    ASSERT_TRUE(put(u"fr"_s, "broken"));
    const QString before = LocalizationHelper::currentLocale();
    EXPECT_EQ(LocalizationHelper::coreString(u"Name"_s), u"Name"_s);

    LocalizationHelper::setCurrentLocale(u"de_DE"_s);
    EXPECT_TRUE(LocalizationHelper::setLocalizationsPath(folder.path()));
    EXPECT_EQ(LocalizationHelper::currentLocale(), u"de_DE"_s);
    EXPECT_EQ(LocalizationHelper::coreString(u"Name"_s), u"Name (de)"_s);
    EXPECT_EQ(LocalizationHelper::coreString(u"Opacity"_s), u"Opacity"_s);
    LocalizationHelper::setCurrentLocale(u"de_AT"_s);
    EXPECT_EQ(LocalizationHelper::coreString(u"Name"_s), u"Name (at)"_s);
    LocalizationHelper::setCurrentLocale(u"en_GB"_s);
    EXPECT_EQ(LocalizationHelper::coreString(u"Name"_s), u"Name"_s);

    LocalizationHelper::setCurrentLocale(u"fr_FR"_s);
    QString error;
    EXPECT_FALSE(LocalizationHelper::setLocalizationsPath(folder.path(), &error));
    EXPECT_TRUE(error.contains(u"Line 1"_s)) << error.toStdString();
    EXPECT_EQ(LocalizationHelper::coreString(u"Name"_s), u"Name"_s);

    LocalizationHelper::setCurrentLocale(before);
    LocalizationHelper::setLocalizationsPath({});
}
