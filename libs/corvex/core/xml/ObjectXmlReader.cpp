// SPDX-License-Identifier: MIT
#include "corvex/core/xml/ObjectXmlReader.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/core/xml/private/ObjectBuilder.h"

namespace Halvane::Corvex::Designer {

ObjectXmlReader::ObjectXmlReader(QIODevice *device)
    : d(std::make_unique<ObjectBuilder>(device))
{ }

ObjectXmlReader::~ObjectXmlReader() = default;

void ObjectXmlReader::setValidate(bool validate)
{
    d->setValidate(validate);
}

void ObjectXmlReader::setProgress(Common::Progress *progress)
{
    d->setProgress(progress);
}

bool ObjectXmlReader::read(DesignerObject *object)
{
    d->setRoot(object);
    return d->build();
}

DesignerObject *ObjectXmlReader::create()
{
    d->setRoot(nullptr);
    if (d->build()) {
        return d->root();
    }
    delete d->root();
    return nullptr;
}

const QList<ReadNote> &ObjectXmlReader::notes() const
{
    return d->notes().list();
}

QString ObjectXmlReader::errorString() const
{
    return d->input().errorString();
}

qint64 ObjectXmlReader::errorLine() const
{
    return d->input().errorPlace().line;
}

qint64 ObjectXmlReader::errorColumn() const
{
    return d->input().errorPlace().column;
}

} // namespace Halvane::Corvex::Designer
