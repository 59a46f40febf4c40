#include "grid/form1.h"
#include "paths_dialog/paths_dialog.h"

namespace umbrakit {

void Form1::menuFilePaths_Click() {}

} // namespace umbrakit
