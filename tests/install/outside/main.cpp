// SPDX-License-Identifier: MIT
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/DesignerObject.h"

#include <QCoreApplication>

#include <cstdio>
#include <memory>

using namespace Halvane::Corvex::Designer;

//! Loads the plug-in beside it and prints what an object of the plug-in's class is saved as.
int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (!DesignerFactory::createInstance(QCoreApplication::applicationDirPath())) {
        return 1;
    }
    DesignerObject *meter = DesignerFactory::instance()->createObject(QStringLiteral("FlowMeter"));
    if (!meter || !meter->changePropertyValue(meter->getProperty(u"litres"), QStringLiteral("30"))) {
        return 1;
    }
    std::printf("%s", qPrintable(DesignerObject::toString(meter)));
    return 0;
}
