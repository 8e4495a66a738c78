// SPDX-License-Identifier: MIT
#include "XmlTexts.h"

#include <QBuffer>
#include <QRandomGenerator>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

namespace {

//! Delivers one byte at a time, so that a chunk ends at every position.
class Dripping : public QBuffer
{
public:
    using QBuffer::QBuffer;

protected:
    qint64 readData(char *data, qint64 size) override
    {
        return QBuffer::readData(data, std::min(size, qint64(1)));
    }
};

} // namespace

TEST(XmlTokenizer, AgreesWithAnotherReaderOnEverything)
{
    const QList<QByteArray> texts{
        "<?xml version=\"1.0\" encoding='utf-8' standalone=\"yes\" ?>\n<a b='\"' "
        "c=\"'\">\r\n<d/></a>\n<!--x--><?p?>",
        "<a x=\"\n&#xA;\t\r\n&lt;\">e&#x1F600;&amp;</a >",
        "<a>b]]c</a>",
        "<a><!-- - --><?p q?><![CDATA[ ]] <&\r\n]]></a>",
        "<\xC3\xA4 \xE2\x84\xA6='1'>\xF0\x9F\x98\x80</\xC3\xA4>",
    };
    const QByteArrayList pieces{
        "<",
        ">",
        "/",
        "a",
        "b",
        "=\"",
        "\"",
        "'",
        " ",
        "\n",
        "\r",
        "&",
        ";",
        "&lt;",
        "&#6",
        "<!--",
        "-->",
        "--",
        "?>",
        "<?",
        "<?xml ",
        "]]>",
        "]",
        "x=\"1\"",
        "<a>",
        "</a>",
        "<b/>",
        "<![CDATA[",
        "\xC3",
        "\x80",
        "!",
        "\xED\xA0\x80",
        "#x",
        "9",
        "&quot;",
        "\xC3\xA4",
        "-",
        "version=\"1.0\"",
        "standalone=\"no\"",
        "&a;",
    };
    QRandomGenerator random(5);
    int goodCount = 0;
    for (int turn = 0; turn < 2000; ++turn) {
        QByteArray xml = texts.at(turn % texts.size());
        for (int changes = random.bounded(4); changes > 0; --changes) {
            const auto at = qsizetype(random.bounded(int(xml.size()) + 1));
            xml.replace(at, random.bounded(3), pieces.at(random.bounded(int(pieces.size()))));
        }
        QBuffer whole(&xml);
        Dripping bytes(&xml);
        const QByteArray found = XmlTexts::readByTokenizer(whole);
        const QByteArray expected = XmlTexts::readByQt(xml);
        // The other reader ignores an incomplete character at the end, and supports more encodings.
        const bool isBad = expected.startsWith('!') || QString::fromUtf8(xml).toUtf8() != xml
                           || found.contains("is declared as");
        ASSERT_EQ(found.startsWith('!'), isBad) << xml.data() << found.data() << expected.data();
        ASSERT_EQ(found, XmlTexts::readByTokenizer(bytes)) << xml.data();
        if (!found.startsWith('!')) {
            ++goodCount;
            ASSERT_EQ(found, expected) << xml.data();
        }
    }
    EXPECT_GT(goodCount, 300);
}

TEST(XmlTokenizer, ReportsThePlaceOfAnError)
{
    const struct
    {
        QByteArray xml;
        quint32 line;
        quint32 column;
        const char *word;
    } cases[] = {
        {"<a>\n <b\n c='1'\n c='2'/></a>", 4, 2, "is repeated"},
        {"<a>\r\n\r <b></c></a>", 3, 7, "does not match"},
        {"<a x='\xC3\xA4\xC3\xA4' y='<'/>", 1, 14, "not allowed here"},
        {"<a>\xC3\xA4\xC3\xA4&b;</a>", 1, 6, "not defined"},
        {"<a>\n&#0;</a>", 2, 1, "character reference"},
        {"<a>\n  <b c='1'", 2, 3, "cut off"},
        {"<a>\n\xC3\xA4\xFF</a>", 2, 2, "not UTF-8"},
        {"<a/>\n <b/>", 2, 2, "root element"},
        {"<a>" + QByteArray(300'000, '\n') + "<b>\n</a>", 300'002, 3, "does not match"},
    };
    for (const auto &[xml, line, column, word] : cases) {
        QByteArray bytes = xml;
        QBuffer buffer(&bytes);
        XmlPlace place;
        const QByteArray error = XmlTexts::readByTokenizer(buffer, &place);
        EXPECT_TRUE(error.contains(word)) << word << error.data();
        EXPECT_EQ(place.line, line) << word;
        EXPECT_EQ(place.column, column) << word;
    }
}

} // namespace Halvane::Corvex::Designer::Test
