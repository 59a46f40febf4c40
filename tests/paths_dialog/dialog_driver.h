// The paths dialog as a user meets it in the tests: opened from the menu, typed into, clicked.
#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "paths_dialog/paths_dialog.h"
#include "platform/click_check_box.h"
#include "platform/combo_list.h"
#include "platform/menu_entry.h"
#include "support/test_app.h"

namespace umbrakit {

inline PathsDialogWindow& openPaths(TestApp& app) {
    app.form->menuFilePaths->trigger();
    return *app.form->pathsDialog()->window();
}

// Replaces the text as a user does after selecting all; a character that no key gives comes
// through the input method.
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
inline void type(ComboList* box, const QString& text) {
    type(box->lineEdit(), text);
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

inline int boxesOn(const PathsDialogWindow& w) { // the pass boxes as three bits, terrain high
    return w.TerrainCheck->Value() * 4 + w.MergeCheck->Value() * 2 + w.ObjectCheck->Value();
}

// The eight lines of a record as config.ini holds them; passes as "101" for terrain and object.
inline QByteArray record(const QByteArray& name, const QByteArray& game, const QByteArray& level,
                         const QByteArray& mod, const char* passes, const QByteArray& darkness) {
    auto word = [passes](int i) { return passes[i] == '1' ? "True" : "False"; };
    return "[Save=" + name + "]\r\ngamePath=" + game + "\r\nlevelName=" + level +
           "\r\nmodName=" + mod + "\r\nterrainBoolean=" + word(0) + "\r\nmergeBoolean=" + word(1) +
           "\r\nobjectBoolean=" + word(2) + "\r\nshadowDarkness=" + darkness + "\r\n";
}

} // namespace umbrakit
