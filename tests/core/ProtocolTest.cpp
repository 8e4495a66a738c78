// SPDX-License-Identifier: MIT
#include "corvex/core/EditorView.h"
#include "corvex/core/ItemList.h"
#include "corvex/core/properties/BasicProperties.h"

#include "TestObjects.h"

#include <QPointer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

namespace {

class Protocol : public testing::Test
{
protected:
    Protocol() { makeFactory(); }

    Node *add(const QString &name, const char *list = "nodes")
    {
        Node *item = Node::create(name);
        EXPECT_TRUE(owner->addListPropertyItem(owner->property(list), item)) << qPrintable(name);
        return item;
    }

    std::unique_ptr<Node> owner{Node::create(u"owner"_s)};
};

} // namespace

TEST_F(Protocol, AChangeCallsHooksStoresNotifiesAndSignalsInThisOrder)
{
    EXPECT_TRUE(owner->set("percent", u"7"_s));
    EXPECT_EQ(owner->log,
              QStringList({u"before percent 7"_s, u"after percent 50"_s, u"changed percent from 50"_s}));
    owner->log.clear();
    EXPECT_TRUE(owner->set("percent", u"007"_s));
    EXPECT_TRUE(owner->log.isEmpty()) << "an equal value changes nothing";
    EXPECT_TRUE(owner->set("percent", u"x"_s)) << "a text that does not parse counts as equal";
    EXPECT_EQ(owner->value("percent"), u"7"_s);

    owner->veto = u"before text new"_s;
    EXPECT_FALSE(owner->set("text", u"new"_s));
    EXPECT_EQ(owner->value("text"), u"abc"_s);
}

TEST_F(Protocol, ARefusedValueLeavesOnlyItsReason)
{
    EXPECT_TRUE(owner->set("percent", u"101"_s));
    EXPECT_EQ(owner->value("percent"), u"50"_s);
    EXPECT_TRUE(owner->log.isEmpty());
    EXPECT_FALSE(owner->property("percent")->isValid());
    EXPECT_EQ(owner->property("percent")->errorString(), u"Out of range."_s);
    EXPECT_TRUE(owner->isValid()) << "the value that the object holds is good";
    EXPECT_TRUE(owner->set("percent", u"50"_s));
    EXPECT_TRUE(owner->property("percent")->isValid());

    EXPECT_TRUE(owner->set("percent", u"101"_s));
    EXPECT_TRUE(owner->set("text", u"new"_s));
    EXPECT_TRUE(owner->isValid()) << "a refusal must not be taken for the state of the object";
}

TEST_F(Protocol, AChangeReturnsItsOutcome)
{
    using enum DesignerObject::Change;
    const std::unique_ptr<Node> other(Node::create(u"other"_s));
    owner->veto = u"before percent 13"_s;
    const struct
    {
        SharedProperty property;
        QString text;
        DesignerObject::Change change;
        bool isAccepted; //!< by changePropertyValue(), which does not report some refusals
    } cases[] = {
        {owner->property("percent"), u"7"_s, Done, true},
        {owner->property("percent"), u"050"_s, Unchanged, true},
        {owner->property("percent"), u"x"_s, Unreadable, true},
        {owner->property("percent"), u"101"_s, Invalid, true},
        {owner->property("percent"), u"13"_s, Vetoed, false},
        {owner->property("loose"), u"101"_s, Done, true},
        {owner->property("text"), u"a\u0001b"_s, Unreadable, false},
        {owner->property("nodes"), u"1"_s, Unreadable, false},
        {other->property("percent"), u"1"_s, Unreadable, false},
        {{}, u"1"_s, Unchanged, true},
    };
    for (const auto &[property, text, change, isAccepted] : cases) {
        const QString before = property ? property->valueString() : QString();
        EXPECT_EQ(owner->changeValue(property, text), change) << qPrintable(text);
        EXPECT_EQ(property && property->valueString() != before, change == Done) << qPrintable(text);
        owner->set("percent", u"50"_s);
        owner->set("loose", u"50"_s);
        EXPECT_EQ(owner->changePropertyValue(property, text), isAccepted) << qPrintable(text);
        owner->set("percent", u"50"_s);
    }
}

