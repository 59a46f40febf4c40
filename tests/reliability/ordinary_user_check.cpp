// Run as nobody by ordinary_user_test.sh on a folder of root's, not marked read-only, holding a
// config.ini with the record "Wake": the notice at start-up, then Save, Delete and a lighting
// run, each refused with a box. Prints what did not hold and returns how much.
#include <QApplication>
#include <unistd.h>

#include "gui/main_window/program_folder_notice.h"
#include "support/dialog_driver.h"

using namespace umbrakit;

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const QString folder = QString::fromLocal8Bit(argv[argc - 1]);
    QStringList problems;
    if (::geteuid() == 0)
        problems << "run as root";
    TestApp program(folder);
    tellIfProgramFolderIsReadOnly(program.services);
    const QList<AskedBox>& boxes = program.dialogs.boxes;
    const AskedBox notice = boxes.value(0);
    if (boxes.size() != 1 || notice.title != "Read-Only Folder" ||
        !notice.prompt.contains(QDir::toNativeSeparators(folder)))
        problems << "no notice naming the folder";

    PathsDialogWindow& w = openPaths(program);
    if (rowsOf(w.savedList) != QStringList{"(Current)", "Wake"})
        problems << "the list shows " + rowsOf(w.savedList).join(',');
    w.nameBox->setText("New");
    w.saveButton->click();
    w.savedList->setListIndex(1);
    w.deleteButton->click();
    program.window->applyConfiguration({U"C:\\BF", U"Level", U"BF1942", 1.5, {}});
    program.window->runLightingButton->click();
    if (boxes.size() != 4 || !program.launcher.started.isEmpty())
        problems << QString::asprintf("%lld boxes, %lld started", boxes.size(),
                                      program.launcher.started.size());
    std::puts(qPrintable(problems.join('\n')));
    return int(problems.size());
}
