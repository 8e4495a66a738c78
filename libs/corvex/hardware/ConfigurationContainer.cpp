// SPDX-License-Identifier: MIT
#include "corvex/hardware/ConfigurationContainer.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/ObjectListProperty.h"
#include "corvex/hardware/Configuration.h"

#include <QDirIterator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! The size limit of a configuration file; real ones have a few kilobytes.
constexpr qint64 mostBytes = qint64(1) << 20;

} // namespace

QString ConfigurationContainer::createDirectoryName() const
{
    return u"Configurations"_s;
}

ObjectView *ConfigurationContainer::createGraphicsItem()
{
    return nullptr;
}

bool ConfigurationContainer::initializeProperties()
{
    static const PropertyTable table{
        row<ObjectListProperty>("configurations", "Device Models", OrderRule::NaturalOrder)
            .description("The installed device models.")
            .filter({"Configuration"}),
    };
    if (!DirectoryObject::initializeProperties() || !addProperties(table)) {
        return false;
    }
    m_configurations = properties().last();
    return true;
}

bool ConfigurationContainer::loadDirectory(const QString &path)
{
    if (!DirectoryObject::loadDirectory(path)) {
        return false;
    }
    const QList<DesignerObject *> previous = m_configurations->listItems();
    for (DesignerObject *configuration : previous) {
        delete takeListPropertyItem(m_configurations, configuration);
    }
    const QDir folder(configurationsPath());
    QStringList files;
    QDirIterator entries(folder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString file = entries.next();
        if (folder.relativeFilePath(file).contains("config.xml"_L1)) {
            files.append(file);
        }
    }
    // The system lists files in any order. Sort them, so that with duplicate names the same file always wins.
    files.sort();
    for (const QString &file : std::as_const(files)) {
        loadFile(file);
    }
    return true;
}

void ConfigurationContainer::loadFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > mostBytes) {
        qWarning("%s is not a configuration and is skipped.", qUtf8Printable(path));
        return;
    }
    std::unique_ptr<DesignerObject> object(createFromFile(path));
    if (!object || !object->isKindOfClass(u"Configuration"_s)) {
        qWarning("%s is not a configuration and is skipped.", qUtf8Printable(path));
        return;
    }
    const QFileInfo folder(info.absolutePath());
    static_cast<Configuration &>(*object).setFileFields(folder.path(), folder.fileName(), info.fileName());
    DesignerObject *configuration = object.release();
    if (!addListPropertyItem(m_configurations, configuration)) {
        qWarning("%s describes the model \"%s\", which exists already, and is skipped.", qUtf8Printable(path),
                 qUtf8Printable(configuration->getIdName()));
        delete configuration;
    }
}

QList<Configuration *> ConfigurationContainer::configurations() const
{
    QList<Configuration *> models;
    for (DesignerObject *item : m_configurations->listItems()) {
        models.append(static_cast<Configuration *>(item));
    }
    return models;
}

Configuration *ConfigurationContainer::configuration(const QString &model) const
{
    return static_cast<Configuration *>(m_configurations->getListItem(model));
}

Configuration *ConfigurationContainer::match(const Configuration *wanted, QString *error) const
{
    using Common::LocalizationHelper;
    QString problem;
    Configuration *found = nullptr;
    if (m_configurations->listItemCount() == 0) {
        problem = LocalizationHelper::coreString(u"No configuration can be found."_s);
    } else if (!wanted || wanted->getIdName().isEmpty()) {
        problem = LocalizationHelper::coreString(u"No valid configuration can be found."_s);
    } else {
        found = findMatch(*wanted);
        if (!found) {
            problem = LocalizationHelper::coreString(u"The device model \"%1\" is not available."_s)
                          .arg(wanted->getIdName());
        }
    }
    if (error) {
        *error = problem;
    }
    return found;
}

Configuration *ConfigurationContainer::findMatch(const Configuration &wanted) const
{
    const QStringList models = wanted.allCompatibleModels();
    for (const QString &model : models) {
        if (Configuration *found = configuration(model)) {
            return found;
        }
    }
    const QList<Configuration *> installed = configurations();
    const auto found = std::ranges::find_if(installed, [&](const Configuration *candidate) {
        return candidate->allCompatibleModels().contains(wanted.getIdName());
    });
    return found == installed.cend() ? nullptr : *found;
}

} // namespace Halvane::Corvex::Designer
