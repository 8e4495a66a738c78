// SPDX-License-Identifier: MIT
#include "corvex/core/xml/ObjectXmlWriter.h"

#include "corvex/common/Processors.h"
#include "corvex/common/Progress.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/SafeFile.h"
#include "corvex/core/ItemList.h"
#include "corvex/core/private/DesignerObjectData.h"
#include "corvex/core/xml/XmlLimits.h"

#include <QDomDocument>
#include <QFileDevice>
#include <QIODevice>
#include <QMap>
#include <QSet>

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr qsizetype bufferSize = 256 * 1024;
constexpr int rootPropertyLevel = 2;
// From this size on a list is worth threads, and is divided into this many parts to keep them busy.
constexpr qsizetype sharedListSize = 64;
constexpr qsizetype partsOfList = 64;
const QString tooLong = u"The value is longer than 16 MB in a file. Please shorten it."_s;
const QString tooDeep = u"The objects are nested too deeply. Please take it out of some groups."_s;

//! Whether the element contains text besides elements.
bool hasWords(const QDomElement &element)
{
    bool found = false;
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        found = found || (child.isText() && !child.nodeValue().trimmed().isEmpty());
    }
    return found;
}

} // namespace

bool ObjectXmlWriter::isWritten(const DesignerObject *object, const DesignerProperty &property,
                                bool allProperties)
{
    return allProperties || object->storesProperty(property);
}

ObjectXmlWriter::ObjectXmlWriter(QIODevice *device, LineEnd lineEnd)
    : m_device(device)
    , m_lineEnd(lineEnd == LineEnd::Windows ? "\r\n" : "\n")
{ }

bool ObjectXmlWriter::isComplete(const DesignerObject *object, bool allProperties, QString *missing)
{
    if (!object) {
        return false;
    }
    if (!object->hasOwnXmlDocument()) {
        return hasAllChildren(object, allProperties, missing);
    }
    const bool hasForm = !object->convertToXmlDocument(false, allProperties).isNull();
    if (!hasForm && missing) {
        *missing = object->objectPath();
    }
    return hasForm;
}

bool ObjectXmlWriter::hasAllChildren(const DesignerObject *object, bool allProperties, QString *missing)
{
    for (const DesignerProperty *property : object->d->properties) {
        if (!(property->isList() || property->isObject()) || !isWritten(object, *property, allProperties)) {
            continue;
        }
        const QList<DesignerObject *> children =
            property->isList() ? property->listItems() : QList<DesignerObject *>{property->objectValue()};
        for (const DesignerObject *child : children) {
            if (!child && missing) {
                *missing = object->objectPath() + u'.' + property->id();
            }
            if (!isComplete(child, allProperties, missing)) {
                return false;
            }
        }
    }
    return true;
}

bool ObjectXmlWriter::write(const DesignerObject *object)
{
    QString missing;
    return noteMissing(isComplete(object, m_allProperties, &missing), missing)
           && writeDocument(object, &ObjectXmlWriter::writeObject);
}

bool ObjectXmlWriter::writeProperties(const DesignerObject *object)
{
    QString missing;
    return noteMissing(hasAllChildren(object, m_allProperties, &missing), missing)
           && writeDocument(object, &ObjectXmlWriter::writeOwnProperties);
}

bool ObjectXmlWriter::save(const DesignerObject *object, const QString &path, QString *error,
                           Common::FileStamp *stamp)
{
    QString problem;
    bool done = false;
    if (!isComplete(object, false, &problem)) {
        problem = u"\"%1\" contains no object, so nothing is written."_s.arg(problem);
    } else if (Common::SafeFile file(path); file.openForWriting(&problem)) {
        ObjectXmlWriter writer(&file, LineEnd::Windows);
        // A failed file has the better error message.
        const bool isRefused = !writer.write(object) && file.error() == QFileDevice::NoError;
        done = !isRefused && file.commit(&problem, stamp);
        if (isRefused) {
            problem = writer.errorString();
        }
    }
    if (error) {
        *error = problem;
    }
    return done;
}

bool ObjectXmlWriter::noteMissing(bool isComplete, const QString &missing)
{
    m_error = isComplete ? QString() : u"\"%1\" contains no object, so nothing is written."_s.arg(missing);
    return isComplete;
}

bool ObjectXmlWriter::writeDocument(const DesignerObject *object,
                                    void (ObjectXmlWriter::*form)(const DesignerObject *, int))
{
    writeDeclaration();
    (this->*form)(object, 0);
    flush();
    return m_error.isEmpty();
}

