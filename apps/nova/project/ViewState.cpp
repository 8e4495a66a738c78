// SPDX-License-Identifier: MIT
#include "project/ViewState.h"

#include "corvex/editing/words/ProjectPath.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

#include "UserSettings.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;

namespace {

constexpr struct
{
    CanvasState::Flag flag;
    const char *key;
} flagKeys[] = {{CanvasState::Hidden, "hidden"}, {CanvasState::Locked, "locked"}};

QVariantList toVariants(const QList<double> &places)
{
    return {places.cbegin(), places.cend()};
}

QList<double> toPlaces(const QVariant &variants)
{
    QList<double> places;
    for (const QVariant &place : variants.toList()) {
        places.append(place.toDouble());
    }
    return places;
}

} // namespace

ViewState::ViewState(Project &project, QObject *parent)
    : QObject(parent)
    , m_project(project)
{
    project.observers().add(this);
    read();
}

ViewState::~ViewState()
{
    write();
}

void ViewState::projectAboutToLoad()
{
    write();
}

void ViewState::projectLoaded()
{
    read();
}

void ViewState::read()
{
    m_flagged.clear();
    m_guides.clear();
    const QVariantMap settings = UserSettings::viewOf(m_project.fullFilePath());
    for (const auto &[flag, key] : flagKeys) {
        for (const QString &path : settings.value(QLatin1StringView(key)).toStringList()) {
            if (DesignerObject *object = ProjectPath::find(m_project, path).object) {
                setFlags(object, CanvasState::of(object) | flag);
            }
        }
    }
    const QVariantMap guides = settings.value(u"guides"_s).toMap();
    for (auto places = guides.cbegin(); places != guides.cend(); ++places) {
        if (DesignerObject *screen = m_project.screens()->getListItem(places.key())) {
            const QVariantMap lines = places->toMap();
            m_guides.append(
                {screen, {toPlaces(lines.value(u"vertical"_s)), toPlaces(lines.value(u"horizontal"_s)), 0}});
        }
    }
    emit flagsChanged();
    emit guidesChanged();
}

void ViewState::write() const
{
    QVariantMap settings;
    for (const auto &[flag, key] : flagKeys) {
        QStringList paths;
        for (const QPointer<DesignerObject> &object : m_flagged) {
            if (object && object->project() == &m_project && CanvasState::of(object).testFlag(flag)) {
                paths.append(object->objectPath());
            }
        }
        if (!paths.isEmpty()) {
            paths.sort();
            settings.insert(QLatin1StringView(key), paths);
        }
    }
    QVariantMap guides;
    for (const Guides &places : m_guides) {
        if (places.screen && places.screen->project() == &m_project) {
            guides.insert(places.screen->getIdName(),
                          QVariantMap{{u"vertical"_s, toVariants(places.guides.vertical)},
                                      {u"horizontal"_s, toVariants(places.guides.horizontal)}});
        }
    }
    if (!guides.isEmpty()) {
        settings.insert(u"guides"_s, guides);
    }
    UserSettings::setViewOf(m_project.fullFilePath(), settings);
}

void ViewState::setFlags(DesignerObject *object, CanvasState::Flags flags)
{
    CanvasState::set(object, flags);
    if (flags) {
        m_flagged.insert(object, object);
    } else {
        m_flagged.remove(object);
    }
}

void ViewState::setFlag(const QList<DesignerObject *> &objects, CanvasState::Flag flag, bool on)
{
    for (DesignerObject *object : objects) {
        CanvasState::Flags flags = CanvasState::of(object);
        setFlags(object, flags.setFlag(flag, on));
    }
    emit flagsChanged();
}

void ViewState::clearFlags(const Screen &screen)
{
    const auto flagged = m_flagged;
    for (const QPointer<DesignerObject> &object : flagged) {
        if (object && object->screen() == &screen) {
            setFlags(object, {});
        }
    }
    emit flagsChanged();
}

SnapGuides ViewState::guidesOf(const Screen *screen) const
{
    const auto found = std::ranges::find(m_guides, screen, &Guides::screen);
    SnapGuides guides = found == m_guides.cend() ? SnapGuides() : found->guides;
    guides.grid = hasGrid() ? gridStep : 0;
    return guides;
}

void ViewState::setGuides(Screen *screen, const SnapGuides &guides)
{
    const auto found = std::ranges::find(m_guides, screen, &Guides::screen);
    if (found == m_guides.end()) {
        m_guides.append({screen, guides});
    } else {
        found->guides = guides;
    }
    emit guidesChanged();
}

bool ViewState::hasGrid()
{
    return UserSettings::hasGrid();
}

void ViewState::setGrid(bool on)
{
    UserSettings::setGrid(on);
    emit guidesChanged();
}

} // namespace Halvane::Corvex::Nova
