// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/preview/QmlOutline.h"

#include <QMap>
#include <QString>
#include <QVariantMap>

namespace Halvane::Corvex::Preview {

//! Reads the folder "project" of a build. Never writes there.
class BuildFolder
{
public:
    struct ScreenFile
    {
        QString path;
        QmlOutline outline;
    };

    //! Accepts the folder of the build or its "project". Returns false, with a text for the user, if there
    //! are no screens.
    bool open(const QString &path, QString *error);

    const QString &path() const { return m_path; }
    //! Indexed by QML id: "qml_Main".
    const QMap<QString, ScreenFile> &screens() const { return m_screens; }
    //! The QML id of the default screen.
    QString defaultScreen() const;
    //! The record of each variable by name: "type", "value", "persistent".
    const QVariantMap &variables() const { return m_variables; }
    //! Maps a class to the class that the preview shows instead.
    const QMap<QString, QString> &previews() const { return m_previews; }
    //! Problems of the folder that do not prevent its screens from being shown: file and message.
    const QList<std::pair<QString, QString>> &problems() const { return m_problems; }
    //! A value that changes when a file of the folder is changed, added or removed.
    static QString stampOf(const QString &path);

private:
    bool findScreens();
    void readConfiguration();
    void readPreviews();
    //! Checks the version in the configuration file, "PumpStation-4.0.0" in encrypted form.
    void checkVersion(const QString &tag);

    QString m_path;
    QMap<QString, ScreenFile> m_screens;
    QString m_defaultScreen;
    QVariantMap m_variables;
    QMap<QString, QString> m_previews;
    QList<std::pair<QString, QString>> m_problems;
};

} // namespace Halvane::Corvex::Preview
