// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/CompositeCommand.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

CompositeCommand::CompositeCommand()
    : ModelCommand({}, false, nullptr)
{ }

bool CompositeCommand::isValid() const
{
    for (int i = 0; i < childCount(); ++i) {
        const UndoCommand *edit = childCommand(i);
        if (edit && !edit->isValid()) {
            return false;
        }
    }
    return ModelCommand::isValid();
}

void CompositeCommand::describe()
{
    QStringList texts;
    for (int i = 0; i < childCount(); ++i) {
        texts.append(child(i)->text());
    }
    setText(texts.join(u", "_s));
}

} // namespace Halvane::Corvex::Designer
