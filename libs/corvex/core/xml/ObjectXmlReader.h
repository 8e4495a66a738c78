// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/xml/ReadNote.h"

#include <QList>
#include <QString>

#include <memory>

class QIODevice;

namespace Halvane::Corvex::Common {
class Progress;
} // namespace Halvane::Corvex::Common

namespace Halvane::Corvex::Designer {

class DesignerObject;
class ObjectBuilder;

/*! Reads an object and everything below it from XML in UTF-8, in one pass and without a document tree.

    The bytes are not trusted. Document types, custom entities, other encodings, elements nested deeper than
    512 and values larger than 16 MB stop the reading with an error. Unknown properties are dropped with a
    note. A list item of an unknown class is kept by the list, with a note, to be written back. If a property
    occurs twice, both are applied in order, so that the later value counts. Validation is disabled on
    everything during the reading and runs once when the root is complete.
*/
class CORVEX_EXPORT ObjectXmlReader
{
public:
    explicit ObjectXmlReader(QIODevice *device);
    ~ObjectXmlReader();

    //! Whether the root is validated when it is complete; true by default.
    void setValidate(bool validate);
    //! Reports the bytes read, and can cancel the reading, which is an error. May be null. Not owned.
    void setProgress(Common::Progress *progress);
    //! Reads into an object of the root's class. Lists in the file replace the current ones; anything that
    //! the file does not mention is unchanged. After a failure the object is incomplete.
    bool read(DesignerObject *object);
    //! Creates the object that the root element names. The caller owns it; null after a failure.
    DesignerObject *create();

    //! Everything that was not read as it is.
    const QList<ReadNote> &notes() const;
    //! The error that stopped the reading, and its place (counted from 1; 0 if unknown).
    QString errorString() const;
    qint64 errorLine() const;
    qint64 errorColumn() const;

private:
    std::unique_ptr<ObjectBuilder> d;
};

} // namespace Halvane::Corvex::Designer
