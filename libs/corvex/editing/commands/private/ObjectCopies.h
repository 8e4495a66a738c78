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

//! Copies of objects of one project, which are not in a model yet. They have free names, and refer to each
//! other like the originals.
class ObjectCopies
{
public:
    //! No original may be inside another one. \a name is that of the first copy; if it is empty, a free name
    //! is found.
    explicit ObjectCopies(const QList<DesignerObject *> &originals, const QString &name = {});

    //! Why there are no copies; empty on success.
    const QString &error() const { return m_error; }
    //! In the order of the originals. The caller takes ownership.
    std::vector<std::unique_ptr<DesignerObject>> take() { return std::move(m_copies); }

private:
    struct Pair
    {
        const DesignerObject *original;
        DesignerObject *copy;
    };
    //! Originals in the same scope, with the names of their copies.
    struct Family
    {
        ReferenceTarget target;
        QHash<QString, QString> newNames;
    };

    bool copy(const DesignerObject &original);
    bool addPairs(const DesignerObject &original, DesignerObject &copy);
    void nameCopies(qsizetype firstPair, const QString &wanted, FreeNames &names);
    Family &familyOf(const ReferenceTarget &target);
    void followReferences(const Pair &pair) const;
    void follow(Mention &mention, const DesignerObject *owner) const;

    std::vector<std::unique_ptr<DesignerObject>> m_copies;
    QList<Pair> m_pairs; //!< all objects and everything below them
    std::vector<Family> m_families;
    QHash<QPair<const void *, int>, size_t> m_familyIndexes; //!< by screen and kind
    QString m_error;
};

} // namespace Halvane::Corvex::Designer
