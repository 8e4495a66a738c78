// SPDX-License-Identifier: MIT
#include "corvex/project/Project.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/TextHelper.h"
#include "corvex/core/ItemList.h"
#include "corvex/core/PropertyTable.h"
#include "corvex/core/PropertyValidators.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/IdentifierProperty.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/core/properties/ObjectListProperty.h"
#include "corvex/core/properties/ObjectProperty.h"
#include "corvex/editing/undo/HistoryKeeper.h"
#include "corvex/editing/undo/UndoCommand.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/hardware/HardwareConfigurations.h"
#include "corvex/project/Screen.h"
#include "corvex/project/files/FileNameRules.h"
#include "corvex/project/files/ProjectAutosave.h"

#include <QAction>
#include <QFileInfo>
#include <QIcon>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

bool nameValidator(const DesignerProperty *property, QString &error)
{
    error = FileNameRules::projectNameError(property->parentObject()->getIdName());
    return error.isEmpty();
}

bool defaultScreenValidator(const DesignerProperty *property, QString &error)
{
    const QString name = valueAs<LinkProperty>(property).objectId();
    if (name.isEmpty() || property->parentObject()->hasListItemInListProperty(u"screens"_s, name)) {
        return true;
    }
    error = Common::LocalizationHelper::coreString(u"Cannot find screen \"%1\" in the project."_s).arg(name);
    return false;
}

} // namespace

Project::Project(QObject *parent)
    : FileObject(parent)
    , m_autosave(std::make_unique<ProjectAutosave>(this))
{ }

Project::~Project()
{
    m_observers.release();
    m_autosave.reset();
    // Undo steps own removed objects and refer to objects in the model, so delete them first.
    m_undoStack.reset();
    m_folder.close();
    deleteChildren();
    setObservers(nullptr);
}

bool Project::initialize()
{
    if (!FileObject::initialize()) {
        return false;
    }
    setObservers(&m_observers);
    setProject(this);
    return true;
}

QString Project::baseName() const
{
    return u"Project"_s;
}

QString Project::displayName() const
{
    return Common::LocalizationHelper::coreString(u"Project"_s);
}

bool Project::initializeProperties()
{
    static const PropertyTable table{
        row<IdentifierProperty>("id", "Name", IdentifierInfo())
            .description("The name of the project, and of its folder and its file.")
            .rank(0)
            .validator(&nameValidator)
            .allowInvalid(),
        row<StringProperty>("version", "Build Version", QString())
            .description("The tag of the build, made from the name of the project and the version of the "
                         "program; the program writes it.")
            .flags(1)
            .rank(10)
            .editor("ReadOnlyLineEditor"),
        row<StringProperty>("designerVersion", "Designer Version", QString())
            .description("The version of the program that last saved the project.")
            .flags(1)
            .rank(11),
        row<ObjectProperty>("configuration", "Configuration", nullptr)
            .description("The device model of the project with its screen, channels, ports and passwords.")
            .flags(1 | 4 | 8 | 128)
            .rank(12)
            .filter({"Configuration"})
            .allowInvalid(),
        row<ObjectListProperty>("imageResources", "Image Resources", OrderRule::FileNameOrder)
            .description("The images that elements can show.")
            .rank(13)
            .filter({"ImageResource"}),
        row<ObjectListProperty>("variables", "Project Variables", OrderRule::NaturalOrder)
            .description("The variables that expressions, elements and the device read and write.")
            .rank(14)
            .filter({"ProjectVariable"}),
        row<ObjectListProperty>("screens", "Screens", OrderRule::InsertionOrder)
            .description("The screens of the project, of which the device shows one at a time.")
            .rank(15)
            .filter({"Screen"})
            .validator(&PropertyValidators::projectScreensValidator),
        row<LinkProperty>("defaultScreen", "Default Screen", ObjectLinkInfo({}, u"Project"_s, u"Screen"_s))
            .description(
                "The screen that the device shows first; if it is not set, the first screen of the project.")
            .flags(15)
            .rank(16)
            .parameter("scopeType", u"Project"_s)
            .parameter("filterType", u"Screen"_s)
            .validator(&defaultScreenValidator)
            .allowInvalid(),
    };
    if (!FileObject::initializeProperties() || !addProperties(table)) {
        return false;
    }
    m_version = getProperty(u"version");
    m_designerVersion = getProperty(u"designerVersion");
    m_configuration = getProperty(u"configuration");
    m_imageResources = getProperty(u"imageResources");
    m_variables = getProperty(u"variables");
    m_screens = getProperty(u"screens");
    m_defaultScreen = getProperty(u"defaultScreen");
    return true;
}

