// Dialogs answered from queues, recording everything asked: how tests and benchmarks answer
// the program's boxes without a person.
#pragma once

#include <QList>
#include <QQueue>

#include "platform/dialogs.h"

namespace umbrakit {

struct AskedBox {
    QString prompt;
    int buttons;
    QString title;
};

class ScriptedDialogs : public Dialogs {
public:
    QQueue<int> boxAnswers;      // an empty queue answers OK, or No to a Yes/No box
    QQueue<QString> fileAnswers; // an empty queue cancels
    QList<AskedBox> boxes;
    QList<FileDialogRequest> fileRequests;

    int msgBox(const QString& prompt, int buttons, const QString& title) override;
    QString showOpen(const FileDialogRequest& request) override;
};

} // namespace umbrakit
