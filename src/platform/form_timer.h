// A form timer: Enabled True starts a countdown only on a stopped timer, so a second start
// does not put the countdown back; while Enabled stays True, countdowns follow each other.
#pragma once

#include <QObject>
#include <QTimer>

namespace umbrakit {

class FormTimer : public QObject {
    Q_OBJECT
  public:
    FormTimer(int intervalMs, QObject* parent = nullptr);

    bool Enabled() const { return timer_->isActive(); }
    void setEnabled(bool enabled);
    int Interval() const { return timer_->interval(); }
    void setInterval(int intervalMs) { timer_->setInterval(intervalMs); }
    int remainingMs() const { return timer_->remainingTime(); }

  signals:
    void Timer();

  private:
    QTimer* timer_;
};

} // namespace umbrakit
