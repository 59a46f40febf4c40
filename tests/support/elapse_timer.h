// Ends a timer's running countdown at once, as if its interval had passed, so that a test
// need not wait 7.5 seconds; a stopped timer stays silent.
#pragma once

#include <QMetaObject>
#include <QTimer>

#include "platform/form_timer.h"

namespace umbrakit {

inline void elapseNow(FormTimer& timer) {
    auto* countdown = timer.findChild<QTimer*>("countdown");
    if (!countdown || !countdown->isActive())
        return;
    countdown->start(); // the next countdown starts as this one ends
    QMetaObject::invokeMethod(countdown, "timeout");
}

} // namespace umbrakit
