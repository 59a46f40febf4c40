// Times what the user does on the shown windows with Google Benchmark. Each repetition is one
// call, so the median and the 99th percentile over the repetitions are those of single calls.
// The preparation of a call, and the repaint and deferred deletes that the call before it left,
// run with the timing paused. The counter file_us is the time the call spent in file
// operations: the wait for the disk rather than the program's own work.
//   bench_handlers --benchmark_repetitions=500 [--benchmark_filter=REGEX] [--benchmark_out=F]
#include <benchmark/benchmark.h>

#include <QApplication>
#include <cmath>
#include <cstdio>

#include "bare_window.h"
#include "user_actions.h"

namespace {
using umbrakit::bench::UserAction;

std::vector<std::string> failed; // the actions that did not do their work

// Paints now what the last changes made dirty, in every shown window, as its next update would.
void repaintDirty() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        QEvent update(QEvent::UpdateRequest);
        if (window->isVisible())
            QCoreApplication::sendEvent(window, &update);
    }
}

void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    repaintDirty();
}

// Nearest rank: one call in a hundred takes longer.
double percentile99(const std::vector<double>& samples) {
    std::vector<double> sorted = samples;
    const auto rank = sorted.begin() + std::ptrdiff_t(std::ceil(0.99 * double(sorted.size()))) - 1;
    std::nth_element(sorted.begin(), rank, sorted.end());
    return *rank;
}

void timeAction(benchmark::State& state, const UserAction& action,
                const umbrakit::bench::TimedFileOps& files, bool withRepaint) {
    double fileUs = 0;
    for (auto _ : state) {
        state.PauseTiming();
        settle(); // what the call before left
        if (action.prepare)
            action.prepare();
        settle();
        const double fileUsBefore = files.spentUs();
        state.ResumeTiming();
        action.act();
        if (withRepaint)
            repaintDirty();
        state.PauseTiming();
        fileUs += files.spentUs() - fileUsBefore;
        state.ResumeTiming();
    }
    state.counters["file_us"] = benchmark::Counter(fileUs, benchmark::Counter::kAvgIterations);
    settle();
    if (!action.worked()) {
        state.SkipWithError("the call did not do its work");
        if (failed.empty() || failed.back() != action.name)
            failed.push_back(action.name);
    }
}
} // namespace

int main(int argc, char* argv[]) {
    benchmark::Initialize(&argc, argv);
    QApplication app(argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    umbrakit::bench::BenchApp bench;
    const auto bare = umbrakit::bench::makeBareWindow();
    bare->show();

    std::vector<UserAction> actions = umbrakit::bench::mainWindowActions(bench);
    for (auto& more :
         {umbrakit::bench::pathsDialogActions(bench), umbrakit::bench::yardsticks(*bare)})
        actions.insert(actions.end(), more.begin(), more.end());
    const auto add = [&bench](const UserAction& action, const std::string& name, bool repaint) {
        const auto time = [&action, &bench, repaint](benchmark::State& state) {
            timeAction(state, action, bench.files, repaint);
        };
        benchmark::RegisterBenchmark(name.c_str(), time)
            ->Iterations(1)
            ->Unit(benchmark::kMicrosecond)
            ->ComputeStatistics("p99", percentile99);
    };
    for (const UserAction& action : actions) {
        add(action, action.name, false);
        if (action.repaints)
            add(action, action.name + " + repaint", true);
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    for (const std::string& name : failed)
        std::fprintf(stderr, "%s: the call did not do its work\n", name.c_str());
    return failed.empty() ? 0 : 1;
}
