// Hostile config.ini files beside the program before the paths dialog opens. The dialog must
// open, list what the readers find, show every listed row whole, and a save afterwards must keep
// every complete record. Each file runs in a child process, so a crash is counted and the files
// after it still run.
#include <QProcess>
#include <QtTest>

#include "core/number_text.h"
#include "support/dialog_driver.h"
#include "platform/ansi_text.h"
#include "core/text_lines.h"
#include "core/config_walk.h"

using namespace umbrakit;

namespace {
using Hostile = std::pair<QString, QByteArray>;

QByteArray withLine(QByteArray bytes, int line, const QByteArray& text) { // replaces one line
    QByteArrayList lines = bytes.split('\n');
    lines[line] = text + '\r';
    return lines.join('\n');
}

QList<Hostile> hostileFiles() {
    const QByteArray two = kWake + kMidway, nul("\0", 1), big(100000, 'x');
    QByteArray high, crOnly = two;
    for (int byte = 0x80; byte <= 0xFF; ++byte)
        high += char(byte);
    crOnly.replace("\r\n", "\r");
    QList<Hostile> files;
    for (int size = 0; size <= two.size(); ++size)
        files << Hostile{QString("cut at byte %1").arg(size), two.left(size)};
    return files << QList<Hostile>{
               {"3 value lines",
                "[Save=Short]\r\ngamePath=a\r\nlevelName=b\r\nmodName=c\r\n" + kBerlin + two},
               {"40 records", numbered(1, 40)},
               {"darkness no number", withLine(two, 7, "shadowDarkness=dark") +
                                          withLine(kMidway, 7, "shadowDarkness=1,5")},
               {"Boolean no Boolean",
                withLine(withLine(two, 4, "terrainBoolean=Maybe"), 5, "mergeBoolean=")},
               {"bytes 0x80 to 0xFF", record(high, high, high, high, "111", high) + two},
               {"bytes Windows-1252 leaves undefined",
                record("\x81\x8D\x8F\x90\x9D", "\x81", "\x8D", "\x8F", "000", "\x90") + two},
               {"NUL byte", record("a" + nul + "b", nul, "l", "m", "101", "1" + nul) + two},
               {"CR without LF", record("C\rR", "g\r", "\rl", "m\r\r", "000", "1") + two},
               {"CR line ends only", crOnly + two},
               {"100 kB lines", record(big, big, "l", "m", "000", big) + big + "\r\n" + two}};
}

// The record found for a name, if all seven lines behind its head are in the file.
std::optional<RecordValues> completeRecord(const std::vector<std::string>& lines,
                                           const std::string& name) {
    const auto head = std::find(lines.begin(), lines.end(), headFor(name));
    if (head == lines.end() || lines.end() - head <= kValueLinesPerRecord)
        return std::nullopt;
    return findRecordValues(lines, name);
}

// Opens the dialog on the file, loads every row, saves one record more and compares.
QStringList tryFile(const QByteArray& bytes) {
    QStringList problems;
    TestApp app;
    app.write("config.ini", bytes);
    const std::vector<std::string> before = splitLines(bytes.toStdString());
    const std::vector<std::string> names = readSavedNames(before);
    PathsDialogWindow& w = openPaths(app);

    QStringList expected{"(Current)"};
    for (std::size_t i = 0; i < names.size() && i < std::size_t(kSavedNameCapacity); ++i)
        if (!names[i].empty())
            expected << fromAnsi(names[i]);
    if (rowsOf(w.SavedSettings) != expected)
        problems << "lists " + rowsOf(w.SavedSettings).join('|');

    // Every text reaches its box whole, in the order of RecordKey; a darkness that is no
    // number shows as saved.
    QLineEdit* const boxes[] = {w.GamePath_Text, w.LevelName_Text, w.ModName_Text->lineEdit()};
    for (int row = 1; row < w.SavedSettings->ListCount(); ++row) {
        w.SavedSettings->setListIndex(row);
        const RecordValues shown = findRecordValues(before, *toAnsi(w.SavedSettings->Text()));
        const auto& darkness = shown.values[int(RecordKey::ShadowDarkness)];
        bool whole = !shown.found || w.SettingName_Text->text() == w.SavedSettings->Text();
        whole &=
            !darkness || textToNumber(*darkness) || w.shadow_Text->text() == fromAnsi(*darkness);
        for (int key = 0; key < 3; ++key)
            whole &= !shown.values[key] || boxes[key]->text() == fromAnsi(*shown.values[key]);
        if (!whole)
            problems << QString("row %1 shows a text cut").arg(row);
    }

    w.SavedSettings->setListIndex(0);
    saveAs(w, "Hostile check");
    const std::vector<std::string> after = splitLines(app.bytesOf("config.ini").toStdString());
    if (!completeRecord(after, "Hostile check") && app.dialogs.boxes.isEmpty())
        problems << "not saved and not told";
    for (const std::string& name : names) {
        const auto kept = completeRecord(before, name);
        const auto now = completeRecord(after, name);
        if (kept && (!now || now->values != kept->values))
            problems << "lost " + fromAnsi(name);
    }
    return problems;
}
} // namespace

class HostileConfigTest : public QObject {
    Q_OBJECT
  private slots:
    void theDialogSurvivesEveryFile() {
        const QList<Hostile> files = hostileFiles();
        int crashes = 0;
        QSet<int> faulty;
        // A child tries the files from `next` on, announcing each; after a crash the next
        // child starts behind the file that was being tried.
        for (int next = 0; next < files.size();) {
            QProcess child;
            child.start(QCoreApplication::applicationFilePath(), {"--from", QString::number(next)});
            const bool ended = child.waitForFinished(120000);
            child.kill();
            int tried = next;
            for (const QByteArray& line : child.readAllStandardOutput().split('\n')) {
                const QList<QByteArray> words = line.split(' '); // "trying 3", "problem 3 ..."
                if (words.size() < 2)
                    continue;
                tried = words[1].toInt();
                if (words[0] == "problem") {
                    faulty.insert(tried);
                    qWarning("%s: %s", qPrintable(files[tried].first), line.constData());
                }
            }
            next = files.size();
            if (!ended || child.exitStatus() == QProcess::CrashExit || child.exitCode() != 0) {
                ++crashes;
                qWarning("crashed on \"%s\":\n%s", qPrintable(files[tried].first),
                         child.readAllStandardError().right(1000).constData());
                next = tried + 1;
            }
        }
        qInfo("hostile files: %d, crashes: %d, files with a record lost or misread: %d",
              int(files.size()), crashes, int(faulty.size()));
        QCOMPARE(crashes, 0);
        QCOMPARE(faulty.size(), 0);
    }
};

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "--from") {
        const QList<Hostile> files = hostileFiles();
        for (int i = QByteArray(argv[2]).toInt(); i < files.size(); ++i) {
            std::printf("trying %d\n", i);
            std::fflush(stdout);
            for (const QString& problem : tryFile(files[i].second))
                std::printf("problem %d %s\n", i, qPrintable(problem.left(200)));
        }
        return 0;
    }
    HostileConfigTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "hostile_config_qtest.moc"
