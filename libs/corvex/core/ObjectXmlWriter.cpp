// SPDX-License-Identifier: MIT
#include "corvex/core/ObjectXmlWriter.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/core/ItemList.h"

#include <QIODevice>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr qsizetype bufferSize = 256 * 1024;
constexpr int rootPropertyLevel = 2;

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
    for (const SharedProperty &property : object->properties()) {
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
    m_error.clear();
    QString missing;
    if (!isComplete(object, m_allProperties, &missing)) {
        m_error = u"\"%1\" holds no object; nothing is written."_s.arg(missing);
        return false;
    }
    if (m_header) {
        m_buffer.append("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
        endLine();
    }
    writeObject(object, 0);
    flush();
    return m_error.isEmpty();
}

void ObjectXmlWriter::startLine(int level)
{
    m_buffer.appendBlanks(level);
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
    const QByteArrayView bytes = m_buffer.bytes();
    if (m_error.isEmpty() && m_device->write(bytes.data(), bytes.size()) != bytes.size()) {
        m_error = m_device->errorString();
    }
    m_buffer.clear();
}

void ObjectXmlWriter::writeObject(const DesignerObject *object, int level)
{
    const QString name = object->className();
    openTag(name, level);
    openTag(u"Properties"_s, level + 1);
    for (const SharedProperty &property : object->properties()) {
        if (isWritten(object, *property, m_allProperties)) {
            writeProperty(*property, level + 2);
        }
    }
    closeTag(u"Properties"_s, level + 1);
    closeTag(name, level);
    if (m_buffer.bytes().size() > bufferSize) {
        flush();
    }
}

void ObjectXmlWriter::writeProperty(const DesignerProperty &property, int level)
{
    startLine(level);
    m_buffer.append("<Property name=\"");
    m_buffer.appendEscaped(property.id());
    if (!property.isList() && !property.isObject()) {
        m_buffer.append("\" value=\"");
        const bool replaced = level == rootPropertyLevel && m_rootValues.contains(property.id());
        m_buffer.appendEscaped(replaced ? m_rootValues.value(property.id()) : property.valueString());
        m_buffer.append("\"/>");
        endLine();
        return;
    }
    m_buffer.append("\">");
    endLine();
    const QString container = property.isList() ? u"List"_s : u"Object"_s;
    const bool isEmpty =
        property.isList() && property.listItemCount() == 0 && !property.itemList()->hasKeptItems();
    openTag(container, level + 1, isEmpty ? "/>" : ">");
    if (!isEmpty) {
        if (property.isList()) {
            writeKept(property, nullptr, level + 2);
            for (const DesignerObject *item : property.itemList()->items()) {
                writeObject(item, level + 2);
                writeKept(property, item, level + 2);
            }
        } else {
            writeObject(property.objectValue(), level + 2);
        }
        closeTag(container, level + 1);
    }
    closeTag(u"Property"_s, level);
}

void ObjectXmlWriter::writeKept(const DesignerProperty &list, const DesignerObject *after, int level)
{
    for (const KeptItem &kept : list.itemList()->keptItems(after)) {
        for (const QByteArray &line : kept.xml.split('\n')) {
            if (!line.isEmpty()) {
                startLine(level);
                m_buffer.append(line);
                endLine();
            }
        }
    }
}

} // namespace Halvane::Corvex::Designer
