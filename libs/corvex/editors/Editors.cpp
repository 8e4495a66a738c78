// SPDX-License-Identifier: MIT
#include "corvex/editors/Editors.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/editors/AddressMapEditors.h"
#include "corvex/editors/BACnetEditors.h"
#include "corvex/editors/CANVariableEditor.h"
#include "corvex/editors/ChangesEditors.h"
#include "corvex/editors/ChoiceEditors.h"
#include "corvex/editors/ColorEditors.h"
#include "corvex/editors/ExpressionEditors.h"
#include "corvex/editors/FontEditor.h"
#include "corvex/editors/HardwareEditors.h"
#include "corvex/editors/NetworkEditors.h"
#include "corvex/editors/NumberEditors.h"
#include "corvex/editors/PropertyEditor.h"
#include "corvex/editors/ReferenceEditors.h"
#include "corvex/editors/ShapeEditors.h"
#include "corvex/editors/TextEditors.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

struct EditorRow
{
    const char *name;
    PropertyEditor *(*create)(QWidget *parent);
};

template<class Editor>
PropertyEditor *make(QWidget *parent)
{
    return new Editor(parent);
}

constexpr EditorRow editors[] = {
    {"PropertyEditor", &make<PropertyEditor>},
    {"AutosaveObjectEditor", &make<AutosaveObjectEditor>},
    {"AddressMapEditor", &make<AddressMapEditor>},
    {"BACObjIdEditor", &make<BACObjIdEditor>},
    {"BACDeviceEditor", &make<BACDeviceEditor>},
    {"BACnetPropertiesEditor", &make<BACnetPropertiesEditor>},
    {"BooleanEditor", &make<BooleanEditor>},
    {"BorderEditor", &make<BorderEditor>},
    {"CANVariableEditor", &make<CANVariableEditor>},
    {"ChannelEditor", &make<ChannelEditor>},
    {"ColorEditor", &make<ColorEditor>},
    {"ColorListEditor", &make<ColorListEditor>},
    {"CompatibleModelsEditor", &make<CompatibleModelsEditor>},
    {"DeviceModelEditor", &make<DeviceModelEditor>},
    {"DigitalChannelEditor", &make<DigitalChannelEditor>},
    {"DigitalIOEditor", &make<DigitalIOEditor>},
    {"ElementPropertyChangesEditor", &make<ElementPropertyChangesEditor>},
    {"EnumEditor", &make<EnumEditor>},
    {"ErrorFlagsEditor", &make<ErrorFlagsEditor>},
    {"FontEditor", &make<FontEditor>},
    {"GradientStopsEditor", &make<GradientStopsEditor>},
    {"IdentifierEditor", &make<IdentifierEditor>},
    {"ImageSourceEditor", &make<ImageSourceEditor>},
    {"IntegerEditor", &make<IntegerEditor>},
    {"IOErrorFlagsEditor", &make<IOErrorFlagsEditor>},
    {"ItemsOrderEditor", &make<ItemsOrderEditor>},
    {"KeepRatioEditor", &make<KeepRatioEditor>},
    {"LargeNumberEditor", &make<LargeNumberEditor>},
    {"LinkEditor", &make<LinkEditor>},
    {"MACAddressEditor", &make<MACAddressEditor>},
    {"NetworkAddressEditor", &make<NetworkAddressEditor>},
    {"NumberEditor", &make<NumberEditor>},
    {"ObjectEditor", &make<ObjectEditor>},
    {"OpacityEditor", &make<OpacityEditor>},
    {"OriginalLocationEditor", &make<OriginalLocationEditor>},
    {"PlainTextEditor", &make<PlainTextEditor>},
    {"PointEditor", &make<PointEditor>},
    {"PropertyChangesEditor", &make<PropertyChangesEditor>},
    {"RangeEditor", &make<RangeEditor>},
    {"ReadOnlyLineEditor", &make<ReadOnlyLineEditor>},
    {"RealEditor", &make<RealEditor>},
    {"ScaleEditor", &make<ScaleEditor>},
    {"ScreenColorEditor", &make<ScreenColorEditor>},
    {"ScreenOrientationEditor", &make<ScreenOrientationEditor>},
    {"ScreenSizeEditor", &make<ScreenSizeEditor>},
    {"SingleLineEditor", &make<SingleLineEditor>},
    {"SizeEditor", &make<SizeEditor>},
    {"TransformOriginEditor", &make<TransformOriginEditor>},
    {"ValueRangeEditor", &make<ValueRangeEditor>},
    {"VerticalBooleanExpressionEditor", &make<VerticalBooleanExpressionEditor>},
    {"VerticalMathExpressionEditor", &make<VerticalMathExpressionEditor>},
    {"VerticalStringExpressionEditor", &make<VerticalStringExpressionEditor>},
    {"SerialRS485Editor", &make<SerialRS485Editor>},
    {"SPIChipSelectEditor", &make<SPIChipSelectEditor>},
    {"ProjectPasswordEditor", &make<ProjectPasswordEditor>},
    {"SerialCOMPortsEditor", &make<SerialCOMPortsEditor>},
    {"StringAddressMapEditor", &make<StringAddressMapEditor>},
};
static_assert(std::size(editors) == 57);

//! The editors of properties that only name the base class.
struct KindRow
{
    const char *kind;
    const char *editor;
};

constexpr KindRow kinds[] = {
    {"StringProperty", "SingleLineEditor"},
    {"MapProperty", "SingleLineEditor"},
    {"PointListProperty", "SingleLineEditor"},
    {"PolygonListProperty", "SingleLineEditor"},
    {"EnumProperty", "EnumEditor"},
    {"ColorListProperty", "ColorListEditor"},
    {"ListValueProperty", "ItemsOrderEditor"},
    {"GeneralDataProperty", "SingleLineEditor"},
    {"GeneralDataListProperty", "VerticalStringExpressionEditor"}, // terms are read as the property uses them
    {"UpdateObjectProperty", "ElementPropertyChangesEditor"},
    {"UpdateObjectListProperty", "ElementPropertyChangesEditor"},
    {"PropertyChangeProperty", "PropertyChangesEditor"},
    {"PropertyChangeListProperty", "PropertyChangesEditor"},
};

} // namespace

QStringList Editors::names()
{
    QStringList names;
    for (const EditorRow &row : editors) {
        names.append(QString::fromLatin1(row.name));
    }
    return names;
}

PropertyEditor *Editors::create(const QString &name, QWidget *parent)
{
    const auto row = std::ranges::find_if(
        editors, [&](const EditorRow &known) { return name == QLatin1StringView(known.name); });
    return row == std::end(editors) ? nullptr : row->create(parent);
}

QString Editors::nameFor(const SheetRow &row)
{
    if (row.editor != QLatin1StringView(editors[0].name)) {
        return row.editor;
    }
    const auto kind = std::ranges::find_if(
        kinds, [&](const KindRow &known) { return row.kind == QLatin1StringView(known.kind); });
    return kind == std::end(kinds) ? row.editor : QString::fromLatin1(kind->editor);
}

bool Editors::isSecret(const SheetRow &row)
{
    return row.editor == "ProjectPasswordEditor"_L1;
}

PropertyEditor *Editors::createFor(const SheetRow &row, QWidget *parent)
{
    const QString name = nameFor(row);
    PropertyEditor *editor = nullptr;
    if (const DesignerFactory *factory = DesignerFactory::instance()) {
        editor = factory->createEditor(name, parent);
    } else {
        editor = create(name, parent);
    }
    return editor ? editor : new PropertyEditor(parent);
}

} // namespace Halvane::Corvex::Designer
