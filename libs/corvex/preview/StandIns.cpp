// SPDX-License-Identifier: MIT
#include "corvex/preview/StandIns.h"

#include "corvex/common/files/TemporaryFolder.h"
#include "corvex/preview/BuildFolder.h"
#include "corvex/preview/elements/Buttons.h"
#include "corvex/preview/elements/Channels.h"
#include "corvex/preview/elements/DataLogging.h"
#include "corvex/preview/elements/Logic.h"
#include "corvex/preview/elements/PlainElement.h"

#include <QDir>
#include <QFile>
#include <QUrl>
#include <qqml.h>

using namespace Qt::StringLiterals;

//! In the global namespace, where the resources of a static library are.
static void initializeResources()
{
    Q_INIT_RESOURCE(preview);
}

namespace Halvane::Corvex::Preview {

namespace {

constexpr char module[] = "RuntimeObjects";
constexpr int moduleVersion = 2;

//! Classes that are written in QML.
constexpr const char *drawn[] = {"Screen", "Rectangle", "Text", "Image", "GroupElement"};

constexpr const char *plain[] = {"BACnetService",    "CANBusDevice",   "EthernetPort",
                                 "I2CBus",           "ModbusCommands", "RS485COMPort",
                                 "SPICommunication", "SPIPort",        "SerialCOMPort"};

QSet<QString> &knownClasses()
{
    static QSet<QString> names;
    return names;
}

QString &folderOfBoxes()
{
    static QString folder;
    return folder;
}

template<typename Class>
void add(const char *name)
{
    qmlRegisterType<Class>(module, moduleVersion, 0, name);
    knownClasses().insert(QString::fromLatin1(name));
}

void addFile(const QUrl &file, const QString &name)
{
    qmlRegisterType(file, module, moduleVersion, 0, qPrintable(name));
    knownClasses().insert(name);
}

//! Properties that a box has as any item has them.
bool isOfItem(const QString &property)
{
    static const QSet<QString> names{u"id"_s,       u"objectName"_s, u"x"_s,       u"y"_s,
                                     u"z"_s,        u"width"_s,      u"height"_s,  u"scale"_s,
                                     u"rotation"_s, u"opacity"_s,    u"visible"_s, u"transformOrigin"_s};
    return names.contains(property) || property.contains(u'.');
}

QString declaration(const QString &property)
{
    const bool isHandler = property.size() > 2 && property.startsWith("on"_L1) && property.at(2).isUpper();
    return isHandler ? u"    signal %1()\n"_s.arg(property.at(2).toLower() + property.mid(3))
                     : u"    property var %1\n"_s.arg(property);
}

/*! A dashed box would do; what counts is that it says whose place it keeps. Groups of properties
   ("font.bold") get an object that takes whatever is set. */
QString boxDocument(const QString &className, const QSet<QString> &properties)
{
    QString declarations;
    QMap<QString, QStringList> groups;
    for (const QString &property : properties) {
        if (property.at(0).isUpper()) {
            continue; // "Component.onCompleted", which every object has
        }
        if (property.contains(u'.')) {
            groups[property.section(u'.', 0, 0)].append(property.section(u'.', 1));
        } else if (!isOfItem(property)) {
            declarations += declaration(property);
        }
    }
    for (const auto &[group, members] : groups.asKeyValueRange()) {
        const QString type = u"Group_"_s + group;
        declarations += u"    component %1: QtObject {"_s.arg(type);
        for (const QString &member : members) {
            declarations += u" property var %1;"_s.arg(member);
        }
        declarations += u" }\n    readonly property %1 %2: %1 {}\n"_s.arg(type, group);
    }
    return u"import QtQuick 2.15 as Quick\nimport QtQml 2.15\n"
           "Quick.Rectangle {\n"
           "    id: box\n%2"
           "    implicitWidth: 120; implicitHeight: 48\n"
           "    color: \"#fff4d6\"; border.color: \"#a06a00\"; border.width: 1\n"
           "    Quick.Text {\n"
           "        anchors.fill: parent; anchors.margins: 2; text: \"%1\\n\" + box.objectName\n"
           "        textFormat: Quick.Text.PlainText\n"
           "        color: \"#5a3c00\"; font.pixelSize: 12; fontSizeMode: Quick.Text.Fit; minimumPixelSize: "
           "6\n"
           "        horizontalAlignment: Quick.Text.AlignHCenter; verticalAlignment: "
           "Quick.Text.AlignVCenter\n"
           "    }\n"
           "}\n"_s.arg(className, declarations);
}

//! The properties that are set of each class that nothing is known of.
QMap<QString, QSet<QString>> unknownClasses(const BuildFolder &build, const QSet<QString> &boxes)
{
    QMap<QString, QSet<QString>> classes;
    for (const BuildFolder::ScreenFile &screen : build.screens()) {
        for (const QmlOutline::Object &object : screen.outline.objects()) {
            if (!knownClasses().contains(object.className) || boxes.contains(object.className)) {
                QSet<QString> &properties = classes[object.className];
                properties.unite(QSet<QString>(object.properties.cbegin(), object.properties.cend()));
            }
        }
    }
    return classes;
}

} // namespace

void StandIns::registerModules()
{
    static bool isDone = false;
    if (std::exchange(isDone, true)) {
        return;
    }
    initializeResources();
    for (const char *name : {"QtQuick", "QtQml", "QtQml.Models"}) {
        qmlRegisterModule(name, 1, 1);
    }
    qmlRegisterModuleImport("QtQuick", 1, "QtQuick", 2, 0);
    for (const char *name : drawn) {
        addFile(QUrl(u"qrc:/corvex/preview/qml/%1.qml"_s.arg(QLatin1StringView(name))),
                QString::fromLatin1(name));
    }
    for (const char *name : plain) {
        add<PlainElement>(name);
    }
    add<Action>("Action");
    add<AlarmOutput>("AlarmOutput");
    add<AnalogInput>("AnalogInput");
    add<Button>("Button");
    add<CheckButton>("CheckButton");
    add<DataLogging>("DataLogging");
    add<DigitalInputOutput>("DigitalInputOutput");
    add<LogicBuilder>("LogicBuilder");
    add<NumberSpinner>("NumberSpinner");
    add<PropertyTrigger>("PropertyTrigger");
    add<PwmOutput>("PwmOutput");
    add<ScreenLoader>("ScreenLoader");
    add<ThermistorInput>("ThermistorInput");
    add<ThermocoupleInput>("ThermocoupleInput");
}

void StandIns::keepBoxesIn(const QString &folder)
{
    folderOfBoxes() = folder;
}

const QString &StandIns::boxFolder()
{
    return folderOfBoxes();
}

QStringList StandIns::addUnknownClasses(const BuildFolder &build)
{
    static QSet<QString> boxes;
    const QMap<QString, QSet<QString>> classes = unknownClasses(build, boxes);
    if (classes.isEmpty()) {
        return {};
    }
    // The engine reads types from files alone.
    if (boxFolder().isEmpty()) {
        static const Common::TemporaryFolder folder(u"corvex-classes"_s);
        keepBoxesIn(QDir::cleanPath(folder.filePath(QString())));
    }
    QDir().mkpath(boxFolder());
    for (const auto &[name, properties] : classes.asKeyValueRange()) {
        QFile file(u"%1/%2.qml"_s.arg(boxFolder(), name));
        if (!file.open(QIODevice::WriteOnly)) {
            continue;
        }
        file.write(boxDocument(name, properties).toUtf8());
        if (!boxes.contains(name)) {
            boxes.insert(name);
            addFile(QUrl::fromLocalFile(file.fileName()), name);
        }
    }
    return classes.keys();
}

} // namespace Halvane::Corvex::Preview
