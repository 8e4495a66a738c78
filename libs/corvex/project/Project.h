// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/FileObject.h"
#include "corvex/core/ModelObservers.h"
#include "corvex/project/files/ProjectFolder.h"
#include "corvex/runtime/RuntimeGenerator.h"
#include "corvex/values/runtime/RuntimeLists.h"

#include <QHash>

class QAction;

namespace Halvane::Corvex::Designer {

class Configuration;
class HistoryKeeper;
class ImageResource;
class ProjectAutosave;
class UndoCommand;
class UndoStack;

/*! The root of everything that a user designs: screens, variables, images and the configuration of the
   device.

    A project P in the folder D is the file D/P/P.kdproj; its images lie in D/P/Images and a picture of it,
   when there is one, is D/P/Preview.png. project() of a project and of everything below it is the project
   itself.
*/
class CORVEX_EXPORT Project : public FileObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(Project, FileObject)

public:
    ~Project() override;

    bool initialize() override;
    QString baseName() const override;
    QString displayName() const override;

    // Properties.
    //! The enciphered build tag, "name-version".
    const SharedProperty &version() const { return m_version; }
    //! The version of the tool that wrote the file last.
    const SharedProperty &designerVersion() const { return m_designerVersion; }
    const SharedProperty &configuration() const { return m_configuration; }
    const SharedProperty &imageResources() const { return m_imageResources; }
    const SharedProperty &variables() const { return m_variables; }
    const SharedProperty &screens() const { return m_screens; }
    const SharedProperty &defaultScreen() const { return m_defaultScreen; }
    //! The configuration itself; null in a project that has none yet.
    Configuration *configurationObject() const;
    /*! Brings what the hardware of the device fixes up to date from the installed model that fits, see
        ConfigurationContainer::match(). False, with a text for fileError(), when none does. */
    bool updateConfiguration();

    // Files. All keep a text for fileError() when they fail.
    QString createFileName() const override;
    QString createSubPath() const override;
    /*! Makes D/P/P.kdproj in the existing folder D = \a path. Refuses a name that cannot be carried to every
       system. Images stay where they are: createFileCopy() takes them along. A new undo history starts here,
       with loadFile() and with saveFile(). */
    bool createFile(const QString &path) override;
    //! Reads D/P/P.kdproj into this project, whose own contents go before.
    bool loadFile(const QString &path) override;
    bool saveFile() override;
    /*! Keeps others from changing the project in the file \a path, or from reading it too (exclusive), from
       before it is loaded until closeFiles(). False when others work there for longer than \a milliseconds.
     */
    bool lockFiles(const QString &path, Common::FolderLock::Kind kind, int milliseconds);
    //! Takes back what commands did to files since the last save, and lets others in. The destructor does so,
    //! too.
    void closeFiles() { m_folder.close(); }
    //! What the opening had to end that a program did not end itself, as a sentence; mostly empty.
    const QString &recoveryNote() const { return m_folder.recoveryNote(); }
    /*! Where commands change files: all of it counts with the next saveFile(), and nobody else can write the
        project until then. Null, with an error, when that cannot be. */
    Common::FileTransaction *beginFileChanges(QString *error);
    //! The changes that wait for the next save, or null.
    Common::FileTransaction *fileChanges() const { return m_folder.changes(); }
    //! Deletes the project's file, its images and its preview, and their folders once they are empty.
    bool deleteFile() override;
    /*! Makes the project D/Q/Q.kdproj with images and preview in the existing folder D = \a parentPath, as it
       stands in memory; Q is \a name, or the project's own name. D/Q must not be there yet, and is not after
       a failure. An image whose file is missing is missing in the copy. */
    bool createFileCopy(const QString &parentPath, const QString &name = {});
    /*! Writes \a fileName, the images into "Images" and the preview into the folder \a path, which is empty.
       This is what copies and autosave files are made of. */
    bool writeContents(const QString &path, const QString &fileName, QString *error) const;
    //! Where the files of the images lie, whether or not the folder is there; empty for a project without a
    //! file.
    QString imagesPath() const;
    //! D/P/Approvals.jsonl, where approved problems are listed; empty for a project without a file.
    QString approvalsPath() const;
    //! D/P.kdproj.kdasv, beside the project's folder; empty for a project without a file.
    QString autosavePath() const;
    //! What the file \a path holds as the values of its properties "id" and "version", found without loading
    //! it. False when it is no project.
    static bool getFileIdAndVersion(const QString &path, QString *id, QString *version);
    //! The second of these; empty when the file is no project.
    static QString getFileVersion(const QString &path);

    // Versions.
    //! The version of this program: "4.0.0".
    static QString buildVersion();
    //! Enciphers name and version of this program as the project's build tag.
    void updateBuildVersion();
    //! The name and version in the build tag; empty when that is none of ours.
    QString buildTag() const;
    //! Bring a project of an older version into the present form, in which every project that loads is today.
    bool updateProjectProperties();
    bool upgradeToCurrentVersion();

