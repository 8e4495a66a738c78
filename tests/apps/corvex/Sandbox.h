// SPDX-License-Identifier: MIT
#pragma once

#include "Program.h"

#include <QTemporaryDir>

namespace Halvane::Corvex::Test {

//! A folder for projects, deleted after the test.
class Sandbox
{
public:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    //! Runs the program in this folder.
    ProgramRun run(const QStringList &arguments) const
    {
        return corvex(arguments, m_folder.path(), m_denied);
    }
    //! Lets a system call of the program fail as unsupported from now on; on Linux only.
    void deny(long systemCall) { m_denied = systemCall; }

    QByteArray read(const QString &name) const;
    void write(const QString &name, const QByteArray &bytes) const;
    //! The number of the first line of a file that contains the text.
    int lineOf(const QString &name, const QByteArray &text) const;
    //! All files below a folder, with relative paths.
    QStringList files(const QString &folder) const;

    //! The XML element of an object with further properties, as in project files.
    static QByteArray object(const QByteArray &className, const QByteArray &name,
                             const QByteArray &properties = {}, const QByteArray &scope = "Screen");
    static QByteArray value(const QByteArray &property, const QByteArray &text);
    //! A text and a group with two rectangles in it.
    static QByteArray goodElements();

    //! Creates the file Pump/Pump.kdproj with these elements on its screen "Main", and with these variables
    //! and images.
    void makeProject(const QByteArray &elements, const QByteArray &variables = {},
                     const QByteArray &images = {}) const;

private:
    QTemporaryDir m_folder;
    long m_denied = -1;
};

} // namespace Halvane::Corvex::Test
