// The real message box, answered by clicking it, and the real disk operations on a temporary
// folder, their system calls watched. The real file dialog is driven by the package test.
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

#include "platform/disk_file_ops.h"
#include "platform/qt_dialogs.h"
#include "platform/writable_folder.h"

using namespace umbrakit;

namespace {
// The real system calls, each written down as it is made ("flush config.tmp", a handle's by the
// file last created); the one named in `failing` fails instead.
class WatchedSystemFiles : public SystemFiles {
  public:
    using Path = std::filesystem::path;
    QStringList calls;
    QString failing;

    SystemResult create(const Path& path, Handle& file) override {
        return step("create", created_ = path, [&] { return real_.create(path, file); });
    }
    SystemResult write(Handle f, std::string_view bytes) override {
        return step("write", created_, [&] { return real_.write(f, bytes); });
    }
    SystemResult flush(Handle f) override {
        return step("flush", created_, [&] { return real_.flush(f); });
    }
    SystemResult close(Handle f) override {
        return step("close", created_, [&] { return real_.close(f); });
    }
    SystemResult rename(const Path& from, const Path& to) override {
        return step("rename", from, [&] { return real_.rename(from, to); });
    }
    void flushFolder(const Path& folder) override {
        step("flushFolder", folder, [&] { return real_.flushFolder(folder), SystemResult{}; });
    }

  private:
    SystemResult step(const QString& what, const Path& path, auto call) {
        calls << what + ' ' + QString::fromStdString(path.filename().string());
        return what == failing ? SystemResult{false, "Injected failure."} : call();
    }
    SystemFiles& real_ = systemFiles();
    Path created_;
};
} // namespace

class SystemBoxesTest : public QObject {
    Q_OBJECT
  private slots:
    void theMessageBoxAnswersYesNoAndOk() {
        QtDialogs dialogs;
        auto answer = [&](MsgBoxButtons buttons, const char* title,
                          QMessageBox::StandardButton click) {
            QTimer::singleShot(0, [title, click] { // as soon as the box is up
                QTRY_VERIFY(qobject_cast<QMessageBox*>(QApplication::activeModalWidget()));
                auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                click ? QTest::mouseClick(box->button(click), Qt::LeftButton)
                      : QTest::keyClick(box, Qt::Key_Return);
                QCOMPARE(box->windowTitle(), QString(*title ? title : "Umbrakit")); // or no title
            });
            return dialogs.msgBox("Prompt", {buttons}, title);
        };
        // Enter takes Yes, the default button
        QCOMPARE(answer(MsgBoxButtons::YesNo, "File Exists...", QMessageBox::NoButton),
                 MsgBoxAnswer::Yes);
        QCOMPARE(answer(MsgBoxButtons::YesNo, "File Exists...", QMessageBox::No), MsgBoxAnswer::No);
        QCOMPARE(answer(MsgBoxButtons::Ok, "", QMessageBox::NoButton), MsgBoxAnswer::Ok);
    }

    // The user's protection holds even for an administrator, who could write anyway: a file or
    // a folder marked read-only takes no change, and the file stays as it was.
    void readOnlyMarksOfFilesAndFolders() {
        QTemporaryDir dir;
        DiskFileOps disk;
        const QString config = dir.filePath("config.ini"), temp = dir.filePath("config.tmp");
        QVERIFY(replaceWhole(disk, config, temp, "kept"));
        QVERIFY(programFolderIsWritable(dir.path()));
        QVERIFY(!replaceWhole(disk, dir.filePath("gone/a.dat"), dir.filePath("gone/a.tmp"), "x"));

        QFile::setPermissions(config, QFile::ReadOwner);
        QCOMPARE(replaceWhole(disk, config, temp, "new").reason, QString("The file is read-only."));
        QCOMPARE(disk.remove(config).reason, QString("The file is read-only."));
        QFile::setPermissions(config, QFile::ReadOwner | QFile::WriteOwner);
        const auto readAndList = QFile::ReadOwner | QFile::ExeOwner;
        QVERIFY(QFile::setPermissions(dir.path(), readAndList));
        QVERIFY(!programFolderIsWritable(dir.path()));
        for (const FileResult& refused :
             {replaceWhole(disk, dir.filePath("lmList.dat"), dir.filePath("lmList.tmp"), "new"),
              replaceWhole(disk, config, temp, "new"), disk.remove(config)})
            QCOMPARE(refused.reason, QString("The folder is read-only."));
        QVERIFY(QFile::setPermissions(dir.path(), readAndList | QFile::WriteOwner));
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList{"config.ini"});
        QByteArray bytes;
        QVERIFY(disk.read(config, bytes) && bytes == "kept");
    }

    // The new file is on the disk, then put in place, then its folder is: all before the save
    // is reported done. A step that fails leaves config.ini as it was.
    void aSaveIsOnTheDiskBeforeItIsReportedDone() {
        QTemporaryDir dir;
        const QString config = dir.filePath("config.ini"), temp = dir.filePath("config.tmp");
        DiskFileOps real;
        QVERIFY(replaceWhole(real, config, temp, "old"));
        const QStringList written{"create config.tmp", "write config.tmp", "flush config.tmp",
                                  "close config.tmp"};
        const QString flushFolder = "flushFolder " + QFileInfo(dir.path()).fileName();
        const struct {
            const char* failing;
            QStringList calls;
        } cases[] = {{"write", {"create config.tmp", "write config.tmp", "close config.tmp"}},
                     {"flush", written},
                     {"rename", written + QStringList{"rename config.tmp"}},
                     {"", written + QStringList{"rename config.tmp", flushFolder}}};
        for (const auto& [failing, calls] : cases) {
            WatchedSystemFiles system;
            system.failing = failing;
            DiskFileOps disk(system);
            const bool done = bool(replaceWhole(disk, config, temp, "new"));
            QCOMPARE(system.calls, calls);
            QCOMPARE(done, QString(failing).isEmpty());
            QByteArray bytes;
            QVERIFY(disk.read(config, bytes) && bytes == (done ? "new" : "old"));
            QVERIFY(!QFile::exists(temp));
        }
    }
};

QTEST_MAIN(SystemBoxesTest)
#include "system_boxes_qtest.moc"
