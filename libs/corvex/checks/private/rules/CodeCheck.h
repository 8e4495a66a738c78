// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"

#include <QHash>
#include <QSet>

namespace Halvane::Corvex::Designer {

//! Parses the bindings that properties of screens and elements generate, as the device will. Of similar texts
//! only one is parsed, and texts that are always correct are skipped. A problem is reported at the source of
//! the binding: the property with the user's input. The check remembers what it has found to be correct.
class CodeCheck : public PropertyCheck
{
public:
    bool concerns(const DesignerProperty &property) override;
    void look(const DesignerProperty &property) override;
    void join(Check &later) override;
    void finish(const Project &project) override;

private:
    //! A binding with the number of its text's shape.
    struct Use
    {
        const DesignerProperty *property;
        qsizetype shape;
        int place;    //!< the index of the binding in the property
        bool isPlain; //!< only its name is checked
    };

    //! Texts without duplicates, numbered from 0 in order of their addition.
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

    //! Stands for a text that was parsed. Two texts with the same digest are not to be expected.
    using Digest = std::pair<size_t, size_t>;
    static Digest digestOf(const QString &text) { return {qHash(text, 1), qHash(text, 2)}; }

    TextNumbers m_shapes; //!< not parsed yet
    QSet<Digest> m_correctShapes;
    QList<Use> m_uses;
    QSet<QString> m_plainNames; //!< of properties with plain values, which were checked already
};

} // namespace Halvane::Corvex::Designer
