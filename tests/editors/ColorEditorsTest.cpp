// SPDX-License-Identifier: MIT
#include "corvex/core/PropertyTable.h"
#include "corvex/core/TableFactory.h"
#include "corvex/core/properties/ColorProperties.h"
#include "corvex/core/properties/GradientStopsProperty.h"
#include "corvex/editors/ColorEditors.h"
#include "corvex/project/elements/VisualElement.h"
#include "corvex/widgets/ColorPicker.h"
#include "corvex/widgets/ColorSwatch.h"
#include "corvex/widgets/KdLineEdit.h"

#include "EditorFixture.h"

#include <QLabel>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

namespace {

//! An element with the kinds of properties that no standard element has.
class Rainbow : public VisualElement
{
    CORVEX_CLASS_NAMES(Rainbow, VisualElement)

protected:
    using VisualElement::VisualElement;
    bool initializeProperties() override
    {
        static const PropertyTable table{
            row<GradientStopsProperty>("gradient", "Gradient", GradientStopsProperty::initValue()),
            row<ColorListProperty>("colors", "Colors", 2),
        };
        return VisualElement::initializeProperties() && addProperties(table);
    }
};

} // namespace

class ColorEditorsTest : public EditorFixture
{
protected:
    DesignerObject *addRainbow()
    {
        DesignerObject *rainbow = makeObject<Rainbow>(nullptr);
        rainbow->initialize();
        rainbow->setIdName(u"rainbow1"_s);
        EXPECT_TRUE(main->addListPropertyItem(main->elements(), rainbow));
        return rainbow;
    }
    //! The part of an editor or a popup with that end of its accessible name.
    static QWidget *part(const QWidget *owner, const QString &name)
    {
        for (QWidget *widget : owner->findChildren<QWidget *>()) {
            if (widget->accessibleName().endsWith(name)) {
                return widget;
            }
        }
        ADD_FAILURE() << qPrintable(name);
        return nullptr;
    }
    static ColorPicker *openPicker(const PropertyEditor *editor)
    {
        field<ColorSwatch>(editor)->click();
        return field<ColorPicker>(editor);
    }
    static QString hint(const PropertyEditor *editor)
    {
        const auto *label = editor->findChild<QLabel *>(u"hint"_s);
        return label && !label->isHidden() ? label->text() : QString();
    }
};

TEST_F(ColorEditorsTest, AColorIsTypedInAnyForm)
{
    DesignerObject *rectangle = element("rectangle1");
    PropertyEditor *editor = edit({rectangle}, "color");
    const struct
    {
        QString typed;
        QString stored; //!< empty for a refusal
        QString shown;
    } cases[] = {
        {u"red"_s, u"#FFFF0000"_s, u"#FF0000"_s},
        {u"#0f0"_s, u"#FF00FF00"_s, u"#00FF00"_s},
        {u" #80102030 "_s, u"#80102030"_s, u"#80102030"_s},
        {u"purpel"_s, {}, u"Did you mean \"purple\"?"_s},
        {u"#12345"_s, {}, u"#RRGGBB"_s},
    };
    for (const auto &[typed, stored, shown] : cases) {
        const QString before = value(rectangle, "color");
        panel->reveal(u"color"_s);
        type(typed);
        EXPECT_EQ(value(rectangle, "color"), stored.isEmpty() ? before : stored) << qPrintable(typed);
        if (stored.isEmpty()) {
            EXPECT_TRUE(editor->errorString().contains(shown)) << qPrintable(editor->errorString());
            EXPECT_EQ(field<KdLineEdit>(editor)->text(), typed);
            QTest::keyClick(field<KdLineEdit>(editor), Qt::Key_Escape);
        }
        EXPECT_EQ(field<KdLineEdit>(editor)->text(), stored.isEmpty() ? u"#80102030"_s : shown);
    }
    EXPECT_EQ(field<ColorSwatch>(editor)->color(), QColor(0x10, 0x20, 0x30, 0x80));
}

