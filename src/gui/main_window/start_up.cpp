// Start-up, the end of the program, and the timer that returns the status line to rest.
#include "gui/main_window/main_window.h"
#include "platform/combo_list.h"
#include "platform/form_timer.h"
#include "platform/status_bar.h"

namespace umbrakit {

void Form1::Form_Load() {
    Combo1->AddItem("4x4");
    Combo1->AddItem("8x8");
    Combo1->AddItem("16x16");
    Combo1->AddItem("32x32");
    Combo1->setListIndex(0); // raises Combo1_Click, which brings the grid into its first state
    shadowDarkness = 1.5;
}

void Form1::menuFileExit_Click() {
    services.end();
}

void Form1::Timer1_Timer() {
    StatusBar1->setSimpleText("Ready.");
    Timer1->setEnabled(false);
}

} // namespace umbrakit
