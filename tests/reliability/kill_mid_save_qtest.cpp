// The paths dialog's Save killed at random instants: save_loop saves through the real dialog
// on real files, and after every kill config.ini must be whole, the old content or the new,
// with nothing beside it but a config.tmp that the next save discards.
#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>
#include <chrono>
#include <thread>

#include "reliability/saved_states.h"
#include "saved/config_walk.h"

using namespace umbrakit;

namespace {
// save_loop on one folder, from its start to its kill.
struct Loop {
    QProcess process;
    bool start(const QString& folder) { // true once the loop saves
        process.start(SAVE_LOOP, {folder});
        return process.waitForReadyRead(10000) && process.readLine() == "saving\n";
    }
    // Counts the lines "saved" within the given time, for the length of one save.
    int savesWithin(std::chrono::milliseconds time) {
        std::this_thread::sleep_for(time);
        process.waitForReadyRead(0);
        return int(process.readAll().count("saved"));
    }
    bool kill() { // true if the loop was still saving
        const bool running = process.state() == QProcess::Running;
        process.kill();
        process.waitForFinished();
        return running && process.exitStatus() == QProcess::CrashExit;
    }
};

bool isComplete(const QByteArray& bytes) {
    const std::string text = bytes.toStdString();
    const std::vector<std::string> names = readSavedNames(splitLines(text));
    return (text == reliability::completeContent(0) || text == reliability::completeContent(1)) &&
           names.size() == 4 && names.back() == reliability::kSavedName;
}

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}
} // namespace

class KillMidSaveTest : public QObject {
    Q_OBJECT
  private slots:
    void configIniIsOldOrNewAfterEveryKill() {
        const int kills = qEnvironmentVariableIntValue("UMBRAKIT_KILLS") > 0
                              ? qEnvironmentVariableIntValue("UMBRAKIT_KILLS")
                              : 1000;
        QTemporaryDir dir;
        const QString config = dir.filePath("config.ini");
        QFile seed(config);
        QVERIFY(seed.open(QIODevice::WriteOnly));
        seed.write(QByteArray::fromStdString(reliability::completeContent(0)));
        seed.close();

        // Kill instants are spread evenly over three saves, so every step of a save is hit.
        Loop calibration;
        QVERIFY2(calibration.start(dir.path()), "save_loop did not start");
        const int saves = calibration.savesWithin(std::chrono::milliseconds(300));
        QVERIFY2(calibration.kill() && saves > 0, "save_loop does not save");
        const auto spread = std::chrono::microseconds(3 * 300000 / saves);

        int corrupt = 0, stray = 0, unkilled = 0, tmpLeft = 0;
        for (int kill = 0; kill < kills; ++kill) {
            Loop loop;
            QVERIFY2(loop.start(dir.path()), "save_loop did not start");
            std::this_thread::sleep_for(spread * QRandomGenerator::global()->generateDouble());
            if (!loop.kill())
                ++unkilled;
            const QByteArray bytes = bytesOf(config);
            if (!isComplete(bytes)) {
                ++corrupt;
                qWarning("kill %d left config.ini as:\n%s", kill, bytes.left(200).constData());
            }
            const QStringList files =
                QDir(dir.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
            tmpLeft += files.contains("config.tmp");
            const QStringList known{"config.ini", "config.tmp"};
            for (const QString& file : files)
                stray += !known.contains(file);
        }
        qInfo("kills: %d, corrupt files: %d, stray files: %d", kills, corrupt, stray);
        qInfo("one save takes %.2f ms; %d kills left a config.tmp beside config.ini; %d found "
              "the loop no longer saving",
              300.0 / saves, tmpLeft, unkilled);
        QCOMPARE(corrupt, 0);
        QCOMPARE(stray, 0);
        QCOMPARE(unkilled, 0);
    }
};

QTEST_GUILESS_MAIN(KillMidSaveTest)
#include "kill_mid_save_qtest.moc"
