// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QVariantMap>

namespace Halvane::Corvex::Designer {

class BACnetDevice;
class DesignerObject;

/*! The BACnet devices, and the objects that the panel offers, for the file bacConfig.kdrc.

    "bacDevMap" contains the settings of each device NAME under "SETTING|NAME": "objId", "netNum" and
    "portNum" (numbers), "isLocal" and "isFixed" (true or false), "bcType", "macAdd" and "ethrIP" (texts), and
    the items of its device object ("objectName|NAME"). The eight settings of the panel itself, which is the
    first local device, are also stored under the plain names.

    "bacObjMap" contains a text for each object under its name: its properties, "PROPERTY:TYPE:SOURCE" joined
    with ";", then ";objectID:TYPE,INSTANCE" and ";objName:NAME". SOURCE is the text form of an expression
    term. NestedText escapes the contents of each part.
*/
class CORVEX_EXPORT BACnetConfiguration
{
public:
    void addDevice(const BACnetDevice &device);
    //! If the properties of the object are invalid, it is written without them.
    void addObject(const DesignerObject &object);

    QVariantMap toMap() const;

private:
    QVariantMap m_devices;
    QVariantMap m_objects;
};

} // namespace Halvane::Corvex::Designer
