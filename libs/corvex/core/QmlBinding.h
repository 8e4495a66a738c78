// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVarLengthArray>

#include <utility>

namespace Halvane::Corvex::Designer {

class DesignerProperty;

//! A member of an object in QML: a name and the code bound to it.
struct QmlBinding
{
    //! "x", "font.bold" or a handler such as "onPressed". Empty for a member that binds nothing, such as a
    //! function; then the code is the whole member.
    QString name;
    //! The lines of a block are separated by "\n", and indented for an object at the left margin; the
    //! binding's own indentation is not included.
    QString code;
    //! The property from whose value the code was generated, of the same object as the property that writes
    //! the binding. Null if the binding belongs to no property. Not owned.
    const DesignerProperty *source = nullptr;

    bool isBlock() const { return code.contains(u'\n'); }
};

} // namespace Halvane::Corvex::Designer

Q_DECLARE_TYPEINFO(Halvane::Corvex::Designer::QmlBinding, Q_RELOCATABLE_TYPE);

namespace Halvane::Corvex::Designer {

//! The bindings of a property or an object, in order. Most properties have one or two, which need no heap
//! memory.
class QmlBindings
{
public:
    using iterator = QmlBinding *;
    using const_iterator = const QmlBinding *;

    QmlBindings() = default;
    QmlBindings(QString name, QString code, const DesignerProperty *source = nullptr)
    {
        add(std::move(name), std::move(code), source);
    }
    //! QML that exists only as text: one member without a name, or nothing if the text is empty.
    static QmlBindings ofText(const QString &qml)
    {
        return qml.isEmpty() ? QmlBindings() : QmlBindings(QString(), qml);
    }

    void reserve(qsizetype count) { m_bindings.reserve(count); }
    void add(QString name, QString code, const DesignerProperty *source = nullptr)
    {
        m_bindings.emplace_back(QmlBinding{std::move(name), std::move(code), source});
    }
    void add(const QmlBindings &others) { m_bindings.append(others.m_bindings.data(), others.size()); }

    iterator begin() { return m_bindings.begin(); }
    iterator end() { return m_bindings.end(); }
    const_iterator begin() const { return m_bindings.cbegin(); }
    const_iterator end() const { return m_bindings.cend(); }
    qsizetype size() const { return m_bindings.size(); }
    bool isEmpty() const { return m_bindings.isEmpty(); }
    //! The index must be less than size().
    const QmlBinding &at(qsizetype index) const { return m_bindings.at(index); }

private:
    QVarLengthArray<QmlBinding, 2> m_bindings;
};

} // namespace Halvane::Corvex::Designer
