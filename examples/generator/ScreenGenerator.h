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

/*! Fills screens: some sixty per cent visual elements, part of them in groups, then what works with them
    (buttons, logic, actions) and the channels of the device. */
class ScreenGenerator
{
public:
    //! All are referred to and outlive the generator. Images are the names of the project's image resources.
    ScreenGenerator(ProjectBuilder &builder, Random &random, RandomExpressions &expressions,
                    const QList<Designer::Screen *> &screens, const QStringList &images);

    //! Puts \a count elements, at least one, on a screen that has none.
    void fill(Designer::Screen *screen, int count);

private:
    using Fill = void (ScreenGenerator::*)(Designer::DesignerObject *element);
    struct Share
    {
        int weight;
        const char *className;
        Fill fill;
        char needs = 0; //!< the kind of name that there has to be on the screen
    };
    static const QList<Share> visuals;
    static const QList<Share> functions;
    static const QList<Share> hardware;

    Designer::DesignerObject *addElement(Designer::DesignerObject *owner, const QString &className);
    //! Adds one element, or a group with what is in it. \return how many elements came in.
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
    //! Binds a property in \a percent of all cases.
    void bindSome(int percent, Designer::DesignerObject *element, const char *propertyId,
                  RandomExpressions::Kind kind);
    void set(Designer::DesignerObject *element, const char *propertyId, const QString &value);
    //! A colour and an opacity for one of the visual elements, as the text of a state.
    QString state();
    QString color();

    ProjectBuilder &m_builder;
    Random &m_random;
    RandomExpressions &m_expressions;
    QStringList m_screenNames;
    QStringList m_images;

    // Of the screen at hand.
    Designer::Screen *m_screen = nullptr;
    QHash<QString, int> m_channels; //!< how many each class of hardware has taken
    int m_placed = 0;
};

} // namespace Halvane::Corvex::Examples
