// The real start of a script: detached, at once, with the script's path as one argument.
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include "platform/system_launcher.h"

using namespace umbrakit;

class SystemLauncherTest : public QObject {
    Q_OBJECT

    QTemporaryDir dir;

    // The script in a folder whose name holds what a shell or cmd would split on.
    QString scriptIn(const QString& folder, const QByteArray& text) {
        QDir(dir.path()).mkpath(folder);
        const QString path = dir.filePath(folder + "/go.bat");
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write the test script");
        return path;
    }

  private slots:
    void startsDetachedAndReturnsAtOnce() {
        const QString script = scriptIn("Program Files (x86) & more", "@rem\r\n");
        SystemLauncher launcher({FAKE_BATCH_PROCESSOR, {"start", "/unix"}});

        QElapsedTimer clock;
        clock.start();
        const LaunchResult result = launcher.startScript(script);
        QVERIFY2(clock.elapsed() < 1000, "the start waited for the script");
        QCOMPARE(result.outcome, LaunchResult::Started);
        QVERIFY(!QFile::exists(script + ".ran")); // still running on its own

        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(script + ".ran"), 15000);
        QFile marker(script + ".ran");
        QVERIFY(marker.open(QIODevice::ReadOnly));
        const QStringList lines = QString::fromUtf8(marker.readAll()).split('\n');
        QCOMPARE(lines.mid(0, 3), (QStringList{"start", "/unix", script}));
        QVERIFY2(lines.value(3) != "parent " + QString::number(QCoreApplication::applicationPid()),
                 "the script is still a child of the program");
    }

    void missingOrBrokenBatchProcessor() {
        const QString script = scriptIn("plain", "@rem\r\n");
        SystemLauncher none({"umbrakit-no-such-batch-processor", {}});
        QCOMPARE(none.startScript(script).outcome, LaunchResult::NoBatchProcessor);

        // Found but unable to run, as a Wine whose loader is gone.
        const QString broken = dir.filePath("broken-processor");
        QFile file(broken);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("#!/nonexistent/loader\n");
        file.close();
        file.setPermissions(file.permissions() | QFile::ExeOwner);
        const LaunchResult result = SystemLauncher({broken, {}}).startScript(script);
        QCOMPARE(result.outcome, LaunchResult::Failed);
        QVERIFY(!result.reason.isEmpty());
    }

    // The system's own launcher really runs a batch script through Wine, with no display.
    void runsScriptThroughWine() {
        if (QStandardPaths::findExecutable("wine").isEmpty())
            QSKIP("Wine is not installed");
        QTemporaryDir prefix;
        qputenv("WINEPREFIX", prefix.path().toLocal8Bit());
        qputenv("WINEDEBUG", "-all");
        qunsetenv("DISPLAY");
        const QString folder = dir.filePath("Umbrakit (x86) wine");
        const QString windowsFolder = "Z:" + QString(folder).replace('/', '\\');
        const QString script =
            scriptIn("Umbrakit (x86) wine",
                     "@cd " + windowsFolder.toLocal8Bit() + "\r\n@Z:\r\n@echo ran> ran.txt\r\n");

        QElapsedTimer clock;
        clock.start();
        QCOMPARE(SystemLauncher().startScript(script).outcome, LaunchResult::Started);
        QVERIFY2(clock.elapsed() < 1000, "the start waited for Wine");
        // A new Wine prefix takes a while to set up before the script runs.
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(folder + "/ran.txt"), 180000);
        QProcess::execute("wineserver", {"-w"}); // let Wine leave the prefix before it goes
    }
};

QTEST_MAIN(SystemLauncherTest)
#include "system_launcher_qtest.moc"
