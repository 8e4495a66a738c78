// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/common/files/FileStamp.h"
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

/*! The root of the model: screens, variables, images and the configuration of the device.

    A project P in the folder D is the file D/P/P.kdproj. Its images are in D/P/Images, and its optional
    preview picture is D/P/Preview.png. project() of a project and of everything below it is the project
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
    //! The encrypted build tag, "name-version".
    const SharedProperty &version() const { return m_version; }
    //! The version of the tool that last wrote the file.
    const SharedProperty &designerVersion() const { return m_designerVersion; }
    const SharedProperty &configuration() const { return m_configuration; }
    const SharedProperty &imageResources() const { return m_imageResources; }
    const SharedProperty &variables() const { return m_variables; }
    const SharedProperty &screens() const { return m_screens; }
    const SharedProperty &defaultScreen() const { return m_defaultScreen; }
    //! The configuration; null in a project without one.
    Configuration *configurationObject() const;
    //! Updates everything that the hardware determines from the matching installed model, see
    //! ConfigurationContainer::match(). Returns false, with a text for fileError(), if no model matches.
    bool updateConfiguration();

    // Files. On failure, fileError() has the reason.
    QString createFileName() const override;
    QString createSubPath() const override;
    //! Creates D/P/P.kdproj in the existing folder D = \a path. Refuses a name that is not valid on every
    //! system. Images are not moved; createFileCopy() copies them. This, loadFile() and saveFile() start a
    //! new undo history.
    bool createFile(const QString &path) override;
    //! Reads D/P/P.kdproj into this project. Deletes the current contents first, and undoes the file changes
    //! of commands; if these have renamed the project, its current path leads to the file as it was saved.
    bool loadFile(const QString &path) override;
    bool saveFile() override;
    //! Keeps other programs from writing the project until unlockAfterSave(), so that they cannot change the
    //! file between a look at it and saveFile(). Completes or undoes an interrupted save of another program,
    //! which may change the file. Returns false if others hold the lock for too long.
    bool lockForSave();
    void unlockAfterSave();
    //! The project's file as it was when it was last read or written. A change by another program during the
    //! reading counts as a later one.
    const Common::FileStamp &fileStamp() const { return m_fileStamp; }
    //! Locks the project in the file \a path: prevents others from changing it, or also from reading it
    //! (exclusive). Call it before loading; the lock is held until closeFiles(). Returns false if others hold
    //! a lock for longer than \a milliseconds.
    bool lockFiles(const QString &path, Common::FolderLock::Kind kind, int milliseconds);
    //! Undoes the file changes of commands since the last save, and releases the lock. The destructor does
    //! the same.
    void closeFiles();
    //! Undoes the file changes of commands since the last save. Folder and file have their saved names then.
    //! The history still has the commands, so load the project afterwards. If the changes cannot be undone,
    //! they all remain and wait for a save.
    void takeBackFiles();
    //! What opening the project had to complete or undo after an interruption, as a sentence; usually empty.
    const QString &recoveryNote() const { return m_folder.recoveryNote(); }
    //! The transaction for file changes of commands. The next saveFile() commits all of them, and nobody else
    //! can write the project until then. Null, with an error, on failure.
    Common::FileTransaction *beginFileChanges(QString *error);
    //! The same for changes of images, which must be inside the project.
    Common::FileTransaction *beginImageChanges(QString *error);
    //! Returns false, with an error, if the images folder is a link out of the project, where a recovery
    //! would not find it.
    bool mayChangeImages(QString *error) const;
    //! The changes that wait for the next save; null if no change waits.
    Common::FileTransaction *fileChanges() const { return m_folder.changes(); }
    //! Deletes the project's file, its images and its preview, and its folders if they are empty afterwards.
    bool deleteFile() override;
    //! Writes the current state of the project, with its images and preview, as D/Q/Q.kdproj in the existing
    //! folder D = \a parentPath. Q is \a name, or the project's own name. D/Q must not exist, and does not
    //! exist after a failure. Images without a file are skipped.
    bool createFileCopy(const QString &parentPath, const QString &name = {});
    //! Writes \a fileName, the images into "Images" and the preview into the empty folder \a path. Copies and
    //! autosave files have these contents.
    bool writeContents(const QString &path, const QString &fileName, QString *error) const;
    //! The folder of the image files, whether or not it exists; empty for a project without a file.
    QString imagesPath() const;
    //! D/P/Approvals.jsonl, the list of approved problems; empty for a project without a file.
    QString approvalsPath() const;
    //! D/P.kdproj.kdasv, next to the project's folder; empty for a project without a file. Until a rename of
    //! the project is saved, P is the old name, because the project has that name again after a crash.
    QString autosavePath() const;
    //! Reads the properties "id" and "version" from the file \a path without loading it. Returns false if it
    //! is not a project.
    static bool getFileIdAndVersion(const QString &path, QString *id, QString *version);
    //! The version from the file; empty if it is not a project.
    static QString getFileVersion(const QString &path);

    // Versions.
    //! The version of this program: "4.0.0".
    static QString buildVersion();
    //! Sets the build tag to the encrypted name and version of this program.
    void updateBuildVersion();
    //! The name and version in the build tag; empty if it is not a valid tag.
    QString buildTag() const;
    //! Converts a project of an older version to the current form. At present all projects that can be loaded
    //! have this form.
    bool updateProjectProperties();
    bool upgradeToCurrentVersion();

    // Undo.
    //! The history of edits, owned by the project. undoStackChanged() is emitted when it is replaced.
    UndoStack *undoStack();
    //! Replaces the history. The commands of \a stack must match the current state of the project.
    void setUndoStack(std::shared_ptr<UndoStack> stack);
    //! The history, for code that restores it later.
    std::shared_ptr<UndoStack> sharedUndoStack();
    //! Keeps the histories that end with a save; null to discard them. Not owned: a keeper must be removed
    //! before it is destroyed.
    void setHistoryKeeper(HistoryKeeper *keeper) { m_historyKeeper = keeper; }
    //! Starts a new history; all steps are discarded.
    void createUndoStack();
    //! Emits userModified() if the command belongs to this project.
    void emitUserModified(const UndoCommand *command);
    //! Whether \a command is the last one that \a stack did. Without a command: whether the history is empty.
    static bool checkStackIsSame(const UndoCommand *command, const UndoStack *stack);
    //! Created once and owned by the project. Requires a GUI application object.
    QAction *createUndoAction();
    QAction *createRedoAction();

    //! The observers of all changes in the project.
    ModelObservers &observers() { return m_observers; }

    // Autosave.
    ProjectAutosave &autosave() { return *m_autosave; }
    //! Starts the timer with the user's settings, see ProjectAutosave::startTimer().
    void startAutoSaveTimer();

    // The device.
    //! Generates the folder for the device. runtimeGenerator() has its path, or the error.
    void generateRuntimeFiles();
    RuntimeGenerator &runtimeGenerator() { return m_runtimeGenerator; }
    //! A new generator, set up for a build of this project in its current state.
    RuntimeGenerator newRuntimeGenerator() const;

    // Names.
    //! Whether an element on any screen has that name.
    bool hasElement(const QString &name) const;
    //! Null until names of elements are first searched in the whole project. Updated by screens when they are
    //! inserted or removed.
    QHash<QString, int> *elementNameCounts() const { return m_elementNames.get(); }
    //! The first of stem1, stem2, ... that is not the name of a variable, screen or element in the project.
    QString generateUniqueName(const QString &stem) const;
    //! \a name, or the first of name1, name2, ... that does not exist in the folder.
    static QString generateUniqueName(const QString &folder, const QString &name);

    //! The properties of an object that an auto-setting variable saves and restores, by the object's name.
    RuntimeAutoSettingList objectAutoSaveVariablesList(const QString &objectName) const;
    void updateObjectAutoSaveVariablesList(const QString &objectName, const RuntimeAutoSettingList &list);

signals:
    //! The user has edited the project: a command in its history was done or undone.
    void userModified();
    void undoStackChanged();

protected:
    explicit Project(QObject *parent = nullptr);

    // The canvas shows screens, not whole projects.
    ObjectView *createGraphicsItem() override { return nullptr; }
    bool initializeProperties() override;
    //! Empty lists are not stored in files.
    bool storesProperty(const DesignerProperty &property) const override;
    //! An empty version requests a build tag as soon as the project's name is known.
    void readEmptyValue(const SharedProperty &property) override;
    void finishReading() override;
    void afterFileFieldsChanged() override;
    bool renameEntries(const QString &fileName, const QString &subPath, QString *error) override;
    bool writeAgain(QString *error) override;
    void restoreDeletedImages();
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
    //! By stem: all lower numbers belong to variables and screens.
    mutable QHash<QString, int> m_firstFree;
    std::shared_ptr<UndoStack> m_undoStack;
    HistoryKeeper *m_historyKeeper = nullptr;
    QAction *m_undoAction = nullptr;
    QAction *m_redoAction = nullptr;
    std::unique_ptr<ProjectAutosave> m_autosave;
    ModelObservers m_observers;
    RuntimeGenerator m_runtimeGenerator;
    ProjectFolder m_folder;
    // The names that folder and file get when the waiting file changes are undone.
    QString m_savedSubPath;
    QString m_savedFileName;
    Common::FileStamp m_fileStamp;
    bool m_needsBuildVersion = false;
};

} // namespace Halvane::Corvex::Designer
