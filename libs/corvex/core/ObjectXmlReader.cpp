// SPDX-License-Identifier: MIT
#include "corvex/core/ObjectXmlReader.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/ItemList.h"
#include "corvex/core/KeptItemRecorder.h"
#include "corvex/core/ObjectXmlWriter.h"
#include "corvex/core/XmlHandler.h"
#include "corvex/core/XmlInput.h"
#include "corvex/core/XmlTokenizer.h"

#include <QBuffer>

#include <algorithm>
#include <bitset>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr qsizetype deepestNesting = 512;

//! Property ids are short and plain; comparing in place saves a conversion for each of a million properties.
bool equals(QStringView text, const char *utf8)
{
    for (const QChar character : text) {
        if (character.unicode() >= 0x80) {
            return text == QString::fromUtf8(utf8);
        }
        if (character.unicode() != static_cast<unsigned char>(*utf8++)) {
            return false;
        }
    }
    return *utf8 == 0;
}

} // namespace

class ObjectXmlReader::Private final : public XmlHandler
{
public:
    explicit Private(QIODevice *device)
        : input(device, this)
    { }

    bool parse();

    XmlInput input;
    DesignerObject *root = nullptr;
    bool createsRoot = false;
    bool validates = true;
    ReadNoteList notes;

private:
    enum class Context { Object, Properties, Property, List, ObjectValue, Kept, Skipped };
    struct Frame
    {
        Context context;
        DesignerObject *object; //!< the object that is being read, or whose property this is
        SharedProperty property = {};
        qsizetype nextProperty =
            0; //!< where the next property is expected: files keep the order of the table
        std::bitset<128> known = {}; //!< the properties that have been there, by their index
        bool isAnswered = false;     //!< a property that got a value or children
    };

    void startElement(const char *name, const char **attributes) override;
    void endElement(const char *name) override;
    void characters(QByteArrayView text, bool isBlank) override;
    void comment() override;
    void processingInstruction() override;

    void dropUnfinished();
    void note(ReadNote::Kind kind, const QString &message);
    QString place() const;
    void push(Context context, DesignerObject *object, const SharedProperty &property = {});
    void skip(const QString &message);

    void openRoot(const char *name);
    void openInObject(const Frame &frame, const char *name);
    void openInProperties(Frame &frame, const char *name, const char **attributes);
    void openInProperty(Frame &frame, const char *name);
    void openItem(const Frame &frame, const char *name, const char **attributes);
    void openObjectValue(const char *name);
    static qsizetype expectProperty(Frame &frame, const char *id, bool *isSecond);
    void applyValue(const Frame &frame, const char *value);
    static void emptyList(DesignerObject *owner, const SharedProperty &list);
    static void finishList(const SharedProperty &list);
    DesignerObject *makeObject(const QString &className);
    void closeObject(const Frame &closed);
    void addItem(const Frame &list, DesignerObject *item);
    void setChild(const Frame &slot, DesignerObject *child);
    void enableValidation(DesignerObject *object);

    QList<Frame> frames;
    KeptItemRecorder recorder;
};

bool ObjectXmlReader::Private::parse()
{
    const bool good = input.parse();
    dropUnfinished();
    notes.finish();
    if (!root) {
        return false;
    }
    if (good && validates) {
        root->validateWhatWasRead();
    } else {
        enableValidation(root);
    }
    return good;
}

void ObjectXmlReader::Private::dropUnfinished()
{
    for (const Frame &frame : std::as_const(frames)) {
        if (frame.context == Context::List) {
            finishList(frame.property);
        }
    }
    for (const Frame &frame : std::as_const(frames)) {
        // What was cut off in the middle has no owner yet.
        if (frame.context == Context::Object && frame.object != root && !frame.object->ownerObject()) {
            delete frame.object;
        }
    }
    frames.clear();
}

void ObjectXmlReader::Private::note(ReadNote::Kind kind, const QString &message)
{
    if (notes.count(kind)) {
        notes.append({kind, input.place().line, input.place().column, place(), message});
    }
}

