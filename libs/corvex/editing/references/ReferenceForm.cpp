// SPDX-License-Identifier: MIT
#include "corvex/editing/references/ReferenceForm.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/editing/references/private/NestedForms.h"
#include "corvex/values/expressions/GeneralDataList.h"
#include "corvex/values/expressions/UpdateObjectList.h"
#include "corvex/values/records/ListInfo.h"
#include "corvex/values/records/ObjectLinkInfo.h"
#include "corvex/values/runtime/PropertyList.h"
#include "corvex/values/text/PairList.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

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

//! Calls the visitor for the mention. \return whether it was changed.
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

//! The new value of a property in a state or an action. Only the id of the property is known.
bool visitNested(const QString &id, QString &text, const MentionVisitor &visitor);

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
            if (visitNested(value.propName(), nested, visitor)) {
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
        if (visitNested(change.propertyName(), nested, visitor)) {
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

//! The same for a value given as text.
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

bool visitNested(const QString &id, QString &text, const MentionVisitor &visitor)
{
    const NestedForms &forms = NestedForms::current();
    const bool isChanged = forms.isLink(id) && visitLink(nullptr, text, visitor);
    return (forms.isExpression(id) && visitAs<GeneralDataList>(text, visitor)) || isChanged;
}

//! Visits each name and keeps those that are not dropped.
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

//! Visits the typed value if the property is of that class; otherwise its text must be parsed.
template<class Property>
bool showValue(const DesignerProperty &property, const MentionVisitor &visitor)
{
    const auto *typed = propertyCast<Property>(&property);
    if (typed) {
        auto copy = typed->value();
        visitValue(copy, visitor);
    }
    return typed;
}

bool showLink(const DesignerProperty &property, const MentionVisitor &visitor)
{
    const auto *link = propertyCast<LinkProperty>(&property);
    if (link) {
        ObjectLinkInfo copy = link->value();
        visitLink(link, copy, visitor);
    }
    return link;
}

bool showTyped(const DesignerProperty &property, const MentionVisitor &visitor)
{
    switch (property.references()) {
    case Form::Link:
        return showLink(property, visitor);
    case Form::Expression:
        return showValue<GeneralDataListProperty>(property, visitor);
    case Form::States:
        return showValue<UpdateObjectListProperty>(property, visitor);
    case Form::Changes:
        return showValue<PropertyChangeListProperty>(property, visitor);
    default:
        return false;
    }
}

} // namespace

ReferenceForm::Form ReferenceForm::of(const DesignerProperty &property)
{
    return property.references();
}

bool ReferenceForm::visit(const DesignerProperty &property, QString &text, const MentionVisitor &visitor)
{
    const auto *link = property.references() == Link ? propertyCast<LinkProperty>(&property) : nullptr;
    return link ? visitLink(link, text, visitor) : visit(property.references(), text, visitor);
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
    if (!showTyped(property, [&found](const Mention &mention) { found.append(mention); })
        && property.references() != None) {
        found = mentions(property, property.valueString());
    }
    return found;
}

} // namespace Halvane::Corvex::Designer
