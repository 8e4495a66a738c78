// SPDX-License-Identifier: MIT
#include "corvex/core/xml/private/ObjectBuilder.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/ItemList.h"
#include "corvex/core/private/DesignerObjectData.h"
#include "corvex/core/xml/ObjectXmlWriter.h"
#include "corvex/core/xml/XmlLimits.h"
#include "corvex/core/xml/private/XmlTokenizer.h"

#include <QBuffer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

void ObjectBuilder::setRoot(DesignerObject *root)
{
    m_root = root;
    m_createsRoot = !root;
}

bool ObjectBuilder::build()
{
    const bool good = m_input.parse();
    dropUnfinished();
    m_notes.finish();
    if (!m_root) {
        return false;
    }
    if (good && m_validates) {
        m_root->validateWhatWasRead();
    } else {
        enableValidation(m_root);
    }
    return good;
}

void ObjectBuilder::dropUnfinished()
{
    for (const Frame &frame : std::as_const(m_frames)) {
        if (frame.context == Context::List) {
            finishList(frame.property);
        }
    }
    for (const Frame &frame : std::as_const(m_frames)) {
        // After an interrupted reading the object has no owner yet.
        if (frame.context == Context::Object && frame.object != m_root && !frame.object->ownerObject()) {
            delete frame.object;
        }
    }
    m_frames.clear();
}

void ObjectBuilder::note(ReadNote::Kind kind, const QString &message)
{
    if (m_notes.count(kind)) {
        m_notes.append({kind, m_input.place().line, m_input.place().column, place(), message});
    }
}

//! The path of the object being read, which cannot determine it without an owner.
QString ObjectBuilder::place() const
{
    QStringList names;
    for (const Frame &frame : m_frames) {
        if (frame.context == Context::Object && frame.object != m_root) {
            names.append(frame.object->getIdName());
        }
    }
    return names.isEmpty() && m_root ? m_root->objectPath() : names.join(u'.');
}

void ObjectBuilder::dropAttributes(std::span<const XmlAttribute> attributes)
{
    for (const XmlAttribute &attribute : attributes) {
        note(ReadNote::Dropped,
             u"The attribute \"%1\" is unknown here."_s.arg(XmlTokenizer::excerpt(attribute.name)));
    }
}

void ObjectBuilder::push(Context context, DesignerObject *object, const SharedProperty &property)
{
    m_frames.append({context, object, property});
}

void ObjectBuilder::skip(const QString &message)
{
    note(ReadNote::Dropped, message);
    push(Context::Skipped, nullptr);
}

void ObjectBuilder::startElement(QByteArrayView name, std::span<const XmlAttribute> attributes)
{
    if (m_frames.size() >= XmlLimits::deepestNesting) {
        m_input.fail(u"Elements are nested more than %1 levels deep."_s.arg(XmlLimits::deepestNesting));
        return;
    }
    if (m_frames.isEmpty()) {
        openRoot(name);
        dropAttributes(attributes);
        return;
    }
    Frame &frame = m_frames.last();
    switch (frame.context) {
    case Context::Object:
        openInObject(frame, name, attributes);
        break;
    case Context::Properties:
        openInProperties(frame, name, attributes);
        break;
    case Context::Property:
        openInProperty(frame, name, attributes);
        break;
    case Context::List:
        openItem(frame, name, attributes);
        break;
    case Context::ObjectValue:
        openObjectValue(frame, name, attributes);
        break;
    case Context::Kept:
        m_recorder.open(name, attributes);
        push(Context::Kept, nullptr);
        break;
    case Context::Skipped:
        push(Context::Skipped, nullptr);
        break;
    }
}

void ObjectBuilder::openRoot(QByteArrayView name)
{
    const QString className = QString::fromUtf8(name);
    if (!m_createsRoot && className != m_root->className()) {
        m_input.fail(u"The root element is \"%1\", but \"%2\" is expected."_s.arg(XmlTokenizer::excerpt(name),
                                                                                  m_root->className()));
        return;
    }
    if (m_createsRoot) {
        m_root = makeObject(className);
        if (!m_root) {
            m_input.fail(u"Cannot create an object of the class \"%1\"."_s.arg(XmlTokenizer::excerpt(name)));
            return;
        }
    }
    m_root->setDisableValidation(true);
    forgetKeptItems();
    push(Context::Object, m_root);
}