//! The path of the object that is being read, which has no owner yet that could tell it.
QString ObjectXmlReader::Private::place() const
{
    QStringList names;
    for (const Frame &frame : frames) {
        if (frame.context == Context::Object && frame.object != root) {
            names.append(frame.object->getIdName());
        }
    }
    return names.isEmpty() && root ? root->objectPath() : names.join(u'.');
}

void ObjectXmlReader::Private::push(Context context, DesignerObject *object, const SharedProperty &property)
{
    frames.append({context, object, property});
}

void ObjectXmlReader::Private::skip(const QString &message)
{
    note(ReadNote::Dropped, message);
    push(Context::Skipped, nullptr);
}

void ObjectXmlReader::Private::startElement(const char *name, const char **attributes)
{
    if (frames.size() >= deepestNesting) {
        input.fail(u"Elements are nested deeper than %1."_s.arg(deepestNesting));
        return;
    }
    if (frames.isEmpty()) {
        openRoot(name);
        return;
    }
    Frame &frame = frames.last();
    switch (frame.context) {
    case Context::Object:
        openInObject(frame, name);
        break;
    case Context::Properties:
        openInProperties(frame, name, attributes);
        break;
    case Context::Property:
        openInProperty(frame, name);
        break;
    case Context::List:
        openItem(frame, name, attributes);
        break;
    case Context::ObjectValue:
        openObjectValue(name);
        break;
    case Context::Kept:
        recorder.open(name, attributes);
        push(Context::Kept, nullptr);
        break;
    case Context::Skipped:
        push(Context::Skipped, nullptr);
        break;
    }
}

void ObjectXmlReader::Private::openRoot(const char *name)
{
    const QString className = QString::fromUtf8(name);
    if (!createsRoot && className != root->className()) {
        input.fail(u"The root element is \"%1\" where \"%2\" is expected."_s.arg(XmlTokenizer::excerpt(name),
                                                                                 root->className()));
        return;
    }
    if (createsRoot) {
        root = makeObject(className);
        if (!root) {
            input.fail(u"No object of the class \"%1\" can be made."_s.arg(XmlTokenizer::excerpt(name)));
            return;
        }
    }
    root->setDisableValidation(true);
    push(Context::Object, root);
}

void ObjectXmlReader::Private::openInObject(const Frame &frame, const char *name)
{
    if (qstrcmp(name, "Properties") == 0) {
        push(Context::Properties, frame.object);
    } else {
        skip(u"The element \"%1\" is not known here."_s.arg(XmlTokenizer::excerpt(name)));
    }
}

void ObjectXmlReader::Private::openInProperties(Frame &frame, const char *name, const char **attributes)
{
    DesignerObject *object = frame.object;
    if (qstrcmp(name, "Property") != 0) {
        skip(u"The element \"%1\" is not known here."_s.arg(XmlTokenizer::excerpt(name)));
        return;
    }
    const char *id = nullptr;
    const char *value = nullptr;
    for (; *attributes; attributes += 2) {
        if (qstrcmp(attributes[0], "name") == 0) {
            id = attributes[1];
        } else if (qstrcmp(attributes[0], "value") == 0) {
            value = attributes[1];
        } else {
            note(ReadNote::Dropped,
                 u"The attribute \"%1\" is not known here."_s.arg(XmlTokenizer::excerpt(attributes[0])));
        }
    }
    bool isSecond = false;
    const qsizetype index = id ? expectProperty(frame, id, &isSecond) : -1;
    if (isSecond) {
        skip(u"The property \"%1\" stands here a second time; the first one counts."_s.arg(
            QString::fromUtf8(id)));
        return;
    }
    if (index < 0 || !object->properties().at(index)->hasFlag(StoredFlag)) {
        skip(id ? u"The property \"%1\" is not known."_s.arg(XmlTokenizer::excerpt(id))
                : u"A property has no name."_s);
        return;
    }
    push(Context::Property, object, object->properties().at(index));
    if (value && *value) {
        Frame &opened = frames.last();
        opened.isAnswered = !opened.property->isList() && !opened.property->isObject();
        applyValue(opened, value);
    }
}

