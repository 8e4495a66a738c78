// SPDX-License-Identifier: MIT
#include "corvex/core/QmlText.h"

#include "TestObjects.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

namespace {

QmlBindings handlerAndFunction(const DesignerProperty *)
{
    QmlBindings bindings(u"onText"_s, QmlText::block({u"first();"_s, u"second();"_s}));
    bindings.add(QString(), u"function nothing() "_s + QmlText::block({}));
    return bindings;
}

QString linesOfText(const DesignerProperty *, int indent)
{
    const QString tabs = QmlText::tabs(indent);
    return tabs + u"note.a: 1\n"_s + tabs + u"Item {\n"_s + tabs + u"\tx: 1\n"_s + tabs + u'}';
}

class QmlBindingTest : public testing::Test
{
protected:
    QmlBindingTest()
    {
        member->property("text")->setBindingsCreator(&handlerAndFunction);
        member->property("note")->setQmlCreator(&linesOfText);
        member->property("loose")->setFlag(RuntimeFlag, false);
        member->property("loose")->setBindingsCreator(&handlerAndFunction);
    }

    std::unique_ptr<Node> owner{Node::create(u"owner"_s)};
    std::unique_ptr<Node> member{Node::create(u"member"_s)};
};

} // namespace

TEST_F(QmlBindingTest, BlocksAndTextsArePrintedAtTheDepthOfTheirObject)
{
    for (const SharedProperty &property : member->properties()) {
        EXPECT_EQ(QmlText::print(property->qmlBindings(), 2), property->toQml(2))
            << qPrintable(property->id());
    }
    owner->addListPropertyItem(owner->property("nodes"), member.release());
    owner->property("nodes")->setFlag(RuntimeFlag, true);
    EXPECT_TRUE(owner->toQml(1).endsWith(u"\t\tNode {\n"
                                         "\t\t\tobjectName: \"member\"\n"
                                         "\t\t\tpercent: 50\n"
                                         "\t\t\tonText: {\n\t\t\t\tfirst();\n\t\t\t\tsecond();\n\t\t\t}\n"
                                         "\t\t\tfunction nothing() {\n\t\t\t}\n"
                                         "\t\t\tnote.a: 1\n\t\t\tItem {\n\t\t\t\tx: 1\n\t\t\t}\n"
                                         "\t\t\tsecret: \"\"\n"
                                         "\t\t}\n"
                                         "\t}"_s))
        << qPrintable(owner->toQml(1));
}

TEST_F(QmlBindingTest, BindingsNameTheirPropertyAndTextsHaveNoName)
{
    QStringList found;
    for (const auto &[name, code, source] : member->qmlBindings()) {
        found.append(name + u'<' + (source ? source->id() : QString()));
    }
    EXPECT_EQ(found.join(u' '), u"objectName< percent<percent onText<text <text <note secret<secret"_s);
    EXPECT_TRUE(owner->property("loose")->writesPlainQml());
    EXPECT_FALSE(member->property("note")->writesPlainQml());

    // The last creator counts.
    member->property("text")->setQmlCreator(&linesOfText);
    member->property("note")->setBindingsCreator(nullptr);
    EXPECT_EQ(member->property("text")->toQml(0), u"note.a: 1\nItem {\n\tx: 1\n}"_s);
    EXPECT_EQ(member->property("note")->toQml(0), u"note: \"none\""_s);
}

} // namespace Halvane::Corvex::Designer::Test