TEST_F(Protocol, AnEditorGetsEachOutcomeAndItsVisibility)
{
    struct Editor : public EditorView
    {
        void setErrorString(const QString &error) override { heard = error; }
        void setShown(bool shown) override { isShown = shown; }
        QString heard;
        bool isShown = true;
    } editor;
    owner->property("percent")->setEditorWidget(&editor);
    owner->set("percent", u"101"_s);
    EXPECT_EQ(editor.heard, u"Out of range."_s);
    owner->set("percent", u"100"_s);
    EXPECT_EQ(editor.heard, QString());
    owner->property("percent")->setEditorParameter(u"visible"_s, false);
    EXPECT_FALSE(editor.isShown);
}

TEST_F(Protocol, TryingAValueDoesNotChangeIt)
{
    const auto refuse = [](const DesignerProperty *property, QString &) {
        return static_cast<const RealProperty *>(property)->value() < 100;
    };
    const auto real = QSharedPointer<RealProperty>::create(owner.get(), u"real"_s, u"Real"_s, 1.0 / 3);
    real->setValueValidator(refuse);
    EXPECT_TRUE(owner->changePropertyValue(real, u"100"_s));
    EXPECT_FALSE(real->isValid());
    EXPECT_EQ(real->value(), 1.0 / 3);
    owner->veto = u"before real 50"_s;
    EXPECT_FALSE(owner->changePropertyValue(real, u"50"_s));
    EXPECT_EQ(real->value(), 1.0 / 3);

    const auto broken = QSharedPointer<RealProperty>::create(owner.get(), u"real"_s, u"Real"_s, 1000);
    broken->setValueValidator(refuse);
    EXPECT_FALSE(owner->changePropertyValue(broken, u"50"_s));
    EXPECT_FALSE(broken->isValid()) << "after a veto the value that is held counts";
}

TEST_F(Protocol, AnAllowedInvalidValueIsStoredAndMarked)
{
    EXPECT_TRUE(owner->set("loose", u"101"_s));
    EXPECT_EQ(owner->value("loose"), u"101"_s);
    EXPECT_EQ(owner->validationErrors(), QStringList(u"Loose: Out of range."_s));
    EXPECT_EQ(owner->log, QStringList({u"before loose 101"_s, u"invalid"_s, u"after loose 50"_s,
                                       u"changed loose from 50"_s}));
    owner->log.clear();
    EXPECT_TRUE(owner->set("loose", u"100"_s));
    EXPECT_TRUE(owner->isValid());
    EXPECT_EQ(owner->log.value(1), u"valid"_s);
}

TEST_F(Protocol, OnlyTextThatAFileCanStoreIsAccepted)
{
    for (const QString &text : {u"a\u0001b"_s, QString(QChar(0xD800)), u"\uFFFE"_s}) {
        EXPECT_FALSE(owner->set("text", text));
        EXPECT_EQ(owner->value("text"), u"abc"_s);
        EXPECT_FALSE(owner->property("text")->errorString().isEmpty());
    }
    EXPECT_TRUE(owner->set("text", u"tab\t line\r\n emoji \U0001F600"_s));
}

TEST_F(Protocol, ForeignPropertiesListsAndObjectsAcceptNoValue)
{
    const std::unique_ptr<Node> other(Node::create(u"other"_s));
    EXPECT_TRUE(owner->changePropertyValue({}, u"1"_s));
    EXPECT_FALSE(owner->changePropertyValue(other->property("percent"), u"1"_s));
    EXPECT_FALSE(owner->set("nodes", u"1"_s));
    EXPECT_FALSE(owner->set("child", u"1"_s));
}

