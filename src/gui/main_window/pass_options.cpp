// The three lighting passes. The configuration holds them; each pass box and menu tick shows
// one. Every change goes through the box's Value, whose Click then moves the pass and its tick.
#include "gui/main_window/main_window.h"
#include "platform/click_check_box.h"
#include "platform/menu_entry.h"

namespace umbrakit {

void MainWindow::togglePass(Pass pass) {
    ClickCheckBox* box = passBoxes[std::size_t(pass)];
    box->setValue(box->Value() == 0 ? 1 : 0);
}

void MainWindow::followPassBox(Pass pass) {
    configuration_.passes[pass] = passBoxes[std::size_t(pass)]->Value() != 0;
    passEntries[std::size_t(pass)]->setChecked(configuration_.passes[pass]);
}

} // namespace umbrakit
