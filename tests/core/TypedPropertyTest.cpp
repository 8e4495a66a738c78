// SPDX-License-Identifier: MIT
#include "corvex/common/EnumHelper.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/BorderProperty.h"
#include "corvex/core/properties/CollectionProperties.h"
#include "corvex/core/properties/ColorProperties.h"
#include "corvex/core/properties/EnumProperty.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/core/properties/FieldbusErrorProperties.h"
#include "corvex/core/properties/FontProperty.h"
#include "corvex/core/properties/GradientStopsProperty.h"
#include "corvex/core/properties/IOErrorProperty.h"
#include "corvex/core/properties/IdentifierProperty.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/core/properties/RangeProperty.h"
#include "corvex/core/properties/ShapeProperties.h"
#include "corvex/core/properties/TransformOriginProperty.h"
#include "corvex/core/properties/ValueRangeProperty.h"

#include <functional>
#include <gtest/gtest.h>

using namespace Halvane::Corvex::Designer;
using Halvane::Corvex::Common::EnumHelper;
using namespace Qt::StringLiterals;

namespace {

//! A property with public access to its reading, which otherwise only its owner may call.
struct Subject
{
    SharedProperty property;
    std::function<bool(const QString &)> read;
};

template<class Property, class Value>
Subject make(const Value &initialValue, const QString &id = u"value"_s)
{
    struct Open : public Property
    {
        using Property::convertToValue;
        using Property::Property;
    };
    // Only the value may make an instance larger: a project has a million of them.
    using Held = std::remove_cvref_t<decltype(std::declval<Property>().value())>;
    static_assert(sizeof(Property) <= sizeof(DesignerProperty) + std::max(sizeof(Held), sizeof(void *)));
    const auto property = QSharedPointer<Open>::create(nullptr, id, id, initialValue);
    return {property, [property](const QString &text) { return property->convertToValue(text); }};
}
static_assert(sizeof(DesignerProperty) <= 5 * sizeof(void *));
static_assert(sizeof(BooleanProperty) == sizeof(DesignerProperty)
              && sizeof(IntegerProperty) == sizeof(DesignerProperty));

EnumInfo channelWord(int value)
{
    return EnumInfo(QMetaEnum::fromType<EnumHelper::InputOutputType>(), value);
}

struct Good
{
    QString text;
    QString canonical; //!< empty if it is the text itself
    QString qml;       //!< without indentation
};

struct Kind
{
    const char *description; //!< class, editor and flags
    Subject subject;
    QList<Good> good; //!< of different values; the first is not the initial value
    QStringList bad;
};

constexpr char arial[] = "bold: true; family: QXJpYWw=; italic: false; letterSpacing: 1.5; overline: false; "
                         "pixelSize: 12; strikeout: true; underline: false; wordSpacing: 0;";

QList<Kind> kinds()
{
    return {
        {"BooleanProperty BooleanEditor 0",
         make<BooleanProperty>(false),
         {{u"TRUE"_s, u"true"_s, u"value: true"_s}, {u"false"_s, {}, u"value: false"_s}},
         {u""_s, u"1"_s, u"yes"_s}},
        {"IntegerProperty IntegerEditor 0",
         make<IntegerProperty>(0),
         {{u"-12"_s, {}, u"value: -12"_s}, {u"+7"_s, u"7"_s, u"value: 7"_s}},
         {u""_s, u"x"_s, u"1.5"_s, u"0x10"_s, u"2147483648"_s}},
        {"RealProperty RealEditor 0",
         make<RealProperty>(0.0),
         {{u"0.12345"_s, u"0.123"_s, u"value: 0.123"_s}, {u"-1e3"_s, u"-1000"_s, u"value: -1000"_s}},
         {u""_s, u"x"_s, u"1,5"_s, u"nan"_s, u"inf"_s, u"1e999"_s}},
        {"StringProperty PropertyEditor 0",
         make<StringProperty>(u"abc"_s),
         {{u"a\"b\\c\nd"_s, {}, u"value: \"a\\\"b\\\\c\\nd\""_s}, {u" "_s, {}, u"value: \" \""_s}},
         {}},
        {"ColorProperty ColorEditor 15",
         make<ColorProperty>(QColor(Qt::black)),
         {{u"red"_s, u"#FFFF0000"_s, u"value: \"#FFFF0000\""_s},
          {u"#80ff0000"_s, u"#80FF0000"_s, u"value: \"#80FF0000\""_s}},
         {u""_s, u"nocolor"_s, u"#12345"_s}},
        {"ColorListProperty PropertyEditor 15",
         make<ColorListProperty>(2),
         {{u"[red,#FF00FF00]"_s, u"[#FFFF0000,#FF00FF00]"_s, u"value: [\"#FFFF0000\", \"#FF00FF00\"]"_s},
          {u"]"_s, {}, u"value: []"_s}},
         {u""_s, u"[]"_s, u"[red,none]"_s}},
        {"FontProperty FontEditor 15",
         make<FontProperty>(QFont(), u"font"_s),
         {{QLatin1StringView(arial),
           {},
           u"font.family: \"Arial\"\nfont.pixelSize: 12\nfont.bold: true\nfont.italic: false\n"
           "font.letterSpacing: 1.5\nfont.overline: false\nfont.strikeout: true\nfont.underline: false\n"
           "font.wordSpacing: 0"_s}},
         {u""_s, u"Arial"_s, u"family: QXJpYWw=;"_s}},
        {"SizeProperty SizeEditor 15",
         make<SizeProperty>(QSizeF(1, 1), u"size"_s),
         {{u"width: 40; height: 20.50;"_s, u"height: 20.5; width: 40;"_s, u"width: 40\nheight: 20.5"_s}},
         {u""_s, u"40 x 20"_s, u"height: 20;"_s}},
        {"SizeProperty SizeEditor 15",
         make<SizeProperty>(QSizeF(1, 1)),
         {{u"height: 20; width: 40;"_s, {}, u"value: Qt.size(40, 20)"_s}},
         {}},
        {"PointProperty PointEditor 1",
         make<PointProperty>(QPointF(), u"position"_s),
         {{u"x: -1; y: 20.5;"_s, {}, u"x: -1\ny: 20.5"_s}},
         {u""_s, u"x: 1; y: b;"_s, u"x: 1; y: 2; z: 3;"_s}},
        {"PointProperty PointEditor 1",
         make<PointProperty>(QPointF()),
         {{u"x: -1; y: 20.5;"_s, {}, u"value: Qt.point(-1, 20.5)"_s}},
         {}},
        {"PointListProperty PropertyEditor 15",
         make<PointListProperty>(QPolygonF({{9, 9}})),
         {{u"x: 0; y: 0; | x: 10; y: 0;"_s, {}, u"value: [Qt.point(0, 0), Qt.point(10, 0)]"_s},
          {u""_s, {}, u"value: []"_s}},
         {u"x: 0; y: 0; | "_s, u"0, 0"_s}},
        {"PolygonListProperty PropertyEditor 3",
         make<PolygonListProperty>(QList<QPolygonF>({{{9, 9}}})),
         {{u"[x: 0; y: 0;], []"_s, {}, u"value: [[Qt.point(0, 0)], []]"_s}, {u""_s, {}, u"value: []"_s}},
         {u"x: 0; y: 0;"_s, u"[x: 0;]"_s}},
        {"GradientStopsProperty GradientStopsEditor 15",
         make<GradientStopsProperty>(GradientStopsProperty::initValue(), u"gradient"_s),
         {{u"0, red | 0.297, #FF00FF00"_s, u"0, #FFFF0000 | 0.29, #FF00FF00"_s,
           u"gradient: Gradient {\n\tGradientStop { position: 0; color: \"#FFFF0000\" }\n"
           "\tGradientStop { position: 0.29; color: \"#FF00FF00\" }\n}"_s},
          {u""_s, {}, u"gradient: Gradient {\n}"_s}},
         {u"0 red"_s, u"0, red | "_s, u"0, none"_s}},
        {"BorderProperty BorderEditor 15",
         make<BorderProperty>(BorderInfo(), u"border"_s),
         {{u"width: 2; color: red;"_s, u"color: #FFFF0000; width: 2;"_s,
           u"border.width: 2\nborder.color: \"#FFFF0000\""_s}},
         {u""_s, u"color: red;"_s, u"color: red; width: thin;"_s}},
        {"EnumProperty PropertyEditor 0",
         make<EnumProperty>(channelWord(0)),
         {{u"SEND"_s, {}, u"value: \"SEND\""_s}, {u"UNUSED"_s, {}, u"value: \"UNUSED\""_s}},
         {u""_s, u"send"_s, u"5"_s, u"SENT"_s}},
        {"RangeProperty RangeEditor 15",
         make<RangeProperty>(RangeInfo()),
         {{u"minimum: -5; maximum: 1.25;"_s, u"maximum: 1.25; minimum: -5;"_s, u"value: [-5, 1.25]"_s}},
         {u""_s, u"minimum: 0;"_s, u"0, 100"_s}},
        {"ValueRangeProperty ValueRangeEditor 15",
         make<ValueRangeProperty>(ValueRangeInfo()),
         {{u"value1: 0, value2: 50, min: 0, max: 100"_s, {}, u"value: [0, 50]"_s}},
         {u""_s, u"value1: 0, value2: 50"_s, u"value1: 0, value1: 0, min: 0, max: 100"_s}},
        {"ConditionProperty ConditionEditor 15",
         make<ConditionProperty>(ConditionInfo()),
         {{u"condition1: GT; condition2: LE; operator: AND; value1: -3; value2: 10;"_s,
           {},
           u"function validateValue(value) {\n\treturn value > -3 && value <= 10;\n}"_s},
          {u"condition1: None; condition2: LT; operator: OR; value1: 0; value2: 2.5;"_s,
           {},
           u"function validateValue(value) {\n\treturn value < 2.5;\n}"_s},
          {u"condition1: x; condition2: None; operator: OR; value1: 0; value2: 0;"_s,
           {},
           u"function validateValue(value) {\n\treturn true;\n}"_s}},
         {u""_s, u"condition1: GT; value1: 3;"_s}},
        {"IdentifierProperty IdentifierEditor 1",
         make<IdentifierProperty>(IdentifierInfo(), u"id"_s),
         {{u"scopeType: Project; name: pump1;"_s, u"name: pump1; scopeType: Project;"_s, u"id: qml_pump1"_s},
          {u"scopeType: Project; name: ;"_s, u"scopeType: Project;"_s, u"id: qml_"_s}},
         {u"pump1"_s, u"scopeType: Project; name"_s}},
        {"LinkProperty LinkEditor 13",
         make<LinkProperty>(ObjectLinkInfo(u"a"_s, {}, QString())),
         {{u"filterType: Text | Image; objectId: label1;"_s, {}, u"value: qml_label1"_s},
          {u"filterType: ; objectId: ;"_s, {}, u"value: null"_s}},
         {u""_s, u"label1"_s}},
        {"MapProperty PropertyEditor 0",
         make<MapProperty>(MapInfo(u"key: 9; value: x;"_s)),
         {{u"key: 1; value: On \"1\"; | key: 0; value: Off;"_s,
           {},
           u"value: [[\"1\", \"On \\\"1\\\"\"], [\"0\", \"Off\"]]"_s},
          {u""_s, {}, u"value: []"_s}},
         {u"1"_s, u"key: 1;"_s}},
        {"ListValueProperty PropertyEditor 0",
         make<ListValueProperty>(ListInfo(u"x"_s)),
         {{u"a\\b | c"_s, {}, u"value: [\"a\\\\b\", \"c\"]"_s}, {u""_s, {}, u"value: []"_s}},
         {}},
        {"GeneralDataProperty PropertyEditor 0",
         make<GeneralDataProperty>(GeneralDataInfo()),
         {{u"0406speed"_s, {}, {}}},
         {u""_s, u"040"_s, u"0803x"_s}},
        {"GeneralDataListProperty PropertyEditor 0",
         make<GeneralDataListProperty>(GeneralDataList(u"0406a"_s)),
         {{u"<0406speed><0101+><0204-1A>"_s, {}, {}}, {u""_s, {}, {}}},
         {u"<0406speed><01>"_s}},
        {"PropertyChangeProperty PropertyEditor 1",
         make<PropertyChangeProperty>(PropertyChangeInfo()),
         {{u"elementName: label1; propertyName: text; valueString: SGVsbG8=;"_s, {}, {}}},
         {u""_s, u"elementName: label1;"_s}},
        {"PropertyChangeListProperty PropertyEditor 1",
         make<PropertyChangeListProperty>(PropertyList(u"elementName: z; propertyName: z; valueString: ;"_s)),
         {{u"elementName: b; propertyName: x; valueString: ; | elementName: a; propertyName: x; "
           "valueString: ;"_s,
           u"elementName: a; propertyName: x; valueString: ; | elementName: b; propertyName: x; "
           "valueString: ;"_s,
           {}},
          {u""_s, {}, {}}},
         {u"elementName: b;"_s}},
        {"UpdateObjectProperty PropertyEditor 0",
         make<UpdateObjectProperty>(UpdateObjectInfo(u"name: z;"_s)),
         {{u"className: Text; index: 2; name: label1;"_s, {}, {}}, {u""_s, {}, {}}},
         {u"index: -1;"_s, u"label1"_s}},
        {"UpdateObjectListProperty PropertyEditor 0",
         make<UpdateObjectListProperty>(UpdateObjectList(u"name: z;"_s)),
         {{u"name: a; | name: b;"_s, {}, {}}, {u""_s, {}, {}}},
         {u"name: a; | index: x;"_s}},
        {"TransformOriginProperty TransformOriginEditor 15",
         make<TransformOriginProperty>(QQuickItem::Center),
         {{u"TopLeft"_s, {}, u"value: Item.TopLeft"_s}, {u"BottomRight"_s, {}, u"value: Item.BottomRight"_s}},
         {u""_s, u"topLeft"_s, u"0"_s, u"Middle"_s}},
        {"IOErrorProperty IOErrorFlagsEditor 15",
         make<IOErrorProperty>(IOErrorInfo()),
         {{u"id: true, io: false"_s, {}, u"value: [\"IdError\"]"_s},
          {u"io: true,id: true"_s, u"id: true, io: true"_s, u"value: [\"IdError\", \"IOError\"]"_s}},
         {u""_s, u"id: true"_s, u"id: true, id: true"_s, u"id: 1, io: 0"_s}},
        {"SendErrorProperty ErrorFlagsEditor 15",
         make<SendErrorProperty>(SendErrorInfo()),
         {{u"busy: true, offline: true"_s, {}, u"value: [\"TargetBusy\", \"TargetOffline\"]"_s},
          {u"busy: false, offline: false"_s, {}, u"value: []"_s}},
         {u""_s, u"busy: true"_s}},
        {"ReceiveErrorProperty ErrorFlagsEditor 15",
         make<ReceiveErrorProperty>(ReceiveErrorInfo()),
         {{u"name: true, value: true, type: true, dataFlow: true"_s,
           {},
           u"value: [\"NameDecodeError\", \"TypeDecodeError\", \"ValueDecodeError\", \"DescrDecodeError\"]"_s}},
         {u""_s, u"name: true, value: true, type: true"_s}},
    };
}

} // namespace

