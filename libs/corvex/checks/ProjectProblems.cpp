// SPDX-License-Identifier: MIT
#include "corvex/checks/ProjectProblems.h"

#include "corvex/checks/private/CheckWalk.h"
#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/Processors.h"
#include "corvex/common/Progress.h"
#include "corvex/project/Project.h"

#include <atomic>
#include <numeric>

namespace Halvane::Corvex::Designer {

namespace {

//! Fewer objects are not worth a thread.
constexpr qsizetype objectsOfPart = 500;
//! More parts than processors, because some take longer than others.
constexpr qsizetype partsOfProcessor = 4;

//! A sequence of the project's objects, with its own checks.
struct Part
{
    QList<DesignerObject *> objects;
    CheckWalk walk;
};

//! The approximate number of objects, including those below it.
qsizetype weightOf(const DesignerObject &object)
{
    return 1 + object.childObjects().size();
}

//! At least one.
std::vector<Part> partsOf(const Project &project, const ConfigurationContainer &models)
{
    const QList<DesignerObject *> objects = project.childObjects();
    const qsizetype all =
        std::accumulate(objects.begin(), objects.end(), qsizetype(0),
                        [](qsizetype sum, const DesignerObject *object) { return sum + weightOf(*object); });
    const qsizetype most = qsizetype(Common::Processors::count()) * partsOfProcessor;
    const qsizetype weight = std::max(objectsOfPart, all / most + 1);
    std::vector<Part> parts;
    qsizetype room = 0;
    for (DesignerObject *object : objects) {
        if (room <= 0) {
            parts.push_back({{}, CheckWalk::withAllChecks(project, models)});
            room = weight;
        }
        parts.back().objects.append(object);
        room -= weightOf(*object);
    }
    if (parts.empty()) {
        parts.push_back({{}, CheckWalk::withAllChecks(project, models)});
    }
    return parts;
}

} // namespace

QList<Problem> ProjectProblems::find(const Project &project, const ConfigurationContainer &models,
                                     Common::Progress *progress)
{
    std::vector<Part> parts = partsOf(project, models);
    const auto isCancelled = [progress] { return progress && progress->isCancelled(); };
    if (progress) {
        progress->begin(
            Common::LocalizationHelper::coreString(QStringLiteral("Checking %1")).arg(project.getIdName()),
            project.childObjects().size());
    }
    CheckWalk &first = parts.front().walk;
    first.lookAt(project);
    std::atomic<size_t> next = 0;
    Common::Processors::run(parts.size(), [&parts, &next, progress, isCancelled] {
        for (size_t i = next++; i < parts.size(); i = next++) {
            for (const DesignerObject *object : std::as_const(parts[i].objects)) {
                if (isCancelled()) {
                    return;
                }
                parts[i].walk.visit(*object);
                if (progress) {
                    progress->advance();
                }
            }
        }
    });
    if (isCancelled()) {
        return {};
    }
    for (size_t i = 1; i < parts.size(); ++i) {
        first.join(parts[i].walk);
    }
    return first.finish(project);
}

} // namespace Halvane::Corvex::Designer
