// The program started with options as a user types them: Qt's own single-dash options still
// open the windows, and the menu entry goes where the XDG Base Directory rules say.
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <optional>

namespace {
QProcessEnvironment withoutDisplay() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_DATA_HOME"})
        environment.remove(name);
    return environment;
}
} // namespace

class CommandLineTest : public QObject {
    Q_OBJECT
  private slots:
    // Without a display the windows come up only if "-platform offscreen" reaches Qt; an
    // option that the program refuses ends it at once with code 2.
    void qtsOwnOptionsStillStartTheWindows() {
        for (const char* arguments :
             {"-platform offscreen -style fusion", "-style fusion -reverse -platform offscreen"}) {
            QProcess program;
            program.setProcessEnvironment(withoutDisplay());
            program.start(UMBRAKIT_PROGRAM, QString(arguments).split(' '));
            QVERIFY(program.waitForStarted());
            QVERIFY2(!program.waitForFinished(2500),
                     qPrintable(QString(arguments) + ": exit code " +
                                QString::number(program.exitCode()) + ", " +
                                program.readAllStandardError()));
            program.kill();
            program.waitForFinished();
        }
    }

    // Only an absolute XDG_DATA_HOME counts; unset, empty or relative, the files go below
    // ~/.local/share and never into a folder relative to where the program was started.
    void theMenuEntryFollowsXdgDataHome() {
        const struct {
            std::optional<QString> dataHome;
            QString folder; // below the temporary folder
        } cases[] = {{std::nullopt, "home/.local/share"}, {"", "home/.local/share"},
                     {"data", "home/.local/share"},       {"./data", "home/.local/share"},
                     {"~/data", "home/.local/share"},     {"/xdg/", "xdg"}};
        for (const auto& [dataHome, folder] : cases) {
            QTemporaryDir dir;
            QDir(dir.path()).mkpath("start");
            QProcessEnvironment environment = withoutDisplay();
            environment.insert("HOME", dir.filePath("home"));
            if (dataHome)
                environment.insert("XDG_DATA_HOME",
                                   dataHome->startsWith('/') ? dir.path() + *dataHome : *dataHome);
            QProcess program;
            program.setProcessEnvironment(environment);
            program.setWorkingDirectory(dir.filePath("start"));
            program.start(UMBRAKIT_PROGRAM, {"--install-desktop-entry"});
            QVERIFY(program.waitForFinished(20000));
            const QString where = dataHome.value_or("unset");
            QVERIFY2(program.exitCode() == 0,
                     qPrintable(where + ": " + program.readAllStandardError()));
            QVERIFY2(QFile::exists(dir.filePath(folder + "/applications/umbrakit.desktop")),
                     qPrintable(where));
            QVERIFY2(QDir(dir.filePath("start")).isEmpty(), qPrintable(where));
        }
    }
};

QTEST_GUILESS_MAIN(CommandLineTest)
#include "command_line_qtest.moc"
