// SPDX-License-Identifier: MIT
#include "corvex/checks/ExpressionSyntax.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

#include "FuzzSupport.h"
#include "ScriptEngine.h"
#include "support/CodeShape.h"

#include <QGuiApplication>
#include <QStringList>

#include <memory>

using namespace Halvane::Corvex::Designer;
using namespace Qt::StringLiterals;

namespace {

//! The factory with the standard elements.
void start()
{
    static int argc = 1;
    static char name[] = "screens";
    static char *argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(argc, argv);
    Fuzz::require(DesignerFactory::createInstance(QStringLiteral(CORVEX_LIBRARY_DIR)), "the factory");
    Fuzz::require(DesignerFactory::instance()->canCreateObject(QStringLiteral("Text")), "the elements");
}

//! Fills a screen with elements whose names and values are pieces of the input.
class Author
{
public:
    explicit Author(const QString &text)
        : m_pieces(text.split(u'~'))
    { }

    std::unique_ptr<Project> write()
    {
        std::unique_ptr<Project> project(make<Project>(u"Project"_s));
        project->setIdName(u"Plant"_s);
        for (const QString &className : {u"NumberVariable"_s, u"LogVariable"_s, u"BooleanVariable"_s}) {
            auto *variable = make<DesignerObject>(className);
            variable->setIdName(next());
            add(*project, project->variables(), variable);
        }
        auto *screen = make<Screen>(u"Screen"_s);
        screen->setIdName(u"Main"_s);
        add(*project, project->screens(), screen);
        for (const QString &className : DesignerFactory::instance()->creatableNames()) {
            std::unique_ptr<DesignerObject> element(make<DesignerObject>(className));
            if (element->isKindOfClass(u"Element"_s)) {
                element->setIdName(next());
                add(*screen, screen->elements(), element.release());
            }
        }
        for (DesignerObject *element : screen->elements()->listItems()) {
            fill(*element);
        }
        return project;
    }

private:
    template<class Object>
    static Object *make(const QString &className)
    {
        DesignerObject *object = DesignerFactory::instance()->createObject(className);
        object->setParent(nullptr);
        return static_cast<Object *>(object);
    }

    //! The list refuses a second item with the same name.
    static void add(DesignerObject &owner, const SharedProperty &list, DesignerObject *item)
    {
        if (!owner.addListPropertyItem(list, item)) {
            delete item;
        }
    }

    QString next() { return m_pieces[m_next++ % m_pieces.size()]; }

    void fill(DesignerObject &element)
    {
        for (const SharedProperty &property : element.properties()) {
            if (property->isKindOfClass(UpdateObjectListProperty::kindName())) {
                UpdateObjectInfo update;
                update.setName(next());
                update.setPropValueMap({{next(), next()}, {next(), next()}});
                element.changePropertyValue(property, UpdateObjectList({update}).toString());
            } else if (property->isKindOfClass(PropertyChangeListProperty::kindName())) {
                PropertyList changes;
                changes.append(PropertyChangeInfo(next(), next(), next()));
                element.changePropertyValue(property, changes.toString());
            } else if (property->isKindOfClass(LinkProperty::kindName())) {
                element.changePropertyValue(property, ObjectLinkInfo(next(), next(), next()).toString());
            } else if (property != element.idProperty() && !property->isList() && !property->isObject()) {
                element.changePropertyValue(property, next());
            }
        }
    }

    QStringList m_pieces;
    qsizetype m_next = 0;
};

} // namespace

//! Whatever the names and values, the code must not call anything, and the document of a valid project must
//! parse.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const bool started = (start(), true);
    Q_UNUSED(started)
    static ExpressionSyntax syntax;
    Author author(Fuzz::toText(data, size));
    const std::unique_ptr<Project> project = author.write();
    for (const DesignerObject *screen : project->screens()->listItems()) {
        const QString qml = screen->toQml(0);
        Fuzz::require(foreignCall(qml).isEmpty(), "a call of something else", foreignCall(qml));
        for (const DesignerObject *element : screen->childObjects()) {
            for (const SharedProperty &property : element->properties()) {
                const QString member =
                    property->isList() || !property->isValid() ? QString() : property->toQml(1);
                Fuzz::require(syntax.checkDocument(u"Item {\n%1\n}\n"_s.arg(member)).valid,
                              "QML of a good value", member);
            }
        }
    }
    return 0;
}
