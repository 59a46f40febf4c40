#include "support/scripted_dialogs.h"

namespace umbrakit {

int ScriptedDialogs::msgBox(const QString& prompt, int buttons, const QString& title) {
    boxes.append({prompt, buttons, title});
    if (!boxAnswers.isEmpty())
        return boxAnswers.dequeue();
    return (buttons & 0x0F) == MsgBoxStyle::YesNo ? MsgBoxResult::No : MsgBoxResult::Ok;
}

QString ScriptedDialogs::showOpen(const FileDialogRequest& request) {
    fileRequests.append(request);
    return fileAnswers.isEmpty() ? QString() : fileAnswers.dequeue();
}

} // namespace umbrakit
