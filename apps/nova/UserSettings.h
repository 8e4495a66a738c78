// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace Halvane::Corvex::Nova {

//! The settings of the user, shared by all windows and programs. A setting that cannot be read has its
//! default.
class UserSettings
{
public:
    enum class Look { Desktop, Light, Dark };
    static Look look();
    static void setLook(Look look);

    //! The language of the window ("de"); empty for that of the desktop.
    static QString language();
    static void setLanguage(const QString &language);

    //! Switches autosaving on, every five minutes, unless the user has chosen something else.
    static void startAutosaving();

    //! The place of the window and of its panels, in the forms of QWidget and QMainWindow; empty at first.
    static QByteArray windowGeometry();
    static QByteArray windowState();
    static void setWindowPlace(const QByteArray &geometry, const QByteArray &state);

    //! The projects that the user opened, the last one first: paths of .kdproj files, which may be gone.
    static QStringList recentProjects();
    static void addRecentProject(const QString &path);
    static void removeRecentProject(const QString &path);
    static constexpr int mostRecentProjects = 12;

    //! How the user views the project in that file: hidden and locked elements and guides; empty at first.
    static QVariantMap viewOf(const QString &path);
    static void setViewOf(const QString &path, const QVariantMap &view);
    //! Whether the canvas has a grid.
    static bool hasGrid();
    static void setGrid(bool on);

    //! The folder into which a project was built last; empty at first.
    static QString buildFolder(const QString &projectPath);
    static void setBuildFolder(const QString &projectPath, const QString &folder);

    //! The keys that the user chose for an action, in the form of QKeySequence; null without a choice, empty
    //! for none.
    static QString keysOf(const QString &actionId);
    static void setKeysOf(const QString &actionId, const QString &keys);
};

} // namespace Halvane::Corvex::Nova
