// SPDX-License-Identifier: MIT
#include "ProjectFile.h"

#include "corvex/checks/ProblemApprovals.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/TemporaryFolder.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/xml/ObjectXmlWriter.h"
#include "corvex/project/Project.h"

#include "InputFile.h"
#include "Installation.h"
#include "terminal/Call.h"
#include "terminal/Terminal.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

//! An edit that a person types may take long; a script does not.
constexpr int longestWait = 30'000; // milliseconds

//! What a user can do who named something that is no project file.
QString advice(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return u"Name the .kdproj file of a project; \"corvex new\" makes one."_s;
    }
    if (info.isFile() && !info.isReadable()) {
        return u"Ask its owner to let you read it."_s;
    }
    if (info.isFile()) {
        return u"Mend the file at that place, or take it from a copy."_s;
    }
    const QStringList projects =
        info.isDir() ? QDir(path).entryList({u"*.kdproj"_s}, QDir::Files, QDir::Name) : QStringList();
    return projects.size() == 1 ? u"Did you mean \"%1\"?"_s.arg(QDir(path).filePath(projects.constFirst()))
                                : u"Name the .kdproj file of a project."_s;
}

//! What the system has to say has no full stop.
QString sentence(const QString &text)
{
    return text.endsWith(u'.') ? text : text + u'.';
}

void collectKept(const DesignerObject &owner, QList<ProjectFile::Kept> &kept)
{
    for (const SharedProperty &property : owner.properties()) {
        if (const ItemList *list = property->itemList(); list && list->hasKeptItems()) {
            for (const KeptItem &item : list->keptItems()) {
                kept.append({&owner, item});
            }
        }
    }
    for (const DesignerObject *child : owner.childObjects()) {
        collectKept(*child, kept);
    }
}

} // namespace

ProjectFile::ProjectFile() = default;

ProjectFile::~ProjectFile()
{
    // The program ends with its verb, and taking a large model apart would take longer than many a verb does.
    // It stays here, where a search for leaks finds it.
    static const Project *left = nullptr;
    if (m_project) {
        m_project->closeFiles();
    }
    m_approvals.reset();
    delete std::exchange(left, m_project.release());
}

std::unique_ptr<Project> ProjectFile::create()
{
    const DesignerFactory *factory = DesignerFactory::instance();
    DesignerObject *object = factory ? factory->createObject(Project::kindName()) : nullptr;
    if (object) {
        object->setParent(nullptr);
    }
    return std::unique_ptr<Project>(static_cast<Project *>(object));
}

bool ProjectFile::takeStandardInput(QString &file, Use use, const Call &call)
{
    if (use == Use::Change) {
        call.failed(u"A project from standard input has no file to be saved to. Name its file."_s);
        return false;
    }
    constexpr qint64 largest = 1024 * 1024 * 1024;
    InputFile input(m_path, largest);
    QByteArray bytes;
    if (!input.open() || !input.readAll(bytes)) {
        call.failed(input.errorString());
        return false;
    }
    m_input = std::make_unique<Common::TemporaryFolder>(u"corvex-input"_s);
    file = m_input->filePath(u"input.kdproj"_s);
    QString error;
    if (!Common::FileHelper::writeFile(file, bytes, &error)) {
        call.failed(error);
        return false;
    }
    return true;
}

bool ProjectFile::open(const Call &call, Use use, qsizetype argument)
{
    m_path = call.argument(argument);
    if (Installation::loadFactory(call) != ExitCode::Done) {
        return false;
    }
    QString file = m_path;
    if (m_path == "-"_L1 && !takeStandardInput(file, use, call)) {
        return false;
    }
    m_project = create();
    m_approvals = m_project ? std::make_unique<ProblemApprovals>(*m_project) : nullptr;
    call.terminal().showProgress(u"Waiting for others that work on %1"_s.arg(m_path));
    using Kind = Common::FolderLock::Kind;
    // Nobody else knows the folder of a project from standard input.
    const bool isLocked =
        m_project
        && (m_input
            || m_project->lockFiles(file, use == Use::Change ? Kind::Exclusive : Kind::Shared, longestWait));
    if (isLocked && !m_project->recoveryNote().isEmpty()) {
        call.terminal().printError(Terminal::oneLine(u"%1: %2"_s.arg(m_path, m_project->recoveryNote())));
    }
    if (m_project && !isLocked) {
        call.failed(m_project->fileError());
        return false;
    }
    if (m_project) {
        m_project->setProgress(call.terminal().showProgress(u"Reading %1"_s.arg(m_path)));
    }
    if (use == Use::Change) {
        m_stamp = Common::FileStamp::of(file);
    }
    const bool isLoaded = m_project && m_project->loadFile(file);
    call.terminal().endProgress();
    if (isLoaded) {
        return true;
    }
    QString error = m_project ? m_project->fileError() : u"No project can be made."_s;
    error.replace(file, m_path);
    call.failed(u"%1 %2"_s.arg(sentence(error), advice(file)));
    return false;
}

bool ProjectFile::isUnchanged(const Call &call) const
{
    // A project that got another name has taken its file along.
    if (Common::FileStamp::of(m_project->fullFilePath()) == m_stamp) {
        return true;
    }
    call.failed(u"\"%1\" has been written by another program since it was opened, and stays as that program "
                "left it. Try again."_s.arg(m_path));
    return false;
}

ExitCode ProjectFile::save(const Call &call) const
{
    if (!dropped().isEmpty() && !call.isSet(u"force"_s)) {
        return call.failed(u"\"%1\" holds what this version does not know and would lose; it stays as it is. "
                           "\"corvex check\" names the places; --force writes it all the same."_s.arg(m_path),
                           ExitCode::Problems);
    }
    if (QString missing; !ObjectXmlWriter::isComplete(m_project.get(), false, &missing)) {
        return call.failed(
            u"\"%1\" holds no object, and \"%2\" is not written without it."_s.arg(missing, m_path),
            ExitCode::Problems);
    }
    if (!isUnchanged(call)) {
        return ExitCode::File;
    }
    if (!m_project->saveFile()) {
        return call.failed(m_project->fileError());
    }
    if (const QString error = m_approvals->errorString(); !error.isEmpty()) {
        call.terminal().printError(Terminal::oneLine(u"The approvals are not saved. %1"_s.arg(error)));
    }
    return ExitCode::Done;
}

QList<ReadNote> ProjectFile::dropped() const
{
    QList<ReadNote> notes;
    std::ranges::copy_if(m_project->readNotes(), std::back_inserter(notes),
                         [](const ReadNote &note) { return note.kind == ReadNote::Dropped; });
    return notes;
}

QList<ProjectFile::Kept> ProjectFile::kept() const
{
    QList<Kept> kept;
    collectKept(*m_project, kept);
    return kept;
}

} // namespace Halvane::Corvex::Tool
