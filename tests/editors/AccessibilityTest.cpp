// SPDX-License-Identifier: MIT
#include "corvex/editors/changes/RulesDialog.h"
#include "corvex/editors/expressions/ExpressionDialog.h"
#include "corvex/values/text/EnumWords.h"
#include "corvex/variables/ProjectVariable.h"
#include "corvex/widgets/ColorPicker.h"
#include "corvex/widgets/FontPicker.h"
#include "corvex/widgets/ObjectSelector.h"

#include "EditorFixture.h"

#include <QAccessible>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

//! Walks what screen readers see.
class AccessibilityTest : public EditorFixture
{
protected:
    //! The visible widgets below \a root that the keyboard reaches.
    static QList<QAccessibleInterface *> focusable(QAccessibleInterface *root)
    {
        QList<QAccessibleInterface *> found;
        for (int i = 0; i < root->childCount(); ++i) {
            QAccessibleInterface *child = root->child(i);
            if (child && child->object() && child->object()->isWidgetType() && !child->state().invisible) {
                if (child->state().focusable) {
                    found.append(child);
                }
                found += focusable(child);
            }
        }
        return found;
    }
    static QList<QAccessibleInterface *> focusable(QWidget *root)
    {
        return focusable(QAccessible::queryAccessibleInterface(root));
    }
    //! Without a name, a user of a screen reader does not know what has the keyboard; with the same name
    //! twice, not which of them.
    static void expectNames(const QList<QAccessibleInterface *> &widgets, const QString &where)
    {
        EXPECT_FALSE(widgets.isEmpty()) << qPrintable(where);
        QSet<QString> names;
        for (const QAccessibleInterface *widget : widgets) {
            const QString name = widget->text(QAccessible::Name);
            EXPECT_FALSE(name.isEmpty())
                << qPrintable(where) << ": " << widget->object()->metaObject()->className();
            EXPECT_FALSE(names.contains(name)) << qPrintable(where + u": "_s + name);
            names.insert(name);
        }
    }
    static PropertyEditor *editorAround(QObject *widget)
    {
        while (widget && !qobject_cast<PropertyEditor *>(widget)) {
            widget = widget->parent();
        }
        auto *outer = widget ? editorAround(widget->parent()) : nullptr;
        return outer ? outer : static_cast<PropertyEditor *>(widget);
    }
    //! What a screen reader reads as the value.
    static QString valueOf(QAccessibleInterface *widget)
    {
        if (widget->state().checkable) {
            return widget->state().checked ? u"true "_s + widget->text(QAccessible::Name) : u"false"_s;
        }
        QAccessibleTextInterface *text = widget->textInterface();
        return text ? text->text(0, text->characterCount()) : widget->text(QAccessible::Value);
    }
    //! The words and numbers in a text, which editors spread over fields.
    static QStringList parts(const QString &text)
    {
        static const QRegularExpression between(u"[^\\w#.-]+|\\bto\\b|\\bx\\b"_s);
        return text.split(between, Qt::SkipEmptyParts);
    }

    //! An object of each class that can be in the project.
    QMap<QString, DesignerObject *> objects()
    {
        for (const QString &className : DesignerFactory::instance()->creatableNames()) {
            std::unique_ptr<DesignerObject> object(DesignerFactory::instance()->createUnowned(className));
            if (object->isKindOfClass(Element::kindName())) {
                addTo(main, className.toLatin1().constData());
            } else if (object->isKindOfClass(ProjectVariable::kindName())) {
                add(document->project().variables(), className.toLatin1().constData(),
                    (u"a"_s + className).toLatin1().constData());
            }
        }
        QMap<QString, DesignerObject *> found;
        collect(&document->project(), found);
        return found;
    }
    static void collect(DesignerObject *object, QMap<QString, DesignerObject *> &found)
    {
        found.insert(object->className(), object);
        for (const SharedProperty &property : object->properties()) {
            QList<DesignerObject *> children = property->listItems();
            children.append(property->objectValue());
            children.removeAll(nullptr);
            for (DesignerObject *child : std::as_const(children)) {
                collect(child, found);
            }
        }
    }
};

TEST_F(AccessibilityTest, EveryFieldOfEveryClassHasItsOwnNameAndItsValue)
{
    const QMap<QString, DesignerObject *> all = objects();
    EXPECT_GT(all.size(), 40);
    for (DesignerObject *object : all) {
        document->select({object});
        panel->resize(400, 6000);
        QApplication::processEvents();
        const QList<QAccessibleInterface *> widgets = focusable(panel.get());
        expectNames(widgets, object->className());
        QHash<PropertyEditor *, QStringList> values;
        for (QAccessibleInterface *widget : widgets) {
            PropertyEditor *editor = editorAround(widget->object());
            if (editor) {
                const QString name = widget->text(QAccessible::Name);
                EXPECT_TRUE(name.contains(editor->row().title))
                    << qPrintable(object->className() + u": "_s + name)
                    << widget->object()->metaObject()->className();
                values[editor].append(valueOf(widget));
            }
        }
        const PropertySheet &sheet = panel->sheet();
        for (auto row = values.cbegin(); row != values.cend(); ++row) {
            const int number = sheet.rowOf(row.key()->propertyId());
            const QString readable = sheet.readable(number);
            const QString read = row.value().join(u' ');
            for (const QString &part : parts(readable)) {
                EXPECT_TRUE(read.contains(part) || read.contains(EnumWords::of(part)))
                    << qPrintable(object->className() + u'.' + sheet.row(number).id + u": "_s + readable
                                  + u" / "_s + read)
                    << row.key()->metaObject()->className();
            }
        }
    }
}

TEST_F(AccessibilityTest, PopupsAndDialogsNameTheirFields)
{
    ColorPicker colors(panel.get());
    colors.offer(u"In this project"_s, {Qt::red, Qt::white});
    colors.offerPicking();
    colors.open();
    expectNames(focusable(&colors), u"colors"_s);
    colors.close();

    FontPicker fonts(panel.get());
    fonts.open();
    expectNames(focusable(&fonts), u"fonts"_s);
    fonts.close();

    ObjectSelector selector(panel.get());
    selector.setObjects(main->elements()->listItems());
    selector.offerNothing(u"None"_s);
    selector.offerNew(u"Text"_s);
    selector.openAt(panel.get());
    expectNames(focusable(&selector), u"selector"_s);
    selector.close();

    const SharedProperty rules = element("logicBuilder1")->getProperty(u"logicExpression"_s);
    RulesDialog logic(rules);
    ASSERT_TRUE(logic.setStored(u"<0406speed><0101<><02041>|<0403on><02030>"_s));
    logic.show();
    expectNames(focusable(&logic), u"rules"_s);

    ExpressionDialog builder(element("text1")->getProperty(u"visibleBinding"_s));
    builder.builder()->setText(u"speed > 10 and not on"_s);
    builder.show();
    expectNames(focusable(&builder), u"builder"_s);
    builder.discard();
}

} // namespace Halvane::Corvex::Designer::Test
