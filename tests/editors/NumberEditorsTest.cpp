// SPDX-License-Identifier: MIT
#include "corvex/widgets/KdNumberEdit.h"
#include "corvex/widgets/KdSlider.h"

#include "EditorFixture.h"

#include <QRegularExpression>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class NumberEditorsTest : public EditorFixture
{
protected:
    void set(DesignerObject *object, const char *id, const QString &text)
    {
        ASSERT_TRUE(push(Commands::changeOf({{object->getProperty(QString::fromLatin1(id)), text}})));
    }
    static void turnWheel(QWidget *field, int notches, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWheelEvent event(QPointF(5, 5), field->mapToGlobal(QPointF(5, 5)), QPoint(),
                          QPoint(0, notches * 120), Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(field, &event);
    }
};

TEST_F(NumberEditorsTest, AnEntryIsANumberOrACalculation)
{
    DesignerObject *rectangle = element("rectangle1");
    struct Case
    {
        const char *id;
        QString typed;
        QString expected;
    };
    const Case cases[] = {
        {"radius", u"12"_s, u"12"_s},          {"radius", u"2*48+6"_s, u"102"_s},
        {"radius", u"+=8"_s, u"110"_s},        {"radius", u"-=10"_s, u"100"_s},
        {"radius", u"*=2"_s, u"200"_s},        {"radius", u"/= 3"_s, u"67"_s},
        {"radius", u"-(3 - 7) * 2"_s, u"8"_s}, {"radius", u"24 px"_s, u"24"_s},
        {"radius", u"1,5 * 4"_s, u"6"_s},      {"rotation", u"12,5"_s, u"12.5"_s},
        {"rotation", u"360/7"_s, u"51.429"_s}, {"rotation", u"45\u00B0 + 1"_s, u"46"_s},
        {"opacity", u"50 %"_s, u"50"_s},       {"opacity", u"1.23456 + 50"_s, u"51.235"_s},
        {"scale", u"-50"_s, u"-50"_s},         {"scale", u"-0.0001"_s, u"0"_s},
    };
    for (const Case &row : cases) {
        PropertyEditor *editor = edit({rectangle}, row.id);
        type(row.typed);
        EXPECT_EQ(value(rectangle, row.id), row.expected) << qPrintable(row.typed);
        EXPECT_EQ(field<KdNumberEdit>(editor)->text(), row.expected) << qPrintable(row.typed);
        EXPECT_EQ(editor->errorString(), QString());
    }
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(value(rectangle, "scale"), u"-50"_s);
}

TEST_F(NumberEditorsTest, ARefusedEntryIsExplainedAndStays)
{
    DesignerObject *rectangle = element("rectangle1");
    struct Case
    {
        QString typed;
        QString words; //!< in the reason
    };
    const Case cases[] = {
        {u"wide"_s, u"radius takes a whole number"_s},
        {u"3.5"_s, u"whole number"_s},
        {u"2*"_s, u"neither a number nor a calculation"_s},
        {u"(2"_s, u"closing parenthesis"_s},
        {u"1/0"_s, u"divides by 0"_s},
        {u"/=0"_s, u"divides by 0|gives no number"_s},
        {u"3 kg"_s, u"Units are: px"_s},
        {QString(300, u'(') + u'1', u"too many parentheses"_s},
        {u"99999999999"_s, u"whole number"_s},
    };
    const QString before = text();
    for (const Case &row : cases) {
        PropertyEditor *editor = edit({rectangle}, "radius");
        type(row.typed);
        EXPECT_TRUE(editor->errorString().contains(QRegularExpression(row.words)))
            << qPrintable(row.typed + u": "_s + editor->errorString());
        EXPECT_EQ(field<KdNumberEdit>(editor)->text(), row.typed);
        QTest::keyClick(field<KdNumberEdit>(editor), Qt::Key_Escape);
        EXPECT_EQ(field<KdNumberEdit>(editor)->text(), u"0"_s);
        EXPECT_EQ(editor->errorString(), QString());
    }
    EXPECT_EQ(text(), before);
}

TEST_F(NumberEditorsTest, OutOfRangeSaysTheRange)
{
    PropertyEditor *editor = edit({element("rectangle1")}, "opacity");
    type(u"300"_s, Qt::Key_Tab);
    EXPECT_EQ(editor->errorString(), u"opacity takes numbers from 10 to 100, not 300."_s);
}

TEST_F(NumberEditorsTest, ACalculationAppliesToEachObject)
{
    DesignerObject *first = element("rectangle1");
    DesignerObject *second = element("rectangle2");
    set(first, "radius", u"10"_s);
    PropertyEditor *editor = edit({first, second}, "radius");
    auto *line = field<KdNumberEdit>(editor);
    EXPECT_EQ(line->placeholderText(), u"Mixed"_s);
    type(u"+=5"_s);
    EXPECT_EQ(value(first, "radius") + u' ' + value(second, "radius"), u"15 5"_s);
    EXPECT_EQ(line->text(), QString());
    QTest::keyClick(line, Qt::Key_Up);
    EXPECT_EQ(value(first, "radius") + u' ' + value(second, "radius"), u"16 6"_s);
    type(u"3"_s);
    EXPECT_EQ(value(first, "radius") + u' ' + value(second, "radius"), u"3 3"_s);
    EXPECT_EQ(line->text(), u"3"_s);
}

TEST_F(NumberEditorsTest, StepsAreFineAndCoarseEndAtTheLimitsAndAreOneStepOfTheHistory)
{
    DesignerObject *rectangle = element("rectangle1");
    auto *line = field<KdNumberEdit>(edit({rectangle}, "rotation"));
    const QString before = text();
    QTest::keyClick(line, Qt::Key_Up, Qt::ControlModifier);
    QTest::keyClick(line, Qt::Key_Up);
    QTest::keyClick(line, Qt::Key_Up, Qt::ShiftModifier);
    turnWheel(line, 2);
    EXPECT_EQ(value(rectangle, "rotation"), u"13.1"_s);
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(text(), before);
    QTest::keyClick(line, Qt::Key_Down);
    EXPECT_EQ(text(), before) << "the minimum";
    line->clearFocus();
    turnWheel(line, 2);
    EXPECT_EQ(text(), before) << "the wheel without focus";
    auto *whole = field<KdNumberEdit>(edit({rectangle}, "z"));
    QTest::keyClick(whole, Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(value(rectangle, "z"), u"1"_s);
}

TEST_F(NumberEditorsTest, DraggingTheSliderIsOneStepAndEscapeRestores)
{
    DesignerObject *rectangle = element("rectangle1");
    auto *slider = field<KdSlider>(edit({rectangle}, "opacity"));
    ASSERT_TRUE(slider && slider->isVisible());
    const QString before = text();
    const int middle = slider->height() / 2;
    const auto moveTo = [&](int x) {
        QMouseEvent move(QEvent::MouseMove, QPointF(x, middle), slider->mapToGlobal(QPointF(x, middle)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(slider, &move);
    };
    QTest::mousePress(slider, Qt::LeftButton, {}, {slider->width() / 2, middle});
    EXPECT_NEAR(value(rectangle, "opacity").toDouble(), 55, 2);
    moveTo(0);
    EXPECT_EQ(value(rectangle, "opacity"), u"10"_s);
    QTest::keyClick(slider, Qt::Key_Escape);
    EXPECT_EQ(text(), before);
    QTest::mousePress(slider, Qt::LeftButton, {}, {slider->width() / 2, middle});
    moveTo(0);
    QTest::mouseRelease(slider, Qt::LeftButton, {}, {0, middle});
    EXPECT_EQ(value(rectangle, "opacity"), u"10"_s);
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(text(), before);
}

TEST_F(NumberEditorsTest, ScrubbingAddsToEachObjectAndWholeNumbersCollectFineSteps)
{
    DesignerObject *rectangle = element("rectangle1");
    PropertyEditor *editor = edit({rectangle}, "radius");
    ASSERT_TRUE(editor->canScrub());
    emit editor->gestureBegan();
    for (int step = 0; step < 25; ++step) {
        editor->scrub(0.1);
    }
    emit editor->gestureEnded();
    EXPECT_EQ(value(rectangle, "radius"), u"2"_s);
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(value(rectangle, "radius"), u"0"_s);
}

TEST_F(NumberEditorsTest, DraggingTheTitleIsOneStepOfTheHistory)
{
    DesignerObject *rectangle = element("rectangle1");
    struct Case
    {
        const char *id;
        Qt::KeyboardModifiers modifiers;
        bool isKept;
        QString expected;
    };
    const Case cases[] = {
        {"rotation", Qt::NoModifier, true, u"25"_s},       {"rotation", Qt::ShiftModifier, true, u"16"_s},
        {"rotation", Qt::ControlModifier, true, u"115"_s}, {"rotation", Qt::NoModifier, false, u"15"_s},
        {"radius", Qt::ShiftModifier, true, u"1"_s},
    };
    set(rectangle, "rotation", u"15"_s);
    for (const auto &[id, modifiers, isKept, expected] : cases) {
        const PropertyEditor *editor = edit({rectangle}, id);
        QWidget *title = nullptr;
        for (QWidget *part : editor->parentWidget()->findChildren<QWidget *>()) {
            title = part->cursor().shape() == Qt::SizeHorCursor ? part : title;
        }
        ASSERT_TRUE(title) << id;
        const auto send = [&, keys = modifiers](QEvent::Type type, int x) {
            QMouseEvent event(type, QPointF(x, 5), title->mapToGlobal(QPointF(x, 5)), Qt::LeftButton,
                              Qt::LeftButton, keys);
            QApplication::sendEvent(title, &event);
        };
        const QString before = text();
        send(QEvent::MouseButtonPress, 5);
        for (const int x : {7, 20, 30, 45}) { // 10 steps of 4 pixels
            send(QEvent::MouseMove, x);
        }
        if (!isKept) {
            EXPECT_EQ(value(rectangle, id), u"25"_s);
            QTest::keyClick(title, Qt::Key_Escape);
        }
        send(QEvent::MouseButtonRelease, 45);
        EXPECT_EQ(value(rectangle, id), expected) << id << int(modifiers);
        if (isKept) {
            ASSERT_TRUE(document->undo());
        }
        EXPECT_EQ(text(), before);
    }
}

TEST_F(NumberEditorsTest, NumbersOfVariablesKeepTheirType)
{
    DesignerObject *speed = variable("speed");
    struct Case
    {
        QString typed;
        QString expected;
    };
    const Case cases[] = {
        {u"72"_s, u"72"_s},       {u"72,0"_s, u"72.0"_s},
        {u"+=8"_s, u"80.0"_s},    {u"0.1+0.2"_s, u"0.3"_s},
        {u"2 * 3"_s, u"6"_s},     {u"nan"_s, u"NaN"_s},
        {u"1.5 * 2"_s, u"3.0"_s}, {u"123456.123456"_s, u"123456.123456"_s},
    };
    for (const Case &row : cases) {
        PropertyEditor *editor = edit({speed}, "value");
        type(row.typed);
        EXPECT_EQ(value(speed, "value"), row.expected) << qPrintable(row.typed);
        EXPECT_EQ(editor->errorString(), QString());
    }
    for (const QString &typed : {u"ten"_s, u"99999999999"_s}) {
        PropertyEditor *editor = edit({speed}, "value");
        type(typed);
        EXPECT_TRUE(editor->errorString().contains(u"takes a number"_s)) << qPrintable(typed);
        EXPECT_EQ(value(speed, "value"), u"123456.123456"_s);
        editor->restore();
    }
}

TEST_F(NumberEditorsTest, TimesTakeUnits)
{
    DesignerObject *log = variable("history");
    struct Case
    {
        const char *id;
        QString typed;
        QString expected;
        QString unit;
    };
    const Case cases[] = {
        {"interval", u"5 s"_s, u"5000"_s, u"ms = 5 s"_s},
        {"interval", u"1 min 30 s"_s, u"90000"_s, u"ms = 90 s"_s},
        {"interval", u"*= 2"_s, u"180000"_s, u"ms = 3 min"_s},
        {"startDelay", u"500 ms"_s, u"500"_s, u"ms"_s},
        {"startDelay", u"2 min"_s, u"120000"_s, u"ms = 2 min"_s},
        {"startDelay", u"1.5 s"_s, u"1500"_s, u"ms = 1.5 s"_s},
        {"maxDataPoints", u"2 * 600"_s, u"1200"_s, QString()},
    };
    for (const Case &row : cases) {
        PropertyEditor *editor = edit({log}, row.id);
        type(row.typed);
        EXPECT_EQ(value(log, row.id), row.expected) << qPrintable(row.typed + editor->errorString());
        EXPECT_EQ(field<KdNumberEdit>(editor)->unit(), row.unit);
    }
    QTest::keyClick(field<KdNumberEdit>(edit({log}, "startDelay")), Qt::Key_Up);
    EXPECT_EQ(value(log, "startDelay"), u"1600"_s);
}

} // namespace Halvane::Corvex::Designer::Test