    // Undo.
    //! The history of edits, owned by the project. It is another one after undoStackChanged().
    UndoStack *undoStack();
    //! Puts another history in its place, whose commands lead on from the project as it is.
    void setUndoStack(std::shared_ptr<UndoStack> stack);
    //! The history, for those who put it back later.
    std::shared_ptr<UndoStack> sharedUndoStack();
    /*! Who keeps the histories that end with a save; null for nobody, who then are forgotten. Not owned: a
       keeper leaves before it is destroyed. */
    void setHistoryKeeper(HistoryKeeper *keeper) { m_historyKeeper = keeper; }
    //! Begins a new history: all that could be undone is forgotten.
    void createUndoStack();
    //! Tells userModified() when the command acts in this project.
    void emitUserModified(const UndoCommand *command);
    /*! Whether \a command is the one that \a stack did last; without a command, whether nothing was done that
       could be told from another state. */
    static bool checkStackIsSame(const UndoCommand *command, const UndoStack *stack);
    //! Made once, owned by the project, and in need of a GUI application object.
    QAction *createUndoAction();
    QAction *createRedoAction();

    //! Those that follow all changes of the project.
    ModelObservers &observers() { return m_observers; }

    // Autosave.
    ProjectAutosave &autosave() { return *m_autosave; }
    //! Starts the timer by the user's settings, see ProjectAutosave::startTimer().
    void startAutoSaveTimer();

    // The device.
    //! Makes the folder that goes to the device; runtimeGenerator() tells where it is, or why there is none.
    void generateRuntimeFiles();
    RuntimeGenerator &runtimeGenerator() { return m_runtimeGenerator; }
    //! Another one for a build of this project as it is now.
    RuntimeGenerator newRuntimeGenerator() const;

    // Names.
    //! Whether an element of any screen bears that name.
    bool hasElement(const QString &name) const;
    //! Null as long as nobody has asked for an element of the whole project. For screens that come and go.
    QHash<QString, int> *elementNameCounts() const { return m_elementNames.get(); }
    //! The first of stem1, stem2, ... that is no variable, screen or element of the project.
    QString generateUniqueName(const QString &stem) const;
    //! \a name, or the first of name1, name2, ... of which nothing lies in the folder.
    static QString generateUniqueName(const QString &folder, const QString &name);

    //! The properties of an object that an auto-setting variable saves and restores, by the object's name.
    RuntimeAutoSettingList objectAutoSaveVariablesList(const QString &objectName) const;
    void updateObjectAutoSaveVariablesList(const QString &objectName, const RuntimeAutoSettingList &list);

signals:
    //! The user has edited the project: a command of its history was done or undone.
    void userModified();
    void undoStackChanged();

protected:
    explicit Project(QObject *parent = nullptr);

    // The canvas shows screens, never a whole project.
    ObjectView *createGraphicsItem() override { return nullptr; }
    bool initializeProperties() override;
    //! Lists without items are left out of files.
    bool storesProperty(const DesignerProperty &property) const override;
    //! An empty version asks for a build tag once the project's name is known.
    void readEmptyValue(const SharedProperty &property) override;
    void finishReading() override;
    void afterFileFieldsChanged() override;
    bool renameEntries(const QString &fileName, const QString &subPath, QString *error) override;
    bool writeAgain(QString *error) override;
    void afterObjectPropertyChanged(const DesignerProperty *property,
                                    const DesignerObject *previousObject) override;
    void afterListItemAdded(const DesignerProperty *property, const DesignerObject *item) override;
    void afterListItemRemoved(const DesignerProperty *property, const DesignerObject *item) override;
    void afterListPropertyChanged() override;

private:
    QString newBuildTag() const;
    void followUndoStack();
    void prepare(RuntimeGenerator &generator) const;
    void onConfigurationPropertyChanged(const SharedProperty &property);
    void updateScreenSizes();
    void validateDefaultScreen();
    QList<ImageResource *> images() const;
    void clearContents();
    bool writeRenamed(const QString &path, const QString &name, QString *error) const;
    bool copyResources(const QString &path, QString *error) const;

    SharedProperty m_version;
    SharedProperty m_designerVersion;
    SharedProperty m_configuration;
    SharedProperty m_imageResources;
    SharedProperty m_variables;
    SharedProperty m_screens;
    SharedProperty m_defaultScreen;
    QHash<QString, RuntimeAutoSettingList> m_autoSaveVariables;
    mutable std::unique_ptr<QHash<QString, int>> m_elementNames;
    //! By stem: below this number all are those of variables and screens.
    mutable QHash<QString, int> m_firstFree;
    std::shared_ptr<UndoStack> m_undoStack;
    HistoryKeeper *m_historyKeeper = nullptr;
    QAction *m_undoAction = nullptr;
    QAction *m_redoAction = nullptr;
    std::unique_ptr<ProjectAutosave> m_autosave;
    ModelObservers m_observers;
    RuntimeGenerator m_runtimeGenerator;
    ProjectFolder m_folder;
    bool m_needsBuildVersion = false;
};

} // namespace Halvane::Corvex::Designer
