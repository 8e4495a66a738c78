// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace Halvane::Corvex::Common {
class Progress;
} // namespace Halvane::Corvex::Common

namespace Halvane::Corvex::Designer {

class DesignerObject;

/*! Generates the folder that goes to the device: one QML file per screen, the zipped project, the files of
    RuntimeConfiguration and the resources, all in the sub-folder "project".

    Each build gets a new folder in the temporary location, which belongs to this process until it ends;
    builds of later processes remove it then. A failed build leaves no folder.
*/
class CORVEX_EXPORT RuntimeGenerator
{
public:
    //! The folder whose files are copied beside the screens. Empty: no files.
    void setResourceFolder(const QString &path) { m_resourceFolder = path; }
    const QString &resourceFolder() const { return m_resourceFolder; }
    //! The files to copy from that folder; some of them may be missing. By default all files are copied.
    void setResourceNames(const QStringList &names) { m_resourceNames = names; }
    //! The version in the zipped project, instead of the project's own. Empty: the project's own.
    void setBuildTag(const QString &tag) { m_buildTag = tag; }

    //! Reports the progress of a build and can cancel it, which counts as a failure. May be null. Not owned.
    void setProgress(Common::Progress *progress) { m_progress = progress; }

    //! Builds \a project, an object with a list "screens". Stops at the first step that fails.
    bool generate(const DesignerObject *project);

    //! The absolute path of the last build; empty before a build and after a failed one.
    const QString &buildFolder() const { return m_buildFolder; }
    //! Why the last build failed.
    const QString &errorString() const { return m_error; }
    //! Deletes the last build, after its files have been moved away.
    void removeBuildFolder();
    //! Deletes an earlier build.
    static void removeBuild(const QString &buildFolder);

private:
    bool makeBuildFolder();
    bool writeProject(const DesignerObject *project);
    //! Runs in its own thread: reads the model and this object but changes neither. Returns the error, or an
    //! empty text.
    QString packProject(const DesignerObject &project) const;
    QByteArray projectXml(const DesignerObject &project, QString *error) const;
    bool writeConfiguration(const DesignerObject *project);
    //! Writes which classes a preview shows instead of classes of plug-ins. Writes no file if no class
    //! defines one.
    bool writePreviews(const DesignerObject *project);
    //! Uses all processors, one screen at a time each.
    bool writeScreens(const DesignerObject *project);
    //! Returns the error, or an empty text.
    QString writeScreen(const DesignerObject &screen) const;
    bool copyResources();
    bool fail(const QString &error);
    bool isCancelled() const;
    void advance() const;
    QString filePath(const QString &fileName) const;

    QString m_resourceFolder;
    std::optional<QStringList> m_resourceNames;
    QString m_buildTag;
    Common::Progress *m_progress = nullptr;
    QString m_buildFolder;
    QString m_error;
};

} // namespace Halvane::Corvex::Designer
