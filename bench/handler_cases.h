// The handlers the benchmark times, each with the state it starts from and a check that the
// calls took the path they should (a refused export would be fast and prove nothing).
#pragma once

#include <QMainWindow>
#include <vector>

#include "bench_app.h"
#include "handler_timer.h"

namespace umbrakit::bench {

std::vector<HandlerCase> mainWindowCases(BenchApp& app);
std::vector<HandlerCase> pathsDialogCases(BenchApp& app);
std::vector<HandlerCase> bareWindowCases(QMainWindow& bare);
std::vector<HandlerCase> systemCases(const QString& folder);

} // namespace umbrakit::bench
