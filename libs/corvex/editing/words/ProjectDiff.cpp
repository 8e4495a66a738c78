// SPDX-License-Identifier: MIT
#include "corvex/editing/words/ProjectDiff.h"

#include "corvex/editing/words/private/ProjectComparison.h"
#include "corvex/project/Project.h"

#include <array>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

ProjectDiff::ProjectDiff(const Project &before, const Project &after)
    : m_differences(ProjectComparison(before, after).differences())
{ }

QString ProjectDiff::nameOf(Kind kind)
{
    static const std::array names{u"added"_s, u"removed"_s, u"renamed"_s, u"moved"_s, u"changed"_s};
    return names[kind];
}

} // namespace Halvane::Corvex::Designer
