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

//! Long enough for a person who types edits; a script needs far less.
constexpr int longestWait = 30'000; // milliseconds

//! What to do about a path that does not name a readable project.
QString advice(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return u"Name the .kdproj file of a project; \"corvex new\" creates one."_s;
    }
    if (info.isFile() && !info.isReadable()) {
        return u"Ask its owner for read permission."_s;
    }
    if (info.isFile()) {
        return u"Repair the file at that place, or restore it from a copy."_s;
    }
    const QStringList projects =
        info.isDir() ? QDir(path).entryList({u"*.kdproj"_s}, QDir::Files, QDir::Name) : QStringList();
    return projects.size() == 1 ? u"Did you mean \"%1\"?"_s.arg(QDir(path).filePath(projects.constFirst()))
                                : u"Name the .kdproj file of a project."_s;
}

//! Adds the full stop that messages of the operating system lack.
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
    // The program exits after its verb; destroying a large model would often take longer than the verb
    // itself. This pointer keeps the leak checker quiet.
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
        call.failed(u"A project from standard input cannot be saved. Name its file instead."_s);
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
    call.terminal().showProgress(u"Waiting for another program that uses %1"_s.arg(m_path));
    using Kind = Common::FolderLock::Kind;
    // A project from standard input lives in a private folder, so it needs no lock.
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
    const bool isLoaded = m_project && m_project->loadFile(file);
    call.terminal().endProgress();
    if (isLoaded) {
        return true;
    }
    QString error = m_project ? m_project->fileError() : u"Cannot create a project."_s;
    error.replace(file, m_path);
    call.failed(u"%1 %2"_s.arg(sentence(error), advice(file)));
    return false;
}

bool ProjectFile::isUnchanged(const Call &call) const
{
    // A renamed project has moved its file.
    if (Common::FileStamp::of(m_project->fullFilePath()) == m_project->fileStamp()) {
        return true;
    }
    call.failed(u"Another program changed \"%1\" after it was opened, so nothing "
                "was saved. Try again."_s.arg(m_path));
    return false;
}

ExitCode ProjectFile::save(const Call &call) const
{
    if (!dropped().isEmpty() && !call.isSet(u"force"_s)) {
        return call.failed(
            u"\"%1\" contains parts that this version does not know and would lose, so it was not saved. "
            "\"corvex check\" lists them; --force saves anyway."_s.arg(m_path),
            ExitCode::Problems);
    }
    if (QString missing; !ObjectXmlWriter::isComplete(m_project.get(), false, &missing)) {
        return call.failed(
            u"\"%1\" contains no object, and \"%2\" cannot be saved without one."_s.arg(missing, m_path),
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
