// A program folder that this user may not write, though nobody marked it read-only: a folder of
// root's as an ordinary user meets it. The tests run as root, who may write anywhere, so the
// test starts a copy of itself as the user nobody, through setpriv.
#include <QDir>
#include <QProcess>
#include <QtTest>
#include <unistd.h>

#include "gui/main_window/program_folder_notice.h"
#include "platform/writable_folder.h"
#include "support/dialog_driver.h"

using namespace umbrakit;

namespace {
constexpr const char* kNobody = "65534";

// The ordinary user's side: the notice at start-up, then Save, Delete and a lighting run, each
// refused with a box; prints what did not hold and returns how much.
int asOrdinaryUser(const QString& folder) {
    QStringList problems;
    if (::geteuid() == 0)
        problems << "still root";
    DiskFileOps files;
    ScriptedDialogs dialogs;
    FakeLauncher launcher;
    Services services{folder, files, dialogs, launcher, [] {}};
    const auto window = MainWindow::start(services);
    tellIfProgramFolderIsReadOnly(services);
    const AskedBox notice = dialogs.boxes.value(0);
    if (dialogs.boxes.size() != 1 || notice.title != "Read-Only Folder" ||
        !notice.prompt.contains(QDir::toNativeSeparators(folder)))
        problems << "no notice naming the folder";

    window->setPathsEntry->trigger();
    PathsDialogWindow& w = *window->pathsDialog()->window();
    if (rowsOf(w.savedList) != QStringList{"(Current)", "Wake"})
        problems << "the list shows " + rowsOf(w.savedList).join(',');
    w.nameBox->setText("New");
    w.saveButton->click();
    w.savedList->setListIndex(1);
    w.deleteButton->click();
    window->applyConfiguration({U"C:\\BF", U"Level", U"BF1942", 1.5, {}});
    window->runLightingButton->click();
    if (dialogs.boxes.size() != 4 || !launcher.started.isEmpty())
        problems << QString("%1 boxes, %2 started")
                        .arg(dialogs.boxes.size())
                        .arg(launcher.started.size());
    for (const QString& problem : problems)
        std::puts(qPrintable(problem));
    return int(problems.size());
}
} // namespace

class OrdinaryUserTest : public QObject {
    Q_OBJECT
  private slots:
    void aFolderThisUserMayNotWriteIsToldAndKeptAsItWas() {
        if (::geteuid() != 0)
            QSKIP("needs root, to start the check as the user nobody");
        QTemporaryDir dir; // root's, readable by all
        const auto readable = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                              QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther |
                              QFile::ExeOther;
        const QString folder = dir.filePath("Umbrakit"), program = dir.filePath("check");
        QVERIFY(QFile::setPermissions(dir.path(), readable) && QDir().mkdir(folder) &&
                QFile::setPermissions(folder, readable));
        QFile config(folder + "/config.ini");
        QVERIFY(config.open(QIODevice::WriteOnly) && config.write(kWake) == kWake.size());
        config.close();
        QVERIFY(programFolderIsWritable(folder)); // for root, who may write anywhere
        // A copy beside the folder, as the build folder may be closed to other users.
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program) &&
                QFile::setPermissions(program, readable));

        QProcess check;
        check.setProcessChannelMode(QProcess::MergedChannels);
        check.start("setpriv", {QString("--reuid=") + kNobody, QString("--regid=") + kNobody,
                                "--clear-groups", program, "--as-ordinary-user", folder});
        QVERIFY2(check.waitForFinished(60000), "the check did not end");
        const QByteArray said = check.readAll();
        QVERIFY2(check.exitStatus() == QProcess::NormalExit && check.exitCode() == 0,
                 said.constData());
        QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
                 QStringList{"config.ini"});
        QVERIFY(config.open(QIODevice::ReadOnly) && config.readAll() == kWake);
    }
};

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "--as-ordinary-user")
        return asOrdinaryUser(QString::fromLocal8Bit(argv[2]));
    OrdinaryUserTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ordinary_user_qtest.moc"
