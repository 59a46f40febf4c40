// The real boxes and file dialogs, application-modal over whichever window is active.
#pragma once

#include <QStringList>

#include "platform/dialogs.h"

namespace umbrakit {

class QtDialogs : public Dialogs {
  public:
    MsgBoxAnswer msgBox(const QString& prompt, MsgBoxStyle style, const QString& title) override;
    QString showOpen(const FileDialogRequest& request) override;
};

// "desc|pattern|desc|pattern" as Qt name filters; "*.*" means every file, with or without a dot.
QStringList nameFiltersOf(const QString& filter);

} // namespace umbrakit
