#include "platform/form_timer.h"

namespace umbrakit {

FormTimer::FormTimer(int intervalMs, QObject* parent) : QObject(parent), timer_(new QTimer(this)) {
    timer_->setInterval(intervalMs);
    timer_->setTimerType(Qt::CoarseTimer);
    timer_->setObjectName("countdown");
    connect(timer_, &QTimer::timeout, this, &FormTimer::Timer);
}

void FormTimer::setEnabled(bool enabled) {
    if (!enabled)
        timer_->stop();
    else if (!timer_->isActive())
        timer_->start();
}

} // namespace umbrakit
