// Times what the user does on the shown windows with Google Benchmark. Each repetition is one
// call, so the median and the 99th percentile over the repetitions are those of single calls.
// The preparation of a call, and the repaint and deferred deletes that the call before it left,
// run with the timing paused. The counter file_us is the time the call spent in file
// operations, the wait for the disk rather than the program's own work.
//   bench_handlers --benchmark_repetitions=500 [--benchmark_filter=REGEX] [--benchmark_out=F]
#include <benchmark/benchmark.h>

#include <QApplication>
#include <algorithm>
#include <cmath>

#include "bare_window.h"
#include "user_actions.h"

namespace {
using umbrakit::bench::UserAction;

bool anyFailed = false;

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

// Nearest rank: one call in a hundred takes longer.
double percentile99(const std::vector<double>& samples) {
    std::vector<double> sorted = samples;
    const auto rank = std::size_t(std::ceil(0.99 * double(sorted.size()))) - 1;
    std::nth_element(sorted.begin(), sorted.begin() + std::ptrdiff_t(rank), sorted.end());
    return sorted[rank];
}

void timeAction(benchmark::State& state, const UserAction& action,
                const umbrakit::bench::TimedFileOps& files, bool withRepaint) {
    double fileUs = 0;
    for (auto _ : state) {
        state.PauseTiming();
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
        settle();
        state.ResumeTiming();
    }
    state.counters["file_us"] = benchmark::Counter(fileUs, benchmark::Counter::kAvgIterations);
    if (!action.worked()) {
        state.SkipWithError("the call did not do its work");
        anyFailed = true;
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
    QApplication::processEvents();

    std::vector<UserAction> actions = umbrakit::bench::mainWindowActions(bench);
    for (UserAction& action : umbrakit::bench::pathsDialogActions(bench))
        actions.push_back(std::move(action));
    for (UserAction& action : umbrakit::bench::yardsticks(*bare, bench.dir.path()))
        actions.push_back(std::move(action));
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
            add(action, action.name + " with the repaint", true);
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return anyFailed ? 1 : 0;
}