//! Kept items of a list without items belonged to another text: a file omits empty lists.
void ObjectBuilder::forgetKeptItems()
{
    for (const SharedProperty &property : m_root->properties()) {
        const ItemList *list = property->itemList();
        if (list && list->count() == 0 && list->hasKeptItems()) {
            property->items().dropKeptItems();
        }
    }
}

void ObjectBuilder::openInObject(const Frame &frame, QByteArrayView name,
                                 std::span<const XmlAttribute> attributes)
{
    if (name == "Properties") {
        const Frame object = frame;
        push(Context::Properties, object.object);
        m_frames.last().known = object.known;
        dropAttributes(attributes);
    } else {
        skip(u"The element \"%1\" is unknown here."_s.arg(XmlTokenizer::excerpt(name)));
    }
}

void ObjectBuilder::openInProperties(Frame &frame, QByteArrayView name,
                                     std::span<const XmlAttribute> attributes)
{
    QByteArrayView value;
    bool isRepeated = false;
    DesignerObject *object = frame.object;
    DesignerProperty *property = takeProperty(frame, name, attributes, &value, &isRepeated);
    if (!property) {
        push(Context::Skipped, nullptr);
        return;
    }
    push(Context::Property, object, shared(object, property));
    m_frames.last().isRepeated = isRepeated;
    if (!value.isEmpty()) {
        m_frames.last().isAnswered = !property->isList() && !property->isObject();
        applyValue(object, property, value);
    }
}

//! Most elements of a file are properties without contents.
void ObjectBuilder::emptyElement(QByteArrayView name, std::span<const XmlAttribute> attributes)
{
    if (m_frames.isEmpty() || m_frames.constLast().context != Context::Properties
        || m_frames.size() >= XmlLimits::deepestNesting) {
        startElement(name, attributes);
        if (m_input.errorString().isEmpty()) {
            endElement(name);
        }
        return;
    }
    Frame &frame = m_frames.last();
    QByteArrayView value;
    bool isRepeated = false;
    DesignerProperty *property = takeProperty(frame, name, attributes, &value, &isRepeated);
    if (!property) {
        return;
    }
    if (value.isEmpty()) {
        frame.object->readEmptyValue(shared(frame.object, property));
    } else {
        applyValue(frame.object, property, value);
    }
}

//! Finds the property that an element names, and its new value. Null, after a note with the reason, if there
//! is no such property.
DesignerProperty *ObjectBuilder::takeProperty(Frame &frame, QByteArrayView name,
                                              std::span<const XmlAttribute> attributes, QByteArrayView *value,
                                              bool *isRepeated)
{
    if (name != "Property") {
        note(ReadNote::Dropped, u"The element \"%1\" is unknown here."_s.arg(XmlTokenizer::excerpt(name)));
        return nullptr;
    }
    QByteArrayView id;
    for (const XmlAttribute &attribute : attributes) {
        if (attribute.name == "name") {
            id = attribute.value;
        } else if (attribute.name == "value") {
            *value = attribute.value;
        } else {
            dropAttributes({&attribute, 1});
        }
    }
    const qsizetype index = id.isNull() ? -1 : findProperty(frame, id, isRepeated);
    DesignerProperty *property = index < 0 ? nullptr : frame.object->d->properties.at(index);
    if (!property || !property->hasFlag(StoredFlag)) {
        note(ReadNote::Dropped, id.isNull()
                                    ? u"A property has no name."_s
                                    : u"The property \"%1\" is unknown."_s.arg(XmlTokenizer::excerpt(id)));
        return nullptr;
    }
    if (*isRepeated) {
        note(ReadNote::Dropped,
             u"The property \"%1\" is repeated; the last value is used."_s.arg(QString::fromUtf8(id)));
    }
    return property;
}

