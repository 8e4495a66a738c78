// SPDX-License-Identifier: MIT
#include "corvex/common/files/FileHelper.h"
#include "corvex/values/text/ValueConversion.h"

#include "terminal/Call.h"
#include "terminal/JsonWriter.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

#include <QColor>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRectF>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

//! A real number that is recognizable as one.
QString realText(const QString &digits)
{
    const bool looksWhole =
        std::ranges::all_of(digits, [](QChar digit) { return digit == u'-' || digit.isDigit(); });
    return looksWhole ? digits + u".0"_s : digits;
}

QString rectangleText(const QRectF &rectangle)
{
    return u"%1 %2"_s.arg(ValueConversion::toString(rectangle.topLeft()),
                          ValueConversion::toString(rectangle.size()));
}

//! A value that is not a text, number, boolean or container.
QString otherText(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QByteArray:
        return QString::fromLatin1(value.toByteArray().toHex());
    case QMetaType::QColor:
        return value.value<QColor>().name(QColor::HexArgb).toUpper();
    case QMetaType::QPoint:
    case QMetaType::QPointF:
        return ValueConversion::toString(value.toPointF());
    case QMetaType::QSize:
    case QMetaType::QSizeF:
        return ValueConversion::toString(value.toSizeF());
    case QMetaType::QRect:
    case QMetaType::QRectF:
        return rectangleText(value.toRectF());
    case QMetaType::QDateTime:
        return value.toDateTime().toString(Qt::ISODateWithMs);
    default:
        return value.toString();
    }
}

QString leafText(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return u"(none)"_s;
    case QMetaType::QString:
        return u"\"%1\""_s.arg(Terminal::oneLine(value.toString()).replace(u'"', u"\\\""_s));
    case QMetaType::Float:
        return realText(QString::number(value.toFloat(), 'g', QLocale::FloatingPointShortest));
    case QMetaType::Double:
        return realText(QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest));
    default:
        return otherText(value);
    }
}

bool isMapping(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantMap || value.typeId() == QMetaType::QVariantHash;
}

//! Calls \a entry(key, value) for each entry of a container. Returns whether the value is a container.
template<class Entry>
bool forEachEntry(const QVariant &value, Entry &&entry)
{
    if (isMapping(value)) {
        const QVariantMap map = value.toMap();
        for (auto item = map.cbegin(); item != map.cend(); ++item) {
            entry(item.key(), item.value());
        }
        return true;
    }
    if (value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList) {
        const QVariantList list = value.toList();
        for (qsizetype i = 0; i < list.size(); ++i) {
            entry(QString::number(i), list.at(i));
        }
        return true;
    }
    return false;
}

void printText(const QString &key, const QVariant &value, int depth, Terminal &terminal)
{
    const QString start = QString(2 * depth, u' ') + Terminal::oneLine(key) + u':';
    bool isEmpty = true;
    const bool isContainer = forEachEntry(value, [&](const QString &name, const QVariant &item) {
        if (std::exchange(isEmpty, false)) {
            terminal.print(start);
        }
        printText(name, item, depth + 1, terminal);
    });
    if (isContainer && isEmpty) {
        terminal.print(start + u" (empty)"_s);
    } else if (!isContainer) {
        terminal.print(start + u' ' + leafText(value));
    }
}

void writeLeaf(const QVariant &value, JsonWriter &json)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return json.nothing();
    case QMetaType::Bool:
        return json.value(value.toBool());
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return json.value(value.toLongLong());
    case QMetaType::Float:
        return json.value(value.toFloat());
    case QMetaType::Double:
        return json.value(value.toDouble());
    default:
        return json.value(otherText(value));
    }
}

void writeJson(const QVariant &value, JsonWriter &json)
{
    const bool isList = value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList;
    const bool isMap = isMapping(value);
    if (!isList && !isMap) {
        writeLeaf(value, json);
        return;
    }
    isList ? json.beginArray() : json.beginObject();
    forEachEntry(value, [&](const QString &key, const QVariant &item) {
        if (isMap) {
            json.name(key);
        }
        writeJson(item, json);
    });
    isList ? json.endArray() : json.endObject();
}

void print(const QVariant &value, const Call &call)
{
    if (call.asJson()) {
        const bool isMap = isMapping(value);
        JsonWriter &json = call.json();
        if (!isMap) {
            json.beginObject();
            json.name("value"_L1);
        }
        writeJson(value, json);
        if (!isMap) {
            json.endObject();
        }
        return;
    }
    const bool isContainer = forEachEntry(
        value, [&](const QString &key, const QVariant &item) { printText(key, item, 0, call.terminal()); });
    if (!isContainer) {
        call.terminal().print(leafText(value));
    }
}

ExitCode run(const Call &call)
{
    const QString path = call.argument(0);
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return call.failed(
            u"Cannot read \"%1\". Name a .kdrc file from a folder that \"corvex build\" created."_s.arg(
                path));
    }
    bool isGood = false;
    const QVariant value = Common::FileHelper::fileToVariant(path, &isGood);
    if (!isGood) {
        return call.failed(
            u"\"%1\" is not a configuration file, or it is damaged or incomplete. \"corvex build\" "
            "creates it again."_s.arg(path));
    }
    print(value, call);
    return ExitCode::Done;
}

} // namespace

const Verb configDumpVerb{
    .name = "config-dump",
    .arguments = "FILE.kdrc",
    .summary = "show a configuration file of a build",
    .details =
        [] {
            return uR"(Prints the entries of a file config.kdrc, canConfig.kdrc or bacConfig.kdrc, one per line. Texts
are in quotes, real numbers have a decimal point, and (none) means that the project gives no
value. In JSON, (none) is null and colors are texts.)"_s;
        },
    .example = "corvex config-dump out/PumpStation/project/config.kdrc",
    .run = run,
};

} // namespace Halvane::Corvex::Tool
