// SPDX-License-Identifier: MIT
#include "corvex/core/DesignerFactory.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/TableFactory.h"
#include "corvex/core/private/IconMaker.h"
#include "corvex/core/private/ViewMaker.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QJsonObject>
#include <QPainter>
#include <QPluginLoader>
#include <QPointer>

#include <atomic>
#include <exception>
#include <optional>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QPointer<DesignerFactory> &theInstance()
{
    static QPointer<DesignerFactory> instance;
    return instance;
}

std::atomic<int> &theGeneration()
{
    static std::atomic<int> generation = 0;
    return generation;
}

//! The entry of the object's class, or of its nearest base class with an entry.
QString nearestEntry(const QHash<QString, QString> &entries, const DesignerObject *object)
{
    const QStringList classNames = object->classNames();
    for (auto name = classNames.crbegin(); name != classNames.crend(); ++name) {
        if (const auto entry = entries.constFind(*name); entry != entries.cend()) {
            return *entry;
        }
    }
    return {};
}

QStringList sortedKeys(const QHash<QString, IDesignerFactory *> &registry)
{
    QStringList keys = registry.keys();
    keys.sort();
    return keys;
}

constexpr int iconSize = 16;

//! The first letter of the class in a box, for a class without an icon.
QPixmap drawLetter(const QString &className)
{
    QPixmap icon(iconSize, iconSize);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(Qt::gray).darker(130));
    painter.drawRoundedRect(icon.rect(), 3, 3);
    painter.setPen(Qt::white);
    painter.drawText(icon.rect(), Qt::AlignCenter, className.left(1));
    return icon;
}

QPixmap drawIcon(const QStringList &classNames)
{
    const QPixmap icon = IconMaker::make ? IconMaker::make(classNames) : QPixmap();
    return icon.isNull() ? drawLetter(classNames.constLast()) : icon;
}

//! The result of \a call, which runs code of a plug-in. Library code does not throw, but a plug-in may: then
//! the result is null, \a failure gives the reason, and the program continues.
template<class Call>
auto guarded(const Call &call, QString &failure) -> decltype(call())
{
    try {
        return call();
    } catch (const std::exception &exception) {
        failure = u"An exception was thrown: %1"_s.arg(QString::fromLocal8Bit(exception.what()));
    } catch (...) {
        failure = u"An exception of an unknown kind was thrown."_s;
    }
    return {};
}

//! The object that \a call creates; warns if it creates none.
template<class Call>
auto make(const char *kind, const QString &name, const Call &call) -> decltype(call())
{
    QString failure;
    auto *made = guarded(call, failure);
    if (!made) {
        qWarning("Failed to create %s \"%s\".", kind, qUtf8Printable(name));
    }
    if (!failure.isEmpty()) {
        qWarning("%s", qUtf8Printable(failure));
    }
    return made;
}

} // namespace

DesignerFactory::DesignerFactory(QObject *parent)
    : QObject(parent)
{
    qRegisterMetaType<SharedProperty>("Halvane::Corvex::Designer::SharedProperty");
    theInstance() = this;
}

DesignerFactory::~DesignerFactory()
{
    ++theGeneration();
}

DesignerFactory *DesignerFactory::instance()
{
    return theInstance();
}

//! All names of a factory. They are read once; later changes are ignored.
struct DesignerFactory::Names
{
    explicit Names(const IDesignerFactory &factory)
        : classNames(factory.objectNames())
        , baseNames(factory.classBaseNames())
        , displayNames(factory.classDisplayNames())
        , objects(factory.creatableNames())
        , graphicsItems(factory.graphicsItemNames())
        , editors(factory.editorNames())
        , templates(factory.templateNames())
        , wizards(factory.wizardNames())
    { }

    QStringList classNames;
    QMap<QString, QString> baseNames;
    QMap<QString, QString> displayNames;
    QStringList objects;
    QStringList graphicsItems;
    QStringList editors;
    QStringList templates;
    QStringList wizards;
};

bool DesignerFactory::areFree(const Names &names) const
{
    const auto &[classNames, baseNames, displayNames, objects, graphicsItems, editors, templates, wizards] =
        names;
    if (baseNames.size() != classNames.size() || displayNames.size() != classNames.size()) {
        qWarning("Mismatch items (class: %d, base: %d, display: %d)", int(classNames.size()),
                 int(baseNames.size()), int(displayNames.size()));
        return false;
    }
    QSet<QString> newBaseNames;
    QSet<QString> newDisplayNames;
    for (const QString &className : classNames) {
        const QString baseName = baseNames.value(className);
        const QString displayName = displayNames.value(className);
        const bool isTaken = m_baseNames.contains(className) || m_classesByBase.contains(baseName)
                             || m_classesByDisplay.contains(displayName) || newBaseNames.contains(baseName)
                             || newDisplayNames.contains(displayName);
        if (isTaken) {
            qWarning("Class name '%s', base name '%s', display name '%s' already exist.",
                     qUtf8Printable(className), qUtf8Printable(baseName), qUtf8Printable(displayName));
            return false;
        }
        newBaseNames.insert(baseName);
        newDisplayNames.insert(displayName);
    }
    return true;
}

