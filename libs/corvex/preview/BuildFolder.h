// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/preview/QmlOutline.h"

#include <QMap>
#include <QString>
#include <QVariantMap>

namespace Halvane::Corvex::Preview {

//! What a build has put into its folder "project". Nothing is written there.
class BuildFolder
{
public:
    struct ScreenFile
    {
        QString path;
        QmlOutline outline;
    };

    //! Takes the folder of the build or its "project". False, with a text for the user, without any screen.
    bool open(const QString &path, QString *error);

    const QString &path() const { return m_path; }
    //! By QML id: "qml_Main".
    const QMap<QString, ScreenFile> &screens() const { return m_screens; }
    //! The QML id of the screen to show first.
    QString defaultScreen() const;
    //! From name to record: "type", "value", "persistent".
    const QVariantMap &variables() const { return m_variables; }
    //! From a class to the one that the preview shows in its place.
    const QMap<QString, QString> &previews() const { return m_previews; }
    //! What is wrong with the folder without keeping its screens from being shown: file and message.
    const QList<std::pair<QString, QString>> &problems() const { return m_problems; }
    //! Another one when a file of the folder has been written anew, came or went.
    static QString stampOf(const QString &path);

private:
    bool findScreens();
    void readConfiguration();
    void readPreviews();
    //! The text of the configuration file that tells what made the build: "PumpStation-4.0.0", encrypted.
    void checkVersion(const QString &tag);

    QString m_path;
    QMap<QString, ScreenFile> m_screens;
    QString m_defaultScreen;
    QVariantMap m_variables;
    QMap<QString, QString> m_previews;
    QList<std::pair<QString, QString>> m_problems;
};

} // namespace Halvane::Corvex::Preview
