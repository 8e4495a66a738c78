// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/EnumHelper.h"
#include "corvex/preview/PreviewSession.h"
#include "corvex/preview/script/PanelWindow.h"
#include "corvex/preview/script/PreviewScript.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <QVariantMap>

namespace Halvane::Corvex::Preview {

//! The folder of a build, created by hand.
class TestBuild
{
public:
    TestBuild();

    QString path(const QString &name = QString()) const { return m_folder.filePath(name); }
    void write(const QString &name, const QByteArray &bytes) const;
    //! Writes the document of a screen with this body.
    void addScreen(const QByteArray &name, const QByteArray &body) const;
    void addVariable(const QString &name, Common::EnumHelper::VariableType type, const QVariant &value,
                     bool isPersistent = false);
    //! Writes config.kdrc with all variables. A tag is "Plant-4.0.0".
    void writeConfiguration(const QString &defaultScreen = QString(), const QString &tag = QString()) const;

private:
    QTemporaryDir m_folder;
    QVariantMap m_variables;
};

//! A session that runs a build, with a window that can be touched.
class TestPanel
{
public:
    explicit TestPanel(const TestBuild &build, const QString &stateFile = QString());

    //! The failures of a script, whose lines are separated by ";".
    QStringList run(const char *script);
    //! All problems as "element: message".
    QStringList problems();
    QString evaluate(const QString &code);

    PreviewSession session;
    bool isOpen = false;
    QString error;

private:
    std::unique_ptr<PanelWindow> m_window;
};

} // namespace Halvane::Corvex::Preview
