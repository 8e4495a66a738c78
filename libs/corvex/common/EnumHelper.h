// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QMap>
#include <QMetaEnum>
#include <QObject>
#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Common {

//! The enumerations that the library, its plug-ins and the device runtime share. Their numbers are stored in
//! project files and in runtime files; they never change.
class CORVEX_COMMON_EXPORT EnumHelper
{
    Q_GADGET

public:
    //! The type of value that a variable or a runtime property holds. 5 and 8 are unused.
    enum VariableType {
        NoVariable = 0,
        BooleanVariable = 1,
        IntegerVariable = 2,
        FloatVariable = 3,
        StringVariable = 4,
        ColorVariable = 6,
        FtpVariable = 7,
        LogVariable = 9,
        DeviceVariable = 10,
        NumberVariable = 11,
    };
    Q_ENUM(VariableType)

    enum VariableAccessMode { NoAccess = 0, ReadOnly = 1, WriteOnly = 2, ReadWrite = 3 };
    Q_ENUM(VariableAccessMode)

    //! What a device channel is used for. In channel lists each enumerator is written as its key.
    enum InputOutputType { UNUSED, INPUT, OUTPUT, COMTYPE, RECEIVE, SEND, DIRECTION, UNAVAILABLE, CSPIN };
    Q_ENUM(InputOutputType)

    //! The protocol of a file server.
    enum FtpType { FTP, FTPS, SFTP };
    Q_ENUM(FtpType)

    //! What a full log does.
    enum RollOverBehavior { OverwriteOldest, StopLogging, SaveAndReset };
    Q_ENUM(RollOverBehavior)

    enum BACnetType { BACnetIP, BACnetMSTP };
    Q_ENUM(BACnetType)

    //! The display texts of the variable types, by type name ("BooleanVariable").
    static const QMap<QString, QString> &getVariableTypeNames();

    //! The display texts of the access modes, by mode name ("ReadOnly").
    static const QMap<QString, QString> &getVariableAccessModeNames();

    //! The names of the channel types, in the order of their numbers.
    static const QStringList &inputOutputTypeNames();

    //! The channel type with that name, compared exactly. UNUSED, with ok false, for any other text.
    static InputOutputType toInputOutputType(QStringView word, bool *ok = nullptr);

    //! The display texts of the BACnet object types, by their names in ASHRAE 135 ("analog-input").
    static const QMap<QString, QString> &getBacnetObjectTypeNames();
    //! The names of the object types by number.
    static const QMap<int, QString> &getBACnetObjIDToNames();
    //! The same two tables for the properties of objects ("present-value").
    static const QMap<QString, QString> &getBACnetPropertyTypeNames();
    static const QMap<int, QString> &getBACnetPropIDToNames();
    //! The display texts of the data types ("real"), by name.
    static const QMap<QString, QString> &getBACnetDataTypeNames();

    //! The enumeration of this class with that name ("InputOutputType"); invalid for any other name.
    static QMetaEnum metaEnum(const QString &name);
};

} // namespace Halvane::Corvex::Common