bool DesignerFactory::registerFactory(IDesignerFactory *factory)
{
    QString failure;
    const auto ask = [factory] { return factory ? std::make_optional<Names>(*factory) : std::nullopt; };
    const std::optional<Names> names = guarded(ask, failure);
    if (!failure.isEmpty()) {
        qWarning("%s", qUtf8Printable(failure));
    }
    if (!names || !areFree(*names)) {
        return false;
    }
    for (const QString &className : names->classNames) {
        const QString baseName = names->baseNames.value(className);
        const QString displayName = names->displayNames.value(className);
        m_baseNames.insert(className, baseName);
        m_classesByBase.insert(baseName, className);
        m_displayNames.insert(className, displayName);
        m_classesByDisplay.insert(displayName, className);
    }
    const struct
    {
        const char *kind;
        const QStringList &names;
        Registry &registry;
    } lists[] = {
        {"object", names->objects, m_objects},
        {"graphics item", names->graphicsItems, m_graphicsItems},
        {"property editor", names->editors, m_editors},
        {"template", names->templates, m_templates},
        {"wizard", names->wizards, m_wizards},
    };
    for (const auto &[kind, listed, registry] : lists) {
        for (const QString &name : listed) {
            if (name.isEmpty() || registry.contains(name)) {
                qWarning("Unrecognized %s \"%s\".", kind, qUtf8Printable(name));
            } else {
                registry.insert(name, factory);
            }
        }
    }
    readClassRows(factory);
    ++theGeneration();
    return true;
}

void DesignerFactory::readClassRows(const IDesignerFactory *factory)
{
    const auto *tables = dynamic_cast<const TableFactory *>(factory);
    for (const ClassRow &row : tables ? tables->classRows() : std::span<const ClassRow>()) {
        const QString className = QString::fromUtf8(row.className);
        if (row.screenList) {
            m_screenLists.insert(className, QString::fromUtf8(row.screenList));
        }
        if (row.preview) {
            m_previews.insert(className, QString::fromUtf8(row.preview));
        }
        if (row.description) {
            m_descriptions.insert(className,
                                  Common::LocalizationHelper::coreString(QString::fromUtf8(row.description)));
        }
        if (row.sample) {
            m_samples.insert(className, row.sample);
        }
    }
}

void DesignerFactory::loadPlugins(const QString &folder)
{
#ifdef Q_OS_WIN
    const QString pattern = u"*.dll"_s;
#else
    const QString pattern = u"*.so"_s;
#endif
    const QDir directory(folder);
    for (const QString &file : directory.entryList({pattern}, QDir::Files, QDir::Name)) {
        loadPlugin(directory.absoluteFilePath(file));
    }
}

void DesignerFactory::pluginFailed(const QString &message)
{
    qWarning("%s", qUtf8Printable(message));
    m_pluginErrors.append(message);
}

void DesignerFactory::loadPlugin(const QString &file)
{
    QPluginLoader loader(file);
    // Read from the file, because loading a library runs its code.
    const QJsonObject metaData = loader.metaData();
    const QString interface = metaData.value("IID"_L1).toString();
    if (!metaData.isEmpty() && interface != QLatin1StringView(qobject_interface_iid<IDesignerFactory *>())) {
        pluginFailed(u"Failed to load plugin from %1"_s.arg(file));
        qWarning("It is a plugin for \"%s\", and not for \"%s\".", qUtf8Printable(interface),
                 qobject_interface_iid<IDesignerFactory *>());
        return;
    }
    QString failure;
    QObject *plugin = guarded([&loader] { return loader.instance(); }, failure);
    const QString className = metaData.value("className"_L1).toString();
    if (!failure.isEmpty()) {
        // Objects created by the constructor may still need the library, so keep it loaded.
        pluginFailed(u"Failed to load plugin %1 from %2"_s.arg(className, file));
        qWarning("%s", qUtf8Printable(failure));
        return;
    }
    if (!plugin) {
        pluginFailed(u"Failed to load plugin from %1"_s.arg(file));
        qWarning("%s", qUtf8Printable(loader.errorString()));
        return;
    }
    auto *factory = qobject_cast<IDesignerFactory *>(plugin);
    plugin->setParent(this);
    if (!factory || !registerFactory(factory)) {
        pluginFailed(u"Failed to load plugin %1 from %2"_s.arg(className, file));
        plugin->setParent(nullptr);
        loader.unload();
    }
}

