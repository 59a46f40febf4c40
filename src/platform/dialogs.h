// Modal boxes and file dialogs. Handlers reach them only through this interface, so tests
// can answer them (ScriptedDialogs) while the program shows the real ones (QtDialogs).
#pragma once

#include <QString>

namespace umbrakit {

// Button and icon codes of a message box, and its answers.
namespace MsgBoxStyle {
constexpr int OkOnly = 0;
constexpr int YesNo = 4;
constexpr int Critical = 16;
constexpr int Exclamation = 48;
constexpr int Information = 64;
} // namespace MsgBoxStyle
namespace MsgBoxResult {
constexpr int Ok = 1;
constexpr int Cancel = 2;
constexpr int Yes = 6;
constexpr int No = 7;
} // namespace MsgBoxResult

struct FileDialogRequest {
    QString filter;   // "description|pattern|description|pattern"
    QString fileName; // name offered at the start
    QString initDir;  // folder to start in; empty for the system's default
};

class Dialogs {
public:
    virtual ~Dialogs() = default;
    // An empty title stands for the program's default title.
    virtual int msgBox(const QString& prompt, int buttons, const QString& title) = 0;
    // The chosen file with its full path, or empty if the user cancelled.
    virtual QString showOpen(const FileDialogRequest& request) = 0;
};

} // namespace umbrakit
