// The real start of a script: detached, at once, with the script's path as one argument. The
// start through Wine itself is wine_start_qtest, labelled windows.
#include <QtTest>

#include "platform/system_launcher.h"

using namespace umbrakit;

class SystemLauncherTest : public QObject {
    Q_OBJECT

    QTemporaryDir dir;

    QString fileIn(const QString& name, const QByteArray& text) {
        QDir(dir.path()).mkpath(QFileInfo(dir.filePath(name)).path());
        QFile file(dir.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write %s", qPrintable(name));
        return file.fileName();
    }

  private slots:
    void startsDetachedAndReturnsAtOnce() {
        // in a folder whose name holds what a shell or cmd would split on
        const QString script = fileIn("Program Files (x86) & more/go.bat", "@rem\r\n");
        SystemLauncher launcher({FAKE_BATCH_PROCESSOR, {"start", "/unix"}});

        const QDeadlineTimer second(1000);
        QCOMPARE(launcher.startScript(script).outcome, LaunchResult::Started);
        QVERIFY2(!second.hasExpired(), "the start waited for the script");
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
        const QString script = fileIn("plain/go.bat", "@rem\r\n");
        SystemLauncher none({"umbrakit-no-such-batch-processor", {}});
        QCOMPARE(none.startScript(script).outcome, LaunchResult::NoBatchProcessor);

        // found but unable to run, as a Wine whose loader is gone
        const QString broken = fileIn("broken-processor", "#!/nonexistent/loader\n");
        QFile::setPermissions(broken, QFile::permissions(broken) | QFile::ExeOwner);
        const LaunchResult result = SystemLauncher({broken, {}}).startScript(script);
        QCOMPARE(result.outcome, LaunchResult::Failed);
        QVERIFY(!result.reason.isEmpty());
    }
};

QTEST_MAIN(SystemLauncherTest)
#include "system_launcher_qtest.moc"