void ObjectXmlWriter::writeDeclaration()
{
    if (m_header) {
        m_buffer.append("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
        endLine();
    }
}

void ObjectXmlWriter::startLine(int level)
{
    m_buffer.appendBlanks(level);
}

void ObjectXmlWriter::refuse(const QString &place, const QString &reason)
{
    if (m_error.isEmpty()) {
        m_error = u"%1: %2"_s.arg(place, reason);
    }
}

void ObjectXmlWriter::endLine()
{
    m_buffer.append(m_lineEnd);
}

void ObjectXmlWriter::openTag(const QString &name, int level, QByteArrayView ending)
{
    startLine(level);
    m_buffer.append('<');
    m_buffer.appendEscaped(name);
    m_buffer.append(ending);
    endLine();
}

void ObjectXmlWriter::closeTag(const QString &name, int level)
{
    startLine(level);
    m_buffer.append("</");
    m_buffer.appendEscaped(name);
    m_buffer.append('>');
    endLine();
}

void ObjectXmlWriter::flush()
{
    deliver(m_buffer.bytes());
    m_buffer.clear();
}

void ObjectXmlWriter::deliver(QByteArrayView bytes)
{
    if (m_error.isEmpty() && m_device->write(bytes.data(), bytes.size()) != bytes.size()) {
        const auto *file = qobject_cast<const QFileDevice *>(m_device);
        m_error = file ? Common::FileHelper::writeError(*file) : m_device->errorString();
    }
}

void ObjectXmlWriter::writeObject(const DesignerObject *object, int level)
{
    if (m_progress && m_progress->isCancelled()) {
        refuse(object->objectPath(), u"Writing was cancelled."_s);
        return;
    }
    if (object->hasOwnXmlDocument()) {
        writeElement(object->convertToXmlDocument(false, m_allProperties).documentElement(), level);
    } else {
        writeOwnProperties(object, level);
    }
    if (!isPart() && m_buffer.bytes().size() > bufferSize) {
        flush();
    }
}

void ObjectXmlWriter::writeOwnProperties(const DesignerObject *object, int level)
{
    if (!openObject(object, level)) {
        return;
    }
    for (const DesignerProperty *property : object->d->properties) {
        if (isWritten(object, *property, m_allProperties)) {
            writeProperty(*property, level + 2);
        }
    }
    closeObject(object, level);
}

bool ObjectXmlWriter::openObject(const DesignerObject *object, int level)
{
    if (level > XmlLimits::mostOwners * XmlLimits::levelsPerObject) {
        refuse(object->objectPath(), tooDeep);
        return false;
    }
    openTag(object->className(), level);
    openTag(u"Properties"_s, level + 1);
    return true;
}

void ObjectXmlWriter::closeObject(const DesignerObject *object, int level)
{
    closeTag(u"Properties"_s, level + 1);
    closeTag(object->className(), level);
}

//! Writes the start up to the value of the property, or its list or object.
void ObjectXmlWriter::openProperty(const DesignerProperty &property, int level)
{
    startLine(level);
    m_buffer.append("<Property name=\"");
    m_buffer.appendEscaped(property.id());
    if (property.isList() || property.isObject()) {
        m_buffer.append("\">");
        endLine();
    }
}

void ObjectXmlWriter::writeElement(const QDomElement &element, int level)
{
    if (level >= XmlLimits::deepestNesting) {
        refuse(element.tagName(), tooDeep);
        return;
    }
    startLine(level);
    writeStartTag(element);
    const bool isNested = !element.firstChildElement().isNull() && !hasWords(element);
    if (!element.hasChildNodes()) {
        m_buffer.append("/>");
        endLine();
    } else if (isNested) {
        m_buffer.append('>');
        endLine();
        for (QDomElement child = element.firstChildElement(); !child.isNull();
             child = child.nextSiblingElement()) {
            writeElement(child, level + 1);
        }
        closeTag(element.tagName(), level);
    } else {
        writeContent(element);
        endLine();
    }
}

//! Whitespace between elements would become part of a text, so write none.
void ObjectXmlWriter::writeContent(const QDomElement &element)
{
    m_buffer.append('>');
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isElement()) {
            writeStartTag(child.toElement());
            writeContent(child.toElement());
        } else if (child.isText()) {
            m_buffer.appendEscaped(child.nodeValue());
        }
    }
    m_buffer.append("</");
    m_buffer.appendEscaped(element.tagName());
    m_buffer.append('>');
}

void ObjectXmlWriter::writeStartTag(const QDomElement &element)
{
    const qsizetype start = m_buffer.bytes().size();
    m_buffer.append('<');
    m_buffer.appendEscaped(element.tagName());
    // A document keeps its attributes in no order.
    QMap<std::pair<int, QString>, QString> attributes;
    for (int i = 0; i < element.attributes().count(); ++i) {
        const QDomNode attribute = element.attributes().item(i);
        const QString name = attribute.nodeName();
        attributes.insert({name == "name"_L1 ? 0 : name == "value"_L1 ? 1 : 2, name}, attribute.nodeValue());
    }
    for (auto attribute = attributes.cbegin(); attribute != attributes.cend(); ++attribute) {
        m_buffer.append(' ');
        m_buffer.appendEscaped(attribute.key().second);
        m_buffer.append("=\"");
        m_buffer.appendEscaped(attribute.value());
        m_buffer.append('"');
    }
    if (m_buffer.bytes().size() - start > XmlLimits::longestTag) {
        refuse(element.tagName(), tooLong);
    }
}

