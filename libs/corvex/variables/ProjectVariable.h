// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/EnumHelper.h"
#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"

#include <QVariant>

namespace Halvane::Corvex::Designer {

class PropertyRow;

/*! A named value of the project, which expressions, elements and the device read and write by its name.

    The value is kept as the text that the user gave; type and typed value are always worked out from that
   text.
*/
class CORVEX_EXPORT ProjectVariable : public DesignerObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(ProjectVariable, DesignerObject)

public:
    using VariableType = Common::EnumHelper::VariableType;

    QString baseName() const override;
    QString displayName() const override;

    //! Null until initialize() has run; likewise the other handles.
    const SharedProperty &value() const { return m_value; }
    //! Whether the device keeps the value when it is switched off.
    const SharedProperty &persistent() const { return m_persistent; }

protected:
    //! Makes the property "value"; null stops the initialisation.
    virtual SharedProperty initializeValueProperty();

public:
    virtual VariableType variableType() const;
    //! The value as the device gets it; invalid when its text does not stand for one.
    virtual QVariant toVariant() const;

    //! Whether it describes an exchange with a fieldbus. Expressions cannot read it.
    virtual bool isFieldbus() const { return false; }
    //! The key of its record among the variables of the device's configuration; empty without a record.
    virtual QString configurationKey() const { return getIdName(); }
    //! What a device model must have for the variable to work.
    enum class Connection : quint8 { None, Can, Ethernet };
    virtual Connection connection() const { return Connection::None; }

protected:
    explicit ProjectVariable(QObject *parent = nullptr);

    ObjectView *createGraphicsItem() override;
    bool initializeProperties() override;
    //! Refuses to change "persistent" of a kind that decides about it by itself.
    bool beforePropertyChanged(const DesignerProperty *property, const QString &newValue) override;

    //! The property "persistent" of a kind that is always or never persistent: hidden, and \a on.
    static PropertyRow fixedPersistence(bool on);
    //! A property that holds a value of the enumeration \a enumName of EnumHelper, the first unless changed.
    static PropertyRow enumRow(const char *id, const char *title, const char *enumName);

private:
    SharedProperty m_value;
    SharedProperty m_persistent;
};

} // namespace Halvane::Corvex::Designer
