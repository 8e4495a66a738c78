// SPDX-License-Identifier: MIT
#include "corvex/core/ItemList.h"
#include "corvex/core/xml/ObjectXmlReader.h"
#include "corvex/core/xml/ObjectXmlWriter.h"
#include "corvex/core/xml/XmlBuffer.h"
#include "corvex/core/xml/XmlLimits.h"

#include "TestObjects.h"

#include <QBuffer>
#include <QDomDocument>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

namespace {

class Xml : public testing::Test
{
protected:
    Xml() { makeFactory(); }

    //! Reads \a xml into a new node; null if it is refused.
    std::unique_ptr<Node> read(const QByteArray &xml)
    {
        QBuffer buffer;
        buffer.setData(xml);
        buffer.open(QIODevice::ReadOnly);
        ObjectXmlReader reader(&buffer);
        std::unique_ptr<Node> node(static_cast<Node *>(reader.create()));
        notes = reader.notes();
        error = reader.errorString();
        line = reader.errorLine();
        return node;
    }

    static QByteArray write(const DesignerObject *object)
    {
        return DesignerObject::toString(object).toUtf8();
    }

    //! A node with these properties.
    static QByteArray node(const QByteArray &properties)
    {
        return "<Node>\n <Properties>\n" + properties + " </Properties>\n</Node>\n";
    }

    QList<ReadNote> notes;
    QString error;
    qint64 line = 0;
};

} // namespace

TEST_F(Xml, TheFormatIsFixed)
{
    const std::unique_ptr<Node> owner(Node::create(u"owner"_s));
    owner->set("text", u"a<b>\"&\t\r\n\U0001F600"_s);
    ASSERT_TRUE(owner->addListPropertyItem(owner->property("nodes"), Node::create(u"in"_s)));
    const QString text = DesignerObject::toString(owner.get());
    const QString start =
        u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<Node>\n"
        " <Properties>\n"
        "  <Property name=\"id\" value=\"name: owner;\"/>\n"
        "  <Property name=\"percent\" value=\"50\"/>\n"
        "  <Property name=\"loose\" value=\"50\"/>\n"
        "  <Property name=\"text\" value=\"a&lt;b&gt;&quot;&amp;&#x9;&#xD;&#xA;\U0001F600\"/>\n"
        "  <Property name=\"note\" value=\"none\"/>\n"
        "  <Property name=\"nodes\">\n"
        "   <List>\n"
        "    <Node>\n"
        "     <Properties>\n"
        "      <Property name=\"id\" value=\"name: in;\"/>\n"_s;
    EXPECT_EQ(text.left(start.size()), start);
    EXPECT_TRUE(text.contains(u"<List/>"_s));
    EXPECT_FALSE(text.contains(u"secret"_s));
    EXPECT_TRUE(owner->convertToXmlDocument(false, true).isNull())
        << "the child that is missing is not stored";
    const QDomDocument document = owner->convertToXmlDocument(true, false);
    EXPECT_EQ(document.documentElement().tagName(), u"Node"_s);
    EXPECT_EQ(document.firstChild().toProcessingInstruction().data(),
              u"version=\"1.0\" encoding=\"UTF-8\""_s);
    EXPECT_FALSE(owner->convertToXmlDocument(false, false).firstChild().isProcessingInstruction());
}

namespace {

//! Stores its text in capitals, together with a note.
class Loud : public Node
{
public:
    QString className() const override { return u"Loud"_s; }
    QDomDocument convertToXmlDocument(bool withHeader, bool allProperties) const override
    {
        QDomDocument document = Node::convertToXmlDocument(withHeader, allProperties);
        document.documentElement().setTagName(u"Node"_s);
        QDomElement property = document.documentElement().firstChildElement().firstChildElement();
        while (property.attribute(u"name"_s) != u"text"_s) {
            property = property.nextSiblingElement();
        }
        property.setAttribute(u"value"_s, property.attribute(u"value"_s).toUpper());
        QDomElement more = document.createElement(u"More"_s);
        more.setAttribute(u"a"_s, u"<\n>"_s);
        more.appendChild(document.createTextNode(u"x & y"_s));
        document.documentElement().appendChild(more);
        return isMute ? QDomDocument() : document;
    }
    bool isMute = false;
};

class LoudByMacro : public Loud
{
    CORVEX_CLASS_NAMES(LoudByMacro, Node)
};

} // namespace

