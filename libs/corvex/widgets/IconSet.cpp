// SPDX-License-Identifier: MIT
#include "corvex/widgets/IconSet.h"

#include "corvex/core/private/IconMaker.h"
#include "corvex/widgets/Theme.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! In the order of IconSet::Icon.
constexpr const char *files[] = {
    "reset",
    "open",
    "add",
    "remove",
    "up",
    "down",
    "search",
    "lock",
    "unlock",
    "eye",
    "folder",
    "link",
    "picture",
    "warning",
    "error",
    "more",
    "pick",
    "bold",
    "italic",
    "underline",
    "overline",
    "strikeout",
    "save",
    "undo",
    "redo",
    "cut",
    "copy",
    "paste",
    "copies",
    "zoomIn",
    "zoomOut",
    "zoomFit",
    "build",
    "play",
    "alignLeft",
    "alignCenter",
    "alignRight",
    "alignTop",
    "alignMiddle",
    "alignBottom",
    "distributeAcross",
    "distributeDown",
    "raise",
    "lower",
    "group",
    "ungroup",
    "question",
    "info",
    "history",
    "screens",
    "variables",
    "delete",
    "new",
};
static_assert(std::size(files) == IconSet::IconCount);

//! The kinds of objects, by color.
enum Kind { Variable, Hardware, Function, Filter, Visual, ScreenKind, Resource, Other, Text };

struct KindColor
{
    QRgb light;
    QRgb dark;
};

//! In the order of Kind, except Text, which has the color of texts.
constexpr KindColor kindColors[] = {
    {0x2E7D32, 0x7CC681}, {0xB71C1C, 0xF08A8A}, {0x6A1B9A, 0xC792E0}, {0x546E7A, 0x9DB4BF},
    {0x1565C0, 0x7DB4F0}, {0x00838F, 0x5FC6D0}, {0xAD1457, 0xF08DB4}, {0x5F6368, 0xA9B0B8},
};
static_assert(std::size(kindColors) == Text);

struct ClassIcon
{
    const char *className;
    const char *file;
    Kind kind;
};

constexpr ClassIcon classIcons[] = {
    {"Action", "action", Function},
    {"AlarmOutput", "alarm", Hardware},
    {"AnalogInput", "analog", Hardware},
    {"AutoSettingVariable", "stored", Variable},
    {"BACnetDevice", "device", Variable},
    {"BACnetObject", "object", Variable},
    {"BACnetService", "commands", Hardware},
    {"BooleanVariable", "switch", Variable},
    {"Button", "button", Function},
    {"CANBusDevice", "bus", Hardware},
    {"CANVariable", "bus", Variable},
    {"CheckButton", "check", Function},
    {"ColorVariable", "color", Variable},
    {"Configuration", "configuration", Other},
    {"ConfigurationContainer", "configuration", Other},
    {"DataLogging", "log", Function},
    {"DigitalInputOutput", "digital", Hardware},
    {"Element", "object", Other},
    {"ElementTemplate", "template", Other},
    {"EthernetPort", "port", Hardware},
    {"FilterElement", "filter", Filter},
    {"FtpVariable", "transfer", Variable},
    {"FunctionElement", "function", Function},
    {"GroupElement", "group", Visual},
    {"HardwareElement", "hardware", Hardware},
    {"I2CBus", "bus", Hardware},
    {"Image", "image", Visual},
    {"ImageResource", "image", Resource},
    {"LogVariable", "log", Variable},
    {"LogicBuilder", "logic", Function},
    {"MappingVariable", "table", Variable},
    {"ModbusCommands", "commands", Hardware},
    {"NumberSpinner", "spinner", Function},
    {"NumberVariable", "number", Variable},
    {"Project", "project", Other},
    {"ProjectTemplate", "template", Other},
    {"ProjectVariable", "variable", Variable},
    {"ProjectVersion", "version", Other},
    {"ProjectVersionsContainer", "version", Other},
    {"PropertyTrigger", "trigger", Function},
    {"PwmOutput", "pulse", Hardware},
    {"RS485COMPort", "serial", Hardware},
    {"Rectangle", "rectangle", Visual},
    {"SPICommunication", "bus", Hardware},
    {"SPIPort", "port", Hardware},
    {"Screen", "screen", ScreenKind},
    {"ScreenLoader", "loader", Function},
    {"SerialCOMPort", "serial", Hardware},
    {"StringVariable", "words", Variable},
    {"Template", "template", Other},
    {"TemplateContainer", "template", Other},
    {"Text", "text", Visual},
    {"ThermistorInput", "temperature", Hardware},
    {"ThermocoupleInput", "temperature", Hardware},
    {"Tutorial", "tutorial", Other},
    {"TutorialContainer", "tutorial", Other},
    {"UpdateObjects", "commands", Other},
    {"UpgradeProjSelection", "version", Other},
    {"VisualElement", "visual", Visual},
};

