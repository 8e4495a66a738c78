// SPDX-License-Identifier: MIT
#include "corvex/common/EnumHelper.h"

#include "corvex/common/BACnetTables.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

namespace {

QStringList keysOf(const QMetaEnum &enumeration)
{
    QStringList keys;
    keys.reserve(enumeration.keyCount());
    for (int i = 0; i < enumeration.keyCount(); ++i) {
        keys.append(QString::fromLatin1(enumeration.key(i)));
    }
    return keys;
}

QMap<QString, QString> textsOf(const QList<BACnetTables::Entry> &entries)
{
    QMap<QString, QString> texts;
    for (const BACnetTables::Entry &entry : entries) {
        texts.insert(entry.name, BACnetTables::displayText(entry.name));
    }
    return texts;
}

QMap<int, QString> namesOf(const QList<BACnetTables::Entry> &entries)
{
    QMap<int, QString> names;
    for (const BACnetTables::Entry &entry : entries) {
        names.insert(entry.number, entry.name);
    }
    return names;
}

} // namespace

const QMap<QString, QString> &EnumHelper::getVariableTypeNames()
{
    static const QMap<QString, QString> names{
        {u"NoVariable"_s, u"None"_s},         {u"BooleanVariable"_s, u"Boolean"_s},
        {u"IntegerVariable"_s, u"Integer"_s}, {u"FloatVariable"_s, u"Floating Number"_s},
        {u"StringVariable"_s, u"String"_s},   {u"ColorVariable"_s, u"Color"_s},
        {u"FtpVariable"_s, u"FTP"_s},         {u"LogVariable"_s, u"Log"_s},
        {u"DeviceVariable"_s, u"Device"_s},   {u"NumberVariable"_s, u"Number"_s},
    };
    return names;
}

const QMap<QString, QString> &EnumHelper::getVariableAccessModeNames()
{
    static const QMap<QString, QString> names{
        {u"NoAccess"_s, u"None"_s},
        {u"ReadOnly"_s, u"Read Only"_s},
        {u"WriteOnly"_s, u"Write Only"_s},
        {u"ReadWrite"_s, u"Read and Write"_s},
    };
    return names;
}

const QStringList &EnumHelper::inputOutputTypeNames()
{
    static const QStringList names = keysOf(QMetaEnum::fromType<InputOutputType>());
    return names;
}

EnumHelper::InputOutputType EnumHelper::toInputOutputType(QStringView word, bool *ok)
{
    const qsizetype number = inputOutputTypeNames().indexOf(word);
    if (ok) {
        *ok = number >= 0;
    }
    return number >= 0 ? static_cast<InputOutputType>(number) : UNUSED;
}

const QMap<QString, QString> &EnumHelper::getBacnetObjectTypeNames()
{
    static const QMap<QString, QString> texts = textsOf(BACnetTables::objectTypes());
    return texts;
}

const QMap<int, QString> &EnumHelper::getBACnetObjIDToNames()
{
    static const QMap<int, QString> names = namesOf(BACnetTables::objectTypes());
    return names;
}

const QMap<QString, QString> &EnumHelper::getBACnetPropertyTypeNames()
{
    static const QMap<QString, QString> texts = textsOf(BACnetTables::properties());
    return texts;
}

const QMap<int, QString> &EnumHelper::getBACnetPropIDToNames()
{
    static const QMap<int, QString> names = namesOf(BACnetTables::properties());
    return names;
}

const QMap<QString, QString> &EnumHelper::getBACnetDataTypeNames()
{
    static const QMap<QString, QString> texts = textsOf(BACnetTables::dataTypes());
    return texts;
}

QMetaEnum EnumHelper::metaEnum(const QString &name)
{
    const QMetaObject &meta = staticMetaObject;
    return meta.enumerator(meta.indexOfEnumerator(name.toLatin1().constData()));
}

} // namespace Halvane::Corvex::Common
