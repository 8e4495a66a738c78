// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/EnumHelper.h"
#include "corvex/common/Export.h"

#include <QString>
#include <QVariant>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class Project;
class ProjectVariable;
class Screen;

/*!
    One term of an expression: an operator, a function, a constant, a property of an element, a variable or a
    device command.

    What value() holds follows from the value type: the text of the operator, the name of the function,
    the text of the constant, a path "element.property" (through groups "group.element.property", across
    screens "screen.element.property"), the name of the variable, the digits of the command.

    The rules of this class are those of a term in a plain expression; the kinds (MathInfo, StringInfo,
    BoolInfo, AssignInfo, ModbusCommandInfo) add no data, only rules of their own.
*/
class CORVEX_EXPORT GeneralDataInfo
{
public:
    //! Stored in project files. 6 is not in use.
    enum ValueType : quint8 {
        NoValue = 0,
        OperatorValue = 1,
        ConstantValue = 2,
        ObjectValue = 3,
        VariableValue = 4,
        FunctionValue = 5,
        CommandValue = 7,
    };

    //! Stored in project files.
    enum DataType : quint8 {
        NoData = 0,
        OperatorData = 1,
        FunctionData = 2,
        BooleanData = 3,
        IntegerData = 4,
        FloatData = 5,
        NumberData = 6,
        StringData = 7,
        ColorData = 8,
        HexData = 9,
        LogData = 10,
        DeviceData = 11,
        ReferenceData = 12,
        CommandData = 13,
    };

    //! The type that generated code must have.
    enum OutputType : quint8 {
        RawOutput = 0,
        StringOutput = 1,
        BooleanOutput = 2,
        IntegerOutput = 3,
        FloatOutput = 4,
        NumberOutput = 5,
        ColorOutput = 6,
        NoOutput = 7,
    };

    //! Whose name a look-up or a rename is about. Elements are named by element terms, variables by variable
    //! terms. Element terms of log and device data can name either.
    enum NameKind : quint8 { ElementName = 1, VariableName = 2, AnyName = ElementName | VariableName };

    GeneralDataInfo() = default;
    GeneralDataInfo(ValueType valueType, DataType dataType, const QString &value);
    //! Reads what toString() writes; the term is empty when the text is refused.
    explicit GeneralDataInfo(const QString &text, bool *ok = nullptr);
    GeneralDataInfo(const GeneralDataInfo &) = default;
    GeneralDataInfo(GeneralDataInfo &&) noexcept = default;
    GeneralDataInfo &operator=(const GeneralDataInfo &) = default;
    GeneralDataInfo &operator=(GeneralDataInfo &&) noexcept = default;

    //! Whether the kind of term knows this value type.
    virtual bool isValidValueType() const;
    //! Whether the kind of term allows this data type beside this value type.
    virtual bool isValidDataType() const;
    //! Whether the value can stand in a term of these types; names are not looked up.
    virtual bool isValidValue() const;
    //! The term as JavaScript of the type \a output; empty when it cannot be translated.
    virtual QString toQmlString(const OutputType &output) const;

    virtual ~GeneralDataInfo() = default;

    //! Without \a allowEmpty a term that lacks its value type or its data type is invalid.
    bool isValid(bool allowEmpty) const;

    ValueType valueType() const { return m_valueType; }
    void setValueType(ValueType type) { m_valueType = type; }
    DataType dataType() const { return m_dataType; }
    void setDataType(DataType type) { m_dataType = type; }
    const QString &value() const { return m_value; }
    void setValue(const QString &value) { m_value = value; }

    /*!
        Two hexadecimal digits for the value type, two for the data type, then the value, which is encoded in
        constants. An integer or colour constant that is none gives a text that the constructor refuses.
    */
    QString toString() const;
    /*!
        The value of a constant as bool, qlonglong, double, QColor or text, that of any other term as text.
        Invalid for an empty term and for a constant whose value is none of its data type.
    */
    QVariant toVariant() const;

    //! What an element term says before its last ".", and the name of a variable; else empty.
    QString objectName() const;

    /*!
        Whether the term names the element or variable \a name. Names are whole segments of the path, the last
        one (the property) excepted: "group1.rect1.color" names group1 and rect1, neither rect nor color.
        \a name may be a path itself ("group1.rect1").
    */
    bool containsObject(const QString &name, NameKind kind = AnyName) const;
    //! Whether the path of an element term starts with the screen \a name.
    bool containsScreenObject(const QString &name) const;

    /*!
        Puts \a name in the place of objectName(), whatever that was.
        \return false, with nothing changed, when the term names nothing or \a name is empty.
    */
    bool replaceObject(const QString &name);
    //! Puts \a newName wherever containsObject() finds \a oldName. \return whether it was found.
    bool replaceObject(const QString &oldName, const QString &newName, NameKind kind = AnyName);
    //! Puts \a name in the place of the first segment of an element term's path, whatever that was.
    bool replaceScreenObject(const QString &name);
    bool replaceScreenObject(const QString &oldName, const QString &newName);
    /*!
        Forgets which element or variable the term names and keeps its types: the term stays in its place, is
        invalid until another name is set, and no code is generated from its expression.
        \return false when the term names nothing.
    */
    bool removeObject();

    // These two walk the model. They are compiled in the room of the project, on a higher floor.

    //! The variable that the term names, null when there is none in \a project.
    ProjectVariable *toVariable(Project *project) const;
    //! The element that the term names, null when there is none on \a screen.
    DesignerObject *toProcess(Screen *screen) const;

    //! Whether values of the two types can stand for each other. A type without a counterpart goes with
    //! NoVariable.
    static bool isSameDataType(Common::EnumHelper::VariableType variableType, DataType dataType);
    //! The number written into generated assignments; NoVariable for log, device and reference data too.
    static Common::EnumHelper::VariableType variableType(DataType dataType);

    friend bool operator==(const GeneralDataInfo &a, const GeneralDataInfo &b)
    {
        return a.m_valueType == b.m_valueType && a.m_dataType == b.m_dataType && a.m_value == b.m_value;
    }
    friend bool operator!=(const GeneralDataInfo &a, const GeneralDataInfo &b) { return !(a == b); }

private:
    friend class GeneralDataList;

    bool parse(QStringView text);
    void appendTo(QString &text) const;
    bool names(NameKind kind) const;
    QStringView objectPart() const;

    QString m_value;
    ValueType m_valueType = NoValue;
    DataType m_dataType = NoData;
};

} // namespace Halvane::Corvex::Designer

Q_DECLARE_TYPEINFO(Halvane::Corvex::Designer::GeneralDataInfo, Q_RELOCATABLE_TYPE);
