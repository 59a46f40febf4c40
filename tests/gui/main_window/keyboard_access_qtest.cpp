// The shown program by keyboard, mouse and screen reader (Xvfb, the accessibility bus on).
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
const auto spoken = &QAccessible::queryAccessibleInterface;
QPoint inside(QWidget* control) {
    return control->mapTo(control->window(), QPoint(8, 8));
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
// The patches shown with the focus ring: its colour on two sides or more (a header may hide two).
QString ringed(const PatchGrid& grid) {
    QWidget& window = *grid.window();
    const QImage shot = window.screen()->grabWindow(window.winId()).toImage();
    const auto ring = [&](int x, int y) {
        return shot.pixelColor(QPoint(x, y) * shot.devicePixelRatio()) ==
               grid.palette().color(QPalette::Highlight);
    };
    QStringList patches;
    for (QCheckBox* box : grid.findChildren<QCheckBox*>()) {
        const QRect r(box->mapTo(&window, QPoint()), box->size());
        const int sides = ring(r.center().x(), r.top() - 1) + ring(r.center().x(), r.bottom() + 1) +
                          ring(r.left() - 1, r.center().y()) + ring(r.right() + 1, r.center().y());
        if (sides >= 2)
            patches << box->objectName();
    }
    return patches.join(' ');
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

    // Access keys; About from the menu bar by Alt or F10; statuses heard; frames as named groups.
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

    // In 8x8: Up is a higher row, the edges hold, moves and ticks are heard, keys go on from a
    // click, one ring. In 4x4 a drag gives the first patch's new state to each enabled one crossed.
    void theGridByKeysMouseAndDrag() {
        TestApp app;
        MainWindow& w = *app.window;
        PatchGrid& grid = *w.patchGrid;
        chooseRow(w.worldSizeList, 1);
        activate(w);
        w.runLightingButton->setFocus();
        const int list = -1, go = -2; // out of the grid: the world-size list, Run Lighting
        const std::pair<const char*, int> steps[] = {
            {"Tab", 0},        {"Up", 16},      {"Right", 17},      {"End", 23},    {"Right", 23},
            {"PgUp", 119},     {"Up", 119},     {"Home", 112},      {"Left", 112},  {"PgDown", 0},
            {"Down", 0},       {"Ctrl+End", 7}, {"Ctrl+Home", 112}, {"Right", 113}, {"Space", 113},
            {"click", 35},     {"Right", 36},   {"Up", 52},         {"Space", 52},  {"Tab", list},
            {"Shift+Tab", 52}, {"click", 97},   {"Shift+Tab", go},  {"Tab", 97},    {"Tab", list}};
        for (const auto& [key, stop] : steps) {
            QWidget* target = stop == list ? w.worldSizeList
                              : stop == go ? w.runLightingButton
                                           : static_cast<QWidget*>(grid.patch(stop));
            const QWidget* before = QApplication::focusWidget();
            heard.clear();
            if (QString(key) == "click")
                QTest::mouseClick(w.windowHandle(), Qt::LeftButton, {}, inside(target));
            else
                press(w, key);
            QVERIFY2(QApplication::focusWidget() == target, key);
            QVERIFY(before == target || heard.contains({target, QAccessible::Focus}));
            QVERIFY(QString(key) != "Space" ||
                    (spoken(target)->state().checked &&
                     heard.contains({target, QAccessible::StateChanged})));
            QTRY_COMPARE(ringed(grid), grid.isAncestorOf(target) ? target->objectName() : "");
        }
        QCOMPARE(ticked(grid), (QList<int>{35, 52, 97, 113}));
        QCOMPARE(spoken(grid.patch(113))->text(QAccessible::Name),
                 QString("Patch column 1, row 7"));
        chooseRow(w.worldSizeList, 0);
        activate(w);
        press(w, "Shift+Tab");
        QCOMPARE(QApplication::focusWidget(), grid.patch(49)); // the nearest: column 1, row 3

        int clicks = 0;
        for (int i = 0; i < kPatchCount; ++i)
            connect(grid.patch(i), &QCheckBox::clicked, [&] { ++clicks; });
        const auto at = [&](int patch) { return inside(grid.patch(patch)); };
        const auto drag = [&](std::initializer_list<int> way) {
            QTest::mousePress(w.windowHandle(), Qt::LeftButton, {}, at(*way.begin()));
            for (int patch : way)
                QTest::mouseMove(w.windowHandle(), at(patch));
            QTest::mouseRelease(w.windowHandle(), Qt::LeftButton, {}, at(*std::rbegin(way)));
        };
        QTest::mouseClick(w.windowHandle(), Qt::LeftButton, {}, at(2));
        drag({0, 6, 54, 51}); // along row 0 past the world, up, back into it at row 3
        QCOMPARE(ticked(grid), (QList<int>{0, 1, 2, 3, 35, 51}));
        drag({51, 48}); // from a ticked patch: unticks, whatever it crosses
        QCOMPARE(ticked(grid), (QList<int>{0, 1, 2, 3, 35}));
        QCOMPARE(clicks, 6);
    }
};

QTEST_MAIN(KeyboardAccessTest)
#include "keyboard_access_qtest.moc"
