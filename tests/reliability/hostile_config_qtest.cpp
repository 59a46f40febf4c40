// Hostile config.ini files put beside the program before the paths dialog opens. The dialog
// must open, list what the readers find, load every listed row whole, and a save afterwards
// must keep every complete record of the file. Each file is tried in a child process, so that
// a crash is counted and the next file still runs.
#include <QProcess>
#include <QtTest>

#include "lighting/number_text.h"
#include "paths_dialog/dialog_driver.h"
#include "platform/ansi_text.h"
#include "platform/text_lines.h"
#include "saved/config_walk.h"

using namespace umbrakit;

namespace {
struct Hostile {
    QString name;
    QByteArray bytes;
};

QByteArray withLine(QByteArray bytes, int line, const QByteArray& text) { // replaces one line
    QByteArrayList lines = bytes.split('\n');
    lines[line] = text + '\r';
    return lines.join('\n');
}

QList<Hostile> hostileFiles() {
    const QByteArray midway = record("Midway", "E:\\BF", "Midway", "DesertCombat", "011", "2");
    const QByteArray two = record("Wake", "D:\\BF", "Wake", "BF1942", "100", "1.5") + midway;
    QByteArray high, records;
    for (int byte = 0x80; byte <= 0xFF; ++byte)
        high += char(byte);
    for (int i = 1; i <= 40; ++i)
        records += record("N" + QByteArray::number(i), "g", "l", "m", "000", "1");
    QByteArray crOnly = two;
    crOnly.replace("\r\n", "\r");

    QList<Hostile> files;
    for (int size = 0; size <= two.size(); ++size)
        files << Hostile{QString("cut at byte %1").arg(size), two.left(size)};
    files << Hostile{"3 value lines", "[Save=Short]\r\ngamePath=a\r\nlevelName=b\r\nmodName=c\r\n" +
                                          record("Berlin", "F:", "B", "EoD", "000", "1") + two}
          << Hostile{"40 records", records}
          << Hostile{"darkness no number", withLine(two, 7, "shadowDarkness=dark") +
                                               withLine(midway, 7, "shadowDarkness=1,5")}
          << Hostile{"Boolean no Boolean",
                     withLine(withLine(two, 4, "terrainBoolean=Maybe"), 5, "mergeBoolean=")}
          << Hostile{"bytes 0x80 to 0xFF", record(high, high, high, high, "111", high) + two}
          << Hostile{"bytes Windows-1252 leaves undefined",
                     record("\x81\x8D\x8F\x90\x9D", "\x81", "\x8D", "\x8F", "000", "\x90") + two}
          << Hostile{"NUL byte", record(QByteArray("a\0b", 3), QByteArray("\0", 1), "l", "m", "101",
                                        QByteArray("1\0", 2)) +
                                     two}
          << Hostile{"CR without LF", record("C\rR", "g\r", "\rl", "m\r\r", "000", "1") + two}
          << Hostile{"CR line ends only", crOnly + two}
          << Hostile{"100 kB lines", record(QByteArray(100000, 'n'), QByteArray(100000, 'g'), "l",
                                            "m", "000", QByteArray(100000, 'd')) +
                                         QByteArray(100000, 'x') + "\r\n" + two};
    return files;
}

// The record loading finds for a name, if all seven lines behind its head are in the file.
std::optional<RecordValues> completeRecord(const std::vector<std::string>& lines,
                                           const std::string& name) {
    const auto head = std::find(lines.begin(), lines.end(), headFor(name));
    if (head == lines.end() || lines.end() - head <= kValueLinesPerRecord)
        return std::nullopt;
    return findRecordValues(lines, name);
}

// Opens the dialog on the file, loads every row, saves one record more and compares.
QStringList tryFile(const Hostile& file) {
    QStringList problems;
    TestApp app;
    app.write("config.ini", file.bytes);
    const std::vector<std::string> before = splitLines(file.bytes.toStdString());
    const std::vector<std::string> names = readSavedNames(before);
    PathsDialogWindow& w = openPaths(app);

    QStringList expected{"(Current)"};
    for (std::size_t i = 0; i < names.size() && i < std::size_t(kSavedNameCapacity); ++i)
        if (!names[i].empty())
            expected << fromAnsi(names[i]);
    if (rowsOf(w.SavedSettings) != expected)
        problems << "lists " + rowsOf(w.SavedSettings).join('|');

    // Every text reaches its box whole; a darkness that is a number shows as its number text.
    // The boxes in the order of RecordKey.
    QLineEdit* const boxes[] = {w.GamePath_Text, w.LevelName_Text, w.ModName_Text->lineEdit()};
    for (int row = 1; row < w.SavedSettings->ListCount(); ++row) {
        w.SavedSettings->setListIndex(row);
        const RecordValues shown = findRecordValues(before, *toAnsi(w.SavedSettings->Text()));
        const auto& darkness = shown.values[int(RecordKey::ShadowDarkness)];
        if ((shown.found && w.SettingName_Text->text() != w.SavedSettings->Text()) ||
            (darkness && !textToNumber(*darkness) && w.shadow_Text->text() != fromAnsi(*darkness)))
            problems << QString("row %1 shows a name or darkness cut").arg(row);
        for (int key = 0; key < 3; ++key)
            if (shown.values[key] && boxes[key]->text() != fromAnsi(*shown.values[key]))
                problems << QString("row %1 shows a value cut").arg(row);
    }

    w.SavedSettings->setListIndex(0);
    w.SettingName_Text->setText("Hostile check");
    w.Save->click();
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

// The child: tries the files from `first` on, announcing each before it starts.
int tryFilesFrom(int first) {
    const QList<Hostile> files = hostileFiles();
    for (int i = first; i < files.size(); ++i) {
        std::printf("trying %d\n", i);
        std::fflush(stdout);
        for (const QString& problem : tryFile(files[i]))
            std::printf("problem %d %s\n", i, qPrintable(problem.left(200)));
    }
    return 0;
}
} // namespace

class HostileConfigTest : public QObject {
    Q_OBJECT
  private slots:
    void theDialogSurvivesEveryFile() {
        const QList<Hostile> files = hostileFiles();
        int crashes = 0, faulty = 0;
        for (int next = 0; next < files.size();) {
            QProcess child;
            child.start(QCoreApplication::applicationFilePath(),
                        {"--files-from", QString::number(next)});
            const bool ended = child.waitForFinished(120000);
            child.kill();
            int tried = next;
            QSet<int> withProblems;
            for (const QByteArray& line : child.readAllStandardOutput().split('\n')) {
                const QList<QByteArray> words = line.split(' ');
                if (words.size() < 2)
                    continue;
                const int index = words[1].toInt();
                if (words[0] == "trying") {
                    tried = index;
                } else {
                    withProblems.insert(index);
                    qWarning("%s: %s", qPrintable(files[index].name), line.constData());
                }
            }
            faulty += withProblems.size();
            next = files.size();
            if (!ended || child.exitStatus() == QProcess::CrashExit || child.exitCode() != 0) {
                ++crashes;
                qWarning("crashed on \"%s\":\n%s", qPrintable(files[tried].name),
                         child.readAllStandardError().right(1000).constData());
                next = tried + 1;
            }
        }
        qInfo("hostile files: %d, crashes: %d, files with a record lost or misread: %d",
              int(files.size()), crashes, faulty);
        QCOMPARE(crashes, 0);
        QCOMPARE(faulty, 0);
    }
};

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "--files-from")
        return tryFilesFrom(QByteArray(argv[2]).toInt());
    HostileConfigTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "hostile_config_qtest.moc"
