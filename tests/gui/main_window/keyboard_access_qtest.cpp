// The program by keyboard and as a screen reader meets it: keys and the mouse go to the shown
// window, which routes them as a user's. Runs under Xvfb with the accessibility bus on.
#include <QAccessible>
#include <QLabel>
#include <QtTest>

#include "gui/about/about_box.h"
#include "gui/main_window/patch_grid.h"
#include "platform/classic_frame.h"
#include "platform/click_check_box.h"
#include "support/dialog_driver.h"

using namespace umbrakit;

namespace {
QList<std::pair<QObject*, QAccessible::Event>> heard;
QAccessibleInterface* spoken(QObject* object) {
    return QAccessible::queryAccessibleInterface(object);
}

void activate(QWidget& window) {
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}
void press(QWidget& window, const char* keys) {
    const QKeyCombination key = QKeySequence(keys)[0];
    QTest::keyClick(window.windowHandle(), key.key(), key.keyboardModifiers());
}
QList<int> ticked(const PatchGrid& grid) {
    QList<int> patches;
    for (int i = 0; i < kPatchCount; ++i)
        if (grid.patch(i)->isChecked())
            patches << i;
    return patches;
}
// The patches with the focus ring around them, as the screen shows them: the ring fills the
// margin on all four sides of the box.
QList<int> ringed(const PatchGrid& grid) {
    QWidget& window = *grid.window();
    const QImage shot = window.screen()->grabWindow(window.winId()).toImage();
    const qreal scale = shot.devicePixelRatio();
    const QColor ring = grid.palette().color(QPalette::Highlight);
    QList<int> patches;
    for (int i = 0; i < kPatchCount; ++i) {
        const QRect box(grid.patch(i)->mapTo(&window, QPoint()), grid.patch(i)->size());
        const QPoint margin[] = {{box.center().x(), box.top() - 1},
                                 {box.center().x(), box.bottom() + 1},
                                 {box.left() - 1, box.center().y()},
                                 {box.right() + 1, box.center().y()}};
        if (std::ranges::all_of(margin,
                                [&](QPoint p) { return shot.pixelColor(p * scale) == ring; }))
            patches << i;
    }
    return patches;
}
} // namespace

