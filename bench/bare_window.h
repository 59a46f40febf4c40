// The yardstick of the start-up comparison: a plain Qt main window with as many widgets of the
// same kinds as the main window, at the same places, and nothing of the program's own.
#pragma once

#include <QMainWindow>
#include <memory>

namespace umbrakit::bench {
std::unique_ptr<QMainWindow> makeBareWindow();
}
