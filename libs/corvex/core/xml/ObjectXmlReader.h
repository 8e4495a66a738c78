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

/*! Reads an object and everything below it from XML in UTF-8, in one walk and without a tree of the document.

    The bytes are not trusted: document types and entities of their own, other encodings, elements nested
   deeper than 512 and values of more than 16 MB end the reading with an error. Properties that the object
   does not know keep nothing but a note; a list item whose class no factory knows is kept by the list with a
   note, to be written back. Of a property that is there twice each is taken in turn, so that the later value
    counts. Validation is switched off on
   everything that is read and runs once when the root is complete.
*/
class CORVEX_EXPORT ObjectXmlReader
{
public:
    explicit ObjectXmlReader(QIODevice *device);
    ~ObjectXmlReader();

    //! Whether the root is validated when it is complete; it is unless switched off.
    void setValidate(bool validate);
    //! Advances by the bytes that were read; reading that is cancelled ends with an error. Null for nobody.
    //! Not owned.
    void setProgress(Common::Progress *progress);
    /*! Reads into an object of the root's class. Lists that the file holds are emptied first; what the file
       does not mention stays as it was. After a failure the object is half read. */
    bool read(DesignerObject *object);
    //! Makes the object that the root names through the factory. The caller owns it; null after a failure.
    DesignerObject *create();

    //! Everything that was not taken over as it stands.
    const QList<ReadNote> &notes() const;
    //! What ended the reading, and where (from 1; 0 when no place can be told).
    QString errorString() const;
    qint64 errorLine() const;
    qint64 errorColumn() const;

private:
    std::unique_ptr<ObjectBuilder> d;
};

} // namespace Halvane::Corvex::Designer
