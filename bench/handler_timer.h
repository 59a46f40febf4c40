// Times one handler call after another on the shown windows. What a call leaves behind (its
// repaint, deferred deletes) runs between the calls, untimed, so that no call pays for the one
// before it.
#pragma once

#include <QString>
#include <functional>

namespace umbrakit::bench {

struct HandlerCase {
    QString name;
    std::function<void(int)> prepare; // untimed, before call i
    std::function<void(int)> call;    // the handler, timed
    std::function<QString()> check;   // after the last call: empty, or what went wrong
};

struct HandlerTiming {
    double medianUs = 0, p99Us = 0;               // the handler call
    double ownMedianUs = 0, ownP99Us = 0;         // the call less its file operations
    double repaintMedianUs = 0, repaintP99Us = 0; // the call and the repaint it causes
};

class TimedFileOps;

// files, if given, are the operations the handler uses, whose time is counted apart.
HandlerTiming timeHandler(const HandlerCase& handler, int iterations, const TimedFileOps* files);

} // namespace umbrakit::bench
