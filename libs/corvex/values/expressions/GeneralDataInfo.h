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

/*! One term of an expression: an operator, a function, a constant, a property of an element, a variable or a
    device command.

    The meaning of value() depends on the value type: the text of the operator, the name of the function, the
    text of the constant, a path "element.property" (through groups "group.element.property", across screens
    "screen.element.property"), the name of the variable, or the digits of the command.

    The rules of this class are those of a plain expression. The other kinds (MathInfo, StringInfo, BoolInfo,
    AssignInfo, ModbusCommandInfo) add rules but no data.
*/
class CORVEX_EXPORT GeneralDataInfo
{
public:
    //! Stored in project files. 6 is unused.
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

    //! The type of the generated code.
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

    //! Which names a search or a renaming refers to. Element terms contain names of elements, variable terms
    //! names of variables, and element terms of log and device data names of either.
    enum NameKind : quint8 { ElementName = 1, VariableName = 2, AnyName = ElementName | VariableName };

    GeneralDataInfo() = default;
    GeneralDataInfo(ValueType valueType, DataType dataType, const QString &value);
    //! Reads the form that toString() writes. An invalid text gives an empty term.
    explicit GeneralDataInfo(const QString &text, bool *ok = nullptr);
    GeneralDataInfo(const GeneralDataInfo &) = default;
    GeneralDataInfo(GeneralDataInfo &&) noexcept = default;
    GeneralDataInfo &operator=(const GeneralDataInfo &) = default;
    GeneralDataInfo &operator=(GeneralDataInfo &&) noexcept = default;

    //! Whether this kind of term supports the value type.
    virtual bool isValidValueType() const;
    //! Whether this kind of term supports the data type together with the value type.
    virtual bool isValidDataType() const;
    //! Whether the value is allowed with these types. Names are not looked up.
    virtual bool isValidValue() const;
    //! The term as JavaScript of the type \a output; empty if it cannot be translated.
    virtual QString toQmlString(const OutputType &output) const;

    virtual ~GeneralDataInfo() = default;

    //! Without \a allowEmpty, a term without a value type or a data type is invalid.
    bool isValid(bool allowEmpty) const;

    ValueType valueType() const { return m_valueType; }
    void setValueType(ValueType type) { m_valueType = type; }
    DataType dataType() const { return m_dataType; }
    void setDataType(DataType type) { m_dataType = type; }
    const QString &value() const { return m_value; }
    void setValue(const QString &value) { m_value = value; }

    //! Two hexadecimal digits for the value type, two for the data type, then the value, which is encoded in
    //! constants. An invalid integer or colour constant gives a text that the constructor refuses.
    QString toString() const;
    //! The value of a constant as bool, qlonglong, double, QColor or text; the value of any other term as
    //! text. Invalid for an empty term and for a constant that does not match its data type.
    QVariant toVariant() const;

    //! The part of an element term before the last ".", or the name of a variable; otherwise empty.
    QString objectName() const;

    /*! Whether the term contains the element or variable \a name. Only whole segments of the path match,
        except the last one, which is the property: "group1.rect1.color" contains group1 and rect1, but
        neither rect nor color.
        \a name may be a path itself ("group1.rect1").
    */
    bool containsObject(const QString &name, NameKind kind = AnyName) const;
    //! Whether the path of an element term begins with the screen \a name.
    bool containsScreenObject(const QString &name) const;

    //! Replaces objectName() by \a name.
    //! \return false, with nothing changed, if the term contains no name or \a name is empty.
    bool replaceObject(const QString &name);
    //! Replaces \a oldName by \a newName wherever containsObject() finds it. \return whether it was found.
    bool replaceObject(const QString &oldName, const QString &newName, NameKind kind = AnyName);
    //! Replaces the first segment of an element term's path by \a name.
    bool replaceScreenObject(const QString &name);
    bool replaceScreenObject(const QString &oldName, const QString &newName);
    //! Removes the name of the element or variable but keeps the types. The term keeps its place, is invalid
    //! until it gets another name, and its expression generates no code.
    //! \return false if the term contains no name.
    bool removeObject();

    //! The variable that the term names; null if \a project has none.
    ProjectVariable *toVariable(Project *project) const;
    //! The element that the term names; null if \a screen has none.
    DesignerObject *toProcess(Screen *screen) const;

    //! Whether values of the two types are compatible. A data type without a matching variable type is
    //! compatible with NoVariable.
    static bool isSameDataType(Common::EnumHelper::VariableType variableType, DataType dataType);
    //! The type number in generated assignments; NoVariable for log, device and reference data.
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
