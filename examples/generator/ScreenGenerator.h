// SPDX-License-Identifier: MIT
#pragma once

#include "RandomExpressions.h"

#include <QHash>

namespace Halvane::Corvex::Designer {
class DesignerObject;
class Screen;
} // namespace Halvane::Corvex::Designer

namespace Halvane::Corvex::Examples {

class ProjectBuilder;

//! Fills screens: about sixty per cent visual elements, some in groups, then elements that use them (buttons,
//! logic, actions) and the channels of the device.
class ScreenGenerator
{
public:
    //! All references must outlive the generator. Images are the names of the project's image resources.
    ScreenGenerator(ProjectBuilder &builder, Random &random, RandomExpressions &expressions,
                    const QList<Designer::Screen *> &screens, const QStringList &images);

    //! Puts \a count elements, at least one, on an empty screen.
    void fill(Designer::Screen *screen, int count);

private:
    using Fill = void (ScreenGenerator::*)(Designer::DesignerObject *element);
    struct Share
    {
        int weight;
        const char *className;
        Fill fill;
        char needs = 0; //!< the kind of name that the screen must have
    };
    static const QList<Share> visuals;
    static const QList<Share> functions;
    static const QList<Share> hardware;

    Designer::DesignerObject *addElement(Designer::DesignerObject *owner, const QString &className);
    //! Adds one element, or a group with its contents. \return the number of added elements.
    int addVisual(Designer::DesignerObject *owner, int room, int depth);
    int addGroup(Designer::DesignerObject *owner, int room, int depth);
    qsizetype channelCount(const QString &className) const;
    void addOneOf(const QList<Share> &shares);
    const Share &draw(const QList<Share> &shares);

    void fillText(Designer::DesignerObject *element);
    void fillRectangle(Designer::DesignerObject *element);
    void fillImage(Designer::DesignerObject *element);
    void fillButton(Designer::DesignerObject *element);
    void fillCheckButton(Designer::DesignerObject *element);
    void fillSpinner(Designer::DesignerObject *element);
    void fillScreenLoader(Designer::DesignerObject *element);
    void fillLogic(Designer::DesignerObject *element);
    void fillAction(Designer::DesignerObject *element);
    void fillTrigger(Designer::DesignerObject *element);
    void fillDataLogging(Designer::DesignerObject *element);
    void fillModbusCommands(Designer::DesignerObject *element);
    void fillBACnetService(Designer::DesignerObject *element);
    void fillSpi(Designer::DesignerObject *element);
    void fillChannel(Designer::DesignerObject *element);
    void fillSerialPort(Designer::DesignerObject *element);
    void fillMapping(Designer::DesignerObject *element);

    void place(Designer::DesignerObject *element, int width, int height);
    //! Binds a property in \a percent of all calls.
    void bindSome(int percent, Designer::DesignerObject *element, const char *propertyId,
                  RandomExpressions::Kind kind);
    void set(Designer::DesignerObject *element, const char *propertyId, const QString &value);
    //! A colour and an opacity for a visual element, as the text of a state.
    QString state();
    QString color();

    ProjectBuilder &m_builder;
    Random &m_random;
    RandomExpressions &m_expressions;
    QStringList m_screenNames;
    QStringList m_images;

    // For the current screen.
    Designer::Screen *m_screen = nullptr;
    QHash<QString, int> m_channels; //!< the number of used channels of each hardware class
    int m_placed = 0;
};

} // namespace Halvane::Corvex::Examples
