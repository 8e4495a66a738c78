// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace Halvane::Corvex::Preview {

class BuildFolder;

//! The types of the modules that generated screens import, in place of those of the device.
class StandIns
{
public:
    //! Call it once, before any engine loads a screen.
    static void registerModules();

    //! Registers a type for each unknown class of the build, with all properties and signals that the build
    //! sets for it: the class that the build names for it, or a labelled box. Returns the names of the
    //! classes shown as boxes.
    static QStringList addUnknownClasses(const BuildFolder &build);
    //! The document of the class Screen.
    static QUrl screenDocument();
    //! The document for that build, whose screens may have lists for elements of plug-ins.
    static QUrl screenDocumentFor(const BuildFolder &build);
    //! The folder for the documents of the boxes, by default a temporary one. Call it before the first box is
    //! registered.
    static void keepBoxesIn(const QString &folder);
    //! Empty until the folder is known.
    static const QString &boxFolder();
};

} // namespace Halvane::Corvex::Preview
