// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/document/ProjectDocument.h"
#include "corvex/editing/commands/Commands.h"

#include "editing/commands/CommandFixture.h"

namespace Halvane::Corvex::Designer::Test {

//! The project of the commands' tests, in a document.
class InspectorFixture : public CommandFixture
{
protected:
    void SetUp() override
    {
        CommandFixture::SetUp();
        ASSERT_TRUE(project->saveFile());
        document = std::make_unique<ProjectDocument>(std::move(project));
    }

    bool push(PlannedCommand planned)
    {
        EXPECT_TRUE(planned) << qPrintable(planned.reason);
        return planned && document->push(planned.command.release());
    }
    QString text() const { return DesignerObject::toString(&document->project()); }

    std::unique_ptr<ProjectDocument> document;
};

} // namespace Halvane::Corvex::Designer::Test
