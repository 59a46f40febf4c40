// The export of lmList.dat: the ticked patches as the core encodes them, the file dialog it
// asks, its questions and status texts. The record bytes are tested in the core, each failing
// file operation in tests/reliability/fault_sweep_qtest.cpp.
#include <QCheckBox>
#include <QPushButton>
#include <QtTest>

#include "platform/combo_list.h"
#include "platform/form_timer.h"
#include "platform/menu_entry.h"
#include "support/test_app.h"

using namespace umbrakit;

namespace {
void exportTo(TestApp& app, const QString& name) {
    app.dialogs.fileAnswers.enqueue(app.path(name));
    QTest::mouseClick(app.form->lmList_Button, Qt::LeftButton);
}
} // namespace

class ExportTest : public QObject {
    Q_OBJECT
  private slots:
    void writesOneRecordPerTickedPatch() {
        TestApp app;
        exportTo(app, "none.dat");
        QCOMPARE(app.bytesOf("none.dat"), QByteArray());
        QVERIFY(QFile::exists(app.path("none.dat")));

        app.form->Combo1->setListIndex(3); // "32x32"
        for (int index : {0, 5, 35, 255})
            app.form->CheckBoxArray[index]->setChecked(true);
        app.form->gamePath = "D:\\Games\\BF1942";
        app.form->levelName = "MyLevel";
        exportTo(app, "lmList.dat");
        QCOMPARE(app.bytesOf("lmList.dat"), QByteArray("\x00\x00\x05\x00\x03\x02\x0F\x0F", 8));
        QCOMPARE(app.status(), QString("Saved!"));
        QVERIFY(app.form->Timer1->Enabled());
        // complete beside the old list before it takes its place
        QCOMPARE(app.files.journal.constLast(),
                 "renameOver " + app.path("lmList.dat.tmp") + " " + app.path("lmList.dat"));

        // the dialog is set afresh every time, in the level's textures folder
        QCOMPARE(app.dialogs.fileRequests.size(), 2);
        const FileDialogRequest asked = app.dialogs.fileRequests[1];
        QCOMPARE(asked.filter, QString("lmList.dat|lmList.dat|All Files (*.*)|*.*"));
        QCOMPARE(asked.fileName, QString("lmList.dat"));
        QCOMPARE(asked.initDir,
                 QString("D:\\Games\\BF1942\\ShadowWork\\bf1942\\levels\\MyLevel\\textures"));
    }

    void cancelAndRefusedOverwrite() {
        TestApp app;
        app.form->menuRunlmList->trigger(); // the dialog answers no name
        QCOMPARE(app.status(), QString("Save Cancled."));
        QVERIFY(app.form->Timer1->Enabled());

        app.form->Timer1->setEnabled(false);
        app.write("lmList.dat", "old list");
        app.dialogs.boxAnswers.enqueue(MsgBoxResult::No);
        exportTo(app, "lmList.dat");
        QCOMPARE(app.bytesOf("lmList.dat"), QByteArray("old list"));
        QCOMPARE(app.status(), QString("Preparing to Save..."));
        QVERIFY(!app.form->Timer1->Enabled());
        const AskedBox box = app.dialogs.boxes.constLast();
        QCOMPARE(box.prompt, QString("File Exists, Do you want to overwrite?"));
        QCOMPARE(box.title, QString("File Exists..."));
        QCOMPARE(box.buttons, MsgBoxStyle::YesNo);
    }
};

QTEST_MAIN(ExportTest)
#include "export_qtest.moc"
