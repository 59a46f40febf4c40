// Wake-ups of the process, counted as the context switches the kernel records per thread.
#pragma once

class QObject;

namespace umbrakit::bench {

struct ContextSwitches {
    long voluntary = 0;
    long involuntary = 0;
    long total() const { return voluntary + involuntary; }
};

ContextSwitches mainThreadSwitches();
ContextSwitches allThreadsSwitches(int* threads = nullptr);

// Timers registered by the object and everything below it.
int runningTimers(QObject& root);

// Runs the event loop for the given time and prints the wake-ups it took.
void printIdleWakeups(QObject& window, int milliseconds);

} // namespace umbrakit::bench
