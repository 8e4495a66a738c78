// SPDX-License-Identifier: MIT
#include "corvex/preview/StandIns.h"

#include "corvex/common/files/TemporaryFolder.h"
#include "corvex/preview/BuildFolder.h"
#include "corvex/preview/TypeDocument.h"
#include "corvex/preview/elements/Buttons.h"
#include "corvex/preview/elements/Channels.h"
#include "corvex/preview/elements/DataLogging.h"
#include "corvex/preview/elements/Logic.h"
#include "corvex/preview/elements/PlainElement.h"

#include <QDir>
#include <QFile>
#include <QMetaMethod>
#include <QQmlComponent>
#include <QQmlEngine>
#include <qqml.h>

using namespace Qt::StringLiterals;

//! Must be in the global namespace to access the resources of a static library.
static void initializeResources()
{
    Q_INIT_RESOURCE(preview);
}

namespace Halvane::Corvex::Preview {

namespace {

constexpr char module[] = "RuntimeObjects";
constexpr int moduleVersion = 2;
const QString screenClass = u"Screen"_s;

//! Classes implemented in QML.
constexpr const char *drawn[] = {"Screen", "Rectangle", "Text", "Image", "GroupElement"};

constexpr const char *plain[] = {"BACnetService",    "CANBusDevice",   "EthernetPort",
                                 "I2CBus",           "ModbusCommands", "RS485COMPort",
                                 "SPICommunication", "SPIPort",        "SerialCOMPort"};

//! The classes of the device. A class implemented in QML has no meta object until it is loaded.
QHash<QString, const QMetaObject *> &knownClasses()
{
    static QHash<QString, const QMetaObject *> classes;
    return classes;
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
    knownClasses().insert(QString::fromLatin1(name), &Class::staticMetaObject);
}

QUrl documentOf(const QString &className)
{
    return QUrl(u"qrc:/corvex/preview/qml/%1.qml"_s.arg(className));
}

void addFile(const QUrl &file, const QString &name)
{
    qmlRegisterType(file, module, moduleVersion, 0, qPrintable(name));
}

//! The properties that are set of each class that nothing is known of.
QMap<QString, QSet<QString>> unknownClasses(const BuildFolder &build)
{
    QMap<QString, QSet<QString>> classes;
    for (const BuildFolder::ScreenFile &screen : build.screens()) {
        for (const QmlOutline::Object &object : screen.outline.objects()) {
            if (!knownClasses().contains(object.className)) {
                QSet<QString> &properties = classes[object.className];
                properties.unite(QSet<QString>(object.properties.cbegin(), object.properties.cend()));
            }
        }
    }
    return classes;
}

//! The lists of screens in the build that \a document, the document of all screens, does not declare.
QSet<QString> unknownLists(const BuildFolder &build, const QString &document)
{
    QSet<QString> lists;
    for (const BuildFolder::ScreenFile &screen : build.screens()) {
        for (const QmlOutline::Object &object : screen.outline.objects()) {
            if (object.className == screenClass) {
                lists.unite(QSet<QString>(object.lists.cbegin(), object.lists.cend()));
            }
        }
    }
    lists.removeIf([&document](const QString &list) {
        return document.contains(u"property list<QtObject> %1\n"_s.arg(list));
    });
    return lists;
}

//! The names of the properties and handlers of a class.
QSet<QString> membersOf(const QMetaObject &meta)
{
    QSet<QString> names;
    for (int i = 0; i < meta.propertyCount(); ++i) {
        names.insert(QString::fromUtf8(meta.property(i).name()));
    }
    for (int i = 0; i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal) {
            const QString name = QString::fromUtf8(meta.method(i).name());
            names.insert(u"on"_s + name.at(0).toUpper() + name.sliced(1));
        }
    }
    return names;
}

//! The same by the name of a class. Only an engine knows the members that a document adds to its type.
QSet<QString> membersOf(const QString &className)
{
    if (const QMetaObject *meta = knownClasses().value(className)) {
        return membersOf(*meta);
    }
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import RuntimeObjects 2.0\n" + className.toUtf8() + " {}", QUrl());
    const std::unique_ptr<QObject> model(component.create());
    return model ? membersOf(*model->metaObject()) : QSet<QString>();
}

QUrl fileOf(const QString &className)
{
    return QUrl::fromLocalFile(u"%1/%2.qml"_s.arg(folderOfBoxes(), className));
}

bool writeDocument(const QString &className, const QString &text)
{
    // The engine reads types only from files.
    if (folderOfBoxes().isEmpty()) {
        static const Common::TemporaryFolder folder(u"corvex-classes"_s);
        folderOfBoxes() = QDir::cleanPath(folder.filePath(QString()));
    }
    QDir().mkpath(folderOfBoxes());
    QFile file(fileOf(className).toLocalFile());
    const QByteArray bytes = text.toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
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
        addFile(documentOf(QString::fromLatin1(name)), QString::fromLatin1(name));
        knownClasses().insert(QString::fromLatin1(name), nullptr);
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
    static QSet<QString> registered;
    QStringList boxes;
    for (const auto &[name, properties] : unknownClasses(build).asKeyValueRange()) {
        const QString base = build.previews().value(name);
        const bool isBox = !knownClasses().contains(base) || base == screenClass;
        if (isBox) {
            boxes.append(name);
        }
        if (writeDocument(name, isBox ? TypeDocument::box(name, properties)
                                      : TypeDocument::derived(base, membersOf(base), properties))
            && !registered.contains(name)) {
            registered.insert(name);
            addFile(fileOf(name), name);
        }
    }
    return boxes;
}

QUrl StandIns::screenDocument()
{
    return documentOf(screenClass);
}

QUrl StandIns::screenDocumentFor(const BuildFolder &build)
{
    QFile file(u':' + screenDocument().path());
    const QString text = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    const QSet<QString> lists = unknownLists(build, text);
    return !lists.isEmpty() && writeDocument(screenClass, TypeDocument::screen(text, lists))
               ? fileOf(screenClass)
               : screenDocument();
}

} // namespace Halvane::Corvex::Preview
