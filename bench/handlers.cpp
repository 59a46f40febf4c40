// Times the real handlers on the shown main window and prints the median and the 99th
// percentile of each call, of the call less the time inside its file operations (which wait
// for the disk to hold the file), and of the call with the repaint it causes; then the same
// grid work on the bare window's plain check boxes, the toolkit's own share, and a file written
// and flushed with plain system calls, the system's share.
//   bench_handlers [--quick] [--iterations N] [--only TEXT]
// --quick makes a few calls only, to see that everything still runs; --only keeps the cases
// whose name holds TEXT, for a profile of one of them.
#include <QApplication>
#include <QStringList>
#include <cstdio>

#include "bare_window.h"
#include "bench_app.h"
#include "handler_cases.h"

namespace {
using umbrakit::bench::HandlerCase;

constexpr double kMedianTargetUs = 1000;
constexpr double kP99TargetUs = 5000;

struct Options {
    int iterations = 500;
    QString only;
};

Options optionsOf(const QStringList& arguments) {
    Options options;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == "--quick")
            options.iterations = 3;
        else if (arguments[i] == "--iterations" && i + 1 < arguments.size())
            options.iterations = std::max(1, arguments[++i].toInt());
        else if (arguments[i] == "--only" && i + 1 < arguments.size())
            options.only = arguments[++i];
    }
    return options;
}

bool meetsTargets(double medianUs, double p99Us) {
    return medianUs <= kMedianTargetUs && p99Us <= kP99TargetUs;
}

// A miss that the program's own work does not make is the disk's: flushing a file to it.
const char* verdictOn(const umbrakit::bench::HandlerTiming& timing) {
    if (meetsTargets(timing.medianUs, timing.p99Us))
        return "met";
    return meetsTargets(timing.ownMedianUs, timing.ownP99Us) ? "MISSED on the disk" : "MISSED";
}

// Prints a row for each case; false if a case did not do its work. Without targetsMet the
// cases are yardsticks, measured but not judged.
bool timeCases(const std::vector<HandlerCase>& cases, const Options& options,
               const umbrakit::bench::TimedFileOps* files, bool* targetsMet) {
    for (const HandlerCase& handler : cases) {
        if (!handler.name.contains(options.only))
            continue;
        const auto timing = umbrakit::bench::timeHandler(handler, options.iterations, files);
        if (const QString wrong = handler.check(); !wrong.isEmpty()) {
            std::fprintf(stderr, "%s: %s\n", qPrintable(handler.name), qPrintable(wrong));
            return false;
        }
        if (targetsMet)
            *targetsMet = *targetsMet && meetsTargets(timing.medianUs, timing.p99Us);
        std::printf("%-44s %8.1f %8.1f  %8.1f %8.1f  %8.1f %8.1f  %s\n", qPrintable(handler.name),
                    timing.medianUs, timing.p99Us, timing.ownMedianUs, timing.ownP99Us,
                    timing.repaintMedianUs, timing.repaintP99Us,
                    targetsMet ? verdictOn(timing) : "yardstick");
    }
    return true;
}
} // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    const Options options = optionsOf(app.arguments());
    umbrakit::bench::BenchApp bench;
    if (!bench.dir.isValid()) {
        std::fprintf(stderr, "no temporary folder\n");
        return 1;
    }
    const auto bare = umbrakit::bench::makeBareWindow();
    bare->show();
    QApplication::processEvents();

    std::vector<HandlerCase> cases = umbrakit::bench::mainWindowCases(bench);
    for (HandlerCase& dialogCase : umbrakit::bench::pathsDialogCases(bench))
        cases.push_back(std::move(dialogCase));

    std::printf("%d calls each; times in microseconds; targets: median <= %.0f, p99 <= %.0f\n",
                options.iterations, kMedianTargetUs, kP99TargetUs);
    std::printf("%-44s %17s  %17s  %17s\n", "", "the call", "less file ops", "with repaint");
    std::printf("%-44s %8s %8s  %8s %8s  %8s %8s  %s\n", "handler", "median", "p99", "median",
                "p99", "median", "p99", "target");
    bool targetsMet = true;
    if (!timeCases(cases, options, &bench.files, &targetsMet))
        return 1;
    std::printf("handler targets %s\n", targetsMet ? "met" : "MISSED");

    std::vector<HandlerCase> reference = umbrakit::bench::bareWindowCases(*bare);
    for (HandlerCase& systemCase : umbrakit::bench::systemCases(bench.dir.path()))
        reference.push_back(std::move(systemCase));
    return timeCases(reference, options, nullptr, nullptr) ? 0 : 1;
}
