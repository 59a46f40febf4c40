// The export of lmList.dat from the button and from Ctrl+E: exact bytes, the questions it
// asks, its status texts, and a read-only list or a missing folder reported. Each failing file
// operation in turn is swept in tests/reliability/fault_sweep_qtest.cpp.
#include <QCheckBox>
#include <QPushButton>
#include <QtTest>

#include "platform/combo_list.h"
#include "platform/form_timer.h"
#include "platform/menu_entry.h"
#include "support/test_app.h"

using namespace umbrakit;

namespace {
const QByteArray kWorkedExample("\x00\x00\x05\x00\x03\x02\x0F\x0F", 8);

void selectWorkedExample(Form1& form) {
    form.Combo1_Click(); // nothing to do under "4x4"; the example needs the whole grid
    for (QCheckBox* patch : form.CheckBoxArray)
        patch->setEnabled(true);
    for (int index : {0, 5, 35, 255})
        form.CheckBoxArray[index]->setChecked(true);
}

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
        selectWorkedExample(*app.form);
        exportTo(app, "lmList.dat");
        QCOMPARE(app.bytesOf("lmList.dat"), kWorkedExample);
        QCOMPARE(app.status(), QString("Saved!"));
        QVERIFY(app.form->Timer1->Enabled());
        QVERIFY(!QFile::exists(app.path("lmList.dat.tmp")));

        const FileDialogRequest asked = app.dialogs.fileRequests.constLast();
        QCOMPARE(asked.filter, QString("lmList.dat|lmList.dat|All Files (*.*)|*.*"));
        QCOMPARE(asked.fileName, QString("lmList.dat"));
        QCOMPARE(asked.initDir, QString("\\ShadowWork\\bf1942\\levels\\\\textures"));
    }

    void theDialogStartsInTheLevelsTexturesFolderEveryTime() {
        TestApp app;
        app.form->gamePath = "D:\\Games\\BF1942";
        app.form->levelName = "MyLevel";
        exportTo(app, "first.dat");
        app.form->levelName = "Other";
        app.form->lmList_Button_Click(); // cancelled
        QCOMPARE(app.dialogs.fileRequests[1].initDir,
                 QString("D:\\Games\\BF1942\\ShadowWork\\bf1942\\levels\\Other\\textures"));
        QCOMPARE(app.dialogs.fileRequests[1].fileName, QString("lmList.dat"));
    }

    void noneAndAllSelected() {
        TestApp app;
        exportTo(app, "none.dat");
        QVERIFY(QFile::exists(app.path("none.dat")));
        QCOMPARE(app.bytesOf("none.dat").size(), 0);
        app.form->Combo1->setListIndex(3);
        QTest::mouseClick(app.form->CheckAll, Qt::LeftButton);
        exportTo(app, "all.dat");
        const QByteArray all = app.bytesOf("all.dat");
        QCOMPARE(all.size(), 512);
        QCOMPARE(all.left(2), QByteArray("\x00\x00", 2));
        QCOMPARE(all.right(2), QByteArray("\x0F\x0F"));
    }

    void cancelAndRefusedOverwrite() {
        TestApp app;
        app.form->lmList_Button_Click(); // the dialog answers no name
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

    void overwritingLeavesOnlyTheNewRecords() {
        TestApp app;
        app.write("lmList.dat", QByteArray(512, '\x01'));
        app.form->CheckBoxArray[1]->setChecked(true);
        app.dialogs.boxAnswers.enqueue(MsgBoxResult::Yes);
        app.dialogs.fileAnswers.enqueue(app.path("lmList.dat"));
        app.form->menuRunlmList->trigger();
        QCOMPARE(app.bytesOf("lmList.dat"), QByteArray("\x01\x00", 2));
        QCOMPARE(app.status(), QString("Saved!"));
    }

    void aReadOnlyListOrAMissingFolderIsReported() {
        TestApp app;
        app.write("lmList.dat", "kept");
        QFile::setPermissions(app.path("lmList.dat"), QFile::ReadOwner);
        app.dialogs.boxAnswers.enqueue(MsgBoxResult::Yes);
        exportTo(app, "lmList.dat");
        QCOMPARE(app.bytesOf("lmList.dat"), QByteArray("kept"));
        QVERIFY(app.dialogs.boxes.constLast().prompt.contains("read-only"));

        exportTo(app, "no such folder/lmList.dat");
        QCOMPARE(app.dialogs.boxes.size(), 3);
        QVERIFY(app.status() != "Saved!");
    }
};

QTEST_MAIN(ExportTest)
#include "export_qtest.moc"
