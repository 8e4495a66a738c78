// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerFactory.h"
#include "corvex/hardware/HardwareConfigurations.h"
#include "corvex/project/Project.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Halvane::Corvex::Examples {

//! Tests of whole projects, with the standard elements, the installed device models and a folder for output.
class ExampleTest : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        ASSERT_TRUE(Designer::DesignerFactory::createInstance(QStringLiteral(CORVEX_LIBRARY)));
        ASSERT_TRUE(Designer::HardwareConfigurations::createInstance(QStringLiteral(CORVEX_DATA)));
    }

    static std::unique_ptr<Designer::Project> load(const QString &path)
    {
        Designer::DesignerObject *made =
            Designer::DesignerFactory::instance()->createObject(QStringLiteral("Project"));
        made->setParent(nullptr);
        std::unique_ptr<Designer::Project> project(static_cast<Designer::Project *>(made));
        EXPECT_TRUE(project->loadFile(path)) << qPrintable(project->fileError());
        return project;
    }

    static QByteArray bytesOf(const QString &path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
        return file.readAll();
    }

    //! The bytes that a save would write.
    QByteArray saved(const Designer::Project &project) const
    {
        const QString path = folder.filePath(QStringLiteral("saved.kdproj"));
        QString error;
        EXPECT_TRUE(Designer::DesignerObject::saveToFile(&project, path, &error)) << qPrintable(error);
        return bytesOf(path);
    }

    //! Every problem in an object and below it, with its place.
    static QStringList faults(const Designer::DesignerObject &object)
    {
        QStringList found;
        for (const QString &error : object.validationErrors()) {
            found.append(object.objectPath() + QStringLiteral(": ") + error);
        }
        for (const Designer::DesignerObject *child : object.childObjects()) {
            found += faults(*child);
        }
        return found;
    }

    //! The unknown names in the expressions of all screens.
    static QStringList danglingNames(const Designer::Project &project);

    QTemporaryDir folder;
};

} // namespace Halvane::Corvex::Examples