bool Project::storesProperty(const DesignerProperty &property) const
{
    if (property.isList() && property.listItemCount() == 0 && !property.itemList()->hasKeptItems()) {
        return false;
    }
    // An empty build tag in a file requests a new one, see readEmptyValue(). A project without a build tag
    // must not get one that way.
    if (&property == m_version.data() && property.valueString().isEmpty()) {
        return false;
    }
    return FileObject::storesProperty(property);
}

void Project::readEmptyValue(const SharedProperty &property)
{
    if (property == m_version) {
        m_needsBuildVersion = true;
    } else {
        FileObject::readEmptyValue(property);
    }
}

void Project::finishReading()
{
    if (std::exchange(m_needsBuildVersion, false)) {
        updateBuildVersion();
    }
}

void Project::afterObjectPropertyChanged(const DesignerProperty *property,
                                         const DesignerObject *previousObject)
{
    if (property != m_configuration.data()) {
        return;
    }
    if (previousObject) {
        disconnect(previousObject, nullptr, this, nullptr);
    }
    if (const DesignerObject *configuration = property->objectValue()) {
        connect(configuration, &DesignerObject::propertyValueChanged, this,
                &Project::onConfigurationPropertyChanged);
    }
    updateScreenSizes();
}

void Project::onConfigurationPropertyChanged(const SharedProperty &property)
{
    if (property->id() == "screenSize"_L1 || property->id() == "orientation"_L1) {
        updateScreenSizes();
    }
}

void Project::updateScreenSizes()
{
    for (DesignerObject *screen : m_screens->listItems()) {
        static_cast<Screen *>(screen)->onConfigurationSizeChanged();
    }
}

Configuration *Project::configurationObject() const
{
    return static_cast<Configuration *>(m_configuration->objectValue());
}

bool Project::updateConfiguration()
{
    QString error = Common::LocalizationHelper::coreString(u"No configuration can be found."_s);
    const HardwareConfigurations *hardware = HardwareConfigurations::instance();
    const Configuration *model =
        hardware ? hardware->installed()->match(configurationObject(), &error) : nullptr;
    if (model) {
        configurationObject()->updateFrom(*model);
    }
    return finish(error);
}

void Project::afterListItemAdded(const DesignerProperty *property, const DesignerObject *)
{
    if (property == m_screens.data()) {
        validateDefaultScreen();
    }
}

void Project::afterListItemRemoved(const DesignerProperty *property, const DesignerObject *)
{
    m_firstFree.clear();
    if (property == m_screens.data()) {
        validateDefaultScreen();
    }
}

void Project::afterListPropertyChanged()
{
    m_firstFree.clear();
    validateDefaultScreen();
}

void Project::validateDefaultScreen()
{
    if (!disabledValidation()) {
        m_defaultScreen->validate();
        updateValidity();
    }
}

QString Project::buildVersion()
{
    const QString version = QStringLiteral(CORVEX_BUILD_VERSION);
    return version.isEmpty() ? u"4.0.0"_s : version;
}

QString Project::newBuildTag() const
{
    return Common::TextHelper::encryptString(u"%1-%2"_s.arg(getIdName(), buildVersion()));
}

void Project::updateBuildVersion()
{
    if (m_version && !getIdName().isEmpty()) {
        changePropertyValue(m_version, newBuildTag());
    }
}

QString Project::buildTag() const
{
    return Common::TextHelper::decryptString(m_version->valueString());
}

bool Project::updateProjectProperties()
{
    return true;
}

bool Project::upgradeToCurrentVersion()
{
    return true;
}

UndoStack *Project::undoStack()
{
    return sharedUndoStack().get();
}

std::shared_ptr<UndoStack> Project::sharedUndoStack()
{
    if (!m_undoStack) {
        m_undoStack = std::make_shared<UndoStack>();
        followUndoStack();
    }
    return m_undoStack;
}

void Project::setUndoStack(std::shared_ptr<UndoStack> stack)
{
    if (m_undoStack) {
        disconnect(m_undoStack.get(), nullptr, this, nullptr);
        disconnect(m_undoStack.get(), nullptr, m_autosave.get(), nullptr);
        for (const QAction *action : {m_undoAction, m_redoAction}) {
            if (action) {
                disconnect(m_undoStack.get(), nullptr, action, nullptr);
            }
        }
    }
    m_undoStack = std::move(stack);
    followUndoStack();
    m_autosave->countEdit();
    emit undoStackChanged();
}

