// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"

#include <QHash>
#include <QSet>

namespace Halvane::Corvex::Designer {

/*! Reads the code that properties of screens and elements generate, as the device will do. Of texts that are
    alike one is read, and a text that cannot be wrong not at all. */
class CodeCheck : public PropertyCheck
{
public:
    bool concerns(const DesignerProperty &property) override;
    void look(const DesignerProperty &property) override;
    void join(Check &later) override;
    void finish(const Project &project) override;

private:
    //! A property with the number of the shape of its text.
    struct Use
    {
        const DesignerProperty *property;
        qsizetype shape;
        bool isPlain; //!< looked at for its name alone
    };

    qsizetype numberOf(const QString &shape);

    QHash<QString, qsizetype> m_numbers;
    QStringList m_shapes; //!< by their numbers
    QList<Use> m_uses;
    QSet<QString> m_plainNames; //!< of properties with plain values, which were looked at once
};

} // namespace Halvane::Corvex::Designer
