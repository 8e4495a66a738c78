// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/xml/XmlBuffer.h"

#include <QHash>
#include <QList>
#include <QString>

#include <vector>

class QDomElement;
class QIODevice;

namespace Halvane::Corvex::Common {
class FileStamp;
class Progress;
} // namespace Halvane::Corvex::Common

namespace Halvane::Corvex::Designer {

class DesignerObject;
class DesignerProperty;
struct KeptItem;

/*! Writes an object and everything below it as XML in UTF-8: one element per line, one space of indent per
    level, `name` before `value`. Writing the same object again gives the same bytes.

    All processors write the items of a long list, so an overridden convertToXmlDocument() may be called from
    several threads at once. The device is only used in the calling thread.
*/
class CORVEX_EXPORT ObjectXmlWriter
{
public:
    enum class LineEnd { Unix, Windows };

    explicit ObjectXmlWriter(QIODevice *device, LineEnd lineEnd = LineEnd::Unix);

    //! Whether to write the XML declaration; true by default.
    void setHeader(bool header) { m_header = header; }
    //! Whether to write properties that files omit; false by default.
    void setAllProperties(bool all) { m_allProperties = all; }
    //! Writes \a value for the property \a id of the root object, instead of its own value.
    void setRootValue(const QString &id, const QString &value) { m_rootValues.insert(id, value); }

    //! Returns false if the device does not accept every byte, if isComplete() is false, in which case
    //! nothing is written, or if the reader would not accept the result: see XmlLimits.
    bool write(const DesignerObject *object);
    //! The same from the properties of the object, even if its class has an XML form of its own; the objects
    //! below it use theirs.
    bool writeProperties(const DesignerObject *object);
    QString errorString() const { return m_error; }

    //! Stops the writing with an error soon after the progress is cancelled. May be null. Not owned.
    void setProgress(const Common::Progress *progress) { m_progress = progress; }
    //! The same as write(), in pieces of less than a millisecond: call writePiece() until it returns false.
    //! The object must not change meanwhile. Missing parts are only detected when they are reached.
    void begin(const DesignerObject *object);
    //! Returns false when everything is written, or with an errorString().
    bool writePiece();

    //! Writes the file \a path with the line ends of Windows, see DesignerObject::saveToFile(). \a stamp gets
    //! the stamp of what was written. Both may be null.
    static bool save(const DesignerObject *object, const QString &path, QString *error = nullptr,
                     Common::FileStamp *stamp = nullptr);

    //! Whether every object property has its object, and every class with a form of its own returns one. \a
    //! missing names the place without one.
    static bool isComplete(const DesignerObject *object, bool allProperties, QString *missing = nullptr);

private:
    static bool isWritten(const DesignerObject *object, const DesignerProperty &property, bool allProperties);
    static bool hasAllChildren(const DesignerObject *object, bool allProperties, QString *missing);
    bool noteMissing(bool isComplete, const QString &missing);
    bool writeDocument(const DesignerObject *object,
                       void (ObjectXmlWriter::*form)(const DesignerObject *, int));
    void writeObject(const DesignerObject *object, int level);
    void writeOwnProperties(const DesignerObject *object, int level);
    void writeDeclaration();
    //! Returns false if the object is nested too deeply to be read again.
    bool openObject(const DesignerObject *object, int level);
    void closeObject(const DesignerObject *object, int level);
    void openProperty(const DesignerProperty &property, int level);
    void openPiece(const DesignerObject *object, int level);
    void writeStep();
    void writeNextProperty();
    //! Returns false, with an error, if the property has no complete object.
    bool requireObject(const DesignerProperty &property);
    void writeElement(const QDomElement &element, int level);
    void writeContent(const QDomElement &element);
    void writeStartTag(const QDomElement &element);
    void writeProperty(const DesignerProperty &property, int level);
    void writeItems(const DesignerProperty &list, int level);
    void writeInParts(const QList<DesignerObject *> &items, int level);
    void writeKept(const KeptItem &kept, int level);
    void startLine(int level);
    void refuse(const QString &place, const QString &reason);
    void endLine();
    void openTag(const QString &name, int level, QByteArrayView ending = ">");
    void closeTag(const QString &name, int level);
    void flush();
    void deliver(QByteArrayView bytes);
    bool isPart() const { return !m_device; }

    //! An object that writePiece() has written in part.
    struct Frame
    {
        const DesignerObject *object;
        int level;
        qsizetype property = 0; //!< the next property, or the property with the list
        qsizetype item = -1;    //!< the next item in the list; -1 outside of a list
    };

    QIODevice *m_device; //!< null for a part of a list, which remains in the buffer
    QByteArrayView m_lineEnd;
    XmlBuffer m_buffer;
    QHash<QString, QString> m_rootValues;
    QString m_error;
    const Common::Progress *m_progress = nullptr;
    std::vector<Frame> m_frames;
    bool m_header = true;
    bool m_allProperties = false;
};

} // namespace Halvane::Corvex::Designer
