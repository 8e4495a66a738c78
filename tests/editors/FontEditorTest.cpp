// SPDX-License-Identifier: MIT
#include "corvex/editors/FontEditor.h"
#include "corvex/values/text/ReadableText.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/widgets/KdLineEdit.h"

#include "EditorFixture.h"

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QLabel>
#include <QSpinBox>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class FontEditorTest : public EditorFixture
{
protected:
    static QString readable(const DesignerObject *object)
    {
        return ReadableText::fromFont(value(object, "font"));
    }
};

TEST_F(FontEditorTest, AFontIsTypedAsText)
{
    DesignerObject *label = element("text1");
    PropertyEditor *editor = edit({label}, "font");
    type(u"bold 24px \"DejaVu Sans\""_s);
    EXPECT_EQ(readable(label), u"bold 24px \"DejaVu Sans\""_s);
    const QString before = text();
    for (const QString &refused : {u"24px"_s, u"heavy 24px \"DejaVu Sans\""_s}) {
        type(refused);
        EXPECT_TRUE(text() == before);
        EXPECT_TRUE(editor->errorString().contains(u"bold 24px"_s)) << qPrintable(refused);
        QTest::keyClick(field<KdLineEdit>(editor), Qt::Key_Escape);
    }
}

TEST_F(FontEditorTest, ThePopupChangesOnlyWhatIsTouched)
{
    DesignerObject *first = element("text1");
    DesignerObject *second = addTo(main, "Text");
    QFont serif(u"DejaVu Serif"_s);
    serif.setPixelSize(30);
    serif.setLetterSpacing(QFont::AbsoluteSpacing, 2);
    ASSERT_TRUE(
        push(Commands::changeOf({{second->getProperty(u"font"_s), ValueConversion::toString(serif)}})));
    PropertyEditor *editor = edit({first, second}, "font");
    EXPECT_EQ(field<KdLineEdit>(editor)->placeholderText(), u"Mixed"_s);
    field<QToolButton>(editor)->click();
    auto *picker = field<FontPicker>(editor);
    ASSERT_TRUE(picker && picker->isVisible());
    picker->findChild<QToolButton *>()->click(); // bold
    EXPECT_EQ(readable(first), u"bold 12pt \"DejaVu Sans\""_s);
    serif.setBold(true);
    EXPECT_EQ(value(second, "font"), ValueConversion::toString(serif));
    auto *size = picker->findChild<QSpinBox *>();
    QTest::keyClick(size, Qt::Key_Up);
    QTest::keyClick(size, Qt::Key_Up);
    EXPECT_EQ(readable(first), u"bold 14pt \"DejaVu Sans\""_s);
    ASSERT_TRUE(document->undo()); // both steps
    EXPECT_EQ(readable(first), u"bold 12pt \"DejaVu Sans\""_s);

    auto *search = picker->findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly);
    search->setFocus();
    QTest::keyClicks(search, u"dejavu sans mono"_s);
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_FALSE(picker->isVisible());
    EXPECT_EQ(readable(first), u"bold 12pt \"DejaVu Sans Mono\""_s);
    EXPECT_TRUE(value(second, "font").contains(u"letterSpacing: 2"_s));
}

TEST_F(FontEditorTest, FamiliesThatTheDeviceLacksAreNamed)
{
    PropertyEditor *editor = edit({element("text1")}, "font");
    const auto hint = [editor] {
        const auto *label = editor->findChild<QLabel *>(u"hint"_s);
        return label && !label->isHidden() ? label->text() : QString();
    };
    EXPECT_EQ(hint(), QString());
    DesignerFactory::instance()->setFontFamilies({u"Panel Sans"_s});
    EXPECT_TRUE(hint().contains(u"DejaVu Sans"_s));
    type(u"12px \"Panel Sans\""_s);
    EXPECT_EQ(hint(), QString());
    DesignerFactory::instance()->setFontFamilies({});
}

} // namespace Halvane::Corvex::Designer::Test
