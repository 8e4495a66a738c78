// SPDX-License-Identifier: MIT
// The headers that nearly every source file includes. The list is short, so that a change rebuilds little.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMap>
#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>
