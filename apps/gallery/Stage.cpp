// SPDX-License-Identifier: MIT
#include "Stage.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/hardware/HardwareConfigurations.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/variables/ProjectVariable.h"

#include "Specimen.h"

#include <QDirIterator>
#include <QFile>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Gallery {

using namespace Designer;

namespace {

bool copyFolder(const QString &from, const QString &to)
{
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString target = to + file.mid(from.size());
        if (!QDir().mkpath(QFileInfo(target).path()) || !QFile::copy(file, target)) {
            return false;
        }
    }
    return true;
}

//! The first object of each class in the object and in everything that it contains.
void collect(DesignerObject *object, QMap<QString, DesignerObject *> &found)
{
    if (!found.contains(object->className())) {
        found.insert(object->className(), object);
    }
    for (const SharedProperty &property : object->properties()) {
        for (DesignerObject *item : property->listItems()) {
            collect(item, found);
        }
        if (DesignerObject *child = property->objectValue()) {
            collect(child, found);
        }
    }
}

} // namespace

bool Stage::open(QString &error)
{
    const QString folder = m_folder.path() + "/PumpStation"_L1;
    if (!DesignerFactory::createInstance(QStringLiteral(CORVEX_LIBRARY))
        || !copyFolder(QStringLiteral(CORVEX_EXAMPLE), folder)) {
        error = u"The plug-in or the example project is missing."_s;
        return false;
    }
    HardwareConfigurations::createInstance(QStringLiteral(CORVEX_DATA));
    std::unique_ptr<Project> project(
        static_cast<Project *>(DesignerFactory::instance()->createUnowned(u"Project"_s)));
    if (!project->loadFile(folder + "/PumpStation.kdproj"_L1)) {
        error = project->fileError();
        return false;
    }
    m_document = std::make_unique<ProjectDocument>(std::move(project));
    for (const QString &name : DesignerFactory::instance()->creatableNames()) {
        if (!objects().contains(name)) {
            add(name);
        }
    }
    add(Examples::Specimen::kindName());
    return true;
}

QMap<QString, DesignerObject *> Stage::objects() const
{
    QMap<QString, DesignerObject *> found;
    collect(&m_document->project(), found);
    return found;
}

DesignerObject *Stage::another(const QString &className)
{
    return add(className);
}

DesignerObject *Stage::add(const QString &className)
{
    Project &project = m_document->project();
    auto *screen = static_cast<Screen *>(project.screens()->getListItemAtIndex(0));
    std::unique_ptr<DesignerObject> object;
    if (className == Examples::Specimen::kindName()) {
        object.reset(Examples::Specimen::create(u"specimen"_s));
    } else {
        object.reset(DesignerFactory::instance()->createUnowned(className));
    }
    if (!object) {
        return nullptr;
    }
    SharedProperty list;
    QString name = DesignerFactory::baseNameOf(object.get());
    if (object->isKindOfClass(Element::kindName())) {
        list = screen->elements();
        name = screen->uniqueElementName(name);
    } else if (object->isKindOfClass(ProjectVariable::kindName())) {
        list = project.variables();
        name += QString::number(list->listItemCount());
    }
    object->setIdName(name);
    if (!list || !list->parentObject()->addListPropertyItem(list, object.get())) {
        return nullptr;
    }
    object->validate();
    return object.release();
}

} // namespace Halvane::Corvex::Gallery