DesignerObject *DesignerFactory::createObject(const QString &className, QObject *parent) const
{
    return makeObject(className, parent ? parent : QCoreApplication::instance());
}

DesignerObject *DesignerFactory::createUnowned(const QString &className) const
{
    return makeObject(className, nullptr);
}

DesignerObject *DesignerFactory::createSample(const QString &className) const
{
    if (canCreateObject(className)) {
        return makeObject(className, nullptr);
    }
    const auto sample = m_samples.value(className);
    return sample ? make("sample", className,
                         [sample]() -> DesignerObject * {
                             std::unique_ptr<DesignerObject> object(sample(nullptr));
                             return object->initialize() ? object.release() : nullptr;
                         })
                  : nullptr;
}

DesignerObject *DesignerFactory::makeObject(const QString &className, QObject *parent) const
{
    IDesignerFactory *factory = m_objects.value(className);
    return make("designer object", className, [&]() -> DesignerObject * {
        std::unique_ptr<DesignerObject> object(factory ? factory->createObject(className, parent) : nullptr);
        return object && object->initialize() ? object.release() : nullptr;
    });
}

GraphicsItem *DesignerFactory::createGraphicsItem(const QString &className, DesignerObject *object) const
{
    IDesignerFactory *factory = object ? m_graphicsItems.value(className) : nullptr;
    return make("graphics item", className,
                [&] { return factory ? factory->createGraphicsItem(className, object) : nullptr; });
}

ObjectView *DesignerFactory::createObjectView(const QString &className, DesignerObject *object)
{
    return ViewMaker::make ? ViewMaker::make(className, object) : nullptr;
}

PropertyEditor *DesignerFactory::createEditor(const QString &editorName, QWidget *parent) const
{
    IDesignerFactory *factory = m_editors.value(editorName);
    return make("property editor", editorName,
                [&] { return factory ? factory->createEditor(editorName, parent) : nullptr; });
}

Template *DesignerFactory::createTemplate(const QString &className, QObject *parent) const
{
    IDesignerFactory *factory = m_templates.value(className);
    return make("template", className,
                [&] { return factory ? factory->createTemplate(className, parent) : nullptr; });
}

Wizard *DesignerFactory::createWizard(const QString &wizardName) const
{
    IDesignerFactory *factory = m_wizards.value(wizardName);
    return make("wizard", wizardName, [&] { return factory ? factory->createWizard(wizardName) : nullptr; });
}

QStringList DesignerFactory::objectNames() const
{
    return m_baseNames.keys();
}

QStringList DesignerFactory::creatableNames() const
{
    return sortedKeys(m_objects);
}

QStringList DesignerFactory::graphicsItemNames() const
{
    return sortedKeys(m_graphicsItems);
}

QStringList DesignerFactory::editorNames() const
{
    return sortedKeys(m_editors);
}

QStringList DesignerFactory::templateNames() const
{
    return sortedKeys(m_templates);
}

QStringList DesignerFactory::wizardNames() const
{
    return sortedKeys(m_wizards);
}

QString DesignerFactory::baseNameOf(const DesignerObject *object)
{
    const QString className = object->className();
    return instance() ? instance()->m_baseNames.value(className, className) : className;
}

QString DesignerFactory::displayNameOf(const DesignerObject *object)
{
    const QString className = object->className();
    return instance() ? instance()->m_displayNames.value(className, className) : className;
}

QString DesignerFactory::screenListOf(const DesignerObject *element)
{
    return instance() ? nearestEntry(instance()->m_screenLists, element) : QString();
}

QString DesignerFactory::previewOf(const DesignerObject *element)
{
    return instance() ? nearestEntry(instance()->m_previews, element) : QString();
}

int DesignerFactory::generation()
{
    return theGeneration();
}

void DesignerFactory::setFontFamilies(const QStringList &families)
{
    if (families != m_fontFamilies) {
        m_fontFamilies = families;
        emit fontsChanged();
    }
}

QPixmap DesignerFactory::getObjectIcon(const QString &className) const
{
    return qGuiApp ? drawIcon({className}) : QPixmap();
}

QPixmap DesignerFactory::getObjectIcon(const DesignerObject *object) const
{
    return object && qGuiApp ? drawIcon(object->classNames()) : QPixmap();
}

} // namespace Halvane::Corvex::Designer
