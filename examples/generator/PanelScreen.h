// SPDX-License-Identifier: MIT
#pragma once

#include "PanelStyle.h"
#include "ProjectBuilder.h"

#include <QRect>

#include <initializer_list>
#include <utility>

namespace Halvane::Corvex::Examples {

//! An element of a screen under construction. Its properties are set in a chain of calls.
class ElementHandle
{
public:
    ElementHandle(ProjectBuilder &builder, Designer::DesignerObject *element)
        : m_builder(&builder)
        , m_element(element)
    { }

    const ElementHandle &set(const char *propertyId, const QString &value) const;
    const ElementHandle &link(const char *propertyId, const char *target) const;
    //! \a expression is in the form of ExpressionReader, in UTF-8.
    const ElementHandle &bind(const char *propertyId, const char *expression) const;

private:
    ProjectBuilder *m_builder;
    Designer::DesignerObject *m_element;
};

//! Draws one screen of the panel. Rectangles are in pixels of the screen, or of the open group.
class PanelScreen
{
public:
    using TextStyle = PanelStyle::TextStyle;
    using Face = PanelStyle::Face;
    //! A condition, and the assignments that follow from it.
    using Rule = std::pair<const char *, const char *>;
    //! A property of an element and its new value.
    struct Change
    {
        const char *element;
        const char *property;
        QString value;
    };

    PanelScreen(ProjectBuilder &builder, Designer::Screen *screen);

    ElementHandle text(const char *name, const QRect &place, const char *text, const TextStyle &style);
    ElementHandle rectangle(const char *name, const QRect &place, const Face &face);
    ElementHandle image(const char *name, const QRect &place, const char *file);
    void openGroup(const char *name, const QPoint &position);
    void closeGroup();

    //! A face with a caption that executes assignments when it is pressed. The face has the name "nameFace".
    void pushButton(const char *name, const QRect &place, const char *caption, QRgb color,
                    const char *assignments);
    ElementHandle function(const char *className, const char *name);
    ElementHandle channel(const char *className, const char *name, int number);
    void logic(const char *name, std::initializer_list<Rule> rules);
    void action(const char *name, std::initializer_list<Change> changes);
    //! The text of a state: the look of elements in it.
    static QString state(std::initializer_list<Change> changes);
    void filter(const char *name, std::initializer_list<const char *> elements);

    static QString colorText(QRgb color);

private:
    ElementHandle add(const char *className, const char *name);
    ElementHandle addPlaced(const char *className, const char *name, const QRect &place);

    ProjectBuilder &m_builder;
    Designer::Screen *m_screen;
    QList<Designer::DesignerObject *> m_owners; //!< the screen and the open groups, innermost last
};

} // namespace Halvane::Corvex::Examples
