// "&Go!" writes go.bat and hands it to Wine through the real SystemLauncher; the stand-in
// BF1942.exe (UMBRAKIT_STAND_IN, built by ctest with the WINEPREFIX) records how cmd started it.
#include <QtTest>

#include "gui/main_window/main_window.h"
#include "platform/menu_entry.h"
#include "platform/qt_text.h"
#include "platform/status_bar.h"
#include "platform/system_launcher.h"
#include "support/test_doubles.h"

using namespace umbrakit;

namespace {
QByteArrayList linesOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArrayList lines = file.readAll().split('\n');
    lines.removeLast(); // what follows the last line end
    return lines;
}

// Wine shows the whole Unix file system as drive Z:.
QString onDriveZ(QString unixPath) {
    return "Z:" + unixPath.replace('/', '\\');
}
} // namespace

class WineStartTest : public QObject {
    Q_OBJECT
  private slots:
    void goStartsTheEngineThroughWineAndReturnsAtOnce() {
        const QString standIn = qEnvironmentVariable("UMBRAKIT_STAND_IN");
        QVERIFY2(!standIn.isEmpty() && qEnvironmentVariableIsSet("WINEPREFIX"),
                 "run through ctest: it builds the stand-in engine and makes the Wine prefix");
        QTemporaryDir root;
        const QString appDir = root.filePath("Umbrakit"), gameDir = root.filePath("Games/BF1942");
        QVERIFY(QDir().mkpath(appDir) && QDir().mkpath(gameDir));
        QVERIFY(QFile::copy(standIn, gameDir + "/BF1942.exe"));

        DiskFileOps files;
        ScriptedDialogs dialogs;
        SystemLauncher launcher;
        Services services{appDir, files, dialogs, launcher, [] {}};
        const auto window = MainWindow::start(services);
        window->applyConfiguration(
            {toText(onDriveZ(gameDir)), U"MyLevel", U"BF1942", 1.5, {true, true, true}});

        window->goEntry->trigger();

        // Each start of the stand-in lasts 250 ms and Wine takes longer still to begin: a handler
        // that waited for the script would come back to a complete log.
        const QString log = gameDir + "/BF1942.log";
        QCOMPARE_LT(linesOf(log).size(), 9);
        QCOMPARE(window->statusLine->SimpleText(), "Running batch lighting... You may exit.");
        QVERIFY(dialogs.boxes.isEmpty());

        QTRY_COMPARE_WITH_TIMEOUT(linesOf(log).size(), 9, 30000);
        const QByteArrayList records = linesOf(log);
        const QByteArrayList script = linesOf(appDir + "/go.bat");
        QCOMPARE(script.size(), 5);
        const char* const options[] = {" +traceTerrainShadows ", " +mergeTerrainShadows ",
                                       " +traceObjectShadows "};
        for (int pass = 0; pass < 3; ++pass) {
            const QByteArray line = script[pass + 2].chopped(1); // without its CR
            QVERIFY2(line.contains(options[pass]), line);
            QCOMPARE(records[3 * pass], "start " + line);
            QCOMPARE(records[3 * pass + 1], "folder " + onDriveZ(gameDir).toUtf8());
            QCOMPARE(records[3 * pass + 2], "end");
        }
    }
};

QTEST_MAIN(WineStartTest)
#include "wine_start_qtest.moc"
