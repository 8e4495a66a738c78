// SPDX-License-Identifier: MIT
// A key in the expression builder with 20,000 variables until the list of completions is painted, compared
// with a plain completer on as many names.
#include "corvex/core/DesignerFactory.h"
#include "corvex/editors/expressions/ExpressionBuilder.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/widgets/Theme.h"

#include "support/Projects.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStringListModel>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Benchmarks;
using namespace Halvane::Corvex::Designer;

namespace {

constexpr int variableCount = 20000;

QString nameOf(int variable)
{
    return u"level%1"_s.arg(variable);
}

//! A project with the variables, and a text with the place for an expression.
class Variables
{
public:
    Variables()
    {
        Theme::apply(Theme::Light);
        m_project->setIdName(u"Panel"_s);
        DesignerFactory *factory = DesignerFactory::instance();
        for (int i = 0; i < variableCount; ++i) {
            DesignerObject *variable = factory->createObject(u"NumberVariable"_s, m_project.get());
            variable->setParent(nullptr);
            variable->setIdName(nameOf(i));
            m_project->addListPropertyItem(m_project->variables(), variable);
        }
        DesignerObject *screen = factory->createObject(u"Screen"_s, m_project.get());
        screen->setParent(nullptr);
        m_project->addListPropertyItem(m_project->screens(), screen);
        DesignerObject *text = factory->createObject(u"Text"_s, screen);
        text->setParent(nullptr);
        screen->addListPropertyItem(screen->getProperty(u"elements"), text);
        m_place = text->getProperty(u"xBinding");
    }

    const SharedProperty &place() const { return m_place; }

private:
    std::unique_ptr<Project> m_project = makeProject();
    SharedProperty m_place;
};

void press(QWidget *field, int key, const QString &text)
{
    QKeyEvent pressed(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(field, &pressed);
}

//! Types a letter, which lists the names, paints both, and deletes the letter.
void type(benchmark::State &state, QWidget *window, QWidget *field)
{
    window->show();
    window->activateWindow();
    field->setFocus();
    QApplication::processEvents();
    press(field, Qt::Key_L, u"l"_s);
    press(field, Qt::Key_Backspace, {});
    auto *completer = window->findChild<QCompleter *>();
    for (auto _ : state) {
        press(field, Qt::Key_L, u"l"_s);
        if (!completer || !completer->popup()->isVisible()) {
            state.SkipWithError("no completions are shown");
            break;
        }
        QApplication::processEvents();
        state.PauseTiming();
        press(field, Qt::Key_Backspace, {});
        completer->popup()->hide();
        QApplication::processEvents();
        state.ResumeTiming();
    }
}

void typeInBuilder(benchmark::State &state)
{
    const Variables variables;
    ExpressionBuilder builder(variables.place());
    builder.resize(760, 520);
    type(state, &builder, builder.findChild<QPlainTextEdit *>());
}
BENCHMARK(typeInBuilder)->Name("key/builder")->Unit(benchmark::kMillisecond);

void typeInLine(benchmark::State &state)
{
    QStringList names;
    for (int i = 0; i < variableCount; ++i) {
        names.append(nameOf(i));
    }
    QWidget window;
    window.resize(760, 520);
    auto *line = new QLineEdit(&window);
    auto *completer = new QCompleter(new QStringListModel(names, &window), &window);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    line->setCompleter(completer);
    type(state, &window, line);
}
BENCHMARK(typeInLine)->Name("key/completer")->Unit(benchmark::kMillisecond);

} // namespace
