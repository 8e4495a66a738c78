// SPDX-License-Identifier: MIT
#include "ProjectGenerator.h"

#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/values/text/ValueConversion.h"

#include "ProjectBuilder.h"
#include "RandomExpressions.h"
#include "ScreenGenerator.h"

#include <QImage>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Examples {

namespace {

const QString model = u"VTR 101-W"_s;
constexpr QRgb imageColors[] = {0xff1f6fb2, 0xff2e7d4f, 0xffc62828, 0xffe0a11b, 0xff5f6f7c, 0xff6a4fa3};

QString imageName(int number)
{
    return u"symbol%1.png"_s.arg(number + 1);
}

//! Creates the variables and offers their names to expressions.
class VariableGenerator
{
public:
    VariableGenerator(ProjectBuilder &builder, Random &random, RandomExpressions &expressions)
        : m_builder(builder)
        , m_random(random)
        , m_expressions(expressions)
    { }

    void makeAll(int count)
    {
        for (int i = 0; i < count; ++i) {
            make(i < ProjectSize::fewestVariables ? kinds[i] : draw(), i);
        }
    }

private:
    struct Kind
    {
        int share; //!< per cent
        const char *className;
        char names; //!< the kind for which its names are offered; 0 for none
        QString (*value)(Random &random);
    };

    static QString floatValue(Random &random)
    {
        return QString::number(random.below(50'000) / 100.0, 'f', 2);
    }
    static QString integerValue(Random &random) { return QString::number(random.between(-500, 5000)); }
    static QString booleanValue(Random &random) { return random.chance(50) ? u"true"_s : u"false"_s; }
    static QString textValue(Random &random)
    {
        constexpr QStringView texts[] = {u"READY", u"Filling_tank", u"  waiting  ", u"R\u00fccklauf"};
        return random.oneOf(texts).toString();
    }
    static QString colorValue(Random &random)
    {
        return ValueConversion::toString(QColor::fromRgb(QRgb(random.below(0x1000000))));
    }
    static QString noValue(Random &) { return {}; }

    static constexpr Kind kinds[ProjectSize::fewestVariables] = {
        {30, "NumberVariable", 'n', &floatValue},    {28, "NumberVariable", 'n', &integerValue},
        {20, "BooleanVariable", 'b', &booleanValue}, {11, "StringVariable", 's', &textValue},
        {5, "ColorVariable", 'c', &colorValue},      {3, "LogVariable", 'l', &noValue},
        {1, "MappingVariable", 'm', &noValue},       {2, "AutoSettingVariable", 0, &noValue},
    };

    const Kind &draw()
    {
        int place = m_random.below(100);
        for (const Kind &kind : kinds) {
            place -= kind.share;
            if (place < 0) {
                return kind;
            }
        }
        return kinds[0];
    }

    void make(const Kind &kind, int index)
    {
        constexpr QLatin1StringView plants[] = {"boiler"_L1, "pump"_L1,   "mixer"_L1, "tank"_L1, "filter"_L1,
                                                "valve"_L1,  "dosing"_L1, "dryer"_L1, "mill"_L1, "silo"_L1};
        constexpr QLatin1StringView sizes[] = {"Level"_L1, "Pressure"_L1, "Speed"_L1,   "State"_L1,
                                               "Flow"_L1,  "Setpoint"_L1, "Runtime"_L1, "Demand"_L1};
        const QString name = m_random.oneOf(plants) + m_random.oneOf(sizes) + QString::number(index + 1);
        DesignerObject *variable =
            m_builder.addVariable(QString::fromLatin1(kind.className), name, kind.value(m_random));
        if (kind.names) {
            m_expressions.offer(kind.names, name);
        }
        if (m_random.chance(20) && kind.value != &noValue) {
            m_builder.set(variable, "persistent", u"true"_s);
        }
        if (kind.names == 'm') {
            mapRegisters(variable);
        }
    }

    void mapRegisters(DesignerObject *variable)
    {
        GeneralDataList registers;
        for (int address = 40001; address < 40001 + m_random.between(4, 40); ++address) {
            registers.append(GeneralDataInfo::ConstantValue, GeneralDataInfo::IntegerData,
                             QString::number(address));
            registers.append(GeneralDataInfo::VariableValue, GeneralDataInfo::NumberData,
                             m_expressions.oneOf('n'));
        }
        m_builder.set(variable, "holdingRegMap", registers.toString());
    }

    ProjectBuilder &m_builder;
    Random &m_random;
    RandomExpressions &m_expressions;
};

} // namespace

std::optional<ProjectSize> ProjectSize::named(const QString &name)
{
    if (name == "S"_L1) {
        return ProjectSize{30, 1'000, 1'000};
    }
    if (name == "M"_L1) {
        return ProjectSize{100, 5'000, 10'000};
    }
    if (name == "L"_L1) {
        return ProjectSize{500, 20'000, 50'000};
    }
    return {};
}

QString ProjectSize::problem() const
{
    if (screens < 1) {
        return u"A project needs at least one screen."_s;
    }
    if (variables < fewestVariables) {
        return u"A project needs at least %1 variables, one of each kind."_s.arg(fewestVariables);
    }
    return elements < screens ? u"Each screen needs at least one element."_s : QString();
}

ProjectGenerator::ProjectGenerator(const QString &name, ProjectSize size, quint64 seed)
    : m_name(name)
    , m_size(size)
    , m_seed(seed)
{ }

std::unique_ptr<Project> ProjectGenerator::generate()
{
    Random random(m_seed);
    RandomExpressions expressions(random);
    ProjectBuilder builder(m_name);
    builder.setModel(model);
    QStringList images;
    for (int i = 0; i < int(std::size(imageColors)); ++i) {
        images.append(imageName(i));
        builder.addImage(images.last());
    }
    VariableGenerator(builder, random, expressions).makeAll(m_size.variables);
    QList<Screen *> screens;
    for (int i = 0; i < m_size.screens; ++i) {
        constexpr QLatin1StringView areas[] = {"Boiler"_L1, "Filling"_L1, "Storage"_L1, "Cooling"_L1,
                                               "Intake"_L1};
        screens.append(builder.addScreen(random.oneOf(areas) + QString::number(i + 1)));
    }
    ScreenGenerator generator(builder, random, expressions, screens, images);
    for (int i = 0; i < m_size.screens; ++i) {
        // The first screens get the remainder.
        generator.fill(screens.at(i),
                       m_size.elements / m_size.screens + (i < m_size.elements % m_size.screens));
    }
    builder.link(&builder.project(), "defaultScreen", screens.first()->getIdName());
    m_problems = builder.problems();
    return builder.takeProject();
}

bool ProjectGenerator::writeImages(const QString &folder)
{
    constexpr int edge = 48;
    for (int i = 0; i < int(std::size(imageColors)); ++i) {
        QImage image(edge, edge, QImage::Format_RGB32);
        image.fill(imageColors[i]);
        if (!image.save(u"%1/%2"_s.arg(folder, imageName(i)))) {
            return false;
        }
    }
    return true;
}

} // namespace Halvane::Corvex::Examples
