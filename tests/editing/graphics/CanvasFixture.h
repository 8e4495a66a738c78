// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerFactory.h"
#include "corvex/editing/graphics/FramedItem.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

#include <QGraphicsItem>

#include <gtest/gtest.h>

namespace Halvane::Corvex::Designer::Test {

//! A project whose screen "Main" has elements for a canvas.
class CanvasFixture : public testing::Test
{
protected:
    static void SetUpTestSuite() { DesignerFactory::createInstance(QStringLiteral(CORVEX_LIBRARY_DIR)); }

    CanvasFixture()
        : project(static_cast<Project *>(make("Project", "Plant")))
        , screen(static_cast<Screen *>(make("Screen", "Main")))
    {
        project->addListPropertyItem(project->screens(), screen);
    }

    static DesignerObject *make(const char *className, const char *name)
    {
        DesignerObject *object = DesignerFactory::instance()->createObject(QString::fromLatin1(className));
        object->setParent(nullptr);
        object->setIdName(QString::fromLatin1(name));
        return object;
    }
    //! Adds an element at a position in the screen or a group, with that size unless it is empty.
    static DesignerObject *add(DesignerObject *owner, const char *className, const char *name,
                               const QRectF &rect)
    {
        DesignerObject *element = make(className, name);
        set(element, "position", QStringLiteral("x: %1; y: %2;").arg(rect.x()).arg(rect.y()));
        if (!rect.isEmpty()) {
            set(element, "size",
                QStringLiteral("height: %1; width: %2;").arg(rect.height()).arg(rect.width()));
        }
        EXPECT_TRUE(owner->addListPropertyItem(owner->getProperty(u"elements"), element)) << name;
        return element;
    }
    static void set(DesignerObject *object, const char *id, const QString &value)
    {
        EXPECT_TRUE(object->changePropertyValue(object->getProperty(QString::fromLatin1(id)), value)) << id;
        EXPECT_EQ(valueOf(object, id), value);
    }
    static QString valueOf(const DesignerObject *object, const char *id)
    {
        return object->getProperty(QString::fromLatin1(id))->valueString();
    }
    static FramedItem *itemOf(const DesignerObject *object)
    {
        return static_cast<FramedItem *>(GraphicsItem::of(object));
    }

    std::unique_ptr<Project> project;
    Screen *screen;
};

} // namespace Halvane::Corvex::Designer::Test
