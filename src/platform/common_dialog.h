// The common file dialog of a window: properties set before ShowOpen, FileName read after.
#pragma once

#include "platform/dialogs.h"

namespace umbrakit {

class CommonDialog {
public:
    explicit CommonDialog(Dialogs& dialogs) : dialogs_(dialogs) {}

    QString Filter;
    QString FileName;
    QString InitDir;

    // Blocks until the user has chosen; FileName then holds the full path, or is empty.
    void ShowOpen() { FileName = dialogs_.showOpen({Filter, FileName, InitDir}); }

private:
    Dialogs& dialogs_;
};

} // namespace umbrakit
