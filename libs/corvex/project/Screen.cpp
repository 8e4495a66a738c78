// SPDX-License-Identifier: MIT
#include "corvex/project/Screen.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/PropertyTable.h"
#include "corvex/core/PropertyValidators.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/ColorProperties.h"
#include "corvex/core/properties/IdentifierProperty.h"
#include "corvex/core/properties/ObjectListProperty.h"
#include "corvex/core/properties/ShapeProperties.h"
#include "corvex/project/PercentQml.h"
#include "corvex/project/Project.h"
#include "corvex/project/RuntimeTable.h"
#include "corvex/project/elements/GroupElement.h"
#include "corvex/values/text/ObjectPath.h"
#include "corvex/values/text/ValueConversion.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr QSizeF sizeWithoutProject{500, 300};

bool isQuarterTurn(QStringView orientation)
{
    return orientation == "90"_L1 || orientation == "270"_L1;
}

} // namespace

Screen::Screen(QObject *parent)
    : DesignerObject(parent)
{
    DesignerObject::setScreen(this);
}

Screen::~Screen()
{
    m_index.clear();
    deleteChildren();
}

QString Screen::baseName() const
{
    return DesignerFactory::baseNameOf(this);
}

QString Screen::displayName() const
{
    return DesignerFactory::displayNameOf(this);
}

bool Screen::initializeProperties()
{
    constexpr int notStored = RuntimeFlag | EditableFlag | StateFlag;
    static const PropertyTable table{
        row<IdentifierProperty>("id", "Name", IdentifierInfo())
            .description("The name by which links and expressions refer to the screen.")
            .rank(0)
            .flags(15)
            .allowInvalid()
            .validator(&PropertyValidators::identifierElementValidator),
        row<SizeProperty>("size", "Screen Size", sizeWithoutProject)
            .description("The width and the height of the screen, in pixels; they follow the device model "
                         "and the orientation.")
            .rank(2)
            .flags(notStored)
            .editor("ScreenSizeEditor")
            .parameter("noArrows", true)
            .allowInvalid(),
        row<ColorProperty>("color", "Color", QColor(Qt::white))
            .description("The color of the background.")
            .rank(3)
            .editor("ScreenColorEditor")
            .allowInvalid(),
        row<IntegerProperty>("orientation", "Orientation", 0)
            .description("The angle by which the contents are turned on the display, in degrees.")
            .rank(4)
            .editor("ScreenOrientationEditor")
            .parameter("values", QVariantList{0, 90, 180, 270})
            .allowInvalid(),
        row<RealProperty>("scale", "Scale", 100.0)
            .description("The size at which the contents are drawn, in percent.")
            .rank(5)
            .flags(RuntimeFlag | StateFlag)
            .editor("ScaleEditor")
            .parameter("minimum", -500)
            .parameter("maximum", 500)
            .parameter("showSlider", true)
            .parameter("isPercentage", true)
            .qml(&percentToQml)
            .allowInvalid(),
        row<ObjectListProperty>("elements", "Elements", OrderRule::KindOrder)
            .description("The elements of the screen.")
            .rank(6)
            .flags(StoredFlag | RuntimeFlag | ListFlag)
            .filter({"Element"})
            .validator(&PropertyValidators::screenElementsValidator)
            .allowInvalid(),
        row<ObjectListProperty>("filters", "Filters", OrderRule::NaturalOrder)
            .description("The filters of the screen; each lists some of its elements.")
            .rank(7)
            .filter({"FilterElement"})
            .allowInvalid(),
    };
    if (!DesignerObject::initializeProperties() || !addProperties(table)) {
        return false;
    }
    registerIdentifier(u"Project"_s);
    return true;
}

ObjectView *Screen::createGraphicsItem()
{
    return DesignerFactory::createObjectView(u"GraphicsRectangle"_s, this);
}

void Screen::setProject(Project *newProject)
{
    m_index.countIn(newProject ? newProject->elementNameCounts() : nullptr);
    DesignerObject::setProject(newProject);
    onConfigurationSizeChanged();
}

void Screen::setScreen(Screen *) { }

void Screen::afterPropertyChanged(const DesignerProperty *property, const QString &previousValue)
{
    if (property->id() == "orientation"_L1
        && isQuarterTurn(property->valueString()) != isQuarterTurn(previousValue)) {
        onConfigurationSizeChanged();
    }
}