//! The index of the property in the object; -1 if the object does not have it.
qsizetype ObjectBuilder::findProperty(Frame &frame, QByteArrayView id, bool *isRepeated)
{
    const PropertyStore &properties = frame.object->d->properties;
    const qsizetype count = properties.count();
    for (qsizetype i = 0; i < count; ++i) {
        const qsizetype place = frame.nextProperty + i;
        const qsizetype index = place < count ? place : place - count;
        if (properties.at(index)->hasId(id)) {
            frame.nextProperty = index + 1;
            if (size_t(index) < frame.known.size()) {
                *isRepeated = frame.known.test(size_t(index));
                frame.known.set(size_t(index));
            }
            return index;
        }
    }
    return -1;
}

SharedProperty ObjectBuilder::shared(DesignerObject *object, const DesignerProperty *property)
{
    return object->d->properties.shared(property);
}

void ObjectBuilder::applyValue(DesignerObject *object, DesignerProperty *property, QByteArrayView value)
{
    if (property->isList() || property->isObject()) {
        note(ReadNote::Dropped, u"The property \"%1\" takes no value."_s.arg(property->id()));
        return;
    }
    // Most values in a file are initial values.
    if (property->holdsInitial(value)) {
        return;
    }
    const QString text = m_texts.text(value);
    const SharedProperty held = shared(object, property);
    const DesignerObject::Change change = object->changeStorableValue(held, text);
    if (change == DesignerObject::Change::Unreadable || change == DesignerObject::Change::Vetoed) {
        note(ReadNote::Dropped,
             u"The value \"%1\" of the property \"%2\" cannot be read; it stays \"%3\"."_s.arg(
                 text.left(80), held->id(), held->valueString()));
    }
}

void ObjectBuilder::openInProperty(Frame &frame, QByteArrayView name,
                                   std::span<const XmlAttribute> attributes)
{
    const bool opensList = name == "List" && frame.property->isList();
    const bool opensObject = name == "Object" && frame.property->isObject();
    if ((!opensList && !opensObject) || frame.isAnswered) {
        skip(u"The element \"%1\" is unknown in the property \"%2\"."_s.arg(XmlTokenizer::excerpt(name),
                                                                            frame.property->id()));
        return;
    }
    frame.isAnswered = true;
    if (opensList) {
        if (!frame.isRepeated) {
            emptyList(frame.object, frame.property);
        }
        frame.property->setOrderingPaused(true);
    }
    dropAttributes(attributes);
    push(opensList ? Context::List : Context::ObjectValue, frame.object, frame.property);
}

void ObjectBuilder::emptyList(DesignerObject *owner, const SharedProperty &list)
{
    const QList<DesignerObject *> items = list->listItems();
    for (auto item = items.crbegin(); item != items.crend(); ++item) {
        delete owner->takeListPropertyItem(list, *item);
    }
    list->items().dropKeptItems();
}

void ObjectBuilder::finishList(const SharedProperty &list)
{
    list->setOrderingPaused(false);
    list->sortList();
}

DesignerObject *ObjectBuilder::makeObject(const QString &className)
{
    DesignerFactory *factory = DesignerFactory::instance();
    if (!factory || !factory->canCreateObject(className)) {
        return nullptr;
    }
    DesignerObject *object = factory->createUnowned(className);
    if (object) {
        object->setDisableValidation(true);
    }
    return object;
}

void ObjectBuilder::openItem(const Frame &frame, QByteArrayView name,
                             std::span<const XmlAttribute> attributes)
{
    const QString className = QString::fromUtf8(name);
    if (DesignerObject *item = makeObject(className)) {
        dropAttributes(attributes);
        push(Context::Object, item);
        return;
    }
    qWarning("loadListPropertyFromXml invalid class name %s", qUtf8Printable(XmlTokenizer::excerpt(name)));
    note(ReadNote::Kept, u"No plug-in provides the class \"%1\"; the item is kept unchanged."_s.arg(
                             XmlTokenizer::excerpt(name)));
    m_recorder.start(className);
    m_recorder.open(name, attributes);
    push(Context::Kept, frame.object, frame.property);
}