//! Draws a file of the resource in one color, which depends on the palette at the time of drawing.
class DrawnIcon final : public QIconEngine
{
public:
    DrawnIcon(const QString &file, Kind kind)
        : m_file(file)
        , m_kind(kind)
    { }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        const QColor color = colorFor(mode);
        const QString key =
            u"corvex/%1/%2/%3x%4"_s.arg(m_file).arg(color.rgba()).arg(size.width()).arg(size.height());
        QPixmap pixmap;
        if (!size.isEmpty() && !QPixmapCache::find(key, &pixmap)) {
            pixmap = drawn(size, color);
            QPixmapCache::insert(key, pixmap);
        }
        return pixmap;
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device()->devicePixelRatioF();
        QPixmap shown = pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state);
        shown.setDevicePixelRatio(ratio);
        painter->drawPixmap(rect.topLeft(), shown);
    }

    QIconEngine *clone() const override { return new DrawnIcon(*this); }

private:
    QColor colorFor(QIcon::Mode mode) const
    {
        const QPalette palette = QGuiApplication::palette();
        switch (mode) {
        case QIcon::Disabled:
            return palette.color(QPalette::Disabled, QPalette::WindowText);
        case QIcon::Selected:
            return palette.color(QPalette::HighlightedText);
        default:
            break;
        }
        return m_kind == Text ? palette.color(QPalette::WindowText)
                              : QColor::fromRgb(Theme::isDark(palette) ? kindColors[m_kind].dark
                                                                       : kindColors[m_kind].light);
    }

    QPixmap drawn(QSize size, QColor color) const
    {
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        const int side = std::min(size.width(), size.height());
        QSvgRenderer(m_file).render(
            &painter, QRectF((size.width() - side) / 2.0, (size.height() - side) / 2.0, side, side));
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(image.rect(), color);
        painter.end();
        return QPixmap::fromImage(image);
    }

    QString m_file;
    Kind m_kind;
};

QPixmap drawObjectIcon(const QStringList &classNames)
{
    return IconSet::objectIcon(classNames)
        .pixmap(QSize(IconSet::size, IconSet::size), qGuiApp->devicePixelRatio());
}

[[maybe_unused]] const bool isProvided = (IconMaker::make = &drawObjectIcon) != nullptr;

} // namespace

QIcon IconSet::icon(Icon icon)
{
    return QIcon(new DrawnIcon(u":/corvex/icons/actions/%1.svg"_s.arg(QLatin1StringView(files[icon])), Text));
}

QIcon IconSet::objectIcon(const QStringList &classNames)
{
    for (auto name = classNames.crbegin(); name != classNames.crend(); ++name) {
        const auto found = std::ranges::find_if(
            classIcons, [&](const ClassIcon &row) { return *name == QLatin1StringView(row.className); });
        if (found != std::end(classIcons)) {
            return QIcon(new DrawnIcon(u":/corvex/icons/classes/%1.svg"_s.arg(QLatin1StringView(found->file)),
                                       found->kind));
        }
    }
    return {};
}

} // namespace Halvane::Corvex::Designer