void Screen::onConfigurationSizeChanged()
{
    const DesignerObject *configuration = project() ? project()->configuration()->objectValue() : nullptr;
    if (!configuration) {
        return;
    }
    QSizeF deviceSize = ValueConversion::toSize(configuration->getProperty(u"screenSize")->valueString());
    if (isQuarterTurn(getProperty(u"orientation")->valueString())) {
        deviceSize.transpose();
    }
    changePropertyValue(size(), ValueConversion::toString(deviceSize));
}

QStringList Screen::getElementNames() const
{
    return elements()->listItemNames(true);
}

Element *Screen::getElement(const QString &name) const
{
    for (DesignerObject *element : m_index.named(name)) {
        if (!element->isKindOfClass(u"FilterElement"_s)) {
            return static_cast<Element *>(element);
        }
    }
    return name.contains(u'.') ? memberAt(name) : nullptr;
}

//! The element at the end of a path through groups.
Element *Screen::memberAt(QStringView path) const
{
    Element *element = getElement(ObjectPath::firstSegment(path).toString());
    path = path.sliced(ObjectPath::firstSegment(path).size());
    while (element && !path.isEmpty()) {
        const QStringView name = ObjectPath::firstSegment(path.sliced(1));
        const auto *group = kindCast<GroupElement>(element);
        element = group ? group->getChild(name.toString()) : nullptr;
        path = path.sliced(1 + name.size());
    }
    return element;
}

QString Screen::uniqueElementName(const QString &base)
{
    return m_index.freeName(base, [this](const QString &name) { return !isFreeName(name); });
}

bool Screen::isFreeName(const QString &name) const
{
    return m_index.count(name) == 0 && name != getIdName()
           && !(project() && project()->variables()->hasListItem(name));
}

QList<Element *> Screen::getElementsOfType(const QString &className) const
{
    QList<Element *> found;
    for (DesignerObject *item : elements()->getItemsOfType(className, true)) {
        found.append(static_cast<Element *>(item));
    }
    return found;
}

RuntimePropertyList Screen::runtimeProperties() const
{
    using Common::EnumHelper;
    static constexpr RuntimeRow rows[] = {
        {"deviceSerialNo", "Device Serial Number", EnumHelper::StringVariable, EnumHelper::ReadOnly},
        {"brightness", "Display Brightness", EnumHelper::IntegerVariable, EnumHelper::ReadWrite},
        {"functions", "Function elements", EnumHelper::NoVariable, EnumHelper::ReadOnly},
        {"serialCOMPorts", "Serial COM ports", EnumHelper::NoVariable, EnumHelper::ReadOnly},
        {"pwmOutputs", "PWM outputs", EnumHelper::NoVariable, EnumHelper::ReadOnly},
        {"digitalIOs", "Digital inputs and outputs", EnumHelper::NoVariable, EnumHelper::ReadOnly},
        {"analogInputs", "Analog inputs", EnumHelper::NoVariable, EnumHelper::ReadOnly},
        {"alarmOutputs", "Alarm outputs", EnumHelper::NoVariable, EnumHelper::ReadOnly},
        {"color", "Color", EnumHelper::ColorVariable, EnumHelper::ReadWrite, "Screen background color"},
        {"scale", "Scale", EnumHelper::NumberVariable, EnumHelper::ReadWrite},
        {"rotation", "Rotation", EnumHelper::NumberVariable, EnumHelper::ReadWrite,
         "Screen rotation in degrees"},
        {"opacity", "Opacity", EnumHelper::NumberVariable, EnumHelper::ReadWrite, "Opacity (0 to 1)"},
        {"height", "Height", EnumHelper::NumberVariable, EnumHelper::ReadOnly, "Screen height"},
        {"width", "Width", EnumHelper::NumberVariable, EnumHelper::ReadOnly, "Screen width"},
        {"addedToScene", "Added to Scene", EnumHelper::BooleanVariable, EnumHelper::ReadOnly,
         "The element is added to the scene"},
        {"completed", "Completed", EnumHelper::BooleanVariable, EnumHelper::ReadOnly,
         "The setup of the element is finished"},
        {"id", "Identifier", EnumHelper::StringVariable, EnumHelper::ReadOnly},
    };
    static const RuntimePropertyList list = toRuntimeProperties(rows);
    return list;
}

} // namespace Halvane::Corvex::Designer
