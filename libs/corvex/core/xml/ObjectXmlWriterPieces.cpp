// SPDX-License-Identifier: MIT
// Writes in pieces, so that the thread can process events in between.
#include "corvex/core/ItemList.h"
#include "corvex/core/private/DesignerObjectData.h"
#include "corvex/core/xml/ObjectXmlWriter.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr qsizetype pieceSize = 16 * 1024;
constexpr int levelOfProperties = 2; //!< below the object
constexpr int levelOfItems = 4;

} // namespace

void ObjectXmlWriter::begin(const DesignerObject *object)
{
    m_error.clear();
    m_frames.clear();
    writeDeclaration();
    openPiece(object, 0);
}

bool ObjectXmlWriter::writePiece()
{
    while (!m_frames.empty() && m_error.isEmpty() && m_buffer.bytes().size() < pieceSize) {
        writeStep();
    }
    flush();
    return !m_frames.empty() && m_error.isEmpty();
}

void ObjectXmlWriter::openPiece(const DesignerObject *object, int level)
{
    if (object->hasOwnXmlDocument()) {
        QString missing;
        if (noteMissing(isComplete(object, m_allProperties, &missing), missing)) {
            writeObject(object, level);
        }
    } else if (openObject(object, level)) {
        m_frames.push_back({object, level});
    }
}

//! Opens or closes an object or a list, or writes a property.
void ObjectXmlWriter::writeStep()
{
    Frame &frame = m_frames.back();
    const PropertyStore &properties = frame.object->d->properties;
    if (frame.item >= 0) {
        const QList<DesignerObject *> &items = properties.at(frame.property)->itemList()->items();
        if (frame.item < items.size()) {
            const qsizetype index = frame.item++;
            openPiece(items.at(index), frame.level + levelOfItems);
            return;
        }
        closeTag(u"List"_s, frame.level + levelOfItems - 1);
        closeTag(u"Property"_s, frame.level + levelOfProperties);
        frame.item = -1;
        ++frame.property;
    } else if (frame.property < properties.count()) {
        writeNextProperty();
    } else {
        closeObject(frame.object, frame.level);
        m_frames.pop_back();
    }
}

void ObjectXmlWriter::writeNextProperty()
{
    Frame &frame = m_frames.back();
    const DesignerProperty &property = *frame.object->d->properties.at(frame.property);
    const int level = frame.level + levelOfProperties;
    if (!isWritten(frame.object, property, m_allProperties)) {
        ++frame.property;
    } else if (property.isList() && property.listItemCount() > 0 && !property.itemList()->hasKeptItems()) {
        openProperty(property, level);
        openTag(u"List"_s, level + 1);
        frame.item = 0;
    } else if (!property.isObject() || requireObject(property)) {
        writeProperty(property, level);
        ++frame.property;
    }
}

bool ObjectXmlWriter::requireObject(const DesignerProperty &property)
{
    QString missing = m_frames.back().object->objectPath() + u'.' + property.id();
    const bool isThere = isComplete(property.objectValue(), m_allProperties, &missing);
    return noteMissing(isThere, missing);
}

} // namespace Halvane::Corvex::Designer