void ObjectXmlWriter::writeProperty(const DesignerProperty &property, int level)
{
    openProperty(property, level);
    if (!property.isList() && !property.isObject()) {
        m_buffer.append("\" value=\"");
        const bool replaced = level == rootPropertyLevel && m_rootValues.contains(property.id());
        const qsizetype start = m_buffer.bytes().size();
        m_buffer.appendEscaped(replaced ? m_rootValues.value(property.id()) : property.valueString());
        if (m_buffer.bytes().size() - start > XmlLimits::longestValue) {
            const DesignerObject *owner = property.parentObject();
            refuse(owner ? owner->objectPath() + u'.' + property.id() : property.id(), tooLong);
        }
        m_buffer.append("\"/>");
        endLine();
        return;
    }
    const QString container = property.isList() ? u"List"_s : u"Object"_s;
    const bool isEmpty =
        property.isList() && property.listItemCount() == 0 && !property.itemList()->hasKeptItems();
    openTag(container, level + 1, isEmpty ? "/>" : ">");
    if (!isEmpty) {
        if (property.isList()) {
            writeItems(property, level + 2);
        } else {
            writeObject(property.objectValue(), level + 2);
        }
        closeTag(container, level + 1);
    }
    closeTag(u"Property"_s, level);
}

void ObjectXmlWriter::writeItems(const DesignerProperty &property, int level)
{
    const ItemList &list = *property.itemList();
    const bool keeps = list.hasKeptItems();
    if (!keeps && !isPart() && list.count() >= sharedListSize) {
        writeInParts(list.items(), level);
        return;
    }
    // Of two items with the same name, the first one counts, wherever sorting moved the other.
    QHash<const DesignerObject *, QList<KeptItem>> waiting;
    QSet<const DesignerObject *> written;
    list.walk(
        [&](const DesignerObject *item) {
            writeObject(item, level);
            if (keeps) {
                written.insert(item);
                for (const KeptItem &kept : waiting.take(item)) {
                    writeKept(kept, level);
                }
            }
        },
        [&](const KeptItem &kept) {
            const DesignerObject *namesake = kept.isNamesake ? list.find(kept.name) : nullptr;
            if (namesake && !written.contains(namesake)) {
                waiting[namesake].append(kept);
            } else {
                writeKept(kept, level);
            }
        });
}

void ObjectXmlWriter::writeInParts(const QList<DesignerObject *> &items, int level)
{
    flush();
    ObjectXmlWriter part(nullptr);
    part.m_lineEnd = m_lineEnd;
    part.m_allProperties = m_allProperties;
    part.m_progress = m_progress;
    std::vector<ObjectXmlWriter> parts(partsOfList, part);
    std::vector<std::atomic<bool>> isDone(parts.size());
    std::atomic<size_t> next = 0;
    const auto writePart = [&](size_t number) {
        const qsizetype end = qsizetype(number + 1) * items.size() / partsOfList;
        for (qsizetype i = qsizetype(number) * items.size() / partsOfList; i < end; ++i) {
            parts[number].writeObject(items.at(i), level);
        }
        isDone[number] = true;
    };
    size_t delivered = 0;
    const auto deliverDone = [&] {
        for (; delivered < parts.size() && isDone[delivered]; ++delivered) {
            ObjectXmlWriter &done = parts[delivered];
            m_error = m_error.isEmpty() ? done.m_error : m_error;
            deliver(done.m_buffer.bytes());
            done.m_buffer = XmlBuffer();
        }
    };
    // The device may belong to this thread; no other thread may touch it.
    Common::Processors::run(parts.size(), [&, owner = std::this_thread::get_id()] {
        for (size_t i = next++; i < parts.size(); i = next++) {
            writePart(i);
            if (std::this_thread::get_id() == owner) {
                deliverDone();
            }
        }
    });
    deliverDone();
}

void ObjectXmlWriter::writeKept(const KeptItem &kept, int level)
{
    for (const QByteArray &line : kept.xml.split('\n')) {
        if (line.isEmpty()) {
            continue;
        }
        const qsizetype depth = std::ranges::find_if(line, [](char c) { return c != ' '; }) - line.begin();
        if (level + depth >= XmlLimits::deepestNesting) {
            refuse(kept.name, tooDeep);
        }
        if (line.size() > XmlLimits::longestTag) {
            refuse(kept.name, tooLong);
        }
        startLine(level + int(depth));
        m_buffer.append(QByteArrayView(line).sliced(depth));
        endLine();
    }
}

} // namespace Halvane::Corvex::Designer
