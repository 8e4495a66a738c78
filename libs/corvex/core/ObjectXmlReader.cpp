// SPDX-License-Identifier: MIT
#include "corvex/core/ObjectXmlReader.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/ItemList.h"
#include "corvex/core/KeptItemRecorder.h"
#include "corvex/core/ObjectXmlWriter.h"

#include <QBuffer>
#include <QIODevice>

#include <bitset>
#include <expat.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr qsizetype chunkSize = 256 * 1024;
constexpr qsizetype deepestNesting = 512;
constexpr qint64 longestToken = 16 * 1024 * 1024;

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

//! As much of a text from a file as a message bears.
QString excerpt(const XML_Char *utf8)
{
    constexpr qsizetype longest = 80;
    return QString::fromUtf8(QByteArrayView(utf8, qstrnlen(utf8, 4 * longest))).left(longest);
}

//! Two bytes that no text in UTF-8 begins with and each in UTF-16 does, with a byte order mark or without.
bool beginsAsUtf16(QByteArrayView bytes)
{
    return bytes.startsWith("\xFE\xFF") || bytes.startsWith("\xFF\xFE")
           || (bytes.size() > 1 && (bytes[0] == '\0') != (bytes[1] == '\0'));
}

bool isUtf8(const XML_Char *encoding)
{
    return !encoding || qstricmp(encoding, "UTF-8") == 0 || qstricmp(encoding, "US-ASCII") == 0;
}

//! What the parser has to say in the words of someone who opened a file.
QString parserError(XML_Parser parser)
{
    int offset = 0;
    int size = 0;
    const char *context = XML_GetInputContext(parser, &offset, &size);
    const XML_Error code = XML_GetErrorCode(parser);
    switch (code) {
    case XML_ERROR_NO_ELEMENTS:
    case XML_ERROR_UNCLOSED_TOKEN:
    case XML_ERROR_PARTIAL_CHAR:
        return u"The text ends before its root element does; it is empty or was cut off."_s;
    case XML_ERROR_SYNTAX:
        return u"This is no XML."_s;
    case XML_ERROR_INVALID_TOKEN:
        if (context && offset < size && static_cast<unsigned char>(context[offset]) >= 0x80) {
            return u"The bytes here are not UTF-8, the one encoding that is read."_s;
        }
        [[fallthrough]];
    default:
        return u"This is no well-formed XML: %1."_s.arg(QString::fromUtf8(XML_ErrorString(code)));
    }
}

//! Whether there is nothing but what lies between the lines of a file.
bool isBlank(const XML_Char *text, int length)
{
    return std::all_of(text, text + length,
                       [](XML_Char c) { return c == ' ' || c == '\n' || c == '\r' || c == '\t'; });
}

} // namespace

class ObjectXmlReader::Private
{
public:
    explicit Private(QIODevice *source)
        : device(source)
    { }

    bool parse();

    static void startElement(void *self, const XML_Char *name, const XML_Char **attributes);
    static void endElement(void *self, const XML_Char *name);
    static void characters(void *self, const XML_Char *text, int length);
    static void comment(void *self, const XML_Char *text);
    static void instruction(void *self, const XML_Char *, const XML_Char *);
    static void declaration(void *self, const XML_Char *, const XML_Char *encoding, int);
    static void docType(void *self, const XML_Char *, const XML_Char *, const XML_Char *, int);

    QIODevice *device;
    DesignerObject *root = nullptr;
    bool createsRoot = false;
    bool validates = true;
    ReadNoteList notes;
    QString error;
    qint64 errorLine = 0;
    qint64 errorColumn = 0;

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

    bool feed(qint64 size);
    void dropUnfinished();
    void fail(const QString &message);
    void note(ReadNote::Kind kind, const QString &message);
    QString place() const;
    void push(Context context, DesignerObject *object, const SharedProperty &property = {});
    void skip(const QString &message);

    void openRoot(const XML_Char *name);
    void openInObject(const Frame &frame, const XML_Char *name);
    void openInProperties(Frame &frame, const XML_Char *name, const XML_Char **attributes);
    void openInProperty(Frame &frame, const XML_Char *name);
    void openItem(const Frame &frame, const XML_Char *name, const XML_Char **attributes);
    void openObjectValue(const XML_Char *name);
    static qsizetype expectProperty(Frame &frame, const XML_Char *id, bool *isSecond);
    void applyValue(const Frame &frame, const XML_Char *value);
    static void emptyList(DesignerObject *owner, const SharedProperty &list);
    static void finishList(const SharedProperty &list);
    DesignerObject *makeObject(const QString &className);
    void closeObject(const Frame &closed);
    void addItem(const Frame &list, DesignerObject *item);
    void setChild(const Frame &slot, DesignerObject *child);
    void enableValidation(DesignerObject *object);

    XML_Parser parser = nullptr;
    qint64 fed = 0; //!< bytes that the parser was given
    QList<Frame> frames;
    KeptItemRecorder recorder;
};

