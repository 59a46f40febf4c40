#include "handler_timer.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <chrono>
#include <vector>

#include "sample_stats.h"
#include "timed_file_ops.h"

namespace umbrakit::bench {

namespace {
// Calls that warm caches up before the timed ones; the first call of all is no steady state.
constexpr int kWarmUpCalls = 5;

// Paints now what the last changes made dirty, in every shown window, as each would on its
// next update.
void repaintDirty() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) {
            QEvent update(QEvent::UpdateRequest);
            QCoreApplication::sendEvent(window, &update);
        }
    }
}

void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    repaintDirty();
}

double microsecondsBetween(std::chrono::steady_clock::time_point from,
                           std::chrono::steady_clock::time_point to) {
    return std::chrono::duration<double, std::micro>(to - from).count();
}
} // namespace

HandlerTiming timeHandler(const HandlerCase& handler, int iterations, const TimedFileOps* files) {
    const auto diskUs = [files] { return files ? files->spentUs() : 0.0; };
    std::vector<double> calls, own, withRepaint;
    calls.reserve(std::size_t(iterations));
    own.reserve(std::size_t(iterations));
    withRepaint.reserve(std::size_t(iterations));
    for (int i = -kWarmUpCalls; i < iterations; ++i) {
        if (handler.prepare)
            handler.prepare(i);
        settle();
        const double diskBefore = diskUs();
        const auto start = std::chrono::steady_clock::now();
        handler.call(i);
        const auto called = std::chrono::steady_clock::now();
        const double diskAfter = diskUs();
        repaintDirty();
        const auto painted = std::chrono::steady_clock::now();
        if (i >= 0) {
            calls.push_back(microsecondsBetween(start, called));
            own.push_back(calls.back() - (diskAfter - diskBefore));
            withRepaint.push_back(microsecondsBetween(start, painted));
        }
    }
    settle();
    const Percentiles call = percentilesOf(calls);
    const Percentiles ownWork = percentilesOf(own);
    const Percentiles repaint = percentilesOf(withRepaint);
    return {call.median, call.p99, ownWork.median, ownWork.p99, repaint.median, repaint.p99};
}

} // namespace umbrakit::bench
