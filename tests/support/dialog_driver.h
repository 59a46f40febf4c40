// The paths dialog as a user meets it in the tests: opened from the menu, typed into, clicked.
#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "gui/paths_dialog/paths_dialog.h"
#include "platform/click_check_box.h"
#include "platform/combo_list.h"
#include "platform/menu_entry.h"
#include "support/test_app.h"

namespace umbrakit {

inline PathsDialogWindow& openPaths(TestApp& app) {
    app.form->menuFilePaths->trigger();
    return *app.form->pathsDialog()->window();
}

inline PathsDialogWindow& reopenPaths(TestApp& app) { // a fresh load
    app.form->pathsDialog()->Unload();
    return openPaths(app);
}

// Replaces the text as a user does; a character that no key gives comes by the input method.
inline void type(QLineEdit* box, const QString& text) {
    box->selectAll();
    QTest::keyClick(box, Qt::Key_Delete);
    for (const QChar c : text) {
        QInputMethodEvent composed;
        composed.setCommitString(c);
        c.unicode() < 0x80 ? QTest::keyClick(box, c.toLatin1())
                           : void(QApplication::sendEvent(box, &composed));
    }
}

inline void click(QPushButton* button) {
    QTest::mouseClick(button, Qt::LeftButton);
}

// Picks a row in the open list and confirms it with Enter: one Click, as a user's choice.
inline void choose(ComboList* list, int row) {
    list->showPopup();
    list->view()->setCurrentIndex(list->view()->model()->index(row, 0));
    QTest::keyClick(list->view(), Qt::Key_Return);
}

inline QStringList rowsOf(const ComboList* list) {
    QStringList rows;
    for (int i = 0; i < list->ListCount(); ++i)
        rows << list->List(i);
    return rows;
}

inline void saveAs(PathsDialogWindow& w, const QString& name) {
    type(w.SettingName_Text, name);
    click(w.Save);
}

// name|game|level|mod|darkness|pass boxes, e.g. "101" for terrain and object.
inline QString texts(const PathsDialogWindow& w) {
    const auto on = [](const ClickCheckBox* box) { return QString::number(box->Value()); };
    return w.SettingName_Text->text() + "|" + w.GamePath_Text->text() + "|" +
           w.LevelName_Text->text() + "|" + w.ModName_Text->Text() + "|" + w.shadow_Text->text() +
           "|" + on(w.TerrainCheck) + on(w.MergeCheck) + on(w.ObjectCheck);
}

// The eight lines of a record as config.ini holds them; passes as "101" for terrain and object.
inline QByteArray record(const QByteArray& name, const QByteArray& game, const QByteArray& level,
                         const QByteArray& mod, const char* passes, const QByteArray& darkness) {
    auto word = [passes](int i) { return passes[i] == '1' ? "True" : "False"; };
    return "[Save=" + name + "]\r\ngamePath=" + game + "\r\nlevelName=" + level +
           "\r\nmodName=" + mod + "\r\nterrainBoolean=" + word(0) + "\r\nmergeBoolean=" + word(1) +
           "\r\nobjectBoolean=" + word(2) + "\r\nshadowDarkness=" + darkness + "\r\n";
}

inline QByteArray numbered(int first, int last) { // records "N<first>" to "N<last>"
    QByteArray records;
    for (int i = first; i <= last; ++i)
        records += record("N" + QByteArray::number(i), "g", "l", "m", "000", "1");
    return records;
}

inline const QByteArray kWake = record("Wake", "D:\\BF", "Wake", "BF1942", "100", "1.5");
inline const QByteArray kMidway = record("Midway", "E:\\BF", "Midway", "DesertCombat", "011", "2");
inline const QByteArray kBerlin = record("Berlin", "F:\\BF", "Berlin", "EoD", "000", "0.5");

} // namespace umbrakit