//! The index of the property among those of the object; -1 for one that it does not have.
qsizetype ObjectXmlReader::Private::expectProperty(Frame &frame, const char *id, bool *isSecond)
{
    const QList<SharedProperty> &properties = frame.object->properties();
    const qsizetype count = properties.size();
    for (qsizetype i = 0; i < count; ++i) {
        const qsizetype index = (frame.nextProperty + i) % count;
        if (equals(properties.at(index)->id(), id)) {
            frame.nextProperty = index + 1;
            if (size_t(index) < frame.known.size()) {
                *isSecond = frame.known.test(size_t(index));
                frame.known.set(size_t(index));
            }
            return index;
        }
    }
    return -1;
}

void ObjectXmlReader::Private::applyValue(const Frame &frame, const char *value)
{
    const SharedProperty &property = frame.property;
    if (property->isList() || property->isObject()) {
        note(ReadNote::Dropped, u"The property \"%1\" takes no value."_s.arg(property->id()));
        return;
    }
    // Most values of a file are those that their properties start with.
    if (const QString initial = property->initialText(); !initial.isEmpty() && equals(initial, value)) {
        return;
    }
    const QString text = QString::fromUtf8(value);
    const DesignerObject::ValueChange change = frame.object->changeValue(property, text);
    // "Equal" is also said of a text that does not parse; only a second parse tells the two apart.
    if (change == DesignerObject::ValueChange::Refused
        || (change == DesignerObject::ValueChange::None && !property->convertToValue(text))) {
        note(ReadNote::Dropped,
             u"The value \"%1\" of the property \"%2\" cannot be read; it stays \"%3\"."_s.arg(
                 text.left(80), property->id(), property->valueString()));
    }
}

void ObjectXmlReader::Private::openInProperty(Frame &frame, const char *name)
{
    const bool opensList = qstrcmp(name, "List") == 0 && frame.property->isList();
    const bool opensObject = qstrcmp(name, "Object") == 0 && frame.property->isObject();
    if ((!opensList && !opensObject) || frame.isAnswered) {
        skip(u"The element \"%1\" is not known in the property \"%2\"."_s.arg(XmlTokenizer::excerpt(name),
                                                                              frame.property->id()));
        return;
    }
    frame.isAnswered = true;
    if (opensList) {
        emptyList(frame.object, frame.property);
        frame.property->items().isLoading = true;
    }
    push(opensList ? Context::List : Context::ObjectValue, frame.object, frame.property);
}

void ObjectXmlReader::Private::emptyList(DesignerObject *owner, const SharedProperty &list)
{
    const QList<DesignerObject *> items = list->listItems();
    for (auto item = items.crbegin(); item != items.crend(); ++item) {
        delete owner->takeListPropertyItem(list, *item);
    }
    list->items().dropKeptItems();
}

void ObjectXmlReader::Private::finishList(const SharedProperty &list)
{
    list->items().isLoading = false;
    list->sortList();
}

DesignerObject *ObjectXmlReader::Private::makeObject(const QString &className)
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

void ObjectXmlReader::Private::openItem(const Frame &frame, const char *name, const char **attributes)
{
    const QString className = QString::fromUtf8(name);
    if (DesignerObject *item = makeObject(className)) {
        push(Context::Object, item);
        return;
    }
    qWarning("loadListPropertyFromXml invalid class name %s", qUtf8Printable(XmlTokenizer::excerpt(name)));
    note(ReadNote::Kept,
         u"No plug-in knows the class \"%1\"; the item is kept as it is."_s.arg(XmlTokenizer::excerpt(name)));
    recorder.start(className);
    recorder.open(name, attributes);
    push(Context::Kept, frame.object, frame.property);
}

void ObjectXmlReader::Private::openObjectValue(const char *name)
{
    const QString className = QString::fromUtf8(name);
    if (DesignerObject *object = makeObject(className)) {
        push(Context::Object, object);
    } else {
        skip(u"No plug-in knows the class \"%1\"."_s.arg(XmlTokenizer::excerpt(name)));
    }
}