TEST(TypedProperty, ReadsAndWritesItsType)
{
    for (const Kind &kind : kinds()) {
        SCOPED_TRACE(kind.description);
        DesignerProperty &property = *kind.subject.property;
        const QString name = property.className();
        EXPECT_EQ(u"%1 %2 %3"_s.arg(name, property.editor(), QString::number(property.flags().toInt())),
                  QLatin1StringView(kind.description));
        EXPECT_EQ(property.classNames().mid(1), QStringList({u"DesignerProperty"_s, name}));
        property.setFlag(RuntimeFlag, true);

        for (const auto &[text, canonical, qml] : kind.good) {
            SCOPED_TRACE(text.toStdString());
            const QString expected = canonical.isEmpty() ? text : canonical;
            EXPECT_FALSE(property.equalsValue(text));
            ASSERT_TRUE(kind.subject.read(text));
            EXPECT_TRUE(property.equalsValue(text));
            EXPECT_EQ(property.valueString(), expected);
            EXPECT_EQ(property.toQml(0), qml);
            ASSERT_TRUE(kind.subject.read(expected));
            EXPECT_EQ(property.valueString(), expected);
        }
        const QString last = property.valueString();
        for (const QString &text : kind.bad) {
            SCOPED_TRACE(text.toStdString());
            EXPECT_FALSE(kind.subject.read(text));
            EXPECT_EQ(property.valueString(), last);
            EXPECT_TRUE(property.equalsValue(text)) << "what cannot be read must change nothing";
        }
    }
}