TEST_F(Protocol, ItemsAreInsertedAndRemoved)
{
    Node *item = Node::create(u"a"_s);
    EXPECT_TRUE(owner->addListPropertyItem(owner->property("nodes"), item));
    EXPECT_EQ(owner->log, QStringList({u"before adding a"_s, u"after adding a"_s, u"added a"_s}));
    EXPECT_EQ(item->parent(), owner.get());
    EXPECT_EQ(item->listProperty(), owner->property("nodes"));
    EXPECT_EQ(item->objectPath(), u"a"_s);

    owner->veto = u"before removing a"_s;
    EXPECT_EQ(owner->takeListPropertyItem(owner->property("nodes"), item), nullptr);
    owner->veto.clear();
    EXPECT_EQ(owner->takeListPropertyItem(owner->property("nodes"), item), item);
    EXPECT_EQ(item->parent(), nullptr);
    EXPECT_FALSE(item->listProperty());
    EXPECT_TRUE(item->listProperties().isEmpty());
    EXPECT_FALSE(owner->property("nodes")->hasListItem(u"a"_s));
    delete item;
}

TEST_F(Protocol, RefusalsGiveTheirReasonAndChangeNothing)
{
    Node *first = add(u"first"_s);
    Node *second = add(u"second"_s);
    const std::unique_ptr<Node> stranger(Node::create(u"stranger"_s));
    const std::unique_ptr<Node> twin(Node::create(u"first"_s));
    const SharedProperty nodes = owner->property("nodes");
    const SharedProperty percent = owner->property("percent");

    struct Case
    {
        const char *message;
        SharedProperty property;
        std::function<bool()> request;
    };
    const Case cases[] = {
        {"This is not a list property.", percent,
         [&] { return owner->addListPropertyItem(percent, stranger.get()); }},
        {"Item already exists.", nodes, [&] { return owner->insertListPropertyItemAt(nodes, first, 0); }},
        {"Item already exists.", nodes, [&] { return owner->addListPropertyItem(nodes, twin.get()); }},
        {"The type is not supported.", nodes, [&] { return owner->addListPropertyItem(nodes, owner.get()); }},
        {"Cannot find reference object.", nodes,
         [&] { return owner->insertListPropertyItemBefore(nodes, twin.get(), stranger.get()); }},
        {"Cannot find reference object", nodes,
         [&] { return owner->insertListPropertyItemAfter(nodes, twin.get(), stranger.get()); }},
        {"Object does not exist.", nodes,
         [&] { return owner->insertListPropertyItemAfter(nodes, first, nullptr); }},
        {"This is not a list property.", percent,
         [&] { return owner->takeListPropertyItem(percent, first) != nullptr; }},
        {"Item not in the list.", nodes,
         [&] { return owner->takeListPropertyItem(nodes, stranger.get()) != nullptr; }},
        {"Item is null.", nodes, [&] { return owner->replaceListPropertyItemAt(nodes, 0, nullptr); }},
        {"Index invalid.", nodes, [&] { return owner->replaceListPropertyItemAt(nodes, 2, stranger.get()); }},
        {"Object does not exist.", nodes,
         [&] { return owner->swapListPropertyItems(nodes, first, nullptr); }},
        {"Cannot find objects.", nodes,
         [&] { return owner->swapListPropertyItems(nodes, first, twin.get()); }},
        {"Same objects.", nodes, [&] { return owner->swapListPropertyItems(nodes, first, first); }},
        {"This is not a object type property, or the parent object is null.", percent,
         [&] { return owner->changePropertyObjectValue(percent, stranger.get()); }},
        {"This is not a object type property, or the parent object is null.", nodes,
         [&] { return owner->changePropertyObjectValue(nodes, first); }},
    };
    owner->log.clear();
    for (const Case &test : cases) {
        EXPECT_FALSE(test.request()) << test.message;
        EXPECT_EQ(test.property->errorString(), QString::fromLatin1(test.message));
        EXPECT_EQ(nodes->listItems(), QList<DesignerObject *>({first, second})) << test.message;
        EXPECT_EQ(stranger->parent(), nullptr) << test.message;
        EXPECT_FALSE(stranger->listProperty()) << test.message;
    }
    EXPECT_FALSE(owner->log.join(u' ').contains(u"after"_s));
}

