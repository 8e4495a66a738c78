// SPDX-License-Identifier: MIT
// The text and file forms of DesignerObject, based on ObjectXmlReader and ObjectXmlWriter.
#include "corvex/core/private/DesignerObjectData.h"
#include "corvex/core/xml/ObjectXmlReader.h"
#include "corvex/core/xml/ObjectXmlWriter.h"

#include <QBuffer>
#include <QDomDocument>
#include <QFile>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

template<class Write>
QByteArray toXml(bool withHeader, bool allProperties, Write write)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    ObjectXmlWriter writer(&buffer);
    writer.setHeader(withHeader);
    writer.setAllProperties(allProperties);
    return write(writer) ? buffer.data() : QByteArray();
}

void warn(const char *operation, const ObjectXmlReader &reader)
{
    for (const ReadNote &note : reader.notes()) {
        qWarning("%s", qUtf8Printable(note.toString()));
    }
    if (!reader.errorString().isEmpty()) {
        qWarning("DesignerObject::%s error (%lld, %lld): %s", operation, reader.errorLine(),
                 reader.errorColumn(), qUtf8Printable(reader.errorString()));
    }
}

DesignerObject *create(QIODevice *device, bool validate, const char *operation)
{
    ObjectXmlReader reader(device);
    reader.setValidate(validate);
    DesignerObject *object = reader.create();
    warn(operation, reader);
    return object;
}

} // namespace

bool DesignerObject::storesProperty(const DesignerProperty &property) const
{
    return property.hasFlag(StoredFlag);
}

void DesignerObject::readEmptyValue(const SharedProperty &property)
{
    if (property->id() == "text"_L1) {
        changePropertyValue(property, QString());
    }
}

void DesignerObject::finishReading() { }

QDomDocument DesignerObject::convertToXmlDocument(bool withHeader, bool allProperties) const
{
    QDomDocument document;
    const QByteArray xml =
        toXml(false, allProperties, [this](ObjectXmlWriter &writer) { return writer.writeProperties(this); });
    if (xml.isEmpty() || !document.setContent(xml)) {
        return {};
    }
    if (withHeader) {
        document.insertBefore(
            document.createProcessingInstruction(u"xml"_s, u"version=\"1.0\" encoding=\"UTF-8\""_s),
            document.firstChild());
    }
    return document;
}

QString DesignerObject::convertToString(bool withHeader, bool allProperties) const
{
    return QString::fromUtf8(
        toXml(withHeader, allProperties, [this](ObjectXmlWriter &writer) { return writer.write(this); }));
}

QString DesignerObject::toString(const DesignerObject *object)
{
    return object ? object->convertToString(!object->isKindOfClass(u"ProjectVariable"_s), false) : QString();
}

DesignerObject *DesignerObject::createFromString(const QString &text, bool validate)
{
    QByteArray bytes = text.toUtf8();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return create(&buffer, validate, "createFromString");
}

DesignerObject *DesignerObject::createCopy(const DesignerObject *object, bool validate)
{
    const QString text = toString(object);
    return text.isEmpty() ? nullptr : createFromString(text, validate);
}

DesignerObject *DesignerObject::createFromFile(const QString &path, bool validate)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("DesignerObject::createFromFile error: %s: %s", qUtf8Printable(path),
                 qUtf8Printable(file.errorString()));
        return nullptr;
    }
    return create(&file, validate, "loadFromFile");
}

bool DesignerObject::loadFromFile(DesignerObject *object, const QString &path, bool validate)
{
    QFile file(path);
    if (!object || !file.open(QIODevice::ReadOnly)) {
        qWarning("DesignerObject::loadFromFile error: %s: %s", qUtf8Printable(path),
                 qUtf8Printable(file.errorString()));
        return false;
    }
    ObjectXmlReader reader(&file);
    reader.setValidate(validate);
    const bool done = reader.read(object);
    warn("loadFromFile", reader);
    return done;
}

bool DesignerObject::saveToFile(const DesignerObject *object, const QString &path, QString *error)
{
    return ObjectXmlWriter::save(object, path, error);
}

} // namespace Halvane::Corvex::Designer
