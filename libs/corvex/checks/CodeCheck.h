// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"
#include "corvex/checks/CodeReader.h"

#include <QHash>

namespace Halvane::Corvex::Designer {

/*! Reads the code that properties of screens and elements generate, as the device will do. A text that many
    properties generate is read once, and a text that cannot be wrong not at all. */
class CodeCheck : public PropertyCheck
{
public:
    bool concerns(const DesignerProperty &property) override;
    void look(const DesignerProperty &property) override;
    void finish(const Project &project) override;

private:
    //! A property with the number of its text.
    struct Use
    {
        const DesignerProperty *property;
        qsizetype text;
    };

    void add(const DesignerProperty &property, const QString &qml);
    void readPending();

    QHash<QString, qsizetype> m_numbers;
    QStringList m_pending; //!< the last texts, which have not been given to the reader
    QList<Use> m_uses;
    CodeReader m_reader;
};

} // namespace Halvane::Corvex::Designer
