// How tests and benchmarks meet the program's boxes, disk and batch processor without a person.
#pragma once

#include <QList>
#include <QQueue>
#include <QStringList>

#include "platform/dialogs.h"
#include "platform/disk_file_ops.h"
#include "platform/launcher.h"

namespace umbrakit {

struct AskedBox {
    QString prompt;
    MsgBoxStyle style;
    QString title;
};

// Boxes and file dialogs answered from queues.
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

// File operations on the real disk, any one of which a test can make fail.
class FaultyFileOps : public FileOps {
  public:
    int failAt = 0;      // the operation, counted from 1, that fails; 0 for none
    QString failNext;    // or the next one of this kind ("writeNew", ...), once
    int operations = 0;  // operations made so far (exists is no operation that can fail)
    QStringList journal; // "remove path", "writeNew path", ... in order

    bool exists(const QString& path) override { return disk_.exists(path); }
    FileResult read(const QString& path, QByteArray& bytes) override {
        return failsNow("read " + path) ? injected() : disk_.read(path, bytes);
    }
    FileResult remove(const QString& path) override {
        return failsNow("remove " + path) ? injected() : disk_.remove(path);
    }
    FileResult writeNew(const QString& path, const QByteArray& bytes) override {
        if (!failsNow("writeNew " + path))
            return disk_.writeNew(path, bytes);
        disk_.writeNew(path, bytes.left(bytes.size() / 2)); // a full disk leaves part behind
        return injected();
    }
    FileResult renameOver(const QString& from, const QString& to) override {
        return failsNow("renameOver " + from + " " + to) ? injected() : disk_.renameOver(from, to);
    }

  private:
    bool failsNow(const QString& what) {
        journal << what;
        if (!failNext.isEmpty() && what.startsWith(failNext + ' ')) {
            failNext.clear();
            return true;
        }
        return ++operations == failAt;
    }
    static FileResult injected() { return FileResult::failure("Injected failure."); }
    DiskFileOps disk_;
};

// A launcher that starts nothing and records what it was asked to start.
class FakeLauncher : public Launcher {
  public:
    LaunchResult answer; // what every start reports
    QStringList started; // the scripts asked for, in order

    LaunchResult startScript(const QString& scriptPath) override {
        started << scriptPath;
        return answer;
    }
};

} // namespace umbrakit