TEST_F(Xml, TheOwnFormOfAClassIsSavedAndCopied)
{
    const std::unique_ptr<Node> owner(Node::create(u"owner"_s));
    EXPECT_FALSE(owner->hasOwnXmlDocument());
    EXPECT_TRUE(LoudByMacro().hasOwnXmlDocument());
    auto *loud = new Loud;
    loud->initialize();
    loud->set("text", u"quiet"_s);
    loud->addListPropertyItem(loud->property("nodes"), Node::create(u"in"_s));
    ASSERT_TRUE(owner->addListPropertyItem(owner->property("nodes"), loud));
    const QByteArray text = write(owner.get());
    EXPECT_TRUE(text.contains("\n      <Property name=\"text\" value=\"QUIET\"/>\n")) << text.data();
    EXPECT_TRUE(text.contains("\n     <More a=\"&lt;&#xA;&gt;\">x &amp; y</More>\n")) << text.data();
    EXPECT_EQ(loud->value("text"), u"quiet"_s);
    const std::unique_ptr<DesignerObject> copy(DesignerObject::createCopy(loud));
    EXPECT_EQ(copy->getProperty(u"text")->valueString(), u"QUIET"_s);
    EXPECT_EQ(copy->getProperty(u"nodes")->listItemNames(), QStringList{u"in"_s});
    loud->isMute = true;
    EXPECT_TRUE(write(owner.get()).isEmpty());
    EXPECT_TRUE(owner->convertToXmlDocument(false, false).isNull());
}

TEST_F(Xml, SavedObjectsReadBackEqual)
{
    const std::unique_ptr<Node> owner(Node::create(u"owner"_s));
    owner->set("text", u" \"<&>%1\t\r\n]]> \u2028\U0001F600 "_s);
    owner->set("loose", u"70"_s);
    for (const QString &name : {u"b"_s, u"a"_s}) {
        owner->addListPropertyItem(owner->property("nodes"), Node::create(name));
        owner->addListPropertyItem(owner->property("sorted"), Node::create(name));
    }
    const std::unique_ptr<DesignerObject> copy(DesignerObject::createCopy(owner.get()));
    ASSERT_TRUE(copy);
    EXPECT_EQ(write(copy.get()), write(owner.get()));
    EXPECT_EQ(copy->getProperty(u"text")->valueString(), owner->value("text"));
    EXPECT_EQ(copy->getProperty(u"sorted")->listItemNames(), QStringList({u"a"_s, u"b"_s}));
    EXPECT_TRUE(copy->isValid());
    EXPECT_EQ(copy->parent(), nullptr);

    const QTemporaryDir folder;
    const QString path = folder.filePath(u"with blank %1.xml"_s);
    QString problem;
    ASSERT_TRUE(DesignerObject::saveToFile(owner.get(), path, &problem)) << qPrintable(problem);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().replace("\r\n", "\n"), write(owner.get()));
    EXPECT_FALSE(DesignerObject::saveToFile(owner.get(), folder.filePath(u"no/such.xml"_s), &problem));
    EXPECT_FALSE(problem.isEmpty());
}

TEST_F(Xml, AnEmptyValueMeansEmptyOnlyForTexts)
{
    const std::unique_ptr<Node> read1 =
        read(node("<Property name='text' value=''/><Property name='note' value=''/>"));
    EXPECT_EQ(read1->value("text"), QString());
    EXPECT_EQ(read1->value("note"), u"none"_s);
    EXPECT_EQ(read(node("<Property name='text'/>"))->value("text"), QString());
    EXPECT_EQ(read(node(""))->value("text"), u"abc"_s);
}

