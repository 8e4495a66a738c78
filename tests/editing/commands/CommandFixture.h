// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerFactory.h"
#include "corvex/editing/commands/ModelCommand.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Halvane::Corvex::Designer::Test {

//! A saved project with two screens, a variable of each referenced kind, an image, and an element of each
//! class that refers to others.
class CommandFixture : public testing::Test
{
protected:
    static void SetUpTestSuite() { DesignerFactory::createInstance(QStringLiteral(CORVEX_LIBRARY)); }

    void SetUp() override
    {
        project.reset(static_cast<Project *>(make(QStringLiteral("Project"), QStringLiteral("Pumps"))));
        ASSERT_TRUE(project->changePropertyObjectValue(
            project->configuration(), make(QStringLiteral("Configuration"), QStringLiteral("VTR 50-K"))));
        ASSERT_TRUE(project->createFile(folder.path())) << qPrintable(project->fileError());
        main = static_cast<Screen *>(add(project->screens(), "Screen", "Main"));
        other = static_cast<Screen *>(add(project->screens(), "Screen", "Other"));
        add(project->variables(), "NumberVariable", "speed");
        add(project->variables(), "MappingVariable", "map1");
        add(project->variables(), "LogVariable", "history");
        add(project->variables(), "BooleanVariable", "on");
        writePicture("pump.png", Qt::red);
        add(project->imageResources(), "ImageResource", "pump.png");
        for (const char *className :
             {"Rectangle", "Rectangle", "Text", "Image", "Button", "CheckButton", "NumberSpinner", "Action",
              "LogicBuilder", "PropertyTrigger", "ModbusCommands", "BACnetService", "ScreenLoader",
              "DataLogging", "PwmOutput", "SPICommunication", "SerialCOMPort"}) {
            addTo(main, className);
        }
        add(main->filters(), "FilterElement", "filter1");
        project->validate();
    }

    static DesignerObject *make(const QString &className, const QString &name)
    {
        DesignerObject *object = DesignerFactory::instance()->createObject(className);
        object->setParent(nullptr);
        object->setIdName(name);
        return object;
    }
    static DesignerObject *add(const SharedProperty &list, const char *className, const char *name)
    {
        DesignerObject *item = make(QString::fromLatin1(className), QString::fromLatin1(name));
        EXPECT_TRUE(list->parentObject()->addListPropertyItem(list, item)) << name;
        return item;
    }
    //! Adds an element named after its class with the next number: "rectangle2".
    static DesignerObject *addTo(Screen *screen, const char *className)
    {
        QString base = QString::fromLatin1(className);
        base[0] = base[0].toLower();
        return add(screen->elements(), className, screen->uniqueElementName(base).toLatin1().constData());
    }
    void writePicture(const char *name, QColor color) const
    {
        QDir().mkpath(project->imagesPath());
        QImage picture(8, 8, QImage::Format_RGB32);
        picture.fill(color);
        EXPECT_TRUE(picture.save(project->imagesPath() + QLatin1Char('/') + QLatin1StringView(name)));
    }

    DesignerObject *element(const char *name) const { return main->getElement(QString::fromLatin1(name)); }
    DesignerObject *variable(const char *name) const
    {
        return project->variables()->getListItem(QString::fromLatin1(name));
    }
    //! Finds an object anywhere by its name.
    DesignerObject *object(const QString &name) const
    {
        for (const SharedProperty &list :
             {main->elements(), other->elements(), main->filters(), project->variables(), project->screens(),
              project->imageResources()}) {
            if (DesignerObject *found = list->getListItem(name, true)) {
                return found;
            }
        }
        return nullptr;
    }
    static SharedProperty property(const DesignerObject *owner, const char *id)
    {
        return owner->getProperty(QString::fromLatin1(id));
    }
    static QString value(const DesignerObject *owner, const char *id)
    {
        return property(owner, id)->valueString();
    }
    static bool set(DesignerObject *owner, const char *id, const QString &text)
    {
        return owner->changePropertyValue(property(owner, id), text) && value(owner, id) == text;
    }
    //! Pushes a command that must succeed.
    template<class Command>
    Command *push(Command *command)
    {
        EXPECT_TRUE(command->isValid()) << qPrintable(command->errorString());
        EXPECT_TRUE(project->undoStack()->push(command)) << qPrintable(stack().errorString());
        return command;
    }
    UndoStack &stack() const { return *project->undoStack(); }
    //! The saved form of the project.
    QString text() const { return DesignerObject::toString(project.get()); }

    QTemporaryDir folder;
    std::unique_ptr<Project> project;
    Screen *main = nullptr;
    Screen *other = nullptr;
};

} // namespace Halvane::Corvex::Designer::Test
