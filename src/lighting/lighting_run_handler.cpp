#include "grid/form1.h"

namespace umbrakit {

void Form1::Go_Button_Click() {}

void Form1::menuRunGo_Click() {
    Go_Button_Click();
}

} // namespace umbrakit