void ObjectBuilder::openObjectValue(Frame &frame, QByteArrayView name,
                                    std::span<const XmlAttribute> attributes)
{
    const QString className = QString::fromUtf8(name);
    if (frame.isAnswered) {
        skip(u"The property \"%1\" can have only one object; \"%2\" is ignored."_s.arg(
            frame.property->id(), XmlTokenizer::excerpt(name)));
        return;
    }
    frame.isAnswered = true;
    if (DesignerObject *object = makeObject(className)) {
        dropAttributes(attributes);
        push(Context::Object, object);
    } else {
        skip(u"No plug-in provides the class \"%1\"."_s.arg(XmlTokenizer::excerpt(name)));
    }
}

void ObjectBuilder::endElement(QByteArrayView name)
{
    if (m_frames.isEmpty()) {
        return;
    }
    const Frame closed = m_frames.takeLast();
    switch (closed.context) {
    case Context::Object:
        closeObject(closed);
        break;
    case Context::Property:
        if (!closed.isAnswered) {
            closed.object->readEmptyValue(closed.property);
        }
        break;
    case Context::List:
        finishList(closed.property);
        break;
    case Context::Kept:
        m_recorder.close(name);
        if (closed.property) {
            closed.property->items().keep(m_recorder.take());
        }
        break;
    case Context::Properties:
        // Properties repeated in a second <Properties> count as repeated, too.
        m_frames.last().known = closed.known;
        break;
    case Context::ObjectValue:
    case Context::Skipped:
        break;
    }
}

void ObjectBuilder::closeObject(const Frame &closed)
{
    closed.object->finishReading();
    if (m_frames.isEmpty()) {
        return;
    }
    const Frame &owner = m_frames.constLast();
    if (owner.context == Context::List) {
        addItem(owner, closed.object);
    } else {
        setChild(owner, closed.object);
    }
}

void ObjectBuilder::addItem(const Frame &list, DesignerObject *item)
{
    if (list.object->addListPropertyItem(list.property, item)) {
        return;
    }
    const std::unique_ptr<DesignerObject> refused(item);
    QBuffer text;
    text.open(QIODevice::WriteOnly);
    ObjectXmlWriter writer(&text);
    writer.setHeader(false);
    const bool isKept = writer.write(item);
    const QString message = u"\"%1\" is not allowed in \"%2\": %3 %4"_s.arg(
        item->getIdName(), list.property->id(), list.property->errorString(),
        isKept ? u"The item is kept unchanged."_s : writer.errorString());
    qWarning("%s", qUtf8Printable(message));
    note(isKept ? ReadNote::Kept : ReadNote::Dropped, message);
    if (isKept) {
        list.property->items().keep({text.data().trimmed(), item->className(), item->getIdName(),
                                     list.property->hasListItem(item->getIdName())});
    }
}

void ObjectBuilder::setChild(const Frame &slot, DesignerObject *child)
{
    if (!slot.object->changePropertyObjectValue(slot.property, child, true)) {
        note(ReadNote::Dropped,
             u"\"%1\" takes no object of the class \"%2\"."_s.arg(slot.property->id(), child->className()));
        delete child;
    }
}

void ObjectBuilder::enableValidation(DesignerObject *object)
{
    object->setDisableValidation(false);
    for (DesignerObject *child : object->childObjects()) {
        enableValidation(child);
    }
}

void ObjectBuilder::characters(QByteArrayView text)
{
    if (m_frames.isEmpty()) {
        return;
    }
    const Frame &frame = m_frames.constLast();
    if (frame.context == Context::Kept) {
        m_recorder.addText(text);
    } else if (const QByteArrayView words = text.trimmed(); frame.object && !words.isEmpty()) {
        note(ReadNote::Dropped, u"Text between elements is not kept: \"%1\"."_s.arg(
                                    QString::fromUtf8(words.first(std::min<qsizetype>(words.size(), 80)))));
    }
}

void ObjectBuilder::comment()
{
    if (m_root) {
        note(ReadNote::Dropped, u"A comment is not kept."_s);
    }
}

void ObjectBuilder::processingInstruction()
{
    if (m_root) {
        note(ReadNote::Dropped, u"A processing instruction is not kept."_s);
    }
}

} // namespace Halvane::Corvex::Designer
