// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/EnumHelper.h"
#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"

#include <QVariant>

namespace Halvane::Corvex::Designer {

class PropertyRow;

//! A named value of the project that expressions, elements and the device read and write by its name.
//!
//! The value is stored as the user's text. Its type and its typed value are always derived from this text.
class CORVEX_EXPORT ProjectVariable : public DesignerObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(ProjectVariable, DesignerObject)

public:
    using VariableType = Common::EnumHelper::VariableType;

    QString baseName() const override;
    QString displayName() const override;

    //! These handles are null until initialize() has run.
    const SharedProperty &value() const { return m_value; }
    //! Whether the device keeps the value when it is switched off.
    const SharedProperty &persistent() const { return m_persistent; }

protected:
    //! Creates the property "value"; null aborts the initialisation.
    virtual SharedProperty initializeValueProperty();

public:
    virtual VariableType variableType() const;
    //! The value in the form for the device; invalid if its text is not a value of this class.
    virtual QVariant toVariant() const;

    //! Whether it describes a data exchange with a fieldbus. Expressions cannot read it.
    virtual bool isFieldbus() const { return false; }
    //! The key of its record among the variables in the device's configuration; empty if it has none.
    virtual QString configurationKey() const { return getIdName(); }
    //! The connection that the variable needs on the device model.
    enum class Connection : quint8 { None, Can, Ethernet };
    virtual Connection connection() const { return Connection::None; }

protected:
    explicit ProjectVariable(QObject *parent = nullptr);

    ObjectView *createGraphicsItem() override;
    bool initializeProperties() override;
    //! Refuses changes of "persistent" in classes with a fixed value.
    bool beforePropertyChanged(const DesignerProperty *property, const QString &newValue) override;

    //! The property "persistent" of a class that is always or never persistent: hidden, with the value \a on.
    static PropertyRow fixedPersistence(bool on);
    //! A property whose value belongs to the enumeration \a enumName of EnumHelper. The default is its first
    //! value.
    static PropertyRow enumRow(const char *id, const char *title, const char *enumName);

private:
    SharedProperty m_value;
    SharedProperty m_persistent;
};

} // namespace Halvane::Corvex::Designer
