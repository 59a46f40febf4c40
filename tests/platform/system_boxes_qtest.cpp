// The real message box, answered by clicking it, and the real disk operations on a temporary
// folder. The real file dialog is driven by the package test.
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include "platform/disk_file_ops.h"
#include "platform/qt_dialogs.h"
#include "platform/writable_folder.h"

using namespace umbrakit;

namespace {
// Runs `answer` on the modal window as soon as it is up.
template <typename Window> void whenShown(std::function<void(Window*)> answer) {
    QTimer::singleShot(0, [answer] {
        QTRY_VERIFY(qobject_cast<Window*>(QApplication::activeModalWidget()));
        answer(qobject_cast<Window*>(QApplication::activeModalWidget()));
    });
}
} // namespace

class SystemBoxesTest : public QObject {
    Q_OBJECT
  private slots:
    void theMessageBoxAnswersYesNoAndOk() {
        QtDialogs dialogs;
        QStringList titles;
        auto answer = [&](MsgBoxButtons buttons, const char* title,
                          QMessageBox::StandardButton click) {
            whenShown<QMessageBox>([&titles, click](QMessageBox* box) {
                titles << box->windowTitle();
                if (click == QMessageBox::NoButton)
                    QTest::keyClick(box, Qt::Key_Return);
                else
                    QTest::mouseClick(box->button(click), Qt::LeftButton);
            });
            return dialogs.msgBox("Prompt", {buttons}, title);
        };
        // Enter takes Yes, the default button
        QCOMPARE(answer(MsgBoxButtons::YesNo, "File Exists...", QMessageBox::NoButton),
                 MsgBoxAnswer::Yes);
        QCOMPARE(answer(MsgBoxButtons::YesNo, "File Exists...", QMessageBox::No), MsgBoxAnswer::No);
        QCOMPARE(answer(MsgBoxButtons::Ok, "", QMessageBox::NoButton), MsgBoxAnswer::Ok);
        QCOMPARE(titles, QStringList({"File Exists...", "File Exists...", "Umbrakit"}));
    }

    // The user's protection holds even for an administrator, who could write anyway: a file or
    // a folder marked read-only takes no change, and the file stays as it was.
    void readOnlyMarksOfFilesAndFolders() {
        QTemporaryDir dir;
        DiskFileOps disk;
        const QString config = dir.filePath("config.ini"), temp = dir.filePath("config.tmp");
        QVERIFY(replaceWhole(disk, config, temp, "first") &&
                replaceWhole(disk, config, temp, "kept"));
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
};

QTEST_MAIN(SystemBoxesTest)
#include "system_boxes_qtest.moc"
