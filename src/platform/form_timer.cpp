#include "platform/form_timer.h"

namespace umbrakit {

FormTimer::FormTimer(int intervalMs, QObject* parent) : QObject(parent) {
    timer_.setInterval(intervalMs);
    timer_.setTimerType(Qt::CoarseTimer);
    connect(&timer_, &QTimer::timeout, this, &FormTimer::Timer);
}

void FormTimer::setEnabled(bool enabled) {
    if (!enabled)
        timer_.stop();
    else if (!timer_.isActive())
        timer_.start();
}

void FormTimer::elapseNow() {
    if (!timer_.isActive())
        return;
    timer_.start(); // the next countdown starts as the current one ends
    emit Timer();
}

} // namespace umbrakit
