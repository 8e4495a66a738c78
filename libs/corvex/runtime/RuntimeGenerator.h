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

/*! Makes the folder that goes to the device: one QML file per screen, the zipped project, the files of
   RuntimeConfiguration and the resources, all in the sub-folder "project".

    Each build gets a fresh folder of its own below the temporary location, which belongs to this process
   until its end: builds of later processes remove it then. A build that fails leaves none.
*/
class CORVEX_EXPORT RuntimeGenerator
{
public:
    //! The folder whose files are copied beside the screens; none when empty.
    void setResourceFolder(const QString &path) { m_resourceFolder = path; }
    const QString &resourceFolder() const { return m_resourceFolder; }
    //! Those of them that are copied, of which some may be missing; all files of the folder unless this is
    //! called.
    void setResourceNames(const QStringList &names) { m_resourceNames = names; }
    //! What the zipped project has as its version in place of its own; nothing when empty.
    void setBuildTag(const QString &tag) { m_buildTag = tag; }

    //! Follows a build and may cancel it, which counts as a failure; null for nobody. Not owned.
    void setProgress(Common::Progress *progress) { m_progress = progress; }

    //! Builds \a project, an object with a list "screens". Ends with the first step that fails.
    bool generate(const DesignerObject *project);

    //! The absolute path of what the last build made; empty before a build and after a failed one.
    const QString &buildFolder() const { return m_buildFolder; }
    //! Why the last build failed.
    const QString &errorString() const { return m_error; }
    //! Deletes what the last build made, for a caller that has taken the files from there.
    void removeBuildFolder();
    //! The same for one that was made before.
    static void removeBuild(const QString &buildFolder);

private:
    bool makeBuildFolder();
    bool writeProject(const DesignerObject *project);
    //! In a thread of its own: reads the model and this, and changes neither. The error, empty without one.
    QString packProject(const DesignerObject &project) const;
    QByteArray projectXml(const DesignerObject &project, QString *error) const;
    bool writeConfiguration(const DesignerObject *project);
    //! Writes which classes a preview shows in place of those of plug-ins; no file if no class says so.
    bool writePreviews(const DesignerObject *project);
    //! All processors write, each one screen at a time.
    bool writeScreens(const DesignerObject *project);
    //! The error, empty without one.
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
