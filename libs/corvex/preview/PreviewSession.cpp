// SPDX-License-Identifier: MIT
#include "corvex/preview/PreviewSession.h"

#include "corvex/preview/Bounds.h"
#include "corvex/preview/StandIns.h"
#include "corvex/preview/Viewer.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QQmlComponent>
#include <QQmlProperty>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

namespace {

const QString idPrefix = u"qml_"_s;
constexpr int mostScreenSide = 16384;

} // namespace

PreviewSession::PreviewSession(QObject *parent)
    : QObject(parent)
    , m_settings(m_state)
    , m_panel(std::make_unique<Panel>())
    , m_frame(std::make_unique<QQuickItem>())
{
    connect(&m_panel->variables(), &VariableStore::changed, this,
            [this](const Variable *variable) { emit valueChanged(variable->name()); });
    connect(this, &PreviewSession::screenChanged, this, &PreviewSession::reportProperty);
}

PreviewSession::~PreviewSession()
{
    removeScreen();
}

bool PreviewSession::keepStateIn(const QString &file, QString *error)
{
    m_isStateKept = m_state.open(file, error);
    return m_isStateKept;
}

bool PreviewSession::load(const QString &path, QString *error)
{
    StandIns::registerModules();
    if (!m_build.open(path, error)) {
        return false;
    }
    for (const auto &[file, message] : m_build.problems()) {
        m_panel->problems().report(file, message);
    }
    for (const QString &name : StandIns::addUnknownClasses(m_build)) {
        m_panel->problems().report(QString(),
                                   u"The preview does not support the class \"%1\" and shows boxes for its "
                                   "elements."_s.arg(name));
    }
    m_panel->guard().replace(StandIns::screenDocument(), StandIns::screenDocumentFor(m_build));
    m_panel->guard().allow({m_build.path(), StandIns::boxFolder()});
    connect(&m_panel->guard(), &BuildGuard::refused, this, [this](const QString &message) {
        m_panel->problems().report(m_screenId.mid(idPrefix.size()), message);
    });
    m_first = std::make_unique<QQmlComponent>(&m_panel->engine(), urlOf(m_build.defaultScreen()),
                                              QQmlComponent::Asynchronous);
    return true;
}

void PreviewSession::start()
{
    addVariables();
    restoreState();
    new Viewer(*m_panel, [this](const QString &file, int line) { return locate(file, line); });
    connect(&m_panel->engine(), &QQmlEngine::warnings, this, &PreviewSession::takeWarnings);
    // The requesting screen is still in its handler, and is deleted when another screen is shown.
    connect(
        m_panel.get(), &Panel::screenWanted, this,
        [this](const QString &id, const QString &element) {
            if (m_build.screens().contains(id)) {
                showScreen(id.sliced(idPrefix.size()));
            } else {
                m_panel->problems().report(element, u"There is no screen \"%1\"."_s.arg(id));
            }
        },
        Qt::QueuedConnection);
    showScreen(m_build.defaultScreen().sliced(idPrefix.size()));
    m_first.reset();
}

bool PreviewSession::open(const QString &path, QString *error)
{
    if (!load(path, error)) {
        return false;
    }
    start();
    return true;
}

void PreviewSession::addVariables()
{
    for (const auto &[name, value] : m_build.variables().asKeyValueRange()) {
        const QVariantMap record = value.toMap();
        // "Rectangle.savedLook": the elements of a class with saved settings.
        if (name.contains(u'.')) {
            m_settings.add(AutoSettings::pathsOf(record));
        } else {
            addVariable(name, record);
        }
    }
    for (const BuildFolder::ScreenFile &screen : m_build.screens()) {
        for (const QmlOutline::Object &object : screen.outline.objects()) {
            // A class of a plug-in may be shown as one.
            if (m_build.previews().value(object.className, object.className) == "DataLogging"_L1) {
                m_panel->variables().addLog(object.variable);
            }
        }
    }
}

void PreviewSession::addVariable(const QString &name, const QVariantMap &record)
{
    Variable *variable = m_panel->variables().add(name, Variable::Type(record.value(u"type"_s).toInt()),
                                                  record.value(u"persistent"_s).toBool());
    const QVariant value = record.value(u"value"_s);
    if (!variable->setValue(value)) {
        m_panel->problems().report(
            name, u"The value of the variable is not a %1."_s.arg(Variable::nameOf(variable->type())));
    }
}

void PreviewSession::restoreState()
{
    if (!m_isStateKept) {
        return;
    }
    connect(&m_state, &SavedState::failed, this,
            [this](const QString &message) { m_panel->problems().report(QString(), message); });
    for (Variable *variable : m_panel->variables().variables()) {
        // A saved value of another type is from an earlier build.
        if (variable->isPersistent() && m_state.contains(variable->name())) {
            variable->setValue(m_state.value(variable->name()));
        }
    }
    connect(&m_panel->variables(), &VariableStore::changed, this, [this](const Variable *variable) {
        if (variable->isPersistent()) {
            m_state.setValue(variable->name(), variable->text());
        }
    });
}

