// SPDX-License-Identifier: MIT
#include "ProjectBuilder.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/hardware/HardwareConfigurations.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/values/records/ListInfo.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Examples {

namespace {

using Info = GeneralDataInfo;

//! The types of the variables of each class in expressions.
constexpr struct
{
    const char *className;
    Info::DataType type;
} variableTypes[] = {
    {"BooleanVariable", Info::BooleanData}, {"ColorVariable", Info::ColorData},
    {"LogVariable", Info::LogData},         {"NumberVariable", Info::NumberData},
    {"StringVariable", Info::StringData},
};

//! The kinds of expressions in properties; all others are boolean.
constexpr struct
{
    const char *className; //!< null for all classes
    const char *propertyId;
    GeneralDataList::InfoType kind;
} expressionKinds[] = {
    {nullptr, "textBinding", GeneralDataList::StringExpression},
    {nullptr, "colorBinding", GeneralDataList::GeneralExpression},
    {nullptr, "dataValues", GeneralDataList::GeneralExpression},
    {nullptr, "xBinding", GeneralDataList::MathExpression},
    {nullptr, "yBinding", GeneralDataList::MathExpression},
    {nullptr, "rotationBinding", GeneralDataList::MathExpression},
    {"PwmOutput", "initValue", GeneralDataList::MathExpression},
    {nullptr, "pressed", GeneralDataList::AssignExpression},
};

GeneralDataList::InfoType kindOf(const DesignerObject &object, const char *propertyId)
{
    const auto found =
        std::find_if(std::begin(expressionKinds), std::end(expressionKinds), [&](const auto &entry) {
            return qstrcmp(entry.propertyId, propertyId) == 0
                   && (!entry.className || object.className() == QLatin1StringView(entry.className));
        });
    return found == std::end(expressionKinds) ? GeneralDataList::BoolExpression : found->kind;
}

QString pathOf(const DesignerObject &object, const char *propertyId)
{
    return object.objectPath() + u'.' + QLatin1StringView(propertyId);
}

} // namespace

ProjectBuilder::ProjectBuilder(const QString &name)
{
    m_project.reset(static_cast<Project *>(make(u"Project"_s, name)));
}

ProjectBuilder::~ProjectBuilder() = default;

std::unique_ptr<Project> ProjectBuilder::takeProject()
{
    return std::move(m_project);
}

DesignerObject *ProjectBuilder::make(const QString &className, const QString &name)
{
    DesignerObject *object = DesignerFactory::instance()->createObject(className);
    if (!object) {
        qFatal("The class %s is not installed.", qPrintable(className));
    }
    object->setParent(nullptr);
    object->setIdName(name);
    return object;
}

void ProjectBuilder::add(DesignerObject *owner, const char *listId, DesignerObject *item)
{
    const SharedProperty list = owner->getProperty(QString::fromLatin1(listId));
    if (!owner->addListPropertyItem(list, item)) {
        report(u"%1 does not accept \"%2\": %3"_s.arg(pathOf(*owner, listId), item->getIdName(),
                                                      list->errorString()));
    }
}

void ProjectBuilder::setModel(const QString &model)
{
    const Configuration *installed = HardwareConfigurations::instance()->installed()->configuration(model);
    DesignerObject *copy = installed ? DesignerObject::createCopy(installed) : nullptr;
    if (!copy || !m_project->changePropertyObjectValue(m_project->configuration(), copy, true)) {
        delete copy;
        report(u"The device model \"%1\" cannot be used."_s.arg(model));
    }
}

void ProjectBuilder::addImage(const QString &fileName)
{
    add(m_project.get(), "imageResources", make(u"ImageResource"_s, fileName));
}

DesignerObject *ProjectBuilder::addVariable(const QString &className, const QString &name,
                                            const QString &value)
{
    DesignerObject *variable = make(className, name);
    add(m_project.get(), "variables", variable);
    if (!value.isNull()) {
        set(variable, "value", value);
    }
    for (const auto &[knownClass, type] : variableTypes) {
        if (className == QLatin1StringView(knownClass)) {
            declare(name, type);
        }
    }
    return variable;
}

Screen *ProjectBuilder::addScreen(const QString &name)
{
    DesignerObject *screen = make(u"Screen"_s, name);
    add(m_project.get(), "screens", screen);
    return static_cast<Screen *>(screen);
}

DesignerObject *ProjectBuilder::addElement(DesignerObject *owner, const QString &className,
                                           const QString &name)
{
    DesignerObject *element = make(className, name);
    add(owner, "elements", element);
    return element;
}

void ProjectBuilder::closeGroup(DesignerObject *group)
{
    set(group, "indexes", ListInfo(group->getListItemNamesInListProperty(u"elements"_s)).toString());
}

DesignerObject *ProjectBuilder::addFilter(Screen *screen, const QString &name,
                                          const QStringList &elementNames)
{
    DesignerObject *filter = make(u"FilterElement"_s, name);
    add(screen, "filters", filter);
    set(filter, "elements", ListInfo(elementNames).toString());
    return filter;
}

void ProjectBuilder::set(DesignerObject *object, const char *propertyId, const QString &value)
{
    const SharedProperty property = object->getProperty(QString::fromLatin1(propertyId));
    if (!property) {
        report(u"There is no property %1."_s.arg(pathOf(*object, propertyId)));
        return;
    }
    // An invalid text does not change the property.
    if (!object->changePropertyValue(property, value) || property->valueString() != value) {
        report(u"%1 does not accept \"%2\"."_s.arg(pathOf(*object, propertyId), value));
    }
}

void ProjectBuilder::link(DesignerObject *object, const char *propertyId, const QString &name)
{
    const SharedProperty property = object->getProperty(QString::fromLatin1(propertyId));
    ObjectLinkInfo target = property ? ObjectLinkInfo(property->valueString()) : ObjectLinkInfo();
    target.setObjectId(name);
    set(object, propertyId, target.toString());
}

void ProjectBuilder::bind(DesignerObject *object, const char *propertyId, QStringView text)
{
    set(object, propertyId, expression(kindOf(*object, propertyId), text));
}

QString ProjectBuilder::expression(GeneralDataList::InfoType kind, QStringView text)
{
    const GeneralDataList terms = m_reader.read(text);
    if (terms.toQmlString(Info::RawOutput, kind).isEmpty()) {
        report(u"\"%1\" gives no code."_s.arg(text));
    }
    return terms.toString();
}

} // namespace Halvane::Corvex::Examples
