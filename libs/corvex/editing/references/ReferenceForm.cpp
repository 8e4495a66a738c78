// SPDX-License-Identifier: MIT
#include "corvex/editing/references/ReferenceForm.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/values/expressions/GeneralDataList.h"
#include "corvex/values/expressions/UpdateObjectList.h"
#include "corvex/values/records/ListInfo.h"
#include "corvex/values/records/ObjectLinkInfo.h"
#include "corvex/values/runtime/PropertyList.h"
#include "corvex/values/text/PairList.h"

#include <QHash>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Form = ReferenceForm::Form;

//! Values that a state or an action gives to properties of elements, by the id alone, since the element may
//! not be there.
constexpr std::array nestedLinks{"source"_L1,          "variable"_L1,      "screen"_L1,
                                 "mapping"_L1,         "visualElement"_L1, "incVisualElement"_L1,
                                 "decVisualElement"_L1};
constexpr std::array nestedExpressions{"initValue"_L1, "condition"_L1, "dataValues"_L1, "pressed"_L1};

Form formOfNested(const QString &id)
{
    if (std::ranges::find(nestedLinks, id) != nestedLinks.end()) {
        return Form::Link;
    }
    const bool isExpression =
        id.endsWith("Binding"_L1) || std::ranges::find(nestedExpressions, id) != nestedExpressions.end();
    return isExpression ? Form::Expression : Form::None;
}

constexpr NamedKinds projectKinds = NamedKind::Variable | NamedKind::Screen | NamedKind::Image;

NamedKinds kindsOf(const ObjectLinkInfo &link)
{
    NamedKinds kinds;
    kinds.setFlag(NamedKind::Element, link.scopeType() != "Project"_L1);
    if (link.scopeType() != "Screen"_L1) {
        kinds |= projectKinds;
    }
    NamedKinds wanted;
    for (const QString &className : link.filterType()) {
        wanted |= className == "Screen"_L1          ? NamedKinds(NamedKind::Screen)
                  : className == "ImageResource"_L1 ? NamedKinds(NamedKind::Image)
                                                    : NamedKind::Element | NamedKind::Variable;
    }
    return link.filterType().isEmpty() ? kinds : kinds & wanted;
}

NamedKinds kindsOf(const GeneralDataInfo &term)
{
    if (term.valueType() == GeneralDataInfo::VariableValue) {
        return NamedKind::Variable;
    }
    switch (term.dataType()) {
    case GeneralDataInfo::LogData:
    case GeneralDataInfo::DeviceData:
    case GeneralDataInfo::ReferenceData:
        return NamedKind::Element | NamedKind::Screen | NamedKind::Variable;
    default:
        return NamedKind::Element | NamedKind::Screen;
    }
}

constexpr NamedKinds listedKinds = NamedKind::Element | NamedKind::Variable;

//! Shows the mention to the visitor. \return whether it was changed.
bool show(Mention &mention, const MentionVisitor &visitor)
{
    const QString path = mention.path;
    visitor(mention);
    return mention.isDropped || mention.path != path;
}

//! \a property may be null.
bool visitLink(const LinkProperty *property, ObjectLinkInfo &link, const MentionVisitor &visitor)
{
    if (!link.isValid()) {
        return false;
    }
    Mention mention{kindsOf(property ? property->checked(link) : link), link.objectId()};
    if (!show(mention, visitor)) {
        return false;
    }
    link.setObjectId(mention.isDropped ? QString() : mention.path);
    return true;
}

bool visitLink(const LinkProperty *property, QString &text, const MentionVisitor &visitor)
{
    ObjectLinkInfo link(text);
    const bool isChanged = visitLink(property, link, visitor);
    if (isChanged) {
        text = link.toString();
    }
    return isChanged;
}

bool visitValue(GeneralDataList &terms, const MentionVisitor &visitor)
{
    bool isChanged = false;
    for (qsizetype i = 0; i < terms.count(); ++i) {
        const QString path = std::as_const(terms)[i].objectName();
        if (path.isEmpty()) {
            continue;
        }
        Mention mention{kindsOf(terms.at(i)), path};
        if (show(mention, visitor)) {
            isChanged = true;
            mention.isDropped ? terms[i].removeObject() : terms[i].replaceObject(mention.path);
        }
    }
    return isChanged;
}

