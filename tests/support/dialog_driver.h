// The paths dialog as a user meets it in the tests: opened from the menu, typed into, clicked;
// and the records of config.ini as the program writes them.
#pragma once

#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPushButton>

#include "gui/paths_dialog/paths_dialog.h"
#include "platform/combo_list.h"
#include "platform/menu_entry.h"
#include "support/test_app.h"

namespace umbrakit {

inline PathsDialogWindow& openPaths(TestApp& app) {
    app.window->setPathsEntry->trigger();
    return *app.window->pathsDialog()->window();
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

inline QStringList rowsOf(const ComboList* list) {
    QStringList rows;
    for (int i = 0; i < list->ListCount(); ++i)
        rows << list->List(i);
    return rows;
}

// name|game|level|mod|darkness|pass boxes, e.g. "101" for terrain and object.
inline QString texts(const PathsDialogWindow& w) {
    QString passes;
    for (const QCheckBox* box : w.passBoxes)
        passes += box->isChecked() ? '1' : '0';
    return QStringList{w.nameBox->text(), w.gamePathBox->text(), w.levelBox->text(),
                       w.modBox->Text(),  w.darknessBox->text(), passes}
        .join('|');
}

// The eight lines of a record as config.ini holds them; passes as "101" for terrain and object.
inline QByteArray record(const QByteArray& name, const QByteArray& game, const QByteArray& level,
                         const QByteArray& mod, const char* passes, const QByteArray& darkness) {
    auto word = [passes](int i) { return passes[i] == '1' ? "True" : "False"; };
    return "[Save=" + name + "]\r\ngamePath=" + game + "\r\nlevelName=" + level +
           "\r\nmodName=" + mod + "\r\nterrainBoolean=" + word(0) + "\r\nmergeBoolean=" + word(1) +
           "\r\nobjectBoolean=" + word(2) + "\r\nshadowDarkness=" + darkness + "\r\n";
}

inline const QByteArray kWake = record("Wake", "D:\\BF", "Wake", "BF1942", "100", "1.5");
inline const QByteArray kMidway = record("Midway", "E:\\BF", "Midway", "DesertCombat", "011", "2");
inline const QByteArray kBerlin = record("Berlin", "F:\\BF", "Berlin", "EoD", "000", "0.5");

} // namespace umbrakit