TEST_F(ColorEditorsTest, ADragInThePickerIsOneStepAndEscapeTakesItBack)
{
    DesignerObject *first = element("rectangle1");
    DesignerObject *second = element("rectangle2");
    PropertyEditor *editor = edit({first, second}, "color");
    const QString before = text();
    QTest::keyClick(field<KdLineEdit>(editor), Qt::Key_Down, Qt::AltModifier);
    auto *picker = field<ColorPicker>(editor);
    ASSERT_TRUE(picker && picker->isVisible());
    QWidget *plane = part(picker, u"Hue and saturation"_s);
    const auto drag = [plane] {
        QTest::mousePress(plane, Qt::LeftButton, {}, {40, 20});
        QTest::mouseMove(plane, {80, 30});
        QTest::mouseMove(plane, {120, 40});
    };
    drag();
    EXPECT_TRUE(text() != before);
    EXPECT_EQ(value(first, "color"), value(second, "color"));
    QTest::keyClick(plane, Qt::Key_Escape);
    QTest::mouseRelease(plane, Qt::LeftButton, {}, {120, 40});
    EXPECT_TRUE(text() == before);
    EXPECT_TRUE(picker->isVisible());

    drag();
    QTest::mouseRelease(plane, Qt::LeftButton, {}, {120, 40});
    const QString after = text();
    QWidget *alpha = part(picker, u"Opacity"_s);
    QTest::keyClick(alpha, Qt::Key_Left);
    QTest::keyClick(alpha, Qt::Key_Left);
    EXPECT_TRUE(value(first, "color").startsWith(u"#FA"_s)) << qPrintable(value(first, "color"));
    ASSERT_TRUE(document->undo()); // the run of keys
    EXPECT_TRUE(text() == after);
    ASSERT_TRUE(document->undo()); // the drag
    EXPECT_TRUE(text() == before);
    const QColor last = picker->color();
    QTest::keyClick(picker, Qt::Key_Escape);
    EXPECT_FALSE(picker->isVisible());
    EXPECT_TRUE(ColorPicker::recentColors().contains(last));
}

TEST_F(ColorEditorsTest, ThePickerOffersWhatIsInUse)
{
    ASSERT_TRUE(push(Commands::changeOf({{element("rectangle2")->getProperty(u"color"_s), u"#FF123456"_s}})));
    PropertyEditor *editor = edit({element("rectangle1")}, "color");
    ColorPicker *picker = openPicker(editor);
    EXPECT_EQ(picker->findChild<QToolButton *>(), nullptr) << "nobody can pick on a canvas";
    auto *swatch = qobject_cast<ColorSwatch *>(part(picker, u"#123456"_s));
    ASSERT_TRUE(swatch);
    swatch->click();
    EXPECT_EQ(value(element("rectangle1"), "color"), u"#FF123456"_s);
    picker->close();

    EditorRequests::ColorAnswer answer;
    QObject::connect(&panel->requests(), &EditorRequests::colorRequested, panel.get(),
                     [&](const EditorRequests::ColorAnswer &given) { answer = given; });
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    picker = openPicker(editor);
    ASSERT_TRUE(picker->findChild<QToolButton *>());
    picker->findChild<QToolButton *>()->click();
    ASSERT_TRUE(answer);
    answer(QColor(1, 2, 3));
    EXPECT_EQ(value(element("rectangle1"), "color"), u"#FF010203"_s);
    edit({element("rectangle2")}, "color");
    answer(Qt::red);
    EXPECT_EQ(value(element("rectangle1"), "color"), u"#FF010203"_s) << "the answer is too late";
    EXPECT_NE(value(element("rectangle2"), "color"), u"#FFFF0000"_s);

    editor = edit({main}, "color");
    type(u"navy"_s);
    EXPECT_EQ(value(main, "color"), u"#FF000080"_s) << "of a screen";
}