TEST(TypedProperty, EditorParametersShapeTheQml)
{
    const Subject real = make<RealProperty>(2.0 / 3);
    real.property->setFlags(OrdinaryFlags);
    EXPECT_EQ(real.property->toQml(0), u"value: 0.667"_s);
    real.property->setEditorParameter(u"decimals"_s, 0);
    EXPECT_EQ(real.property->toQml(0), u"value: 1"_s);
    real.property->setEditorParameter(u"decimals"_s, 6);
    EXPECT_EQ(real.property->toQml(1), u"\tvalue: 0.666667"_s);

    const Subject word = make<EnumProperty>(channelWord(EnumHelper::SEND));
    word.property->setFlags(OrdinaryFlags);
    word.property->setEditorParameter(u"numberOutput"_s, true);
    EXPECT_EQ(word.property->toQml(0), u"value: 5"_s);
}

TEST(TypedProperty, ZeroKeepsItsSign)
{
    const Subject real = make<RealProperty>(0.0);
    const Subject point = make<PointProperty>(QPointF(0, 3));
    for (const auto &[subject, text] :
         {std::pair{real, u"-0"_s}, {real, u"0"_s}, {point, u"x: -0; y: 3;"_s}, {point, u"x: 0; y: 3;"_s}}) {
        const bool isSame = subject.property->valueString() == text;
        EXPECT_EQ(subject.property->equalsValue(text), isSame) << qPrintable(text);
        EXPECT_TRUE(subject.read(text));
        EXPECT_EQ(subject.property->valueString(), text);
    }
}
