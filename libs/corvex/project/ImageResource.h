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

//! An image of a project. Its name is the name of its file in the project's folder "Images", including the
//! extension. A name that would leave that folder has no file.
class CORVEX_EXPORT ImageResource : public FileObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(ImageResource, FileObject)

public:
    QString baseName() const override;
    QString displayName() const override;
    void setProject(Project *project) override;

    //! The file that the image was copied from; not stored.
    const SharedProperty &originalLocation() const { return m_originalLocation; }
    //! The path of the file, which must be an image that matches its extension; not stored.
    const SharedProperty &imageFile() const { return m_imageFile; }

    QString createFileName() const override;
    //! Copies the image from its original location into the folder \a path, which is created if necessary.
    bool createFile(const QString &path) override;
    //! Uses the existing file \a path as the file of the image.
    bool loadFile(const QString &path) override;
    //! Returns whether the file exists. Images are never written.
    bool saveFile() override;
    //! Renames the file in its folder; both names include the extension.
    bool renameFile(const QString &oldName, const QString &newName) override;
    //! Updates the path of the file after the images folder of the project changed.
    void updateFileFields();
    //! The path of the file according to the current folders; empty if there is no valid path.
    QString filePath() const { return createFullFilePath(parentPath(), subPath(), fileName()); }

    //! The elements that show the image, in no particular order. Not owned; deleted elements are removed.
    QList<DesignerObject *> linkedElements() const { return m_linkedElements.values(); }
    void linkElement(DesignerObject *element);
    void unlinkElement(DesignerObject *element);
    bool isLinked() const { return !m_linkedElements.isEmpty(); }

    //! The image that an element names as its "source"; null if its project has none with that name.
    static ImageResource *imageElement(const DesignerObject *element);
    //! A new element of the class "Image" that shows the image \a name. It has the base name of its class and
    //! no parent; the caller owns it. Null if no plug-in provides the class.
    static DesignerObject *createImageElement(const QString &name, const QSizeF &size,
                                              const QPointF &position);

    //! Adds local image files to the project of \a screen, with an element for each at \a position, as one
    //! step of the history. Existing images of the project are reused. Reports files that are not images or
    //! have invalid names to the user. Returns false if nothing was added.
    static bool addImagesFromUrls(const QList<QUrl> &urls, Screen *screen, const QPointF &position,
                                  QWidget *parentWidget = nullptr);

signals:
    void linkedElementsChanged();

protected:
    explicit ImageResource(QObject *parent = nullptr)
        : FileObject(parent)
    { }

    // The canvas shows elements, not images.
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

    //! The file that was checked last, because decoding an image is slow.
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