TEST_F(ColorEditorsTest, TextThatIsHardToReadHasAHint)
{
    DesignerObject *beneath = element("rectangle1");
    DesignerObject *label = element("text1");
    const auto set = [this](DesignerObject *object, const char *id, const QString &to) {
        EXPECT_TRUE(push(Commands::changeOf({{object->getProperty(QString::fromLatin1(id)), to}})));
        QCoreApplication::processEvents();
    };
    set(beneath, "size", u"height: 400; width: 400;"_s);
    set(element("rectangle2"), "visible", u"false"_s);
    PropertyEditor *editor = edit({label}, "color");
    EXPECT_EQ(hint(editor), QString());
    const struct
    {
        DesignerObject *object;
        const char *id;
        QString value;
        QString hint; //!< a part of it
    } steps[] = {
        {beneath, "color", u"#FF202020"_s, u"is 1.2 to 1"_s}, // black on nearly black
        {label, "color", u"#FFFFFFFF"_s, {}},
        {beneath, "visible", u"false"_s, u"is 1 to 1"_s}, // the white screen
        {beneath, "visible", u"true"_s, {}},
        {beneath, "opacity", u"20"_s, u"is 1."_s},
        {beneath, "opacity", u"100"_s, {}},
        {label, "opacity", u"20"_s, u"is 1."_s},
        {label, "opacity", u"100"_s, {}},
        {beneath, "z", u"5"_s, u"is 1 to 1"_s}, // above the text
        {beneath, "z", u"0"_s, {}},
        {beneath, "position", u"x: 300; y: 300;"_s, u"is 1 to 1"_s},
    };
    for (const auto &[object, id, to, expected] : steps) {
        set(object, id, to);
        document->select({label}); // an edit selects what it changed
        editor = panel->reveal(u"color"_s);
        QApplication::processEvents();
        EXPECT_EQ(hint(editor).isEmpty(), expected.isEmpty()) << id << ' ' << qPrintable(to);
        EXPECT_TRUE(hint(editor).contains(expected)) << qPrintable(hint(editor));
    }
}

TEST_F(ColorEditorsTest, ABorderChangesInParts)
{
    DesignerObject *first = element("rectangle1");
    DesignerObject *second = element("rectangle2");
    ASSERT_TRUE(
        push(Commands::changeOf({{second->getProperty(u"border"_s), u"color: #FF0000FF; width: 3;"_s}})));
    PropertyEditor *editor = edit({first, second}, "border");
    auto *width = qobject_cast<KdLineEdit *>(part(editor, u", width"_s));
    EXPECT_EQ(width->placeholderText(), u"Mixed"_s);
    QTest::keyClick(width, Qt::Key_Up); // each its own
    EXPECT_EQ(value(first, "border"), u"color: #FF000000; width: 2;"_s);
    EXPECT_EQ(value(second, "border"), u"color: #FF0000FF; width: 4;"_s);
    type(u"7 px"_s, Qt::Key_Tab);
    EXPECT_EQ(value(second, "border"), u"color: #FF0000FF; width: 7;"_s);
    EXPECT_EQ(width->text(), u"7"_s);
    width->setFocus();
    type(u"+=2 * 3"_s);
    EXPECT_EQ(value(first, "border"), u"color: #FF000000; width: 13;"_s);
    type(u"7"_s);
    for (const QString &refused : {u"101"_s, u"15 / 10"_s, u"wide"_s}) {
        type(refused);
        EXPECT_TRUE(editor->errorString().contains(refused == "wide"_L1 ? u"neither a number"_s
                                                                        : u"0 to 100 whole pixels"_s));
        EXPECT_EQ(width->text(), refused);
        QTest::keyClick(width, Qt::Key_Escape);
        EXPECT_EQ(width->text(), u"7"_s);
    }
    part(editor, u", color"_s)->setFocus();
    type(u"lime"_s);
    EXPECT_EQ(value(first, "border"), u"color: #FF00FF00; width: 7;"_s);
    EXPECT_EQ(value(second, "border"), u"color: #FF00FF00; width: 7;"_s);
}

TEST_F(ColorEditorsTest, ABorderThatIsStoredElsewhereKeepsItsOtherPart)
{
    const PropertyEditor *shown = edit({element("rectangle1")}, "border");
    SheetRow row = shown->row();
    row.value = u"color: #FF0000FF; width: 9;"_s;
    BorderEditor editor;
    editor.setElsewhere(element("rectangle1")->getProperty(u"border"_s), row);
    editor.enterColor(Qt::red);
    EXPECT_EQ(editor.takeEntry(), u"color: #FFFF0000; width: 9;"_s);
}