TEST_F(Protocol, ReplaceAndSwapKeepPlacesAndReturnTheOldItem)
{
    Node *first = add(u"first"_s);
    add(u"second"_s);
    Node *third = Node::create(u"first"_s);
    EXPECT_TRUE(owner->replaceListPropertyItem(owner->property("nodes"), first, third));
    EXPECT_EQ(first->parent(), nullptr);
    EXPECT_EQ(owner->property("nodes")->getListItem(u"first"_s), third);
    EXPECT_EQ(owner->property("nodes")->getListItemIndex(third), 0);
    EXPECT_TRUE(owner->swapListPropertyItems(owner->property("nodes"), third,
                                             owner->property("nodes")->getListItemAtIndex(1)));
    EXPECT_EQ(owner->property("nodes")->listItemNames(), QStringList({u"second"_s, u"first"_s}));
    delete first;
    // An item that may not be removed may not be replaced either.
    const std::unique_ptr<Node> fourth(Node::create(u"fourth"_s));
    owner->property("nodes")->setRemoveValidator(
        [](const DesignerProperty *, const DesignerObject *, QString &error) {
            error = u"It stays."_s;
            return false;
        });
    EXPECT_FALSE(owner->replaceListPropertyItem(owner->property("nodes"), third, fourth.get()));
    EXPECT_FALSE(owner->takeListPropertyItem(owner->property("nodes"), third));
    EXPECT_EQ(owner->property("nodes")->errorString(), u"It stays."_s);
    EXPECT_EQ(third->parent(), owner.get());
    EXPECT_EQ(fourth->parent(), nullptr);
}

TEST_F(Protocol, ANewNameIsFoundAtOnceAndReportedAfterwards)
{
    Node *item = add(u"old"_s);
    item->log.clear();
    bool foundInHook = false;
    QObject::connect(item, &DesignerObject::idNameChanged, owner.get(),
                     [&] { foundInHook = owner->property("nodes")->getListItem(u"new"_s) == item; });
    EXPECT_TRUE(item->setIdName(u"new"_s));
    EXPECT_TRUE(foundInHook);
    EXPECT_FALSE(owner->property("nodes")->hasListItem(u"old"_s));
    EXPECT_EQ(item->objectName(), u"new"_s);
    EXPECT_EQ(item->log.value(2), u"renamed old to new"_s);

    // The model stores a bad name and marks it. Both items with the name can still be distinguished and
    // removed.
    Node *twin = add(u"twin"_s);
    EXPECT_TRUE(twin->setIdName(u"new"_s));
    EXPECT_EQ(owner->property("nodes")->listItemCount(u"new"_s), 2);
    EXPECT_EQ(owner->property("nodes")->getListItem(u"new"_s), item);
    delete owner->takeListPropertyItem(owner->property("nodes"), item);
    EXPECT_EQ(owner->property("nodes")->getListItem(u"new"_s), twin);
}

TEST_F(Protocol, EditsUpdateValidityUpwardsAndFullValidationDownwards)
{
    Node *item = add(u"item"_s);
    Node *inner = Node::create(u"inner"_s);
    ASSERT_TRUE(item->addListPropertyItem(item->property("nodes"), inner));
    inner->set("loose", u"200"_s);
    EXPECT_FALSE(owner->isValid());
    EXPECT_EQ(owner->validationErrors(),
              QStringList(u"Nodes: One or more of the list's items are invalid."_s));
    inner->set("loose", u"20"_s);
    EXPECT_TRUE(owner->isValid());

    inner->set("loose", u"200"_s);
    delete item->takeListPropertyItem(item->property("nodes"), inner);
    EXPECT_TRUE(owner->isValid()) << "the invalid item is gone";

    item->setDisableValidation(true);
    item->set("loose", u"200"_s);
    EXPECT_TRUE(owner->isValid());
    item->setDisableValidation(false);
    EXPECT_FALSE(owner->validate());
}

