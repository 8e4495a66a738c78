// SPDX-License-Identifier: MIT
// The property panel: a new panel for one selected text until it is painted, compared with bare widgets of
// the same kinds in a form; and the panel for 2,000 selected texts, compared with one.
#include "corvex/core/DesignerFactory.h"
#include "corvex/document/ProjectDocument.h"
#include "corvex/editors/PropertyPanel.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/widgets/Theme.h"

#include "support/Projects.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QScrollArea>
#include <QSlider>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Benchmarks;
using namespace Halvane::Corvex::Designer;

namespace {

constexpr int textCount = 2000;
constexpr QSize panelSize(340, 1200);

//! A document with a screen of texts.
class Texts
{
public:
    Texts()
    {
        Theme::apply(Theme::Light);
        std::unique_ptr<Project> project = makeProject();
        project->setIdName(u"Panel"_s);
        DesignerObject *screen = DesignerFactory::instance()->createObject(u"Screen"_s, project.get());
        screen->setParent(nullptr);
        project->addListPropertyItem(project->screens(), screen);
        const SharedProperty elements = screen->getProperty(u"elements");
        for (int i = 0; i < textCount; ++i) {
            DesignerObject *element = DesignerFactory::instance()->createObject(u"Text"_s, screen);
            element->setParent(nullptr);
            element->setIdName(u"text%1"_s.arg(i));
            screen->addListPropertyItem(elements, element);
        }
        m_texts = elements->listItems();
        project->createFile(m_folder.path());
        m_document = std::make_unique<ProjectDocument>(std::move(project));
    }

    ProjectDocument &document() { return *m_document; }
    QList<DesignerObject *> first(int count) const { return m_texts.first(count); }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<ProjectDocument> m_document;
    QList<DesignerObject *> m_texts;
};

void paint(QWidget &widget)
{
    widget.resize(panelSize);
    widget.show();
    benchmark::DoNotOptimize(widget.grab());
}

void showPanel(benchmark::State &state)
{
    Texts texts;
    texts.document().select(texts.first(1));
    for (auto _ : state) {
        PropertyPanel panel(texts.document());
        paint(panel);
    }
}
BENCHMARK(showPanel)->Name("panel/one")->Unit(benchmark::kMillisecond);

//! The fields that a hand-written panel of the same rows would have.
void showForm(benchmark::State &state)
{
    Texts texts;
    texts.document().select(texts.first(1));
    PropertyPanel panel(texts.document());
    const PropertySheet &sheet = panel.sheet();
    for (auto _ : state) {
        QScrollArea area;
        auto *form = new QWidget;
        auto *layout = new QFormLayout(form);
        for (int row = 0; row < sheet.rowCount(); ++row) {
            const SheetRow &shown = sheet.row(row);
            QWidget *field = nullptr;
            if (shown.kind == "BooleanProperty"_L1) {
                field = new QCheckBox;
            } else if (shown.kind == "EnumProperty"_L1) {
                field = new QComboBox;
            } else if (shown.editorParameters.value(u"showSlider"_s).toBool()) {
                field = new QWidget;
                auto *line = new QHBoxLayout(field);
                line->addWidget(new QSlider(Qt::Horizontal));
                line->addWidget(new QDoubleSpinBox);
            } else if (shown.kind == "SizeProperty"_L1 || shown.kind == "PointProperty"_L1) {
                field = new QWidget;
                auto *line = new QHBoxLayout(field);
                line->addWidget(new QDoubleSpinBox);
                line->addWidget(new QDoubleSpinBox);
            } else {
                field = new QLineEdit(shown.value);
            }
            layout->addRow(shown.title, field);
        }
        area.setWidget(form);
        paint(area);
    }
}
BENCHMARK(showForm)->Name("panel/form")->Unit(benchmark::kMillisecond);

//! Selects in an existing panel, as a user does.
void select(benchmark::State &state, int count)
{
    Texts texts;
    PropertyPanel panel(texts.document());
    paint(panel);
    for (auto _ : state) {
        texts.document().select({});
        texts.document().select(texts.first(count));
        benchmark::DoNotOptimize(panel.grab());
    }
}
BENCHMARK_CAPTURE(select, one, 1)->Name("select/one")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(select, all, textCount)->Name("select/2000")->Unit(benchmark::kMillisecond);

} // namespace
