// SPDX-License-Identifier: MIT
#include "corvex/checks/private/rules/InvalidValueCheck.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/ItemList.h"
#include "corvex/core/PropertyValidators.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/variables/MappingVariable.h"
#include "corvex/variables/ModbusMap.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

struct Row
{
    QLatin1StringView ownerClass; //!< empty: any class
    QLatin1StringView id;         //!< empty: any property
    ProblemCode code;
};

//! The responsibilities of the standard classes' validators. The first matching row counts.
constexpr Row rows[] = {
    {"Project"_L1, "screens"_L1, ProblemCode::ListIncomplete},
    {"Project"_L1, "defaultScreen"_L1, ProblemCode::ReferenceMissing},
    {"Screen"_L1, "elements"_L1, ProblemCode::ListIncomplete},
    {"GroupElement"_L1, "elements"_L1, ProblemCode::GroupMembers},
    {"GroupElement"_L1, "indexes"_L1, ProblemCode::GroupOrder},
    {"ImageResource"_L1, "imageFile"_L1, ProblemCode::ImageFile},
    {"HardwareElement"_L1, "channel"_L1, ProblemCode::ChannelShared},
    {"BACnetObject"_L1, "objectID"_L1, ProblemCode::BACnetIdentifier},
    {{}, "password"_L1, ProblemCode::PasswordEmpty},
    {{}, "uploadPassword"_L1, ProblemCode::PasswordEmpty},
    {"Configuration"_L1, "displayBrightness"_L1, ProblemCode::ValueInvalid},
    {"Configuration"_L1, "screenSize"_L1, ProblemCode::ValueInvalid},
    {"Configuration"_L1, {}, ProblemCode::ChannelSignal},
    {"NumberVariable"_L1, "value"_L1, ProblemCode::NumberUnreadable},
    {"MappingVariable"_L1, {}, ProblemCode::FieldbusMap},
    {"CANVariable"_L1, "parameterMap"_L1, ProblemCode::FieldbusMap},
    {"BACnetObject"_L1, "properties"_L1, ProblemCode::FieldbusMap},
};

ProblemCode nameCode(const DesignerObject &object)
{
    // Projects and images are files, with their own rules.
    const bool isScriptName = object.isKindOfClass(u"ProjectVariable"_s) || object.isKindOfClass(u"Screen"_s)
                              || object.isKindOfClass(u"Element"_s);
    if (!isScriptName) {
        return ProblemCode::NameInvalid;
    }
    switch (PropertyValidators::nameFault(&object, object.getIdName())) {
    case PropertyValidators::NameFault::Format:
        return ProblemCode::NameFormat;
    case PropertyValidators::NameFault::Length:
        return ProblemCode::NameLength;
    case PropertyValidators::NameFault::Reserved:
        return ProblemCode::NameReserved;
    case PropertyValidators::NameFault::Taken:
        return ProblemCode::NameTaken;
    case PropertyValidators::NameFault::None:
        break;
    }
    return ProblemCode::NameInvalid;
}

//! The property determines what its validator refuses.
ProblemCode refusalCode(const DesignerProperty &property)
{
    const DesignerObject &owner = *property.parentObject();
    if (&property == owner.idProperty()) {
        return nameCode(owner);
    }
    for (const Row &row : rows) {
        const bool isOfOwner = row.ownerClass.isEmpty() || owner.isKindOfClass(QString(row.ownerClass));
        if (isOfOwner && (row.id.isEmpty() || row.id == property.id())) {
            return row.code;
        }
    }
    if (propertyCast<LinkProperty>(&property)) {
        return ProblemCode::LinkTarget;
    }
    return propertyCast<GeneralDataListProperty>(&property) ? ProblemCode::ExpressionInvalid
                                                            : ProblemCode::ValueInvalid;
}

//! Drawing works with any number; everything else depends on the range.
ProblemCode rangeCode(const DesignerObject &owner)
{
    const bool isDrawn = owner.isKindOfClass(u"VisualElement"_s) || owner.isKindOfClass(u"Screen"_s);
    return isDrawn ? ProblemCode::AppearanceRange : ProblemCode::ValueRange;
}

//! A group reports that a member is invalid, but the member itself reports why.
bool isEcho(const DesignerProperty &property)
{
    return property.failure() == DesignerProperty::Failure::Children
           || (property.isList() && property.itemList()->invalidCount > 0 && property.listItemCount() > 1);
}

//! Details that the validator's text does not contain.
QString detail(const DesignerProperty &property, ProblemCode code)
{
    if (code == ProblemCode::NameFormat && property.parentObject()->getIdName().size() == 1) {
        return Common::LocalizationHelper::coreString(u" A name needs at least 2 characters."_s);
    }
    if (code == ProblemCode::FieldbusMap
        && property.parentObject()->isKindOfClass(MappingVariable::kindName())) {
        ModbusMap map(ModbusMap::RegisterKind(property.editorParameter(u"RegType"_s).toInt()));
        const auto *terms = dynamic_cast<const GeneralDataListProperty *>(&property);
        return terms ? map.detail(terms->value()) : QString();
    }
    return {};
}

} // namespace

void InvalidValueCheck::look(const DesignerObject &object)
{
    if (object.isValid()) {
        return;
    }
    for (const SharedProperty &property : object.properties()) {
        using enum DesignerProperty::Failure;
        if (property->isValid() || isEcho(*property)) {
            continue;
        }
        const ProblemCode code = property->failure() == Kind    ? ProblemCode::ValueInvalid
                                 : property->failure() == Range ? rangeCode(object)
                                                                : refusalCode(*property);
        report(Problem::withMessage(*property, code, property->errorString() + detail(*property, code)));
    }
}

} // namespace Halvane::Corvex::Designer
