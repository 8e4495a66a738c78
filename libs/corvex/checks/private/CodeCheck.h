// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"

#include <QHash>
#include <QSet>

namespace Halvane::Corvex::Designer {

/*! Reads the bindings that properties of screens and elements generate, as the device will do. Of texts that
   are alike one is read, and a text that cannot be wrong not at all. A problem is reported at the source of
   the binding: the property that holds what the user wrote. The check remembers what it has read. */
class CodeCheck : public PropertyCheck
{
public:
    bool concerns(const DesignerProperty &property) override;
    void look(const DesignerProperty &property) override;
    void join(Check &later) override;
    void finish(const Project &project) override;

private:
    //! A binding with the number of the shape of its text.
    struct Use
    {
        const DesignerProperty *property;
        qsizetype shape;
        int place;    //!< of the binding among those of the property
        bool isPlain; //!< looked at for its name alone
    };

    //! Texts without repetition, numbered from 0 in the order in which they came.
    class TextNumbers
    {
    public:
        qsizetype of(const QString &text);
        const QStringList &texts() const { return m_texts; }
        qsizetype count() const { return m_texts.size(); }

    private:
        QHash<QString, qsizetype> m_numbers;
        QStringList m_texts;
    };

    void readShapes();

    TextNumbers m_shapes;
    qsizetype m_readShapes = 0;    //!< how many of them have been read
    QSet<qsizetype> m_wrongShapes; //!< of those
    QList<Use> m_uses;
    QSet<QString> m_plainNames; //!< of properties with plain values, which were looked at once
};

} // namespace Halvane::Corvex::Designer