TEST_F(Protocol, AChildObjectIsOwnedReplacedAndDeletedOnRequest)
{
    Node *child = Node::create(u"child"_s);
    const SharedProperty slot = owner->property("child");
    EXPECT_TRUE(owner->changePropertyObjectValue(slot, child));
    EXPECT_EQ(child->parent(), owner.get());
    child->set("loose", u"200"_s);
    EXPECT_EQ(owner->validationErrors(),
              QStringList(u"Child: One or more of the object's properties are invalid."_s));
    const QPointer<Node> watched(child);
    EXPECT_TRUE(owner->changePropertyObjectValue(slot, Node::create(u"next"_s), true));
    EXPECT_FALSE(watched);
    EXPECT_TRUE(owner->isValid());
}

TEST_F(Protocol, ADeletedObjectIsRemovedFromItsOwner)
{
    Node *item = add(u"item"_s);
    item->set("loose", u"200"_s);
    delete item;
    EXPECT_EQ(owner->property("nodes")->listItemCount(), 0);
    auto *child = Node::create(u"child"_s);
    ASSERT_TRUE(owner->changePropertyObjectValue(owner->property("child"), child));
    delete child;
    EXPECT_EQ(owner->property("child")->objectValue(), nullptr);
    EXPECT_TRUE(owner->validate());
}

TEST_F(Protocol, APropertyOutlivesItsObject)
{
    add(u"item"_s);
    owner->changePropertyObjectValue(owner->property("child"), Node::create(u"child"_s));
    const QList<SharedProperty> properties = owner->properties().toList();
    owner.reset();
    for (const SharedProperty &property : properties) {
        EXPECT_EQ(property->parentObject(), nullptr);
        EXPECT_TRUE(property->listItems(true).isEmpty());
        EXPECT_EQ(property->objectValue(), nullptr);
        EXPECT_TRUE(property->validate());
        property->setValueValidator(
            [](const DesignerProperty *judged, QString &) { return judged->parentObject()->isValid(); });
        EXPECT_TRUE(property->validate());
    }
}

TEST_F(Protocol, AChildIsTakenFromItsOldOwnerFirst)
{
    const std::unique_ptr<Node> other(Node::create(u"other"_s));
    Node *child = Node::create(u"child"_s);
    const SharedProperty slot = owner->property("child");
    ASSERT_TRUE(owner->changePropertyObjectValue(slot, child));
    EXPECT_FALSE(other->addListPropertyItem(other->property("nodes"), child));
    EXPECT_FALSE(owner->addListPropertyItem(owner->property("nodes"), child));
    EXPECT_FALSE(other->changePropertyObjectValue(other->property("child"), child));
    EXPECT_EQ(child->parent(), owner.get());
    ASSERT_TRUE(owner->changePropertyObjectValue(slot, nullptr));
    EXPECT_TRUE(other->addListPropertyItem(other->property("nodes"), child));
}

TEST_F(Protocol, DescriptorsAreSharedUntilOneInstanceDiffers)
{
    const std::unique_ptr<Node> other(Node::create(u"other"_s));
    owner->property("percent")->setEditorParameter(u"visible"_s, false);
    owner->property("percent")->setRank(12);
    EXPECT_EQ(other->property("percent")->rank(), 1);
    EXPECT_FALSE(other->property("percent")->editorParameters().contains(u"visible"_s));
}

} // namespace Halvane::Corvex::Designer::Test
