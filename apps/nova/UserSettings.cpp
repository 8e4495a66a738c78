// SPDX-License-Identifier: MIT
#include "UserSettings.h"

#include "corvex/project/files/ProjectAutosave.h"

#include <QFileInfo>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

namespace {

QSettings settings()
{
    return QSettings(u"Halvane"_s, u"Corvex Nova"_s);
}

QVariant read(const QString &key)
{
    return settings().value(key);
}

void write(const QString &key, const QVariant &value)
{
    settings().setValue(key, value);
}

//! The name of a file may contain characters that have a meaning in keys.
QString viewKey(const QString &path)
{
    return u"views/"_s + QString::fromLatin1(QFileInfo(path).absoluteFilePath().toUtf8().toHex());
}

//! In the order of UserSettings::Look.
constexpr const char *looks[] = {"desktop", "light", "dark"};

} // namespace

UserSettings::Look UserSettings::look()
{
    const QString name = read(u"look"_s).toString();
    for (const Look look : {Look::Light, Look::Dark}) {
        if (name == QLatin1StringView(looks[int(look)])) {
            return look;
        }
    }
    return Look::Desktop;
}

void UserSettings::setLook(Look look)
{
    write(u"look"_s, QLatin1StringView(looks[int(look)]));
}

QString UserSettings::language()
{
    return read(u"language"_s).toString();
}

void UserSettings::setLanguage(const QString &language)
{
    write(u"language"_s, language);
}

void UserSettings::startAutosaving()
{
    const QString key = u"autoIntervalTime"_s; // in minutes
    if (!read(key).isValid()) {
        write(key, Designer::ProjectAutosave::shortestInterval);
    }
}

QByteArray UserSettings::windowGeometry()
{
    return read(u"window/geometry"_s).toByteArray();
}

QByteArray UserSettings::windowState()
{
    return read(u"window/state"_s).toByteArray();
}

void UserSettings::setWindowPlace(const QByteArray &geometry, const QByteArray &state)
{
    write(u"window/geometry"_s, geometry);
    write(u"window/state"_s, state);
}

QStringList UserSettings::recentProjects()
{
    return read(u"recentProjects"_s).toStringList();
}

void UserSettings::addRecentProject(const QString &path)
{
    QStringList paths = recentProjects();
    const QString absolute = QFileInfo(path).absoluteFilePath();
    paths.removeAll(absolute);
    paths.prepend(absolute);
    write(u"recentProjects"_s, QStringList(paths.mid(0, mostRecentProjects)));
}

void UserSettings::removeRecentProject(const QString &path)
{
    QStringList paths = recentProjects();
    paths.removeAll(path);
    write(u"recentProjects"_s, paths);
}

QVariantMap UserSettings::viewOf(const QString &path)
{
    return read(viewKey(path)).toMap();
}

void UserSettings::setViewOf(const QString &path, const QVariantMap &view)
{
    if (view.isEmpty()) {
        settings().remove(viewKey(path));
    } else {
        write(viewKey(path), view);
    }
}

bool UserSettings::hasGrid()
{
    return read(u"canvas/grid"_s).toBool();
}

void UserSettings::setGrid(bool on)
{
    write(u"canvas/grid"_s, on);
}

QString UserSettings::buildFolder(const QString &projectPath)
{
    return read(u"buildFolders"_s).toMap().value(projectPath).toString();
}

void UserSettings::setBuildFolder(const QString &projectPath, const QString &folder)
{
    QVariantMap folders = read(u"buildFolders"_s).toMap();
    folders.insert(projectPath, folder);
    write(u"buildFolders"_s, folders);
}

QString UserSettings::keysOf(const QString &actionId)
{
    const QVariant keys = read(u"keys/"_s + actionId);
    return keys.isValid() ? u""_s + keys.toString() : QString();
}

void UserSettings::setKeysOf(const QString &actionId, const QString &keys)
{
    if (keys.isNull()) {
        settings().remove(u"keys/"_s + actionId);
    } else {
        write(u"keys/"_s + actionId, keys);
    }
}

} // namespace Halvane::Corvex::Nova
