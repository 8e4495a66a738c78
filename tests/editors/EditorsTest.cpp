// SPDX-License-Identifier: MIT
#include "corvex/editors/Editors.h"

#include "EditorFixture.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class EditorsTest : public EditorFixture
{ };

TEST_F(EditorsTest, NoPropertyOfAnyClassFallsBackToTheBase)
{
    const DesignerFactory *factory = DesignerFactory::instance();
    const QStringList editors = factory->editorNames();
    qsizetype count = 0;
    for (const QString &className : factory->creatableNames()) {
        const std::unique_ptr<DesignerObject> object(factory->createUnowned(className));
        ASSERT_TRUE(object) << qPrintable(className);
        for (const SharedProperty &property : object->properties()) {
            if (!property->hasFlag(EditableFlag) || property->isList()) {
                continue;
            }
            SheetRow row;
            row.kind = property->className();
            row.editor = property->editor();
            const QString name = Editors::nameFor(row);
            EXPECT_NE(name, u"PropertyEditor"_s) << qPrintable(className + u'.' + property->id());
            EXPECT_TRUE(editors.contains(name)) << qPrintable(name + u": no factory creates it"_s);
            ++count;
        }
    }
    EXPECT_GT(count, 200);
}

} // namespace Halvane::Corvex::Designer::Test
