// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerFactory.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"

#include "support/Model.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Halvane::Corvex::Designer::Test {

//! A folder for projects, deleted after the test, and helpers for projects and files.
class ProjectFixture : public testing::Test
{
protected:
    static void SetUpTestSuite() { DesignerFactory::createInstance(QCoreApplication::applicationDirPath()); }

    QString path(const QString &relative = {}) const { return folder.filePath(relative); }

    static std::unique_ptr<Project> makeEmptyProject(const QString &name = QStringLiteral("Pumps"))
    {
        return std::unique_ptr<Project>(make<Project>(QStringLiteral("Project"), name));
    }
    //! Has a configuration and the screen "Main", but no file.
    static std::unique_ptr<Project> makeProject(const QString &name = QStringLiteral("Pumps"))
    {
        std::unique_ptr<Project> project = makeEmptyProject(name);
        auto *configuration =
            make<Configuration>(QStringLiteral("Configuration"), QStringLiteral("VTR 50-K"));
        configuration->changePropertyValue(configuration->screenSize(),
                                           QStringLiteral("width: 480; height: 272;"));
        project->changePropertyObjectValue(project->configuration(), configuration);
        add(*project, project->screens(), QStringLiteral("Screen"), QStringLiteral("Main"));
        return project;
    }
    static DesignerObject *add(Project &project, const SharedProperty &list, const QString &className,
                               const QString &name)
    {
        auto *item = make<DesignerObject>(className, name);
        EXPECT_TRUE(project.addListPropertyItem(list, item));
        return item;
    }
    //! Adds an image file and its resource.
    static ImageResource *addImage(Project &project, const QString &name)
    {
        writePicture(project.imagesPath() + QLatin1Char('/') + name);
        return static_cast<ImageResource *>(
            add(project, project.imageResources(), QStringLiteral("ImageResource"), name));
    }
    static void writePicture(const QString &path, const char *format = nullptr)
    {
        QDir().mkpath(QFileInfo(path).path());
        QImage picture(8, 8, QImage::Format_RGB32);
        picture.fill(Qt::red);
        EXPECT_TRUE(picture.save(path, format)) << qPrintable(path);
    }
    static void write(const QString &path, const QByteArray &bytes)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
        file.write(bytes);
    }
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
        return file.readAll();
    }
    //! All files below the folder, with relative paths, sorted.
    static QStringList filesIn(const QString &path)
    {
        QStringList files;
        QDirIterator walk(path, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            files.append(QDir(path).relativeFilePath(walk.next()));
        }
        files.sort();
        return files;
    }

    QTemporaryDir folder;
};

} // namespace Halvane::Corvex::Designer::Test
