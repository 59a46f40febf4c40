// The three passes: check box, menu tick and field stay in step whichever way Value changes.
#include <QSignalSpy>
#include <QtTest>
#include <array>

#include "platform/click_check_box.h"
#include "platform/menu_entry.h"
#include "support/test_app.h"

using namespace umbrakit;

namespace {
struct Pass {
    ClickCheckBox* box;
    MenuEntry* entry;
    qint16* field;
};

std::array<Pass, 3> passesOf(Form1& form) {
    return {{{form.TerrainCheck, form.menuRunTerrain, &form.terrainBoolean},
             {form.MergeCheck, form.menuRunMerge, &form.mergeBoolean},
             {form.ObjectCheck, form.menuRunObject, &form.objectBoolean}}};
}

enum Route { UserClick, UserKey, MenuEntryChosen, ProgramSetsOther, ProgramSetsSame };

void take(Route route, const Pass& pass) {
    switch (route) {
    case UserClick:
        QTest::mouseClick(pass.box, Qt::LeftButton, {}, QPoint(6, pass.box->height() / 2));
        break;
    case UserKey:
        QTest::keyClick(pass.box, Qt::Key_Space);
        break;
    case MenuEntryChosen:
        pass.entry->trigger();
        break;
    case ProgramSetsOther:
        pass.box->setValue(pass.box->Value() == 0 ? 1 : 0);
        break;
    case ProgramSetsSame:
        pass.box->setValue(pass.box->Value());
        break;
    }
}

// The way the paths dialog's OK hands its own copy back: absolute Values, in pass order.
void setLikePathsDialog(Form1& form, std::array<bool, 3> copy) {
    const auto passes = passesOf(form);
    for (int i = 0; i < 3; ++i)
        passes[i].box->setValue(copy[i] ? 1 : 0);
}
} // namespace

class PassOptionsTest : public QObject {
    Q_OBJECT

    void verifyPasses(Form1& form, std::array<bool, 3> expected) {
        const auto passes = passesOf(form);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(passes[i].box->Value(), expected[i] ? 1 : 0);
            QCOMPARE(passes[i].entry->Checked(), expected[i]);
            QCOMPARE(*passes[i].field, qint16(expected[i] ? -1 : 0));
        }
    }

  private slots:
    void startOffWithTicksShown() {
        TestApp app;
        verifyPasses(*app.form, {false, false, false});
        for (const Pass& pass : passesOf(*app.form))
            QVERIFY(pass.entry->isCheckable());
    }

    // Every route, twice on every pass: one Click per real change, none otherwise, and the
    // other passes never move.
    void everyRouteKeepsThePassInStep() {
        TestApp app;
        const auto passes = passesOf(*app.form);
        std::array<bool, 3> expected{};
        for (int i = 0; i < 3; ++i) {
            for (Route route :
                 {UserClick, UserKey, MenuEntryChosen, ProgramSetsOther, ProgramSetsSame}) {
                for (int twice = 0; twice < 2; ++twice) {
                    QSignalSpy clicks(passes[i].box, &ClickCheckBox::Click);
                    take(route, passes[i]);
                    const bool changes = route != ProgramSetsSame;
                    expected[i] = expected[i] != changes;
                    QCOMPARE(clicks.size(), changes ? 1 : 0);
                    verifyPasses(*app.form, expected);
                }
            }
            expected[i] = true; // leave this pass on while the next is tried
            passes[i].box->setValue(1);
        }
    }

    // A pass switched on the main window while the dialog is open is set back on OK; a pass
    // that already has the dialog's state raises nothing.
    void pathsDialogSetsItsCopy() {
        TestApp app;
        const auto passes = passesOf(*app.form);
        passes[0].entry->trigger();
        take(UserClick, passes[2]);
        verifyPasses(*app.form, {true, false, true});

        QSignalSpy terrain(passes[0].box, &ClickCheckBox::Click);
        QSignalSpy merge(passes[1].box, &ClickCheckBox::Click);
        QSignalSpy object(passes[2].box, &ClickCheckBox::Click);
        setLikePathsDialog(*app.form, {false, true, true});
        QCOMPARE(terrain.size(), 1);
        QCOMPARE(merge.size(), 1);
        QCOMPARE(object.size(), 0);
        verifyPasses(*app.form, {false, true, true});
    }
};

QTEST_MAIN(PassOptionsTest)
#include "pass_options_qtest.moc"
