// SPDX-License-Identifier: MIT
// Private to the sources of ObjectXmlReader; not installed.
#pragma once

#include "corvex/core/DesignerProperty.h"
#include "corvex/core/xml/ReadNote.h"
#include "corvex/core/xml/private/KeptItemRecorder.h"
#include "corvex/core/xml/private/TextPool.h"
#include "corvex/core/xml/private/XmlHandler.h"
#include "corvex/core/xml/private/XmlInput.h"

#include <bitset>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! Creates objects from XML. There is a frame for each open element, whose context determines how the
//! elements in it are handled.
class ObjectBuilder final : public XmlHandler
{
public:
    explicit ObjectBuilder(QIODevice *device)
        : m_input(device, this)
    { }

    void setValidate(bool validate) { m_validates = validate; }
    void setProgress(Common::Progress *progress) { m_input.setProgress(progress); }
    //! Reads into \a root, which must be of the same class; if it is null, creates an object.
    void setRoot(DesignerObject *root);
    //! Reads everything. Returns false if the text could not be read to its end.
    bool build();
    //! Null if none could be created. After a failure the object is not validated and may be incomplete.
    DesignerObject *root() const { return m_root; }

    const XmlInput &input() const { return m_input; }
    const ReadNoteList &notes() const { return m_notes; }

private:
    enum class Context { Object, Properties, Property, List, ObjectValue, Kept, Skipped };
    struct Frame
    {
        Context context;
        DesignerObject *object; //!< the object being read, or the owner of the property
        SharedProperty property = {};
        qsizetype nextProperty =
            0; //!< the expected index of the next property: files keep the order of the table
        std::bitset<128> known = {}; //!< the first properties that have occurred, by index
        bool isAnswered = false;     //!< a property with a value or children, or an <Object> with its object
        bool isRepeated = false;     //!< the property occurred before
    };

    void startElement(QByteArrayView name, std::span<const XmlAttribute> attributes) override;
    void endElement(QByteArrayView name) override;
    void emptyElement(QByteArrayView name, std::span<const XmlAttribute> attributes) override;
    void characters(QByteArrayView text) override;
    void comment() override;
    void processingInstruction() override;

    void dropUnfinished();
    void note(ReadNote::Kind kind, const QString &message);
    QString place() const;
    void push(Context context, DesignerObject *object, const SharedProperty &property = {});
    void skip(const QString &message);
    void dropAttributes(std::span<const XmlAttribute> attributes);

    void openRoot(QByteArrayView name);
    void forgetKeptItems();
    void openInObject(const Frame &frame, QByteArrayView name, std::span<const XmlAttribute> attributes);
    void openInProperties(Frame &frame, QByteArrayView name, std::span<const XmlAttribute> attributes);
    DesignerProperty *takeProperty(Frame &frame, QByteArrayView name,
                                   std::span<const XmlAttribute> attributes, QByteArrayView *value,
                                   bool *isRepeated);
    void openInProperty(Frame &frame, QByteArrayView name, std::span<const XmlAttribute> attributes);
    void openItem(const Frame &frame, QByteArrayView name, std::span<const XmlAttribute> attributes);
    void openObjectValue(Frame &frame, QByteArrayView name, std::span<const XmlAttribute> attributes);
    static qsizetype findProperty(Frame &frame, QByteArrayView id, bool *isRepeated);
    void applyValue(DesignerObject *object, DesignerProperty *property, QByteArrayView value);
    static SharedProperty shared(DesignerObject *object, const DesignerProperty *property);
    static void emptyList(DesignerObject *owner, const SharedProperty &list);
    static void finishList(const SharedProperty &list);
    DesignerObject *makeObject(const QString &className);
    void closeObject(const Frame &closed);
    void addItem(const Frame &list, DesignerObject *item);
    void setChild(const Frame &slot, DesignerObject *child);
    void enableValidation(DesignerObject *object);

    XmlInput m_input;
    DesignerObject *m_root = nullptr;
    bool m_createsRoot = false;
    bool m_validates = true;
    ReadNoteList m_notes;
    QList<Frame> m_frames;
    KeptItemRecorder m_recorder;
    TextPool m_texts;
};

} // namespace Halvane::Corvex::Designer
