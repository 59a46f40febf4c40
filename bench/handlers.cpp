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
#include <set>

#include "bare_window.h"
#include "user_actions.h"

namespace {
using umbrakit::bench::UserAction;

// Paints now what the last changes made dirty, as the windows' next update would.
void repaintDirty() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
}

// What the call before left: its repaint, deferred deletes and other queued events.
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

bool timeAction(benchmark::State& state, const UserAction& action, const double& fileUs,
                bool withRepaint) {
    double fileUsBefore = 0;
    for (auto _ : state) {
        state.PauseTiming();
        settle();
        action.prepare();
        settle();
        fileUsBefore = fileUs;
        state.ResumeTiming();
        action.act();
        if (withRepaint)
            repaintDirty();
    }
    state.counters["file_us"] = fileUs - fileUsBefore;
    settle();
    return action.worked();
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
    const std::vector<UserAction> actions = umbrakit::bench::userActions(bench, *bare);
    std::set<std::string> failed; // a call that did not do its work fails the run
    for (const UserAction& action : actions) {
        for (const bool repaint : {false, true}) {
            if (repaint && !action.repaints)
                continue;
            const auto time = [&, repaint](benchmark::State& state) {
                if (!timeAction(state, action, bench.files.spentUs, repaint)) {
                    state.SkipWithError("the call did not do its work");
                    failed.insert(action.name);
                }
            };
            benchmark::RegisterBenchmark((action.name + (repaint ? " + repaint" : "")).c_str(),
                                         time)
                ->Iterations(1)
                ->Unit(benchmark::kMicrosecond)
                ->ComputeStatistics("p99", percentile99);
        }
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    for (const std::string& name : failed)
        std::fprintf(stderr, "%s: the call did not do its work\n", name.c_str());
    return failed.empty() ? 0 : 1;
}