void Project::followUndoStack()
{
    const UndoStack *stack = m_undoStack.get();
    connect(stack, &UndoStack::indexChanged, m_autosave.get(), &ProjectAutosave::countEdit);
    connect(stack, &UndoStack::moved, this, &Project::emitUserModified);
    const auto enable = [stack](QAction *action, bool isPossible, auto signal) {
        if (action) {
            action->setEnabled(isPossible);
            connect(stack, signal, action, &QAction::setEnabled);
        }
    };
    enable(m_undoAction, stack->canUndo(), &UndoStack::canUndoChanged);
    enable(m_redoAction, stack->canRedo(), &UndoStack::canRedoChanged);
}

void Project::createUndoStack()
{
    if (m_historyKeeper) {
        m_historyKeeper->historyForgotten();
    }
    undoStack()->startOver();
    m_autosave->startOver();
}

void Project::emitUserModified(const UndoCommand *command)
{
    if (command && command->project() == this) {
        emit userModified();
    }
}

bool Project::checkStackIsSame(const UndoCommand *command, const UndoStack *stack)
{
    if (!stack) {
        return false;
    }
    const int index = stack->currentIndex();
    const auto *last = index > 0 ? dynamic_cast<const UndoCommand *>(stack->command(index - 1)) : nullptr;
    if (!command) {
        return (!stack->canUndo() && !stack->canRedo()) || index == 0 || !last;
    }
    return last == command;
}

QAction *Project::createUndoAction()
{
    if (!m_undoAction) {
        m_undoAction =
            new QAction(QIcon(u":/images/undo"_s), Common::LocalizationHelper::coreString(u"Undo"_s), this);
        m_undoAction->setEnabled(undoStack()->canUndo());
        connect(m_undoStack.get(), &UndoStack::canUndoChanged, m_undoAction, &QAction::setEnabled);
        connect(m_undoAction, &QAction::triggered, this, [this] { undoStack()->undo(); });
    }
    return m_undoAction;
}

QAction *Project::createRedoAction()
{
    if (!m_redoAction) {
        m_redoAction =
            new QAction(QIcon(u":/images/redo"_s), Common::LocalizationHelper::coreString(u"Redo"_s), this);
        m_redoAction->setEnabled(undoStack()->canRedo());
        connect(m_undoStack.get(), &UndoStack::canRedoChanged, m_redoAction, &QAction::setEnabled);
        connect(m_redoAction, &QAction::triggered, this, [this] { undoStack()->redo(); });
    }
    return m_redoAction;
}

void Project::startAutoSaveTimer()
{
    m_autosave->start();
}

void Project::generateRuntimeFiles()
{
    prepare(m_runtimeGenerator);
    m_runtimeGenerator.generate(this);
}

RuntimeGenerator Project::newRuntimeGenerator() const
{
    RuntimeGenerator generator;
    prepare(generator);
    return generator;
}

void Project::prepare(RuntimeGenerator &generator) const
{
    generator.setResourceFolder(imagesPath());
    const bool needsTag = m_version->valueString().isEmpty() && !getIdName().isEmpty();
    generator.setBuildTag(needsTag ? newBuildTag() : QString());
}

bool Project::hasElement(const QString &name) const
{
    if (!m_elementNames) {
        m_elementNames = std::make_unique<ElementIndex::NameCounts>();
        for (DesignerObject *screen : m_screens->itemList()->items()) {
            static_cast<Screen *>(screen)->elementIndex().countIn(m_elementNames.get());
        }
    }
    return m_elementNames->contains(name);
}

QString Project::generateUniqueName(const QString &stem) const
{
    int &firstFree = m_firstFree[stem];
    firstFree = std::max(firstFree, 1);
    for (int number = firstFree;; ++number) {
        const QString name = u"%1%2"_s.arg(stem, QString::number(number));
        if (m_variables->hasListItem(name) || m_screens->hasListItem(name)) {
            firstFree += number == firstFree ? 1 : 0;
        } else if (!hasElement(name)) {
            return name;
        }
    }
}

QString Project::generateUniqueName(const QString &folder, const QString &name)
{
    QString unique = name;
    for (int number = 1; QFileInfo::exists(u"%1/%2"_s.arg(folder, unique)); ++number) {
        unique = u"%1%2"_s.arg(name, QString::number(number));
    }
    return unique;
}

RuntimeAutoSettingList Project::objectAutoSaveVariablesList(const QString &objectName) const
{
    return m_autoSaveVariables.value(objectName);
}

void Project::updateObjectAutoSaveVariablesList(const QString &objectName, const RuntimeAutoSettingList &list)
{
    if (list.isEmpty()) {
        m_autoSaveVariables.remove(objectName);
    } else {
        m_autoSaveVariables.insert(objectName, list);
    }
}

} // namespace Halvane::Corvex::Designer