TEST_F(Xml, UnknownPartsAreReported)
{
    struct Case
    {
        const char *properties;
        ReadNote::Kind kind;
        const char *word;
    };
    const Case cases[] = {
        {"<Property name='new' value='1'/>", ReadNote::Dropped, "\"new\""},
        {"<Property name='secret' value='1'/>", ReadNote::Dropped, "\"secret\""},
        {"<Property value='1'/>", ReadNote::Dropped, "no name"},
        {"<Property name='percent' value='x'/>", ReadNote::Dropped, "\"x\""},
        {"<Property name='percent' value='7' unit='m'/>", ReadNote::Dropped, "\"unit\""},
        {"<Property name='percent'><List/></Property>", ReadNote::Dropped, "\"List\""},
        {"<Property name='nodes' value='7'/>", ReadNote::Dropped, "\"nodes\""},
        {"<Other/>", ReadNote::Dropped, "\"Other\""},
        {"words", ReadNote::Dropped, "words"},
        {"<!-- remark -->", ReadNote::Dropped, "comment"},
        {"<?remark a?>", ReadNote::Dropped, "instruction"},
        {"<Property name='nodes'><List><Node/></List><List/></Property>", ReadNote::Dropped, "\"List\""},
        {"<Property name='nodes'><List><Robot/></List></Property>", ReadNote::Kept, "\"Robot\""},
        {"<Property name='percent' value='7'/></Properties><Properties><Property name='percent' value='8'/>",
         ReadNote::Dropped, "is repeated"},
        {"</Properties><Properties hue='1'>", ReadNote::Dropped, "\"hue\""},
        {"<Property name='nodes'><List hue='1'/></Property>", ReadNote::Dropped, "\"hue\""},
        {"<Property name='nodes'><List><Node hue='1'/></List></Property>", ReadNote::Dropped, "\"hue\""},
    };
    for (const Case &test : cases) {
        ASSERT_TRUE(read(node(QByteArray("  ") + test.properties))) << test.properties;
        ASSERT_EQ(notes.size(), 1) << test.properties;
        EXPECT_EQ(notes.front().kind, test.kind) << test.properties;
        EXPECT_TRUE(notes.front().message.contains(QLatin1String(test.word)))
            << qPrintable(notes.front().message);
        EXPECT_EQ(notes.front().line, 3) << test.properties;
    }
    ASSERT_TRUE(read("<Node hue='1'/>"));
    EXPECT_EQ(notes.size(), 1);
}

TEST_F(Xml, ASecondPartOfAnObjectAddsToTheFirst)
{
    const QByteArray list = "<Property name='nodes'><List>%1</List></Property>";
    const auto item = [](const char *name) {
        return QByteArray("<Node><Properties><Property name='id' value='name: ") + name
               + "; baseName: node; scopeType: Project; classType: Node'/></Properties></Node>";
    };
    const std::unique_ptr<Node> loaded =
        read(node(QByteArray(list).replace("%1", item("a")) + "</Properties><Properties>"
                  + QByteArray(list).replace("%1", item("b"))));
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->property("nodes")->listItemCount(), 2);
    EXPECT_EQ(notes.size(), 1);
}

