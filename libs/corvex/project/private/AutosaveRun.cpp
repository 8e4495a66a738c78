// SPDX-License-Identifier: MIT
#include "corvex/project/private/AutosaveRun.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/common/zip/ZipHelper.h"
#include "corvex/core/ModelObserver.h"
#include "corvex/project/Project.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::Job;
using Common::LocalizationHelper;

//! After this many interruptions by edits the rest is written at once; otherwise a long drag could postpone
//! the autosave indefinitely.
constexpr int mostRestarts = 100;

//! Records whether anything has changed that a project file contains.
class ChangeWatch final : public ModelObserver
{
public:
    explicit ChangeWatch(bool &hasChanged)
        : m_hasChanged(hasChanged)
    { }

    void valueChanged(const SharedProperty &, const QString &) override { note(); }
    void inserted(const SharedProperty &, qsizetype, DesignerObject *) override { note(); }
    void aboutToRemove(const SharedProperty &, qsizetype, DesignerObject *) override { note(); }
    void moved(const SharedProperty &, qsizetype, qsizetype) override { note(); }
    void aboutToReplace(const SharedProperty &, qsizetype, DesignerObject *, DesignerObject *) override
    {
        note();
    }
    void replaced(const SharedProperty &, qsizetype, DesignerObject *, DesignerObject *) override { note(); }
    void reordered(const SharedProperty &) override { note(); }
    void descriptorChanged(const SharedProperty &) override { note(); }
    void projectAboutToLoad() override { note(); }

private:
    void note() { m_hasChanged = true; }

    bool &m_hasChanged;
};

} // namespace

AutosaveRun::AutosaveRun(Project &project, const QString &archive)
    : m_project(project)
    , m_archive(archive)
    , m_folder(Common::FileHelper::getStandardTemporatyLocation(), u"CorvexNova-autosave"_s)
    , m_watch(std::make_unique<ChangeWatch>(m_hasChanged))
{
    project.observers().add(m_watch.get());
}

AutosaveRun::~AutosaveRun() = default;

bool AutosaveRun::restart(QString &error)
{
    if (!m_folder.isValid()) {
        error = LocalizationHelper::coreString(u"The folder \"%1\" cannot be created: %2"_s)
                    .arg(Common::FileHelper::getStandardTemporatyLocation(), m_folder.errorString());
        return false;
    }
    m_hasChanged = false;
    ++m_restarts;
    m_restarted();
    // The user may rename the project while it is written.
    m_file = std::make_unique<QFile>(m_folder.filePath(QFileInfo(m_archive).completeBaseName()));
    if (!m_file->open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        error = LocalizationHelper::coreString(u"The file \"%1\" cannot be written: %2"_s)
                    .arg(m_file->fileName(), m_file->errorString());
        return false;
    }
    m_writer = std::make_unique<ObjectXmlWriter>(m_file.get(), ObjectXmlWriter::LineEnd::Windows);
    m_writer->begin(&m_project);
    return true;
}

Job::Next AutosaveRun::write(Common::Progress &progress, QString &error)
{
    if (m_hasChanged && !restart(error)) {
        return Job::Next::Failed;
    }
    do {
        if (m_writer->writePiece()) {
            progress.advance();
        } else {
            return finishFile(error) ? Job::Next::Done : Job::Next::Failed;
        }
    } while (m_restarts > mostRestarts);
    return Job::Next::More;
}

bool AutosaveRun::finishFile(QString &error)
{
    error = m_writer->errorString();
    if (error.isEmpty() && !m_file->flush()) {
        error = Common::FileHelper::writeError(*m_file);
    }
    m_file.reset();
    m_watch.reset();
    m_resources.emplace(m_project);
    return error.isEmpty();
}

bool AutosaveRun::pack(Common::Progress &progress, QString &error)
{
    m_isPacked = m_resources->copyTo(m_folder.path(), &error, &progress)
                 && Common::ZipHelper::zipDirectory(m_folder.path(), m_archive, &error, &progress);
    return m_isPacked;
}

} // namespace Halvane::Corvex::Designer
