// SPDX-License-Identifier: MIT
#include "corvex/preview/BuildFolder.h"

#include "corvex/common/TextHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/RegularFile.h"
#include "corvex/preview/Bounds.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QVersionNumber>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

namespace {

const QString configurationFile = u"config.kdrc"_s;
const QString previewFile = u"preview.kdrc"_s;

QString projectPath(const QString &path)
{
    const QDir folder(path);
    return folder.exists(u"project"_s) ? folder.absoluteFilePath(u"project"_s) : folder.absolutePath();
}

} // namespace

bool BuildFolder::open(const QString &path, QString *error)
{
    *this = BuildFolder();
    m_path = projectPath(path);
    if (!findScreens()) {
        *error = u"\"%1\" contains no screens. Create it with \"corvex build FILE -o DIR\"."_s.arg(path);
        return false;
    }
    readConfiguration();
    readPreviews();
    return true;
}

bool BuildFolder::findScreens()
{
    const QDir folder(m_path);
    for (const QString &name : folder.entryList({u"qml_?*.qml"_s}, QDir::Files, QDir::Name)) {
        QByteArray bytes;
        QString error;
        if (!Common::RegularFile::read(folder.filePath(name), Bounds::longestFile, &bytes, &error)) {
            m_problems.append({name, error});
            continue;
        }
        m_screens.insert(name.chopped(4),
                         {folder.absoluteFilePath(name), QmlOutline(QString::fromUtf8(bytes))});
    }
    return !m_screens.isEmpty();
}

void BuildFolder::readConfiguration()
{
    const QString path = QDir(m_path).filePath(configurationFile);
    if (!QFile::exists(path)) {
        m_problems.append({configurationFile, u"The file is missing, so there are no variables."_s});
        return;
    }
    const QString problem = Common::RegularFile::problem(path, Bounds::longestFile);
    if (!problem.isEmpty()) {
        m_problems.append({configurationFile, problem + u" There are no variables."_s});
        return;
    }
    bool ok = false;
    const QVariantMap configuration = Common::FileHelper::fileToVariant(path, &ok).toMap();
    if (!ok || configuration.value(u"variables"_s).metaType() != QMetaType::fromType<QVariantMap>()) {
        m_problems.append(
            {configurationFile,
             u"The file is incomplete or not from a build, so there are no variables. Build the project again."_s});
        return;
    }
    checkVersion(configuration.value(u"version"_s).toString());
    m_variables = configuration.value(u"variables"_s).toMap();
    m_defaultScreen = configuration.value(u"defaultScreen"_s).toString();
    if (!m_defaultScreen.isEmpty() && !m_screens.contains(m_defaultScreen)) {
        m_problems.append(
            {configurationFile, u"The default screen \"%1\" is missing."_s.arg(m_defaultScreen)});
    }
}

//! Only builds with classes of plug-ins contain the file.
void BuildFolder::readPreviews()
{
    const QString path = QDir(m_path).filePath(previewFile);
    if (!QFile::exists(path)) {
        return;
    }
    bool ok = false;
    const QString problem = Common::RegularFile::problem(path, Bounds::longestFile);
    const QVariant previews = problem.isEmpty() ? Common::FileHelper::fileToVariant(path, &ok) : QVariant();
    if (!ok || previews.metaType() != QMetaType::fromType<QVariantMap>()) {
        const QString reason = problem.isEmpty() ? u"The file is damaged."_s : problem;
        m_problems.append({previewFile, reason + u" Elements of plug-ins are shown as boxes."_s});
        return;
    }
    for (const auto &[className, preview] : previews.toMap().asKeyValueRange()) {
        m_previews.insert(className, preview.toString());
    }
}

void BuildFolder::checkVersion(const QString &tag)
{
    const QString text = Common::TextHelper::decryptString(tag);
    const QString version = text.section(u'-', -1);
    const QString known = QStringLiteral(CORVEX_BUILD_VERSION);
    if (QVersionNumber::fromString(version) > QVersionNumber::fromString(known)) {
        m_problems.append(
            {configurationFile,
             u"The build was made by version %1, but this preview supports builds up to version %2. It "
             "may behave differently from the device."_s.arg(version, known)});
    }
}

QString BuildFolder::defaultScreen() const
{
    return m_screens.contains(m_defaultScreen) ? m_defaultScreen : m_screens.firstKey();
}

QString BuildFolder::stampOf(const QString &path)
{
    QCryptographicHash hash(QCryptographicHash::Md5);
    const QFileInfoList files = QDir(projectPath(path)).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &file : files) {
        hash.addData(u"%1|%2|%3\n"_s
                         .arg(file.fileName(), QString::number(file.size()),
                              QString::number(file.lastModified().toMSecsSinceEpoch()))
                         .toUtf8());
    }
    return QString::fromLatin1(hash.result().toHex());
}

} // namespace Halvane::Corvex::Preview
