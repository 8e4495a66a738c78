// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/PropertyEditor.h"
#include "corvex/editors/PropertyPanel.h"

#include "inspector/InspectorFixture.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

namespace Halvane::Corvex::Designer::Test {

//! A panel on the project of the commands' tests, used with keys and mouse as a person does.
class EditorFixture : public InspectorFixture
{
protected:
    void SetUp() override
    {
        InspectorFixture::SetUp();
        panel = std::make_unique<PropertyPanel>(*document);
        panel->resize(360, 900);
        panel->show();
        QApplication::setActiveWindow(panel.get()); // offscreen windows are never activated by a user
    }
    void TearDown() override
    {
        panel.reset();
        InspectorFixture::TearDown();
    }

    //! Selects the objects and returns the editor of a property that they have.
    PropertyEditor *edit(const QList<DesignerObject *> &objects, const char *id)
    {
        document->select(objects);
        PropertyEditor *editor = panel->reveal(QString::fromLatin1(id));
        EXPECT_TRUE(editor) << id;
        return editor;
    }
    //! Replaces the text of the field with the focus, as a person does, and presses a key.
    static void type(const QString &text, Qt::Key last = Qt::Key_Return)
    {
        QWidget *field = QApplication::focusWidget();
        ASSERT_TRUE(field);
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field, text);
        QTest::keyClick(field, last);
    }
    static QString value(const DesignerObject *object, const char *id)
    {
        return object->getProperty(QString::fromLatin1(id))->valueString();
    }
    DesignerObject *variable(const char *name) const
    {
        return document->project().variables()->getListItem(QString::fromLatin1(name));
    }
    template<class Field>
    static Field *field(const PropertyEditor *editor)
    {
        return editor->findChild<Field *>();
    }

    std::unique_ptr<PropertyPanel> panel;
};

} // namespace Halvane::Corvex::Designer::Test