bool ObjectXmlReader::Private::parse()
{
    if (!device->isReadable()) {
        fail(u"The source cannot be read."_s);
        return false;
    }
    const std::unique_ptr<std::remove_pointer_t<XML_Parser>, decltype(&XML_ParserFree)> owner(
        XML_ParserCreate("UTF-8"), &XML_ParserFree);
    parser = owner.get();
    XML_SetUserData(parser, this);
    XML_SetElementHandler(parser, startElement, endElement);
    XML_SetCharacterDataHandler(parser, characters);
    XML_SetCommentHandler(parser, comment);
    XML_SetProcessingInstructionHandler(parser, instruction);
    XML_SetXmlDeclHandler(parser, declaration);
    XML_SetStartDoctypeDeclHandler(parser, docType);

    bool good = true;
    qint64 size = 0;
    do {
        auto *chunk = static_cast<char *>(XML_GetBuffer(parser, int(chunkSize)));
        size = chunk ? device->read(chunk, chunkSize) : -1;
        // The parser goes by the first bytes before it goes by the encoding that it was told.
        if (fed == 0 && beginsAsUtf16({chunk, std::clamp<qint64>(size, 0, 2)})) {
            fail(u"The text is UTF-16; only UTF-8 is read."_s);
        } else if (size < 0) {
            fail(u"The source cannot be read: %1"_s.arg(device->errorString()));
        }
        good = error.isEmpty() && feed(size);
    } while (good && size > 0);
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

//! Parses what lies in the parser's buffer; nothing there is the end.
bool ObjectXmlReader::Private::feed(qint64 size)
{
    if (XML_ParseBuffer(parser, int(size), size == 0) != XML_STATUS_OK) {
        if (error.isEmpty()) {
            fail(parserError(parser));
        }
        return false;
    }
    fed += size;
    // A single token that outgrows every buffer is read again with each chunk; end that in time.
    if (fed - XML_GetCurrentByteIndex(parser) > longestToken + chunkSize) {
        fail(u"A value is longer than 16 MB."_s);
        return false;
    }
    return true;
}

void ObjectXmlReader::Private::fail(const QString &message)
{
    error = message;
    if (parser) {
        errorLine = std::max<qint64>(qint64(XML_GetCurrentLineNumber(parser)), 1);
        errorColumn = qint64(XML_GetCurrentColumnNumber(parser)) + 1;
        XML_StopParser(parser, XML_FALSE);
    }
}

void ObjectXmlReader::Private::note(ReadNote::Kind kind, const QString &message)
{
    if (notes.count(kind)) {
        notes.append({kind, qint64(XML_GetCurrentLineNumber(parser)),
                      qint64(XML_GetCurrentColumnNumber(parser)) + 1, place(), message});
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

void ObjectXmlReader::Private::startElement(void *self, const XML_Char *name, const XML_Char **attributes)
{
    auto *reader = static_cast<Private *>(self);
    if (reader->frames.size() >= deepestNesting) {
        reader->fail(u"Elements are nested deeper than %1."_s.arg(deepestNesting));
        return;
    }
    if (reader->frames.isEmpty()) {
        reader->openRoot(name);
        return;
    }
    Frame &frame = reader->frames.last();
    switch (frame.context) {
    case Context::Object:
        reader->openInObject(frame, name);
        break;
    case Context::Properties:
        reader->openInProperties(frame, name, attributes);
        break;
    case Context::Property:
        reader->openInProperty(frame, name);
        break;
    case Context::List:
        reader->openItem(frame, name, attributes);
        break;
    case Context::ObjectValue:
        reader->openObjectValue(name);
        break;
    case Context::Kept:
        reader->recorder.open(name, attributes);
        reader->push(Context::Kept, nullptr);
        break;
    case Context::Skipped:
        reader->push(Context::Skipped, nullptr);
        break;
    }
}

void ObjectXmlReader::Private::openRoot(const XML_Char *name)
{
    const QString className = QString::fromUtf8(name);
    if (!createsRoot && className != root->className()) {
        fail(u"The root element is \"%1\" where \"%2\" is expected."_s.arg(excerpt(name), root->className()));
        return;
    }
    if (createsRoot) {
        root = makeObject(className);
        if (!root) {
            fail(u"No object of the class \"%1\" can be made."_s.arg(excerpt(name)));
            return;
        }
    }
    root->setDisableValidation(true);
    push(Context::Object, root);
}

void ObjectXmlReader::Private::openInObject(const Frame &frame, const XML_Char *name)
{
    if (qstrcmp(name, "Properties") == 0) {
        push(Context::Properties, frame.object);
    } else {
        skip(u"The element \"%1\" is not known here."_s.arg(excerpt(name)));
    }
}

void ObjectXmlReader::Private::openInProperties(Frame &frame, const XML_Char *name,
                                                const XML_Char **attributes)
{
    DesignerObject *object = frame.object;
    if (qstrcmp(name, "Property") != 0) {
        skip(u"The element \"%1\" is not known here."_s.arg(excerpt(name)));
        return;
    }
    const XML_Char *id = nullptr;
    const XML_Char *value = nullptr;
    for (; *attributes; attributes += 2) {
        if (qstrcmp(attributes[0], "name") == 0) {
            id = attributes[1];
        } else if (qstrcmp(attributes[0], "value") == 0) {
            value = attributes[1];
        } else {
            note(ReadNote::Dropped, u"The attribute \"%1\" is not known here."_s.arg(excerpt(attributes[0])));
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
        skip(id ? u"The property \"%1\" is not known."_s.arg(excerpt(id)) : u"A property has no name."_s);
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
qsizetype ObjectXmlReader::Private::expectProperty(Frame &frame, const XML_Char *id, bool *isSecond)
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

void ObjectXmlReader::Private::applyValue(const Frame &frame, const XML_Char *value)
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

void ObjectXmlReader::Private::openInProperty(Frame &frame, const XML_Char *name)
{
    const bool opensList = qstrcmp(name, "List") == 0 && frame.property->isList();
    const bool opensObject = qstrcmp(name, "Object") == 0 && frame.property->isObject();
    if ((!opensList && !opensObject) || frame.isAnswered) {
        skip(u"The element \"%1\" is not known in the property \"%2\"."_s.arg(excerpt(name),
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

void ObjectXmlReader::Private::openItem(const Frame &frame, const XML_Char *name, const XML_Char **attributes)
{
    const QString className = QString::fromUtf8(name);
    if (DesignerObject *item = makeObject(className)) {
        push(Context::Object, item);
        return;
    }
    qWarning("loadListPropertyFromXml invalid class name %s", qUtf8Printable(excerpt(name)));
    note(ReadNote::Kept,
         u"No plug-in knows the class \"%1\"; the item is kept as it is."_s.arg(excerpt(name)));
    recorder.start(className);
    recorder.open(name, attributes);
    push(Context::Kept, frame.object, frame.property);
}

void ObjectXmlReader::Private::openObjectValue(const XML_Char *name)
{
    const QString className = QString::fromUtf8(name);
    if (DesignerObject *object = makeObject(className)) {
        push(Context::Object, object);
    } else {
        skip(u"No plug-in knows the class \"%1\"."_s.arg(excerpt(name)));
    }
}

void ObjectXmlReader::Private::endElement(void *self, const XML_Char *name)
{
    auto *reader = static_cast<Private *>(self);
    if (reader->frames.isEmpty()) {
        return;
    }
    const Frame closed = reader->frames.takeLast();
    switch (closed.context) {
    case Context::Object:
        reader->closeObject(closed);
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
        reader->recorder.close(name);
        if (closed.property) {
            closed.property->items().keep(reader->recorder.take());
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

void ObjectXmlReader::Private::characters(void *self, const XML_Char *text, int length)
{
    auto *reader = static_cast<Private *>(self);
    if (reader->frames.isEmpty()) {
        return;
    }
    const Frame &frame = reader->frames.constLast();
    if (frame.context == Context::Kept) {
        reader->recorder.addText({text, length});
    } else if (frame.object && !isBlank(text, length)) {
        const QByteArrayView words = QByteArrayView(text, length).trimmed();
        reader->note(ReadNote::Dropped, u"Text between elements is not kept: \"%1\"."_s.arg(QString::fromUtf8(
                                            words.first(std::min<qsizetype>(words.size(), 80)))));
    }
}

void ObjectXmlReader::Private::comment(void *self, const XML_Char *)
{
    auto *reader = static_cast<Private *>(self);
    if (reader->root) {
        reader->note(ReadNote::Dropped, u"A comment is not kept."_s);
    }
}

void ObjectXmlReader::Private::instruction(void *self, const XML_Char *, const XML_Char *)
{
    auto *reader = static_cast<Private *>(self);
    if (reader->root) {
        reader->note(ReadNote::Dropped, u"A processing instruction is not kept."_s);
    }
}

void ObjectXmlReader::Private::declaration(void *self, const XML_Char *, const XML_Char *encoding, int)
{
    if (!isUtf8(encoding)) {
        static_cast<Private *>(self)->fail(
            u"The text is declared as %1; only UTF-8 is read."_s.arg(excerpt(encoding)));
    }
}

void ObjectXmlReader::Private::docType(void *self, const XML_Char *, const XML_Char *, const XML_Char *, int)
{
    static_cast<Private *>(self)->fail(u"Document types and entities are not accepted."_s);
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
    return d->error;
}

qint64 ObjectXmlReader::errorLine() const
{
    return d->errorLine;
}

qint64 ObjectXmlReader::errorColumn() const
{
    return d->errorColumn;
}

} // namespace Halvane::Corvex::Designer
