// The three passes: check box, menu tick and field stay in step whichever way Value changes.
// The paths dialog's OK, which sets Value too, is tested with that dialog.
#include <QSignalSpy>
#include <QtTest>
#include <array>
#include <functional>

#include "platform/click_check_box.h"
#include "platform/menu_entry.h"
#include "support/test_app.h"
#include "support/user_input.h"

using namespace umbrakit;

namespace {
struct Pass {
    ClickCheckBox* box;
    MenuEntry* entry;
    qint16* field;
};

const struct {
    const char* name;
    std::function<void(const Pass&)> take;
    bool changes;
} kRoutes[] = {
    {"user click", [](const Pass& p) { clickBox(p.box); }, true},
    {"space key", [](const Pass& p) { QTest::keyClick(p.box, Qt::Key_Space); }, true},
    {"menu entry", [](const Pass& p) { p.entry->trigger(); }, true},
    {"program sets the other Value", [](const Pass& p) { p.box->setValue(1 - p.box->Value()); },
     true},
    {"program sets the same Value", [](const Pass& p) { p.box->setValue(p.box->Value()); }, false},
};
} // namespace

class PassOptionsTest : public QObject {
    Q_OBJECT
  private slots:
    // Every route, twice on every pass: one Click per real change, none otherwise, and the
    // other passes never move.
    void everyRouteKeepsThePassInStep() {
        TestApp app;
        Form1& form = *app.form;
        const std::array<Pass, 3> passes{
            {{form.TerrainCheck, form.menuRunTerrain, &form.terrainBoolean},
             {form.MergeCheck, form.menuRunMerge, &form.mergeBoolean},
             {form.ObjectCheck, form.menuRunObject, &form.objectBoolean}}};
        std::array<bool, 3> on{}; // all off at start
        auto verifyInStep = [&] {
            for (int i = 0; i < 3; ++i) {
                QCOMPARE(passes[i].box->Value(), on[i] ? 1 : 0);
                QCOMPARE(passes[i].entry->Checked(), on[i]);
                QCOMPARE(*passes[i].field, qint16(on[i] ? -1 : 0));
                QVERIFY(passes[i].entry->isCheckable()); // the tick is shown
            }
        };
        verifyInStep();
        for (int i = 0; i < 3; ++i) {
            for (const auto& route : kRoutes) {
                for (int twice = 0; twice < 2; ++twice) {
                    QSignalSpy clicks(passes[i].box, &ClickCheckBox::Click);
                    route.take(passes[i]);
                    on[i] = on[i] != route.changes;
                    QVERIFY2(clicks.size() == (route.changes ? 1 : 0), route.name);
                    verifyInStep();
                }
            }
            passes[i].box->setValue(1); // left on while the next is tried
            on[i] = true;
        }
    }
};

QTEST_MAIN(PassOptionsTest)
#include "pass_options_qtest.moc"
