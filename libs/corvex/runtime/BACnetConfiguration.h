// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QVariantMap>

namespace Halvane::Corvex::Designer {

class BACnetDevice;
class DesignerObject;

/*! The BACnet devices and the objects that the panel offers, as the file bacConfig.kdrc has them.

    "bacDevMap" holds each setting of the device NAME under "SETTING|NAME": "objId", "netNum" and "portNum"
   (numbers), "isLocal" and "isFixed" (true or false), "bcType", "macAdd" and "ethrIP" (texts), and the items
   of its device object ("objectName|NAME"). The eight settings of the panel itself, the first device that is
   local, stand under the plain names too.

    "bacObjMap" holds a text for each object under its name: its properties, "PROPERTY:TYPE:SOURCE" joined
   with
   ";", then ";objectID:TYPE,INSTANCE" and ";objName:NAME". SOURCE is the text form of an expression term;
   NestedText escapes what is in each piece.
*/
class CORVEX_EXPORT BACnetConfiguration
{
public:
    void addDevice(const BACnetDevice &device);
    //! An object whose properties are not valid is written without them.
    void addObject(const DesignerObject &object);

    QVariantMap toMap() const;

private:
    QVariantMap m_devices;
    QVariantMap m_objects;
};

} // namespace Halvane::Corvex::Designer
