// The real message box and file dialog, answered by clicking them, and the real disk
// operations on a temporary folder.
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include "platform/accessible_names.h"
#include "platform/ansi_text.h"
#include "platform/disk_file_ops.h"
#include "platform/qt_dialogs.h"

using namespace umbrakit;

namespace {
// Runs `answer` on the modal window as soon as it is up.
template <typename Window> void whenShown(std::function<void(Window*)> answer) {
    QTimer::singleShot(0, [answer] {
        QTRY_VERIFY(qobject_cast<Window*>(QApplication::activeModalWidget()));
        answer(qobject_cast<Window*>(QApplication::activeModalWidget()));
    });
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
}
} // namespace

class SystemBoxesTest : public QObject {
    Q_OBJECT
  private slots:
    void theMessageBoxAnswersTheProgramsCodes() {
        QtDialogs dialogs;
        QString title;
        whenShown<QMessageBox>([&](QMessageBox* box) {
            title = box->windowTitle();
            QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
        });
        QCOMPARE(dialogs.msgBox("File Exists, Do you want to overwrite?", 4, "File Exists..."), 6);
        QCOMPARE(title, QString("File Exists..."));

        whenShown<QMessageBox>([](QMessageBox* box) {
            QCOMPARE(box->defaultButton(), box->button(QMessageBox::Yes));
            QTest::mouseClick(box->button(QMessageBox::No), Qt::LeftButton);
        });
        QCOMPARE(dialogs.msgBox("Again?", 4, "File Exists..."), 7);

        whenShown<QMessageBox>([&](QMessageBox* box) {
            title = box->windowTitle();
            QTest::keyClick(box, Qt::Key_Return);
        });
        QCOMPARE(dialogs.msgBox("Please give the Config a name.", 0, QString()), 1);
        QCOMPARE(title, QString("Umbrakit"));
    }

    void theFileDialogTakesANewNameAndCancels() {
        QTemporaryDir dir;
        QtDialogs dialogs;
        whenShown<QFileDialog>([](QFileDialog* dialog) {
            QCOMPARE(dialog->nameFilters(),
                     QStringList({"lmList.dat (lmList.dat)", "All Files (*.*) (*)"}));
            auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
            QCOMPARE(name->text(), QString("lmList.dat"));
            name->setText("new list.dat");
            QTest::keyClick(name, Qt::Key_Return);
        });
        const QString answer = dialogs.showOpen(
            {"lmList.dat|lmList.dat|All Files (*.*)|*.*", "lmList.dat", dir.path()});
        QCOMPARE(answer, QDir::toNativeSeparators(dir.filePath("new list.dat")));

        whenShown<QFileDialog>([](QFileDialog* dialog) { dialog->reject(); });
        QCOMPARE(dialogs.showOpen({"Battlefield 1942|bf1942.exe", "bf1942.exe", QString()}),
                 QString());
    }

    void replacingAFileNeverLeavesItHalfWritten() {
        QTemporaryDir dir;
        DiskFileOps disk;
        const QString target = dir.filePath("config.ini");
        const QString temp = dir.filePath("config.tmp");
        QVERIFY(replaceWhole(disk, target, temp, "first"));
        QVERIFY(replaceWhole(disk, target, temp, "second"));
        QCOMPARE(contentOf(target), QByteArray("second"));
        QVERIFY(!QFile::exists(temp));

        // a read-only file is the user's to protect, even from an administrator
        QFile::setPermissions(target, QFile::ReadOwner | QFile::ReadUser);
        const FileResult refused = replaceWhole(disk, target, temp, "third");
        QVERIFY(!refused);
        QCOMPARE(refused.reason, QString("The file is read-only."));
        QCOMPARE(contentOf(target), QByteArray("second"));
        QVERIFY(!QFile::exists(temp));
        QVERIFY(!disk.remove(target));

        const FileResult missing =
            replaceWhole(disk, dir.filePath("gone/lmList.dat"), dir.filePath("gone/x.tmp"), "x");
        QVERIFY(!missing);
        QVERIFY(!missing.reason.isEmpty());
    }

    void singleByteTextRefusesWhatItCannotHold() {
        QCOMPARE(toAnsi(QString::fromUtf8("Caf\xC3\xA9 \xE2\x82\xAC")).value(),
                 std::string("Caf\xE9 \x80"));
        QVERIFY(!toAnsi(QString::fromUtf8("\xD0\x96")));
        QCOMPARE(firstUnwritableCharacter(QString::fromUtf8("ok\xF0\x9F\x98\x80x")),
                 QString::fromUtf8("\xF0\x9F\x98\x80"));
        QCOMPARE(fromAnsi(std::string("\xE9\x81", 2)), QString::fromUtf8("\xC3\xA9\xC2\x81"));
        QCOMPARE(captionWithoutAccessKey("Generate &TerrainShadows"),
                 QString("Generate TerrainShadows"));
        QCOMPARE(captionWithoutAccessKey("Save && &Go"), QString("Save & Go"));
    }
};

QTEST_MAIN(SystemBoxesTest)
#include "system_boxes_qtest.moc"
