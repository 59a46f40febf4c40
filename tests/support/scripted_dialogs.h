// Dialogs answered from queues, recording everything asked: how tests and benchmarks answer
// the program's boxes without a person.
#pragma once

#include <QList>
#include <QQueue>

#include "platform/dialogs.h"

namespace umbrakit {

struct AskedBox {
    QString prompt;
    MsgBoxStyle style;
    QString title;
};

class ScriptedDialogs : public Dialogs {
  public:
    QQueue<MsgBoxAnswer> boxAnswers; // an empty queue answers OK, or No to a Yes/No box
    QQueue<QString> fileAnswers;     // an empty queue cancels
    QList<AskedBox> boxes;
    QList<FileDialogRequest> fileRequests;

    MsgBoxAnswer msgBox(const QString& prompt, MsgBoxStyle style, const QString& title) override {
        boxes.append({prompt, style, title});
        if (!boxAnswers.isEmpty())
            return boxAnswers.dequeue();
        return style.buttons == MsgBoxButtons::YesNo ? MsgBoxAnswer::No : MsgBoxAnswer::Ok;
    }
    QString showOpen(const FileDialogRequest& request) override {
        fileRequests.append(request);
        return fileAnswers.isEmpty() ? QString() : fileAnswers.dequeue();
    }
};

} // namespace umbrakit
