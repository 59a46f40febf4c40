// Modal boxes and file dialogs. Handlers reach them only through this interface, so that tests
// can answer them while the program shows the real ones (QtDialogs).
#pragma once

#include <QString>

namespace umbrakit {

enum class MsgBoxButtons { Ok, YesNo };
enum class MsgBoxIcon { None, Critical, Exclamation, Information };
enum class MsgBoxAnswer { Ok, Yes, No };

struct MsgBoxStyle {
    MsgBoxButtons buttons = MsgBoxButtons::Ok;
    MsgBoxIcon icon = MsgBoxIcon::None;
    bool operator==(const MsgBoxStyle&) const = default;
};

struct FileDialogRequest {
    QString filter;   // "description|pattern|description|pattern"
    QString fileName; // name offered at the start
    QString initDir;  // folder to start in; empty for the system's default
};

class Dialogs {
  public:
    virtual ~Dialogs() = default;
    // An empty title stands for the program's default title. A Yes/No box has Yes as its
    // default button.
    virtual MsgBoxAnswer msgBox(const QString& prompt, MsgBoxStyle style, const QString& title) = 0;
    // The chosen file with its full path, or empty if the user cancelled.
    virtual QString showOpen(const FileDialogRequest& request) = 0;
};

} // namespace umbrakit