TEST_F(ColorEditorsTest, StopsOfAGradientAreMovedAddedAndRemoved)
{
    DesignerObject *rainbow = addRainbow();
    PropertyEditor *editor = edit({rainbow}, "gradient");
    QWidget *bar = part(editor, u", stops"_s);
    const QString before = value(rainbow, "gradient");
    ASSERT_EQ(before, u"0, #FFFFFFFF | 1, #FF000000"_s);
    const QPoint middle(bar->width() / 2, 8);
    QTest::mouseDClick(bar, Qt::LeftButton, {}, middle);
    EXPECT_EQ(value(rainbow, "gradient"), u"0, #FFFFFFFF | 0.5, #FF808080 | 1, #FF000000"_s);
    part(editor, u", color"_s)->setFocus();
    type(u"red"_s);
    EXPECT_EQ(value(rainbow, "gradient"), u"0, #FFFFFFFF | 0.5, #FFFF0000 | 1, #FF000000"_s);
    part(editor, u", position"_s)->setFocus();
    type(u"100"_s);
    EXPECT_EQ(editor->errorString(), u"Duplicate position values found."_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    type(u"-=100 / 4"_s);
    EXPECT_EQ(value(rainbow, "gradient"), u"0, #FFFFFFFF | 0.25, #FFFF0000 | 1, #FF000000"_s);
    bar->setFocus();
    QTest::keyClick(bar, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(bar, Qt::Key_Left);
    EXPECT_EQ(value(rainbow, "gradient"), u"0, #FFFFFFFF | 0.34, #FFFF0000 | 1, #FF000000"_s);

    const QString kept = text();
    const QPoint handle(7 + int(0.34 * (bar->width() - 14)), bar->height() - 6);
    const auto dragTo = [&](const QPoint &end) {
        QTest::mousePress(bar, Qt::LeftButton, {}, handle);
        QTest::mouseMove(bar, (handle + end) / 2);
        QTest::mouseMove(bar, end);
    };
    dragTo(handle + QPoint(40, 0));
    EXPECT_TRUE(text() != kept);
    QTest::keyClick(bar, Qt::Key_Escape);
    EXPECT_TRUE(text() == kept);
    QTest::mouseRelease(bar, Qt::LeftButton);
    dragTo(handle + QPoint(0, 200)); // away
    QTest::mouseRelease(bar, Qt::LeftButton, {}, handle + QPoint(0, 200));
    EXPECT_EQ(value(rainbow, "gradient"), before);
    QTest::keyClick(bar, Qt::Key_Delete);
    EXPECT_EQ(value(rainbow, "gradient"), before) << "two stops are needed";
    ASSERT_TRUE(document->undo());
    EXPECT_TRUE(text() == kept);
}

TEST_F(ColorEditorsTest, ColorsOfAListAreChangedAddedMovedAndRemoved)
{
    DesignerObject *rainbow = addRainbow();
    PropertyEditor *editor = edit({rainbow}, "colors");
    QWidget *strip = part(editor, u", colors"_s);
    part(editor, u", selected color"_s)->setFocus();
    type(u"red"_s);
    EXPECT_EQ(value(rainbow, "colors"), u"[#FFFF0000,#FF000000]"_s);
    qobject_cast<QToolButton *>(part(editor, u", add a color"_s))->click();
    EXPECT_EQ(value(rainbow, "colors"), u"[#FFFF0000,#FFFF0000,#FF000000]"_s);
    strip->setFocus();
    QTest::keyClick(strip, Qt::Key_Right);
    QTest::keyClick(strip, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(value(rainbow, "colors"), u"[#FFFF0000,#FF000000,#FFFF0000]"_s);
    for (int color = 0; color < 3; ++color) {
        QTest::keyClick(strip, Qt::Key_Delete);
    }
    EXPECT_EQ(value(rainbow, "colors"), u"]"_s);
    qobject_cast<QToolButton *>(part(editor, u", add a color"_s))->click();
    EXPECT_EQ(value(rainbow, "colors"), u"[#FF000000]"_s);
}

} // namespace Halvane::Corvex::Designer::Test
