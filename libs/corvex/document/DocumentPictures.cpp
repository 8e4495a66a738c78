// SPDX-License-Identifier: MIT
// Draws all screens as a job of ProjectDocument.
#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/FileSync.h"
#include "corvex/common/files/TemporaryFolder.h"
#include "corvex/document/ProjectDocument.h"
#include "corvex/document/private/ProjectCopy.h"
#include "corvex/editing/graphics/CanvasScene.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QThread>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::FileHelper;
using Common::Job;
using Common::LocalizationHelper;
using Common::Progress;
using Common::FileSync::reason;

//! Draws the screens of its own copy of a project one by one. The pictures are stored beside the folder until
//! all of them can be moved into it.
class PictureRun
{
    Q_DISABLE_COPY_MOVE(PictureRun)

public:
    explicit PictureRun(const QString &folder)
        : m_folder(QDir::cleanPath(QFileInfo(folder).absoluteFilePath()))
    { }

    //! Runs in another thread: copies the project.
    bool copy(const Project &project, QThread *thread, Progress &progress, QString &error)
    {
        m_project = ProjectCopy::make(project, thread, progress, error);
        return m_project != nullptr;
    }

    //! Draws a screen; the next step writes its picture.
    Job::Next draw(Progress &progress, QString &error)
    {
        if (!m_workshop && !begin(progress, error)) {
            return Job::Next::Failed;
        }
        if (!m_picture.isNull()) {
            return write(error) ? Job::Next::More : Job::Next::Failed;
        }
        if (m_names.size() == m_project->screens()->listItemCount()) {
            return Job::Next::Done;
        }
        auto *screen = static_cast<Screen *>(m_project->screens()->getListItemAtIndex(int(m_names.size())));
        const QString name = screen->getIdName() + u".png"_s;
        // A project's file may contain any text as a name.
        if (QFileInfo(name).fileName() != name || m_names.contains(name)) {
            error =
                LocalizationHelper::coreString(
                    u"The name of the screen \"%1\" cannot be the name of a picture. Rename the screen."_s)
                    .arg(screen->getIdName());
            return Job::Next::Failed;
        }
        m_picture = CanvasScene(screen).picture();
        if (m_picture.isNull()) {
            error = LocalizationHelper::coreString(
                        u"The screen \"%1\" is empty or too large for a picture. Correct the size in the "
                        "project's configuration."_s)
                        .arg(screen->getIdName());
            return Job::Next::Failed;
        }
        m_names.append(name);
        progress.advance();
        return Job::Next::More;
    }

    //! Runs in another thread: moves the pictures into the folder. Empty, with an error, on failure.
    QStringList deliver(const Progress &progress, QString &error) const
    {
        QStringList paths;
        const QString drafts = draftPath({});
        bool isDone = Common::FileSync::syncAll(drafts);
        if (progress.isCancelled()) {
            return {};
        }
        const bool isNew = !QFileInfo::exists(m_folder);
        if (isDone && isNew) {
            isDone = Common::FileSync::move(drafts, m_folder);
        }
        for (const QString &name : m_names) {
            paths.append(u"%1/%2"_s.arg(m_folder, name));
            isDone = isDone && (isNew || Common::FileSync::replace(draftPath(name), paths.constLast()));
        }
        if (!isDone || !Common::FileSync::sync(m_folder)) {
            error = LocalizationHelper::coreString(u"Nothing can be written to the folder \"%1\": %2"_s)
                        .arg(QDir::toNativeSeparators(m_folder), reason());
            return {};
        }
        return paths;
    }

private:
    bool begin(Progress &progress, QString &error)
    {
        m_workshop =
            std::make_unique<Common::TemporaryFolder>(QFileInfo(m_folder).path(), u".corvex-pictures"_s);
        if (!m_workshop->isValid()) {
            error = LocalizationHelper::coreString(u"Nothing can be written to the folder \"%1\": %2"_s)
                        .arg(QDir::toNativeSeparators(QFileInfo(m_folder).path()), m_workshop->errorString());
            return false;
        }
        progress.begin(LocalizationHelper::coreString(u"Drawing the screens"_s),
                       m_project->screens()->listItemCount());
        return FileHelper::makeFolder(draftPath({}), &error);
    }

    bool write(QString &error)
    {
        QBuffer bytes;
        bytes.open(QIODevice::WriteOnly);
        const bool isEncoded = m_picture.save(&bytes, "PNG");
        m_picture = {};
        QFile file(draftPath(m_names.constLast()));
        if (!isEncoded || !file.open(QIODevice::WriteOnly) || file.write(bytes.data()) != bytes.size()
            || !file.flush()) {
            error = LocalizationHelper::coreString(u"\"%1\" cannot be written: %2"_s)
                        .arg(QDir::toNativeSeparators(file.fileName()), FileHelper::writeError(file));
            return false;
        }
        return true;
    }

    QString draftPath(const QString &name) const
    {
        const QString folder = m_workshop->filePath(u"pictures"_s);
        return name.isEmpty() ? folder : u"%1/%2"_s.arg(folder, name);
    }

    QString m_folder;
    std::unique_ptr<Project> m_project;
    std::unique_ptr<Common::TemporaryFolder> m_workshop;
    QStringList m_names; //!< of the pictures drawn so far, in order
    QImage m_picture;    //!< the last picture, until it is written
};

} // namespace

std::unique_ptr<ProjectDocument::RenderJob> ProjectDocument::renderScreens(const QString &folder)
{
    if (!mayRead()) {
        return nullptr;
    }
    auto job = std::make_unique<RenderJob>();
    addReader(job.get());
    auto run = std::make_shared<PictureRun>(folder);
    job->addInThread([run, project = m_project.get(), thread = QThread::currentThread()](Progress &progress,
                                                                                         QString &error) {
        return run->copy(*project, thread, progress, error);
    });
    job->addInSlices([run, reader = job.get(), document = QPointer<ProjectDocument>(this)](Progress &progress,
                                                                                           QString &error) {
        if (document) {
            document->removeReader(reader); // edits do not affect the copy
        }
        return run->draw(progress, error);
    });
    job->addInThread([run, place = job->resultPlace()](Progress &progress, QString &error) {
        *place = run->deliver(progress, error);
        return error.isEmpty();
    });
    run.reset();
    job->start();
    return job;
}

} // namespace Halvane::Corvex::Designer
