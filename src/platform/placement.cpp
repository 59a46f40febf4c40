#include "platform/placement.h"

#include "platform/classic_font.h"

namespace umbrakit {

void setUpFixedDialog(QDialog& dialog, const char* name, const QString& caption, int clientWidth,
                      int clientHeight) {
    dialog.setObjectName(name);
    dialog.setWindowTitle(caption);
    dialog.setFont(defaultControlFont());
    dialog.setAttribute(Qt::WA_DeleteOnClose); // unloading destroys the window and its controls
    dialog.setAttribute(Qt::WA_QuitOnClose, false);
    dialog.setFixedSize(twips(clientWidth), twips(clientHeight));
}

} // namespace umbrakit