bool visitValue(UpdateObjectList &list, const MentionVisitor &visitor)
{
    bool isChanged = false;
    UpdateObjectList updates;
    for (UpdateObjectInfo update : list) {
        if (Mention mention{NamedKind::Element, update.name()}; update.isValid() && show(mention, visitor)) {
            isChanged = true;
            if (mention.isDropped) {
                continue;
            }
            update.setName(mention.path);
        }
        if (Mention mention{NamedKind::Screen, update.screen()};
            !mention.path.isEmpty() && show(mention, visitor)) {
            isChanged = true;
            if (mention.isDropped) {
                continue;
            }
            update.setScreen(mention.path);
        }
        PropertyInfoList values;
        for (PropertyInfo value : update.propertyValues()) {
            QString nested = value.propValue();
            if (ReferenceForm::visit(formOfNested(value.propName()), nested, visitor)) {
                isChanged = true;
                value.setPropValue(nested);
            }
            values.append(value);
        }
        update.setPropertyValues(values);
        updates.append(update);
    }
    if (isChanged) {
        list = updates;
    }
    return isChanged;
}

bool visitValue(PropertyList &list, const MentionVisitor &visitor)
{
    bool isChanged = false;
    QList<PropertyChangeInfo> changes;
    for (PropertyChangeInfo change : list) {
        if (Mention mention{NamedKind::Element, change.elementName()}; show(mention, visitor)) {
            isChanged = true;
            if (mention.isDropped) {
                continue;
            }
            change.setElementName(mention.path);
        }
        QString nested = change.valueString();
        if (ReferenceForm::visit(formOfNested(change.propertyName()), nested, visitor)) {
            isChanged = true;
            change.setValueString(nested);
        }
        changes.append(change);
    }
    if (isChanged) {
        list.clear();
        list.append(changes);
    }
    return isChanged;
}

//! The same for the text of a value.
template<class Value>
bool visitAs(QString &text, const MentionVisitor &visitor)
{
    Value value(text);
    const bool isChanged = visitValue(value, visitor);
    if (isChanged) {
        text = value.toString();
    }
    return isChanged;
}

//! Shows each name and keeps those that are not dropped.
bool visitNames(QStringList &names, const MentionVisitor &visitor)
{
    bool isChanged = false;
    QStringList kept;
    for (const QString &name : std::as_const(names)) {
        Mention mention{listedKinds, name};
        isChanged |= !name.isEmpty() && show(mention, visitor);
        if (!mention.isDropped) {
            kept.append(mention.path);
        }
    }
    names = kept;
    return isChanged;
}

bool visitNameList(QString &text, const MentionVisitor &visitor)
{
    QStringList names = ListInfo(text).toList();
    const bool isChanged = visitNames(names, visitor);
    if (isChanged) {
        text = ListInfo(names).toString();
    }
    return isChanged;
}

bool visitCommaNames(QString &text, const MentionVisitor &visitor)
{
    QStringList names = text.split(u", "_s, Qt::SkipEmptyParts);
    const bool isChanged = visitNames(names, visitor);
    if (isChanged) {
        text = names.join(u", "_s);
    }
    return isChanged;
}

bool visitNamePairs(QString &text, const MentionVisitor &visitor)
{
    bool isChanged = false;
    QStringList items = ListInfo(text).toList();
    for (QString &item : items) {
        const TextPair pair = TextPair::fromString(item);
        Mention mention{listedKinds, pair.first};
        if (!pair.first.isEmpty() && show(mention, visitor)) {
            isChanged = true;
            item = TextPair{mention.isDropped ? QString() : mention.path, pair.second}.toString();
        }
    }
    if (isChanged) {
        text = ListInfo(items).toString();
    }
    return isChanged;
}

bool visitExpressions(QString &text, const MentionVisitor &visitor)
{
    bool isChanged = false;
    PairList pairs(text);
    for (qsizetype i = 0; i < pairs.count(); ++i) {
        isChanged |= visitAs<GeneralDataList>(pairs[i].first, visitor);
        isChanged |= visitAs<GeneralDataList>(pairs[i].second, visitor);
    }
    if (isChanged) {
        text = pairs.toString();
    }
    return isChanged;
}

bool showLink(const DesignerProperty &property, const MentionVisitor &visitor)
{
    const auto &link = static_cast<const LinkProperty &>(property);
    ObjectLinkInfo copy = link.value();
    return visitLink(&link, copy, visitor);
}

template<class Property>
bool showValue(const DesignerProperty &property, const MentionVisitor &visitor)
{
    auto copy = static_cast<const Property &>(property).value();
    return visitValue(copy, visitor);
}

bool showText(const DesignerProperty &property, const MentionVisitor &visitor)
{
    QString text = property.valueString();
    return ReferenceForm::visit(ReferenceForm::of(property), text, visitor);
}