void ObjectXmlReader::Private::endElement(const char *name)
{
    if (frames.isEmpty()) {
        return;
    }
    const Frame closed = frames.takeLast();
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
        recorder.close(name);
        if (closed.property) {
            closed.property->items().keep(recorder.take());
        }
        break;
    case Context::Properties:
    case Context::ObjectValue:
    case Context::Skipped:
        break;
    }
}

void ObjectXmlReader::Private::closeObject(const Frame &closed)
{
    closed.object->finishReading();
    if (frames.isEmpty()) {
        return;
    }
    const Frame &owner = frames.constLast();
    if (owner.context == Context::List) {
        addItem(owner, closed.object);
    } else {
        setChild(owner, closed.object);
    }
}

void ObjectXmlReader::Private::addItem(const Frame &list, DesignerObject *item)
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
    const QString message = u"\"%1\" cannot stand in \"%2\": %3 %4"_s.arg(
        item->getIdName(), list.property->id(), list.property->errorString(),
        isKept ? u"The item is kept as it is."_s : writer.errorString());
    qWarning("%s", qUtf8Printable(message));
    note(isKept ? ReadNote::Kept : ReadNote::Dropped, message);
    if (isKept) {
        list.property->items().keep({text.data().trimmed(), item->className(), item->getIdName()});
    }
}

void ObjectXmlReader::Private::setChild(const Frame &slot, DesignerObject *child)
{
    if (!slot.object->changePropertyObjectValue(slot.property, child, true)) {
        note(ReadNote::Dropped,
             u"\"%1\" takes no object of the class \"%2\"."_s.arg(slot.property->id(), child->className()));
        delete child;
    }
}

void ObjectXmlReader::Private::enableValidation(DesignerObject *object)
{
    object->setDisableValidation(false);
    for (DesignerObject *child : object->childObjects()) {
        enableValidation(child);
    }
}

void ObjectXmlReader::Private::characters(QByteArrayView text, bool isBlank)
{
    if (frames.isEmpty()) {
        return;
    }
    const Frame &frame = frames.constLast();
    if (frame.context == Context::Kept) {
        recorder.addText(text);
    } else if (frame.object && !isBlank) {
        const QByteArrayView words = text.trimmed();
        note(ReadNote::Dropped, u"Text between elements is not kept: \"%1\"."_s.arg(
                                    QString::fromUtf8(words.first(std::min<qsizetype>(words.size(), 80)))));
    }
}

void ObjectXmlReader::Private::comment()
{
    if (root) {
        note(ReadNote::Dropped, u"A comment is not kept."_s);
    }
}

void ObjectXmlReader::Private::processingInstruction()
{
    if (root) {
        note(ReadNote::Dropped, u"A processing instruction is not kept."_s);
    }
}

ObjectXmlReader::ObjectXmlReader(QIODevice *device)
    : d(std::make_unique<Private>(device))
{ }

ObjectXmlReader::~ObjectXmlReader() = default;

void ObjectXmlReader::setValidate(bool validate)
{
    d->validates = validate;
}

bool ObjectXmlReader::read(DesignerObject *object)
{
    d->root = object;
    d->createsRoot = false;
    return d->parse();
}

DesignerObject *ObjectXmlReader::create()
{
    d->root = nullptr;
    d->createsRoot = true;
    if (!d->parse()) {
        delete std::exchange(d->root, nullptr);
    }
    return d->root;
}

const QList<ReadNote> &ObjectXmlReader::notes() const
{
    return d->notes.list();
}

QString ObjectXmlReader::errorString() const
{
    return d->input.errorString();
}

qint64 ObjectXmlReader::errorLine() const
{
    return d->input.errorPlace().line;
}

qint64 ObjectXmlReader::errorColumn() const
{
    return d->input.errorPlace().column;
}

} // namespace Halvane::Corvex::Designer