QString PreviewSession::locate(const QString &file, int line) const
{
    const QString name = QFileInfo(file).completeBaseName();
    const auto screen = m_build.screens().constFind(name);
    if (screen == m_build.screens().cend()) {
        return QFileInfo(file).fileName();
    }
    // An engine without free stack gives no line.
    const QString path = line < 1 ? name.sliced(idPrefix.size()) : screen->outline.pathAt(line);
    return path.isEmpty() ? u"%1.qml:%2"_s.arg(name, QString::number(line)) : path;
}

void PreviewSession::takeWarnings(const QList<QQmlError> &warnings)
{
    // While the engine is interrupted, expressions have no values.
    const bool isInterrupted = m_panel->engine().isInterrupted();
    for (const QQmlError &warning : warnings) {
        if (isInterrupted && warning.url().scheme() == "qrc"_L1) {
            continue;
        }
        m_panel->problems().report(locate(warning.url().path(), warning.line()), warning.description());
    }
}

QStringList PreviewSession::screens() const
{
    QStringList names;
    for (const QString &id : m_build.screens().keys()) {
        names.append(id.sliced(idPrefix.size()));
    }
    return names;
}

QString PreviewSession::screen() const
{
    return m_screen ? m_screenId.sliced(idPrefix.size()) : QString();
}

bool PreviewSession::showScreen(const QString &name)
{
    const QString id = idPrefix + name;
    if (!m_build.screens().contains(id)) {
        m_panel->problems().report(QString(), u"There is no screen \"%1\"."_s.arg(name));
        return false;
    }
    removeScreen();
    m_screenId = id;
    Bounds::enter(name);
    const ScriptScope scope(*m_panel, name);
    m_screen = makeScreen(id);
    if (m_screen) {
        m_settings.attach(name, [this](const QString &path) { return find(path); });
    }
    emit screenChanged();
    return m_screen;
}

QUrl PreviewSession::urlOf(const QString &id) const
{
    return QUrl::fromLocalFile(m_build.screens().value(id).path);
}

QQuickItem *PreviewSession::makeScreen(const QString &id)
{
    QQmlComponent component(&m_panel->engine(), urlOf(id));
    std::unique_ptr<QObject> object(
        component.isReady() ? component.beginCreate(m_panel->engine().rootContext()) : nullptr);
    takeWarnings(component.errors());
    auto *item = qobject_cast<QQuickItem *>(object.get());
    if (!item) {
        if (object) {
            component.completeCreate();
            m_panel->problems().report(id + u".qml"_s, u"This document does not define a screen."_s);
        }
        return nullptr;
    }
    object.release();
    item->setParent(m_frame.get());
    item->setParentItem(m_frame.get());
    component.completeCreate();
    const QSizeF most(mostScreenSide, mostScreenSide);
    m_frame->setSize(item->size().boundedTo(most));
    if (m_frame->size() != item->size()) {
        m_panel->report(
            item, u"The screen is larger than %1 pixels, so only a part is shown."_s.arg(mostScreenSide));
    }
    return item;
}

void PreviewSession::removeScreen()
{
    delete m_screen;
}

void PreviewSession::settle()
{
    const ScriptScope scope(*m_panel, m_screenId.mid(idPrefix.size()));
    m_panel->logic().flush();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    m_panel->logic().flush();
}

QObject *PreviewSession::find(QStringView path) const
{
    if (!m_screen) {
        return nullptr;
    }
    // Names are unique on a screen, so the screen and the groups in a path may be omitted.
    const QString name = path.sliced(path.lastIndexOf(u'.') + 1).toString();
    const QString screenName = m_screen->objectName();
    if (path == screenName) {
        return m_screen;
    }
    for (QObject *object : m_screen->findChildren<QObject *>(name)) {
        if (path == name || path == QString(screenName + u'.' + name) || path == Panel::pathOf(object)) {
            return object;
        }
    }
    return nullptr;
}

std::optional<QString> PreviewSession::valueOf(const QString &name)
{
    if (const Variable *variable = m_panel->variables().find(name)) {
        return variable->text();
    }
    const qsizetype point = name.lastIndexOf(u'.');
    const QObject *element = point > 0 ? find(QStringView(name).first(point)) : nullptr;
    const int place =
        element ? element->metaObject()->indexOfProperty(name.sliced(point + 1).toUtf8().constData()) : -1;
    if (place < 0) {
        return {};
    }
    const QMetaProperty property = element->metaObject()->property(place);
    if (property.hasNotifySignal()) {
        static const QMetaMethod slot =
            staticMetaObject.method(staticMetaObject.indexOfSlot("reportProperty()"));
        connect(element, property.notifySignal(), this, slot, Qt::UniqueConnection);
    }
    const QVariant value = property.read(element);
    return value.canConvert<QString>() ? std::optional(Variable::textOf(value)) : std::nullopt;
}

void PreviewSession::reportProperty()
{
    emit valueChanged({});
}

QQuickItem *PreviewSession::touchedItem(QObject *element) const
{
    auto *item = qobject_cast<QQuickItem *>(element);
    return item ? item : element->property("visualElement").value<QQuickItem *>();
}

QPointF PreviewSession::middleOf(const QQuickItem *item) const
{
    return m_frame->mapFromItem(item, QPointF(item->width() / 2, item->height() / 2));
}

} // namespace Halvane::Corvex::Preview
