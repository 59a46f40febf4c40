// The paths dialog's Save killed at random instants: the test starts itself as a writer that
// saves one record through the real dialog, in two variants by turns, and kills it. config.ini
// must be the old content or the new, beside it at most a config.tmp the next save discards.
#include <QtTest>

#include "support/dialog_driver.h"

using namespace umbrakit;

namespace {
// Of different length, so that a file cut short or mixed from both would show.
const QByteArray kGamePath[] = {"C:\\BF1942", "D:\\Games\\BF1942 " + QByteArray(300, 'x')};
const char* const kDarkness[] = {"1.5", "2.25"};

QByteArray completeContent(int variant) { // three kept records, then the saved one
    return kWake + kMidway + kBerlin +
           record("Killed", kGamePath[variant], "Wake", "BF1942", "000", kDarkness[variant]);
}

// The writer: prints "saving" as it starts and "saved" after every save, until it is killed.
int saveLoop(const QString& folder) {
    TestApp app(folder);
    PathsDialogWindow& w = openPaths(app);
    w.nameBox->setText("Killed");
    w.levelBox->setText("Wake");
    w.modBox->setText("BF1942");
    std::puts("saving");
    for (int variant = 0;; variant = 1 - variant) {
        std::fflush(stdout);
        w.gamePathBox->setText(kGamePath[variant]);
        w.darknessBox->setText(kDarkness[variant]);
        w.saveButton->click();
        if (!app.dialogs.boxes.isEmpty())
            return 1; // a save that failed leaves no state the test could expect
        std::puts("saved");
    }
}

bool startLoop(QProcess& loop, const QString& folder) { // true once the loop saves
    loop.start(QCoreApplication::applicationFilePath(), {"--save-loop", folder});
    return loop.waitForReadyRead(10000) && loop.readLine() == "saving\n";
}

bool kill(QProcess& loop) { // true if the loop was still saving
    const bool running = loop.state() == QProcess::Running;
    loop.kill();
    loop.waitForFinished();
    return running && loop.exitStatus() == QProcess::CrashExit;
}
} // namespace

class KillMidSaveTest : public QObject {
    Q_OBJECT
  private slots:
    void configIniIsOldOrNewAfterEveryKill() {
        const int asked = qEnvironmentVariableIntValue("UMBRAKIT_KILLS");
        const int kills = asked > 0 ? asked : 1000;
        const QByteArray complete[] = {completeContent(0), completeContent(1)};
        TestApp folder; // only its folder: the writer runs on its own
        folder.write("config.ini", complete[0]);

        // Kill instants are spread evenly over three saves, so every step of a save is hit.
        QProcess calibration;
        QVERIFY2(startLoop(calibration, folder.dir.path()), "the save loop did not start");
        QThread::msleep(300);
        calibration.waitForReadyRead(0);
        const int saves = int(calibration.readAll().count("saved"));
        QVERIFY2(kill(calibration) && saves > 0, "the save loop does not save");
        const double spread = 3 * 300000.0 / saves; // microseconds

        int corrupt = 0, stray = 0, unkilled = 0, tmpLeft = 0;
        for (int k = 0; k < kills; ++k) {
            QProcess loop;
            QVERIFY2(startLoop(loop, folder.dir.path()), "the save loop did not start");
            QThread::usleep(ulong(spread * QRandomGenerator::global()->generateDouble()));
            unkilled += !kill(loop);
            const QByteArray bytes = folder.bytesOf("config.ini");
            if (bytes != complete[0] && bytes != complete[1]) {
                ++corrupt;
                qWarning("kill %d left config.ini as:\n%s", k, bytes.left(200).constData());
            }
            const QStringList files =
                QDir(folder.dir.path())
                    .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
            tmpLeft += files.contains("config.tmp");
            stray += files.size() - files.contains("config.ini") - files.contains("config.tmp");
        }
        qInfo("kills: %d, corrupt files: %d, stray files: %d; one save takes %.2f ms; %d kills "
              "left a config.tmp; %d found the loop not saving",
              kills, corrupt, stray, 300.0 / saves, tmpLeft, unkilled);
        QCOMPARE(std::tuple(corrupt, stray, unkilled), std::tuple(0, 0, 0));
    }
};

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "--save-loop")
        return saveLoop(QString::fromLocal8Bit(argv[2]));
    KillMidSaveTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "kill_mid_save_qtest.moc"