//! A class of properties with a form. An owner and an id restrict it to one property of one class.
struct Site
{
    QLatin1StringView propertyClass;
    Form form;
    bool (*show)(const DesignerProperty &property, const MentionVisitor &visitor); //!< its value as it is
    QLatin1StringView owner = {};
    QLatin1StringView id = {};
};

constexpr std::array sites{
    Site{"LinkProperty"_L1, Form::Link, &showLink},
    Site{"GeneralDataProperty"_L1, Form::Expression, &showText},
    Site{"GeneralDataListProperty"_L1, Form::Expression, &showValue<GeneralDataListProperty>},
    Site{"UpdateObjectProperty"_L1, Form::States, &showText},
    Site{"UpdateObjectListProperty"_L1, Form::States, &showValue<UpdateObjectListProperty>},
    Site{"PropertyChangeProperty"_L1, Form::Changes, &showText},
    Site{"PropertyChangeListProperty"_L1, Form::Changes, &showValue<PropertyChangeListProperty>},
    Site{"ListValueProperty"_L1, Form::Names, &showText, "GroupElement"_L1, "indexes"_L1},
    Site{"ListValueProperty"_L1, Form::Names, &showText, "FilterElement"_L1, "elements"_L1},
    Site{"ListValueProperty"_L1, Form::Names, &showText, "BACnetService"_L1, "bacNetObjectList"_L1},
    Site{"ListValueProperty"_L1, Form::Names, &showText, "BACnetService"_L1, "bacNetDevices"_L1},
    Site{"ListValueProperty"_L1, Form::NamePairs, &showText, "ModbusCommands"_L1, "commands"_L1},
    Site{"StringProperty"_L1, Form::CommaNames, &showText, "PropertyTrigger"_L1, "actionScheduler"_L1},
    Site{"StringProperty"_L1, Form::Expressions, &showText, "LogicBuilder"_L1, "logicExpression"_L1},
};

//! The rows for the class of the property and its bases, looked up once for each class in each thread.
const QList<const Site *> &sitesOf(const DesignerProperty &property)
{
    static thread_local QHash<QString, QList<const Site *>> known;
    const auto found = known.constFind(property.className());
    if (found != known.cend()) {
        return *found;
    }
    const QStringList classNames = property.classNames();
    QList<const Site *> rows;
    for (const Site &site : sites) {
        if (classNames.contains(site.propertyClass)) {
            rows.append(&site);
        }
    }
    return *known.insert(property.className(), rows);
}

//! Null for a property that names nothing.
const Site *siteOf(const DesignerProperty &property)
{
    for (const Site *site : sitesOf(property)) {
        if (site->id.isEmpty()
            || (property.id() == site->id && property.parentObject()
                && property.parentObject()->isKindOfClass(site->owner))) {
            return site;
        }
    }
    return nullptr;
}

} // namespace

ReferenceForm::Form ReferenceForm::of(const DesignerProperty &property)
{
    const Site *site = siteOf(property);
    return site ? site->form : None;
}

bool ReferenceForm::visit(const DesignerProperty &property, QString &text, const MentionVisitor &visitor)
{
    const Form form = of(property);
    return form == Link ? visitLink(static_cast<const LinkProperty *>(&property), text, visitor)
                        : visit(form, text, visitor);
}

bool ReferenceForm::visit(Form form, QString &text, const MentionVisitor &visitor)
{
    switch (form) {
    case None:
        return false;
    case Link:
        return visitLink(nullptr, text, visitor);
    case Expression:
        return visitAs<GeneralDataList>(text, visitor);
    case States:
        return visitAs<UpdateObjectList>(text, visitor);
    case Changes:
        return visitAs<PropertyList>(text, visitor);
    case Names:
        return visitNameList(text, visitor);
    case NamePairs:
        return visitNamePairs(text, visitor);
    case CommaNames:
        return visitCommaNames(text, visitor);
    case Expressions:
        return visitExpressions(text, visitor);
    }
    Q_UNREACHABLE();
    return false;
}

QList<Mention> ReferenceForm::mentions(const DesignerProperty &property, const QString &text)
{
    QList<Mention> found;
    QString copy = text;
    visit(property, copy, [&found](const Mention &mention) { found.append(mention); });
    return found;
}

QList<Mention> ReferenceForm::mentions(const DesignerProperty &property)
{
    QList<Mention> found;
    if (const Site *site = siteOf(property)) {
        site->show(property, [&found](const Mention &mention) { found.append(mention); });
    }
    return found;
}

} // namespace Halvane::Corvex::Designer
