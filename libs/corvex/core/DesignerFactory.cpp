// SPDX-License-Identifier: MIT
#include "corvex/core/DesignerFactory.h"

#include "corvex/core/DesignerObject.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QPluginLoader>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QPointer<DesignerFactory> &theInstance()
{
    static QPointer<DesignerFactory> instance;
    return instance;
}

QStringList sortedKeys(const QHash<QString, IDesignerFactory *> &registry)
{
    QStringList keys = registry.keys();
    keys.sort();
    return keys;
}

//! The kinds of objects with the colour of their icons, the most special first.
struct KindColor
{
    const char *className;
    QRgb color;
};
constexpr KindColor kindColors[] = {
    {"ProjectVariable", 0xFF2E7D32}, {"HardwareElement", 0xFFB71C1C}, {"FunctionElement", 0xFF6A1B9A},
    {"FilterElement", 0xFF546E7A},   {"BasicAction", 0xFFEF6C00},     {"VisualElement", 0xFF1565C0},
    {"Screen", 0xFF00838F},          {"ImageResource", 0xFFAD1457},   {"Project", 0xFF37474F},
};
constexpr QRgb otherKindColor = 0xFF757575;
constexpr int iconSize = 16;

QPixmap drawIcon(const QString &className, QRgb color)
{
    QPixmap icon(iconSize, iconSize);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgba(color));
    painter.drawRoundedRect(icon.rect(), 3, 3);
    painter.setPen(Qt::white);
    painter.drawText(icon.rect(), Qt::AlignCenter, className.left(1));
    return icon;
}

//! \a made, after a warning when it is null.
template<class Made>
Made *warnedOf(const char *kind, const QString &name, Made *made)
{
    if (!made) {
        qWarning("Failed to create %s \"%s\".", kind, qUtf8Printable(name));
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

DesignerFactory::~DesignerFactory() = default;

DesignerFactory *DesignerFactory::instance()
{
    return theInstance();
}

bool DesignerFactory::namesAreFree(const IDesignerFactory &factory) const
{
    const QMap<QString, QString> baseNames = factory.classBaseNames();
    const QMap<QString, QString> displayNames = factory.classDisplayNames();
    const QStringList classNames = factory.objectNames();
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
    if (!factory || !namesAreFree(*factory)) {
        return false;
    }
    const QMap<QString, QString> baseNames = factory->classBaseNames();
    const QMap<QString, QString> displayNames = factory->classDisplayNames();
    for (const QString &className : factory->objectNames()) {
        m_baseNames.insert(className, baseNames.value(className));
        m_classesByBase.insert(baseNames.value(className), className);
        m_displayNames.insert(className, displayNames.value(className));
        m_classesByDisplay.insert(displayNames.value(className), className);
    }
    const struct
    {
        const char *kind;
        QStringList names;
        Registry &registry;
    } lists[] = {
        {"object", factory->creatableNames(), m_objects},
        {"graphics item", factory->graphicsItemNames(), m_graphicsItems},
        {"property editor", factory->editorNames(), m_editors},
        {"template", factory->templateNames(), m_templates},
        {"wizard", factory->wizardNames(), m_wizards},
    };
    for (const auto &[kind, names, registry] : lists) {
        for (const QString &name : names) {
            if (name.isEmpty() || registry.contains(name)) {
                qWarning("Unrecognized %s \"%s\".", kind, qUtf8Printable(name));
            } else {
                registry.insert(name, factory);
            }
        }
    }
    return true;
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
    QObject *plugin = loader.instance();
    if (!plugin) {
        pluginFailed(u"Failed to load plugin from %1"_s.arg(file));
        qWarning("%s", qUtf8Printable(loader.errorString()));
        return;
    }
    auto *factory = qobject_cast<IDesignerFactory *>(plugin);
    plugin->setParent(this);
    if (!factory || !registerFactory(factory)) {
        pluginFailed(u"Failed to load plugin %1 from %2"_s.arg(
            QString::fromLatin1(plugin->metaObject()->className()), file));
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

DesignerObject *DesignerFactory::makeObject(const QString &className, QObject *parent) const
{
    IDesignerFactory *factory = m_objects.value(className);
    DesignerObject *object = factory ? factory->createObject(className, parent) : nullptr;
    if (object && !object->initialize()) {
        object->setParent(nullptr);
        delete std::exchange(object, nullptr);
    }
    return warnedOf("designer object", className, object);
}

GraphicsItem *DesignerFactory::createGraphicsItem(const QString &className, DesignerObject *object) const
{
    IDesignerFactory *factory = object ? m_graphicsItems.value(className) : nullptr;
    return warnedOf("graphics item", className,
                    factory ? factory->createGraphicsItem(className, object) : nullptr);
}

PropertyEditor *DesignerFactory::createEditor(const QString &editorName, QWidget *parent) const
{
    IDesignerFactory *factory = m_editors.value(editorName);
    return warnedOf("property editor", editorName,
                    factory ? factory->createEditor(editorName, parent) : nullptr);
}

Template *DesignerFactory::createTemplate(const QString &className, QObject *parent) const
{
    IDesignerFactory *factory = m_templates.value(className);
    return warnedOf("template", className, factory ? factory->createTemplate(className, parent) : nullptr);
}

Wizard *DesignerFactory::createWizard(const QString &wizardName) const
{
    IDesignerFactory *factory = m_wizards.value(wizardName);
    return warnedOf("wizard", wizardName, factory ? factory->createWizard(wizardName) : nullptr);
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

void DesignerFactory::setFontFamilies(const QStringList &families)
{
    if (families != m_fontFamilies) {
        m_fontFamilies = families;
        emit fontsChanged();
    }
}

QPixmap DesignerFactory::getObjectIcon(const QString &className) const
{
    return qGuiApp ? drawIcon(className, otherKindColor) : QPixmap();
}

QPixmap DesignerFactory::getObjectIcon(const DesignerObject *object) const
{
    if (!object || !qGuiApp) {
        return {};
    }
    const auto kind =
        std::find_if(std::begin(kindColors), std::end(kindColors), [object](const KindColor &entry) {
            return object->isKindOfClass(QString::fromLatin1(entry.className));
        });
    return drawIcon(object->className(), kind == std::end(kindColors) ? otherKindColor : kind->color);
}

} // namespace Halvane::Corvex::Designer
