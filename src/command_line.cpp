#include "command_line.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <cstdio>

#include "core/desktop_entry.h"
#include "gui/about/resources.h"
#include "platform/desktop_entry_files.h"
#include "platform/disk_file_ops.h"

namespace umbrakit {

namespace {
// The menu entry follows the freedesktop rules, which Windows and macOS do not read.
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
constexpr bool kHasDesktopEntry = true;
#else
constexpr bool kHasDesktopEntry = false;
#endif

void print(std::FILE* stream, const QString& line) {
    std::fputs(qPrintable(line + '\n'), stream);
}

// The options that QApplication reads itself; they pass, unlisted in the help, so that a
// start such as "umbrakit -style fusion" works as it always did.
void acceptToolkitOptions(QCommandLineParser& parser) {
    for (const char* name : {"platform", "platformpluginpath", "platformtheme", "plugin",
                             "qwindowgeometry", "qwindowicon", "qwindowtitle", "session", "display",
                             "geometry", "style", "stylesheet", "qmljsdebugger"}) {
        QCommandLineOption option(name, QString(), "value");
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(option);
    }
    for (const char* name : {"reverse", "widgetcount", "nograb", "dograb", "sync"}) {
        QCommandLineOption option(name);
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(option);
    }
}

QByteArray resource(const QString& name) {
    QFile file(":/umbrakit/" + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The entry points at the program where it stands, so each unpacked copy can have its own.
DesktopEntryContent desktopEntryContent() {
    loadResources();
    const std::string text =
        desktopEntryText(resource("umbrakit.desktop.in").toStdString(),
                         QCoreApplication::applicationFilePath().toStdString());
    DesktopEntryContent content{QByteArray::fromStdString(text), {}};
    for (const int size : kDesktopIconSizes)
        content.iconPngs[size] = resource(QString("umbrakit-%1.png").arg(size));
    return content;
}

int reportChange(const DesktopEntryChange& change, const QString& done) {
    for (const QString& path : change.paths)
        print(stdout, done + ' ' + path);
    if (change.failedPath.isEmpty())
        return 0;
    print(stderr, "umbrakit: " + change.failedPath + ": " + change.reason);
    return 1;
}
} // namespace

std::optional<int> runCommandLine(int& argc, char** argv) {
    if (argc <= 1)
        return std::nullopt;
    // Parsed with a core application only: QApplication would need a display.
    const QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Umbrakit prepares lighting runs for Battlefield 1942 levels.\n"
        "Without options it opens its window; config.ini and go.bat are kept beside it.");
    // Single-dash words as Qt's own options are written: "-style fusion".
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption install(
        "install-desktop-entry",
        "Add Umbrakit to the desktop's menu, starting this copy where it stands: writes "
        "applications/umbrakit.desktop and the icons below $XDG_DATA_HOME (~/.local/share).");
    const QCommandLineOption remove("remove-desktop-entry",
                                    "Remove the files that --install-desktop-entry wrote.");
    if (kHasDesktopEntry)
        parser.addOptions({install, remove});
    acceptToolkitOptions(parser);

    if (!parser.parse(QCoreApplication::arguments())) {
        print(stderr, "umbrakit: " + parser.errorText() + " See umbrakit --help.");
        return 2;
    }
    if (parser.isSet(help) || parser.isSet("help-all")) { // Qt adds --help-all beside --help
        std::fputs(qPrintable(parser.helpText()), stdout);
        return 0;
    }
    if (parser.isSet(version)) {
        print(stdout, "Umbrakit " UMBRAKIT_VERSION);
        return 0;
    }
    if (!kHasDesktopEntry)
        return std::nullopt;
    if (parser.isSet(install) && parser.isSet(remove)) {
        print(stderr, "umbrakit: --install-desktop-entry and --remove-desktop-entry exclude "
                      "each other.");
        return 2;
    }
    DiskFileOps files;
    if (parser.isSet(install))
        return reportChange(installDesktopEntry(files, userDataFolder(), desktopEntryContent()),
                            "Wrote");
    if (parser.isSet(remove)) {
        const DesktopEntryChange change = removeDesktopEntry(files, userDataFolder());
        if (change.paths.isEmpty() && change.failedPath.isEmpty())
            print(stdout,
                  "No menu entry of Umbrakit in " + userDataFolder() + "; nothing removed.");
        return reportChange(change, "Removed");
    }
    return std::nullopt;
}

} // namespace umbrakit
