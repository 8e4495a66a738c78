// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVarLengthArray>

#include <utility>

namespace Halvane::Corvex::Designer {

class DesignerProperty;

//! One member of an object in QML: a name and the code that it is bound to.
struct QmlBinding
{
    //! "x", "font.bold" or a handler such as "onPressed". Empty for a member that binds nothing, such as a
    //! function; the code is then the whole member.
    QString name;
    //! The lines of a block are separated by "\n" and indented as in an object at the left margin, without
    //! the tabs of the binding itself.
    QString code;
    //! The property that holds what the code was made from, of the same object as the property that writes
    //! the binding; null in a binding that belongs to no property. Not owned.
    const DesignerProperty *source = nullptr;

    bool isBlock() const { return code.contains(u'\n'); }
};

} // namespace Halvane::Corvex::Designer

Q_DECLARE_TYPEINFO(Halvane::Corvex::Designer::QmlBinding, Q_RELOCATABLE_TYPE);

namespace Halvane::Corvex::Designer {

/*! The bindings that a property or an object writes, in their order. Most properties write one or two, which
    take no memory of their own. */
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
    //! QML that is known only as text: one member without a name, or nothing for an empty text.
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
    //! The index must be below size().
    const QmlBinding &at(qsizetype index) const { return m_bindings.at(index); }

private:
    QVarLengthArray<QmlBinding, 2> m_bindings;
};

} // namespace Halvane::Corvex::Designer