class KeyboardAccessTest : public QObject {
    Q_OBJECT
  private slots:
    // Qt reports focus moves only while a screen reader may listen: the bus must be on.
    void initTestCase() {
        QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
            heard.append({event->object(), event->type()});
        });
        QTRY_VERIFY_WITH_TIMEOUT(QAccessible::isActive(), 10000);
    }

    // Alt+A selects all at every press; About by Alt or F10, the arrows and Return. The status
    // line is spoken by its text and heard at each change. Each frame is a group named by its
    // caption around its controls; the caption is no child.
    void accessKeysTheMenuBarTheStatusLineAndTheFrames() {
        TestApp app;
        MainWindow& w = *app.window;
        activate(w);
        for (int twice = 0; twice < 2; ++twice) { // Qt alternates a key claimed twice
            press(w, "Alt+A");
            QTRY_COMPARE(ticked(*w.patchGrid).size(), 16);
            QVERIFY(!w.aboutBox());
        }
        QAccessibleInterface* status = spoken(w.statusLine->findChild<QLabel*>("SimpleText"));
        QCOMPARE(status->text(QAccessible::Name), QString("Ready."));
        heard.clear();
        press(w, "Alt+E"); // the export, cancelled in its file dialog
        QTRY_COMPARE(status->text(QAccessible::Name), QString("Save Cancled."));
        QCOMPARE(heard.count({status->object(), QAccessible::NameChanged}), 2); // and "Preparing"
        for (const char* enterMenuBar : {"F10", "Alt"}) {
            for (const char* key : {enterMenuBar, "Right", "Right", "Return"}) // Run, About
                press(w, key);
            QVERIFY2(w.aboutBox() && w.aboutBox()->isLoaded(), enterMenuBar);
            w.aboutBox()->unload();
            QTRY_VERIFY(!w.aboutBox()->isLoaded());
            activate(w);
        }
        PathsDialogWindow& paths = openPaths(app);
        const std::pair<ClassicFrame*, QObjectList> groups[] = {
            {w.optionsFrame, {w.passBoxes[0], w.passBoxes[1], w.passBoxes[2]}},
            {w.executeFrame, {w.exportButton, w.runLightingButton}},
            {paths.pathsFrame, {paths.gamePathBox, paths.okButton, paths.passBoxes[0]}}};
        for (const auto& [frame, controls] : groups) {
            QAccessibleInterface* group = spoken(frame);
            QVERIFY(group->role() == QAccessible::Grouping &&
                    group->text(QAccessible::Name) == frame->title());
            QObjectList children;
            for (int i = 0; i < group->childCount(); ++i)
                children << group->child(i)->object();
            QVERIFY(frame == paths.pathsFrame || children == controls);
            for (QObject* control : controls)
                QVERIFY(children.contains(control) && spoken(control)->parent()->object() == frame);
        }
    }

    // In 8x8 from patch 0, Up is a higher row and the edges hold; each move and tick is heard.
    // Then 4x4: a drag gives the first patch's new state to every enabled patch passed over.
    void theGridByKeysAndByDrag() {
        TestApp app;
        MainWindow& w = *app.window;
        PatchGrid& grid = *w.patchGrid;
        chooseRow(w.worldSizeList, 1);
        activate(w);
        w.runLightingButton->setFocus();
        const std::pair<const char*, int> steps[] = {
            {"Tab", 0},    {"Up", 16},      {"Right", 17},      {"End", 23},    {"Right", 23},
            {"PgUp", 119}, {"Up", 119},     {"Home", 112},      {"Left", 112},  {"PgDown", 0},
            {"Down", 0},   {"Ctrl+End", 7}, {"Ctrl+Home", 112}, {"Right", 113}, {"Space", 113}};
        for (const auto& [key, patch] : steps) {
            const QWidget* before = QApplication::focusWidget();
            heard.clear();
            press(w, key);
            QVERIFY2(QApplication::focusWidget() == grid.patch(patch), key);
            QVERIFY(before == grid.patch(patch) ||
                    heard.contains({grid.patch(patch), QAccessible::Focus}));
        }
        QAccessibleInterface* patch = spoken(grid.patch(113));
        QCOMPARE(ticked(grid), QList<int>{113});
        QVERIFY(patch->state().checked &&
                heard.contains({patch->object(), QAccessible::StateChanged}));
        QCOMPARE(patch->text(QAccessible::Name), QString("Patch column 1, row 7"));
        press(w, "Tab"); // out of the grid in one step
        QCOMPARE(QApplication::focusWidget(), w.worldSizeList);
        chooseRow(w.worldSizeList, 0);
        activate(w);
        press(w, "Shift+Tab");
        QCOMPARE(QApplication::focusWidget(), grid.patch(49)); // the nearest: column 1, row 3

        int clicks = 0;
        for (int i = 0; i < kPatchCount; ++i)
            connect(grid.patch(i), &QCheckBox::clicked, [&] { ++clicks; });
        QWindow* window = w.windowHandle();
        const auto at = [&](int patch) { return grid.patch(patch)->mapTo(&w, QPoint(8, 8)); };
        const auto drag = [&](std::initializer_list<int> way) {
            QTest::mousePress(window, Qt::LeftButton, {}, at(*way.begin()));
            for (int patch : way)
                QTest::mouseMove(window, at(patch));
            QTest::mouseRelease(window, Qt::LeftButton, {}, at(*std::rbegin(way)));
        };
        QTest::mouseClick(window, Qt::LeftButton, {}, at(2));
        drag({0, 6, 54, 51}); // along row 0 past the world, up, back into it at row 3
        QCOMPARE(ticked(grid), (QList<int>{0, 1, 2, 3, 51}));
        drag({51, 48}); // from a ticked patch: unticks, whatever it crosses
        QCOMPARE(ticked(grid), (QList<int>{0, 1, 2, 3}));
        QCOMPARE(clicks, 6);
    }

    // After a click on a patch the keys go on from there: the arrows move from it, Space
    // ticks where the focus is, Tab leaves the grid and comes back to the last patch, and
    // the focus ring stands around the focused patch and nowhere else.
    void theKeysGoOnFromAClickedPatch() {
        TestApp app;
        MainWindow& w = *app.window;
        PatchGrid& grid = *w.patchGrid;
        chooseRow(w.worldSizeList, 1); // "8x8"
        activate(w);
        const std::pair<const char*, int> steps[] = {
            {"click 35", 35},  {"Right", 36},    {"Up", 52},        {"Space", 52}, {"Tab", -1},
            {"Shift+Tab", 52}, {"click 97", 97}, {"Shift+Tab", -1}, {"Tab", 97},   {"Left", 96}};
        for (const auto& [step, patch] : steps) {
            if (QString(step).startsWith("click")) {
                QCheckBox* box = grid.patch(QString(step).mid(6).toInt());
                QTest::mouseClick(w.windowHandle(), Qt::LeftButton, {},
                                  box->mapTo(&w, box->rect().center()));
            } else {
                press(w, step);
            }
            QVERIFY2(patch < 0 ? !grid.isAncestorOf(QApplication::focusWidget())
                               : QApplication::focusWidget() == grid.patch(patch),
                     step);
            QTRY_COMPARE(ringed(grid), patch < 0 ? QList<int>() : QList<int>{patch});
        }
        QCOMPARE(ticked(grid), (QList<int>{35, 52, 97}));
    }
};

QTEST_MAIN(KeyboardAccessTest)
#include "keyboard_access_qtest.moc"
