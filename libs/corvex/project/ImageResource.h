// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/FileObject.h"

#include <QDateTime>
#include <QSet>

class QPointF;
class QSizeF;
class QUrl;
class QWidget;

namespace Halvane::Corvex::Designer {

/*! A picture that belongs to a project. Its name is that of its file in the project's folder "Images",
    extension included; a name that would lead out of that folder has no file. */
class CORVEX_EXPORT ImageResource : public FileObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(ImageResource, FileObject)

public:
    QString baseName() const override;
    QString displayName() const override;
    void setProject(Project *project) override;

    //! Where the picture was taken from; not stored.
    const SharedProperty &originalLocation() const { return m_originalLocation; }
    //! The path of the file, which must be an image of the kind that its extension tells; not stored.
    const SharedProperty &imageFile() const { return m_imageFile; }

    QString createFileName() const override;
    //! Copies the picture from its original location into the folder \a path, which is made when it is
    //! missing.
    bool createFile(const QString &path) override;
    //! Takes \a path for the file of the picture; it must exist.
    bool loadFile(const QString &path) override;
    //! True when the file is there: a picture is never written.
    bool saveFile() override;
    //! Renames the file in its folder; both names with extension.
    bool renameFile(const QString &oldName, const QString &newName) override;
    //! Looks for the file where the project keeps its images now.
    void updateFileFields();
    //! The path of the file as the folders stand at this moment; empty when it cannot be there.
    QString filePath() const { return createFullFilePath(parentPath(), subPath(), fileName()); }

    //! The elements that show the picture, in no particular order. Not owned; an element that is deleted
    //! leaves.
    QList<DesignerObject *> linkedElements() const { return m_linkedElements.values(); }
    void linkElement(DesignerObject *element);
    void unlinkElement(DesignerObject *element);
    bool isLinked() const { return !m_linkedElements.isEmpty(); }

    //! The picture that an element names as its "source"; null when it names none of its project.
    static ImageResource *imageElement(const DesignerObject *element);
    /*! A new element of the class "Image" that shows the picture called \a name. It has the base name of its
        class, no parent, and belongs to the caller. Null when no plug-in knows the class. */
    static DesignerObject *createImageElement(const QString &name, const QSizeF &size,
                                              const QPointF &position);

    /*! Adds local image files to the project of \a screen, with an element at \a position for each, in one
        step of the history. A picture that the project has already is used again. Files that are no images,
        or whose names will not do, are told to the user. False when nothing was added. Defined in the room
        of the commands. */
    static bool addImagesFromUrls(const QList<QUrl> &urls, Screen *screen, const QPointF &position,
                                  QWidget *parentWidget = nullptr);

signals:
    void linkedElementsChanged();

protected:
    explicit ImageResource(QObject *parent = nullptr)
        : FileObject(parent)
    { }

    // Elements are shown, not pictures by themselves.
    ObjectView *createGraphicsItem() override { return nullptr; }
    bool initializeProperties() override;
    void afterPropertyChanged(const DesignerProperty *property, const QString &previousValue) override;
    void afterFileFieldsChanged() override;

private:
    static bool imageFileValidator(const DesignerProperty *property, QString &error);
    bool isImage() const;

    SharedProperty m_originalLocation;
    SharedProperty m_imageFile;
    QSet<DesignerObject *> m_linkedElements;

    //! The file that was looked into last: decoding a picture takes long.
    struct Inspection
    {
        QString path;
        qint64 size = -1;
        QDateTime time;
        bool isImage = false;
    };
    mutable Inspection m_inspection;
};

} // namespace Halvane::Corvex::Designer
