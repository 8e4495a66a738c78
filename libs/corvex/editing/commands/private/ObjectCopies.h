// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/references/ReferenceTarget.h"

#include <QHash>
#include <QList>

#include <memory>
#include <vector>

namespace Halvane::Corvex::Designer {

class FreeNames;
struct Mention;

/*! Copies of objects of one project, in no model yet. They have free names, and refer to each other as the
    originals do. */
class ObjectCopies
{
public:
    //! None of the originals is inside another one.
    explicit ObjectCopies(const QList<DesignerObject *> &originals);

    //! Why there are no copies; empty when there are.
    const QString &error() const { return m_error; }
    //! In the order of the originals. The caller owns them from here on.
    std::vector<std::unique_ptr<DesignerObject>> take() { return std::move(m_copies); }

private:
    struct Pair
    {
        const DesignerObject *original;
        DesignerObject *copy;
    };
    //! Originals that are named in the same way, with the names of their copies.
    struct Family
    {
        ReferenceTarget target;
        QHash<QString, QString> newNames;
    };

    bool copy(const DesignerObject &original);
    bool addPairs(const DesignerObject &original, DesignerObject &copy);
    void nameCopies(qsizetype firstPair, FreeNames &names);
    Family &familyOf(const ReferenceTarget &target);
    void followReferences(const Pair &pair) const;
    void follow(Mention &mention, const DesignerObject *owner) const;

    std::vector<std::unique_ptr<DesignerObject>> m_copies;
    QList<Pair> m_pairs; //!< all objects with all that is in them
    std::vector<Family> m_families;
    QHash<QPair<const void *, int>, size_t> m_familyIndexes; //!< by screen and kind
    QString m_error;
};

} // namespace Halvane::Corvex::Designer
