// SPDX-License-Identifier: MIT
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/values/expressions/GeneralDataList.h"
#include "corvex/values/records/BorderInfo.h"
#include "corvex/values/runtime/PropertyList.h"

#include <QGuiApplication>

#include <algorithm>
#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace {

template<class Object>
std::unique_ptr<Object> make(const QString &className, const QString &name = {})
{
    auto *object = qobject_cast<Object *>(DesignerFactory::instance()->createObject(className));
    if (!object) {
        return nullptr;
    }
    object->setParent(nullptr);
    if (!name.isEmpty()) {
        object->setIdName(name);
    }
    return std::unique_ptr<Object>(object);
}

//! Creates a project with standard elements and one of the plug-in's, which refers to them, in the working
//! folder.
bool writeProject(const QString &name)
{
    auto project = make<Project>(u"Project"_s, name);
    project->changePropertyObjectValue(project->configuration(),
                                       make<DesignerObject>(u"Configuration"_s, u"VTR"_s).release());
    project->addListPropertyItem(project->variables(),
                                 make<DesignerObject>(u"NumberVariable"_s, u"speed"_s).release());
    auto *screen = make<Screen>(u"Screen"_s, u"Main"_s).release();
    project->addListPropertyItem(project->screens(), screen);
    for (const QString &element : {u"label"_s, u"lamp"_s}) {
        screen->addListPropertyItem(screen->elements(), make<Element>(u"Text"_s, element).release());
    }
    auto *meter = make<Element>(u"FlowMeter"_s, u"meter"_s).release();
    screen->addListPropertyItem(screen->elements(), meter);
    const std::pair<QString, QString> values[] = {{u"litres"_s, u"30"_s},
                                                  {u"visualElement"_s, u"objectId: label;"_s},
                                                  {u"alarmState"_s, u"name: label;"_s},
                                                  {u"sources"_s, u"speed | label"_s}};
    const bool areSet = std::all_of(std::begin(values), std::end(values), [meter](const auto &value) {
        return meter->changePropertyValue(meter->getProperty(value.first), value.second);
    });
    return areSet && project->createFile(u"."_s);
}

QString describe(const Element &element)
{
    const QString text = u"%1 %2"_s.arg(element.className(), element.getIdName());
    const SharedProperty litres = element.getProperty("litres");
    return litres ? u"%1 (%2 l/min)"_s.arg(text, litres->valueString()) : text;
}

//! Plain literals are accepted as texts, and lists and properties can be temporaries.
bool readsLiterals()
{
    bool isBorder = false;
    bool isChange = false;
    IntegerProperty number(nullptr, "number", "Number", 1);
    return ValueConversion::toColor("red").isValid()
           && BorderInfo("color: red; width: 2;", &isBorder).width() == 2 && isBorder
           && !PropertyList("label1", &isChange).size() && !isChange
           && (GeneralDataList() << GeneralDataInfo("0406speed")).toString() == "0406speed"
           && number.convertToValue("7") && number.valueIsEqual("07") && number.valueString() == "7";
}

} // namespace

//! Writes a project, loads it and prints its screens.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    if (!DesignerFactory::createInstance(QStringLiteral(LIBRARY_FOLDER)) || !writeProject(u"Plant"_s)) {
        return 1;
    }
    if (!readsLiterals()) {
        return 3;
    }
    auto project = make<Project>(u"Project"_s);
    if (!project->loadFile(u"Plant/Plant.kdproj"_s)) {
        return 2;
    }
    for (DesignerObject *object : project->childObjects()) {
        auto *screen = qobject_cast<Screen *>(object);
        if (!screen) {
            continue;
        }
        QStringList elements;
        for (const QString &name : screen->getElementNames()) {
            elements.append(describe(*screen->getElement(name)));
        }
        std::printf("%s: %s\n", qPrintable(screen->getIdName()), qPrintable(elements.join(u", "_s)));
    }
    return 0;
}
