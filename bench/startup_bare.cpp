// The bare toolkit's start-up: a plain main window with the same widgets, shown and painted
// once. With "--idle SECONDS" it then counts its wake-ups.
#include <QApplication>
#include <QTemporaryDir>

#include "bare_window.h"
#include "window_run.h"

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    const QTemporaryDir appPath; // the harness's own step, taken by both programs alike
    const auto window = umbrakit::bench::makeBareWindow();
    window->show();
    return umbrakit::bench::runShownWindow(*window);
}
