// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerFactory.h"
#include "corvex/editing/undo/UndoCommand.h"
#include "corvex/hardware/HardwareConfigurations.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"

#include "Random.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Halvane::Corvex::Designer::Test {

//! Random edits of a project with elements of every class. CORVEX_MODEL_SEED makes other ones.
class RandomEdits : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        DesignerFactory::createInstance(QStringLiteral(CORVEX_LIBRARY));
        HardwareConfigurations::createInstance(QStringLiteral(CORVEX_DATA));
    }

    void SetUp() override;
    void addUnknownItems();

    static int setting(const char *name, int usual)
    {
        bool ok = false;
        const int value = qEnvironmentVariableIntValue(name, &ok);
        return ok ? value : usual;
    }

    QString newName(const QString &stem) { return stem + QString::number(++lastNumber); }
    //! A good name or, in a test with hostile names, also names that are marked or refused.
    QString anyName(const QString &stem);
    static DesignerObject *make(const QString &className, const QString &name)
    {
        DesignerObject *object = DesignerFactory::instance()->createObject(className);
        object->setParent(nullptr);
        object->setIdName(name);
        return object;
    }
    DesignerObject *itemOf(const SharedProperty &list)
    {
        const qsizetype count = list->listItemCount();
        return count > 0 ? list->getListItemAtIndex(random.below(int(count))) : nullptr;
    }
    Screen *anyScreen() { return static_cast<Screen *>(itemOf(project->screens())); }
    Element *anyElement(const QString &className = QStringLiteral("Element"))
    {
        const QList<Element *> elements = anyScreen()->getElementsOfType(className);
        return elements.isEmpty() ? nullptr : random.oneOf(elements);
    }
    //! The classes of that base that can be created.
    static QStringList classesOf(const QString &base);
    //! All objects in that one.
    static QList<DesignerObject *> below(const DesignerObject *object);
    static QString named(const DesignerObject *object, const QString &name)
    {
        IdentifierInfo info = object->getIdInfo();
        info.setName(name);
        return info.toString();
    }

    //! A command that may succeed; null if there is nothing to do it with.
    UndoCommand *anyCommand();
    UndoCommand *imageCommand();
    QString newPicture(QImage &picture);
    UndoCommand *groupCommand();
    UndoCommand *filterCommand(Screen *screen);
    UndoCommand *manyCommand(Screen *screen);
    UndoCommand *valueCommand();

    QString text() const { return DesignerObject::toString(project.get()); }

    const quint64 seed = quint64(setting("CORVEX_MODEL_SEED", 1));
    QTemporaryDir folder;
    std::unique_ptr<Project> project;
    Examples::Random random{seed};
    int lastNumber = 0;
    bool hasHostileNames = false;
};

} // namespace Halvane::Corvex::Designer::Test
