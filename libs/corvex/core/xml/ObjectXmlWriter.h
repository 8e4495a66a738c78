// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/xml/XmlBuffer.h"

#include <QHash>
#include <QList>
#include <QString>

class QDomElement;
class QIODevice;

namespace Halvane::Corvex::Designer {

class DesignerObject;
class DesignerProperty;
struct KeptItem;

/*! Writes an object and everything below it as XML in UTF-8: one element per line, one blank of indent per
    level, `name` before `value`. The same object written twice is the same bytes.

    All processors write the items of a long list, so a class with an XML form of its own may be asked for it
   in several threads at once. The device is used in the calling thread only. */
class CORVEX_EXPORT ObjectXmlWriter
{
public:
    enum class LineEnd { Unix, Windows };

    explicit ObjectXmlWriter(QIODevice *device, LineEnd lineEnd = LineEnd::Unix);

    //! Whether the XML declaration comes first; it does unless switched off.
    void setHeader(bool header) { m_header = header; }
    //! Whether properties are written that files leave out; they are not unless switched on.
    void setAllProperties(bool all) { m_allProperties = all; }
    //! What is written as the value of the property \a id of the object itself, in place of its own.
    void setRootValue(const QString &id, const QString &value) { m_rootValues.insert(id, value); }

    /*! False when the device does not take every byte, or, before anything is written, when isComplete() does
       not hold. Also false, in the middle of it, for what the reader would not take: see XmlLimits. */
    bool write(const DesignerObject *object);
    //! The same from the properties of the object, where its class has an XML form of its own; the objects
    //! below it keep theirs.
    bool writeProperties(const DesignerObject *object);
    QString errorString() const { return m_error; }

    //! Whether every object property holds its object, and every class with a form of its own gives one. \a
    //! missing names the place that does not.
    static bool isComplete(const DesignerObject *object, bool allProperties, QString *missing = nullptr);

private:
    static bool isWritten(const DesignerObject *object, const DesignerProperty &property, bool allProperties);
    static bool hasAllChildren(const DesignerObject *object, bool allProperties, QString *missing);
    bool noteMissing(bool isComplete, const QString &missing);
    bool writeDocument(const DesignerObject *object,
                       void (ObjectXmlWriter::*form)(const DesignerObject *, int));
    void writeObject(const DesignerObject *object, int level);
    void writeOwnProperties(const DesignerObject *object, int level);
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

    QIODevice *m_device; //!< null for a part of a list, which stays in the buffer
    QByteArrayView m_lineEnd;
    XmlBuffer m_buffer;
    QHash<QString, QString> m_rootValues;
    QString m_error;
    bool m_header = true;
    bool m_allProperties = false;
};

} // namespace Halvane::Corvex::Designer