TEST_F(Xml, TheNumberOfNotesIsLimitedAndTheRestCounted)
{
    ASSERT_TRUE(read(node(QByteArray("<Other/>\n").repeated(20'000))));
    EXPECT_EQ(notes.size(), 10'001);
    EXPECT_EQ(notes.back().line, 10'003);
    EXPECT_TRUE(notes.back().message.contains(u"9999 more"_s)) << qPrintable(notes.back().message);
}

TEST_F(Xml, ItemsOfUnknownClassesAndDuplicatesKeepTheirPlaces)
{
    const std::unique_ptr<Node> owner(Node::create(u"owner"_s));
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s}) {
        owner->addListPropertyItem(owner->property("nodes"), Node::create(name));
    }
    QByteArray xml = write(owner.get());
    // "b" gets a class that no plug-in knows, "c" becomes a second "a".
    const qsizetype b = xml.indexOf("    <Node>", xml.indexOf("name: a;"));
    const qsizetype c = xml.indexOf("    <Node>", b + 1);
    QByteArray middle = xml.mid(b, c - b).replace("Node>", "Robot>");
    xml = xml.left(b) + middle + xml.mid(c).replace("name: c;", "name: a;");

    std::unique_ptr<Node> loaded = read(xml);
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->property("nodes")->listItemNames(), QStringList(u"a"_s));
    const QList<KeptItem> kept = loaded->property("nodes")->itemList()->keptItems();
    ASSERT_EQ(kept.size(), 2);
    EXPECT_EQ(kept.front().className, u"Robot"_s);
    EXPECT_EQ(kept.front().name, u"b"_s);
    EXPECT_EQ(write(loaded.get()), xml);

    // Read again into the same object, with another item before the kept one.
    QBuffer again(&xml);
    again.open(QIODevice::ReadOnly);
    EXPECT_TRUE(ObjectXmlReader(&again).read(loaded.get()));
    EXPECT_EQ(write(loaded.get()), xml);
    const SharedProperty nodes = loaded->property("nodes");
    Node *other = Node::create(u"a"_s);
    const std::unique_ptr<DesignerObject> old(nodes->getListItemAtIndex(0));
    EXPECT_TRUE(loaded->replaceListPropertyItemAt(nodes, 0, other));
    EXPECT_EQ(write(loaded.get()), xml);

    delete loaded->takeListPropertyItem(loaded->property("nodes"),
                                        loaded->property("nodes")->getListItemAtIndex(0));
    EXPECT_TRUE(write(loaded.get()).contains("<Robot>")) << "what is kept outlives its neighbour";
}

TEST_F(Xml, AListWrittenInPartsGivesTheSameText)
{
    //! Accepts a limited number of bytes, from one thread only.
    struct Device : QIODevice
    {
        explicit Device(qsizetype most)
            : room(most)
        {
            open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        }
        qint64 readData(char *, qint64) override { return -1; }
        qint64 writeData(const char *data, qint64 size) override
        {
            isElsewhere = isElsewhere || QThread::currentThread() != thread();
            bytes.append(data, std::min(size, qint64(room - bytes.size())));
            return bytes.size() < room ? size : -1;
        }
        qsizetype room;
        QByteArray bytes;
        bool isElsewhere = false;
    };
    const std::unique_ptr<Node> owner(Node::create(u"owner"_s));
    QByteArray expected;
    for (int i = 0; i < 200; ++i) {
        Node *item = Node::create(u"n%1"_s.arg(i));
        item->set("text", QString(i * 40, u'<'));
        item->addListPropertyItem(item->property("nodes"), Node::create(u"inner"_s));
        owner->addListPropertyItem(owner->property("nodes"), item);
        const QByteArray document = write(item).trimmed();
        const QByteArray text = document.mid(document.indexOf("<Node>")).replace('\n', "\n    ");
        expected += "    " + text + '\n';
    }
    Device all(1'000'000'000);
    EXPECT_TRUE(ObjectXmlWriter(&all).write(owner.get()));
    EXPECT_TRUE(all.bytes.contains("<List>\n" + expected + "   </List>"));
    EXPECT_FALSE(all.isElsewhere);
    Device inPieces(1'000'000'000);
    ObjectXmlWriter pieces(&inPieces);
    pieces.begin(owner.get());
    qsizetype longest = 0;
    for (qsizetype before = 0; pieces.writePiece(); before = inPieces.bytes.size()) {
        longest = std::max(longest, inPieces.bytes.size() - before);
    }
    EXPECT_EQ(inPieces.bytes, all.bytes);
    EXPECT_LT(longest, all.bytes.size() / 10);
    Device full(all.bytes.size() / 2);
    EXPECT_FALSE(ObjectXmlWriter(&full).write(owner.get()));
    EXPECT_EQ(full.bytes, all.bytes.first(full.room));

    // Of two items that cannot be stored, the first one is reported.
    for (const char *name : {"name: n150;", "name: n90;"}) {
        const qsizetype value =
            all.bytes.indexOf("value=\"", all.bytes.indexOf("\"text\"", all.bytes.indexOf(name)));
        all.bytes.insert(value + 7, QByteArray(5'000'000, '>'));
    }
    const std::unique_ptr<Node> hostile = read(all.bytes);
    ASSERT_TRUE(hostile) << qPrintable(error);
    Device refused(1'000'000'000);
    ObjectXmlWriter writer(&refused);
    EXPECT_FALSE(writer.write(hostile.get()));
    EXPECT_TRUE(writer.errorString().contains(u"n90"_s)) << qPrintable(writer.errorString());
}

TEST_F(Xml, TextInsideAnUnknownItemIsKept)
{
    const std::unique_ptr<Node> loaded =
        read(node("<Property name='nodes'><List><Robot>a &amp;  b\n c</Robot></List></Property>"));
    EXPECT_EQ(loaded->property("nodes")->itemList()->keptItems().value(0).xml,
              "<Robot>\n a &amp;  b&#xA; c\n</Robot>");
}

TEST_F(Xml, AnObjectIsUsableAfterAFailedReading)
{
    const std::unique_ptr<Node> target(Node::create(u"target"_s));
    QByteArray xml = node("<Property name='sorted'><List><Node><Properties>").chopped(24);
    QBuffer buffer(&xml);
    buffer.open(QIODevice::ReadOnly);
    EXPECT_FALSE(ObjectXmlReader(&buffer).read(target.get()));
    EXPECT_FALSE(target->disabledValidation());
    for (const QString &name : {u"b"_s, u"a"_s}) {
        target->addListPropertyItem(target->property("sorted"), Node::create(name));
    }
    EXPECT_EQ(target->property("sorted")->listItemNames(), QStringList({u"a"_s, u"b"_s}));
}

TEST_F(Xml, CharactersThatCannotBeStoredNeverSpoilAFile)
{
    const std::unique_ptr<Node> owner(Node::create(u"owner"_s));
    EXPECT_FALSE(owner->set("text", u"a\u0001b"_s));
    XmlBuffer bytes;
    bytes.appendEscaped(u"a\u0001\u000B\uFFFF"_s + QChar(0xD800) + u'\t');
    EXPECT_EQ(bytes.bytes(), QByteArray("a") + QByteArray("\xEF\xBF\xBD").repeated(4) + "&#x9;");
}

TEST_F(Xml, EverySavedFileCanBeRead)
{
    const std::unique_ptr<Node> owner(Node::create(u"owner"_s));
    const QString longest(XmlLimits::longestValue / 4, u'<');
    EXPECT_TRUE(owner->set("text", longest));
    EXPECT_FALSE(owner->set("note", longest + u'a'));
    EXPECT_TRUE(owner->property("note")->errorString().contains(u"16 MB"_s));
    const std::unique_ptr<Node> again = read(write(owner.get()));
    ASSERT_TRUE(again) << qPrintable(error);
    EXPECT_EQ(again->value("text"), longest);
    // Characters that are not escaped in the file may need more bytes when they are written.
    QByteArray raw = node("<Property name='text' value='" + QByteArray(5'000'000, '>') + "'/>");
    EXPECT_EQ(write(read(raw).get()), QByteArray());
    EXPECT_EQ(write(read(node("<Property name='nodes'><List><Robot a='" + QByteArray(5'000'000, '>')
                              + "'/></List></Property>"))
                        .get()),
              QByteArray());

    // The maximum nesting of objects, and one more, as an item and as the child of a property, alone and with
    // others.
    const std::unique_ptr<Node> root(Node::create(u"root"_s));
    Node *deepest = root.get();
    for (qsizetype i = 0; i < XmlLimits::mostOwners; ++i) {
        Node *next = Node::create(u"n"_s);
        ASSERT_TRUE(deepest->addListPropertyItem(deepest->property("nodes"), next)) << i;
        deepest = next;
    }
    EXPECT_TRUE(read(write(root.get()))) << qPrintable(error);
    const std::unique_ptr<Node> extra(Node::create(u"extra"_s));
    const std::unique_ptr<Node> pair(Node::create(u"pair"_s));
    pair->addListPropertyItem(pair->property("nodes"), Node::create(u"inner"_s));
    auto *above = static_cast<Node *>(deepest->ownerObject());
    for (const auto &[place, item] : {std::pair{deepest, extra.get()}, {above, pair.get()}}) {
        EXPECT_FALSE(place->addListPropertyItem(place->property("sorted"), item));
        EXPECT_FALSE(place->insertListPropertyItemAt(place->property("sorted"), item, 0));
        EXPECT_FALSE(place->changePropertyObjectValue(place->property("child"), item, true));
    }
    // A root of maximum depth cannot get an owner by any operation.
    const std::unique_ptr<Node> beyond(Node::create(u"beyond"_s));
    EXPECT_FALSE(beyond->addListPropertyItem(beyond->property("nodes"), root.get()));
}

TEST_F(Xml, AFileThatWasReadAndSavedMeansTheSame)
{
    const std::unique_ptr<Node> owner(Node::create(u"owner"_s));
    int percent = 0;
    for (const QString &name : {u"bb"_s, u"aa"_s, u"b2"_s, u"cc"_s}) {
        Node *item = Node::create(name);
        item->set("percent", QString::number(++percent));
        owner->addListPropertyItem(owner->property("nodes"), item);
    }
    QByteArray xml = write(owner.get()).replace("b2", "bb").replace("\"nodes\"", "\"sorted\"");
    for (int round = 0; round < 3; ++round) {
        const std::unique_ptr<Node> loaded = read(xml);
        const SharedProperty list = loaded->property("sorted");
        EXPECT_EQ(static_cast<Node *>(list->getListItem(u"bb"_s))->value("percent"), u"1"_s) << round;
        const QByteArray saved = write(loaded.get());
        EXPECT_TRUE(round == 0 || saved == xml) << round;
        xml = saved;
        // The others get a name before or after it.
        list->getListItemAtIndex(0)->setIdName(round == 1 ? u"zz"_s : u"ab"_s);
        EXPECT_EQ(static_cast<Node *>(read(write(loaded.get()))->property("sorted")->getListItem(u"bb"_s))
                      ->value("percent"),
                  u"1"_s)
            << round;
    }

    // Properties with the same name are applied in order.
    const QByteArray items = "<Property name='nodes'><List><Node/></List></Property>";
    const std::unique_ptr<Node> twice =
        read(node("<Property name='percent' value='7'/>" + items + "<Property name='percent' value='50'/>"
                  + QByteArray(items).replace("<Node/>", node("<Property name='id' value='name: b;'/>"))
                  + "<Property name='note' value='x'/><Property name='note' value=''/>"));
    EXPECT_EQ(twice->value("percent"), u"50"_s);
    EXPECT_EQ(twice->value("note"), u"x"_s);
    EXPECT_EQ(twice->property("nodes")->listItemNames(), (QStringList{u"node"_s, u"b"_s}));
    EXPECT_EQ(notes.size(), 3);
    // An empty identifier would be read as a different one after the next save.
    const std::unique_ptr<Node> nameless = read(node("<Property name='id' value='name: ;'/>"));
    EXPECT_EQ(nameless->getIdName(), u"node"_s);
    EXPECT_EQ(notes.size(), 1);
}

TEST_F(Xml, HostileBytesEndWithAnErrorAndAPlace)
{
    const QByteArray deep = QByteArray("<Node><Properties><Property name='nodes'><List>").repeated(30000);
    const struct
    {
        QByteArray xml;
        const char *word;
    } cases[] = {
        {"", "cut off"},
        {"screen 1", "not XML"},
        {"<Node>\n <Properties>\n  <Property name='nodes'><List><Node><Properties>", "cut off"},
        {"<Node><Properties><Property name='te", "cut off"},
        {"<Nothing/>", "\"Nothing\""},
        {"<Node></Other>", "does not match"},
        {"<Node/><Node/>", "root element"},
        {"<Node><Properties><Property name='text' value='\xE4'/></Properties></Node>", "not UTF-8"},
        {"<?xml version='1.0' encoding='ISO-8859-1'?><Node/>", "ISO-8859-1"},
        {QByteArray("\xFF\xFE<\0N\0o\0d\0e\0/\0>\0", 16), "UTF-16"},
        {QByteArray("<\0N\0o\0d\0e\0/\0>\0", 14), "UTF-16"},
        {QByteArray("\0<\0N\0o\0d\0e\0/\0>", 14), "UTF-16"},
        {"<!DOCTYPE x [<!ENTITY a 'aa'>]><Node><Properties/></Node>", "entities"},
        {deep, "levels deep"},
    };
    for (const auto &[xml, word] : cases) {
        EXPECT_FALSE(read(xml)) << word;
        EXPECT_TRUE(error.contains(QLatin1String(word))) << word << ": " << qPrintable(error);
        EXPECT_GT(line, 0) << word;
    }
}

TEST_F(Xml, ReadingIntoAnObjectReplacesItsLists)
{
    const std::unique_ptr<Node> target(Node::create(u"target"_s));
    target->addListPropertyItem(target->property("nodes"), Node::create(u"stale"_s));
    const QTemporaryDir folder;
    const std::unique_ptr<Node> source(Node::create(u"source"_s));
    source->addListPropertyItem(source->property("nodes"), Node::create(u"fresh"_s));
    const QString path = folder.filePath(u"a.xml"_s);
    ASSERT_TRUE(DesignerObject::saveToFile(source.get(), path));
    ASSERT_TRUE(DesignerObject::loadFromFile(target.get(), path));
    EXPECT_EQ(target->getIdName(), u"source"_s);
    EXPECT_EQ(target->property("nodes")->listItemNames(), QStringList(u"fresh"_s));
    EXPECT_FALSE(DesignerObject::loadFromFile(target.get(), folder.path()));
}

TEST_F(Xml, ReadingBeginsAtThePositionOfTheDevice)
{
    constexpr qint64 before = 20 * 1024 * 1024;
    QBuffer buffer;
    buffer.setData(QByteArray(before, 'x') + node(""));
    buffer.open(QIODevice::ReadOnly);
    buffer.seek(before);
    const std::unique_ptr<DesignerObject> object(ObjectXmlReader(&buffer).create());
    EXPECT_TRUE(object);
}

} // namespace Halvane::Corvex::Designer::Test
