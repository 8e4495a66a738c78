// SPDX-License-Identifier: MIT
#include "corvex/widgets/KdAddressEdit.h"

#include "EditorFixture.h"

#include <QClipboard>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class NetworkEditorsTest : public EditorFixture
{
protected:
    //! A device on another host, whose addresses are shown.
    DesignerObject *addDevice(const char *type, const char *name = "device1")
    {
        DesignerObject *device = add(document->project().variables(), "BACnetDevice", name);
        EXPECT_TRUE(push(Commands::changeOf({{device->getProperty(u"isLocal"_s), u"false"_s}})));
        device->getProperty(u"bacnetType"_s)
            ->parentObject()
            ->changeValue(device->getProperty(u"bacnetType"_s), QString::fromLatin1(type));
        return device;
    }
};

TEST_F(NetworkEditorsTest, AddressesAreReadInTheUsualForms)
{
    const struct
    {
        KdAddressEdit::Kind kind;
        QString text;
        QString address; //!< empty for a refusal
    } cases[] = {
        {KdAddressEdit::IPv4, u"192.168.0.10"_s, u"192.168.0.10"_s},
        {KdAddressEdit::IPv4, u" 192 168 000 010 "_s, u"192.168.0.10"_s},
        {KdAddressEdit::IPv4, u"192,168,0,10"_s, u"192.168.0.10"_s},
        {KdAddressEdit::IPv4, u"192.168.0"_s, {}},
        {KdAddressEdit::IPv4, u"192.168.0.10.1"_s, {}},
        {KdAddressEdit::IPv4, u"192.168.0.256"_s, {}},
        {KdAddressEdit::IPv4, u"192.168.+1.0"_s, {}},
        {KdAddressEdit::IPv4, u"panel.local"_s, {}},
        {KdAddressEdit::Mac, u"00:1a:2b:3c:4d:5e"_s, u"00:1A:2B:3C:4D:5E"_s},
        {KdAddressEdit::Mac, u"00-1A-2B-3C-4D-5E"_s, u"00:1A:2B:3C:4D:5E"_s},
        {KdAddressEdit::Mac, u"001a2b3c4d5e"_s, u"00:1A:2B:3C:4D:5E"_s},
        {KdAddressEdit::Mac, u"017"_s, u"17"_s},
        {KdAddressEdit::Mac, u"255"_s, {}},
        {KdAddressEdit::Mac, u"00:1A:2B"_s, {}},
        {KdAddressEdit::Mac, u"00:1A:2B:3C:4D:GG"_s, {}},
    };
    for (const auto &[kind, text, address] : cases) {
        const auto [read, error] = KdAddressEdit::read(kind, text);
        EXPECT_EQ(read, address) << qPrintable(text);
        EXPECT_EQ(error.isEmpty(), !address.isEmpty()) << qPrintable(text);
    }
}

TEST_F(NetworkEditorsTest, AnAddressIsTypedSteppedAndPasted)
{
    DesignerObject *device = addDevice("BACnetIP");
    PropertyEditor *editor = edit({device}, "ethernetIP");
    type(u"192168.0.1"_s); // the first two separators come by themselves
    EXPECT_EQ(value(device, "ethernetIP"), u"192.168.0.1"_s);
    auto *line = field<KdAddressEdit>(editor);
    line->setCursorPosition(5); // in the second octet
    QTest::keyClick(line, Qt::Key_Up);
    QTest::keyClick(line, Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(value(device, "ethernetIP"), u"192.179.0.1"_s);
    QGuiApplication::clipboard()->setText(u"see http://10.0.0.7/status"_s);
    line->selectAll();
    QTest::keySequence(line, QKeySequence::Paste);
    EXPECT_EQ(line->text(), u"10.0.0.7"_s);
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_EQ(value(device, "ethernetIP"), u"10.0.0.7"_s);

    type(u"300.1.1.1"_s);
    EXPECT_TRUE(editor->errorString().startsWith(u"\"300\" is too large"_s)) << qPrintable(line->text());
    EXPECT_EQ(line->text(), u"300.1.1.1"_s);
    QTest::keyClick(line, Qt::Key_Escape);
    EXPECT_EQ(line->text(), u"10.0.0.7"_s);
    line->selectAll();
    QTest::keyClick(line, Qt::Key_Delete);
    QTest::keyClick(line, Qt::Key_Return); // no address
    EXPECT_EQ(value(device, "ethernetIP"), QString());
}

TEST_F(NetworkEditorsTest, SeveralDevicesShowMixedUntilTheyAreTheSame)
{
    DesignerObject *first = addDevice("BACnetIP", "device1");
    DesignerObject *second = addDevice("BACnetIP", "device2");
    ASSERT_TRUE(push(Commands::changeOf({{second->getProperty(u"ethernetIP"_s), u"10.0.0.7"_s}})));
    PropertyEditor *editor = edit({first, second}, "ethernetIP");
    EXPECT_EQ(field<KdAddressEdit>(editor)->placeholderText(), u"Mixed"_s);
    type(u"10.0.0.8"_s);
    EXPECT_EQ(value(first, "ethernetIP"), u"10.0.0.8"_s);
    EXPECT_EQ(value(second, "ethernetIP"), u"10.0.0.8"_s);
    EXPECT_EQ(field<KdAddressEdit>(editor)->placeholderText(), u"0.0.0.0"_s);
}

TEST_F(NetworkEditorsTest, ADeviceOnASerialBusHasAStation)
{
    DesignerObject *device = addDevice("BACnetMSTP");
    edit({device}, "macAddress");
    type(u"17"_s);
    EXPECT_EQ(value(device, "macAddress"), u"17"_s);
    type(u"0:1a2b3c4d5e"_s);
    EXPECT_EQ(value(device, "macAddress"), u"00:1A:2B:3C:4D:5E"_s);
}

} // namespace Halvane::Corvex::Designer::Test
