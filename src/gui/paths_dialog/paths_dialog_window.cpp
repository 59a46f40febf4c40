// The controls of the paths dialog, each at its place and size.
#include "gui/paths_dialog/paths_dialog_window.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <limits>

#include "platform/caption_fit.h"
#include "platform/classic_font.h"
#include "platform/classic_frame.h"
#include "platform/combo_list.h"
#include "platform/placement.h"

namespace umbrakit {

namespace {
constexpr int kClientWidth = 6630;
constexpr int kClientHeight = 2970;

// A box's label, at the left of its row; the box is spoken by its caption.
void label(QWidget* box, const QString& caption, const char* name, int top, int width,
           int height) {
    QLabel* text = place(new QLabel(caption, box->parentWidget()), name, 105, top, width, height);
    text->setFont(labelFont());
    text->setFocusPolicy(Qt::NoFocus);
    box->setAccessibleName(caption.chopped(1)); // without the colon
}
} // namespace

PathsDialogWindow::PathsDialogWindow() : QDialog(nullptr, kFixedDialogFlags) {
    setUpFixedDialog(*this, "PathsDialog", "Set Paths...", kClientWidth, kClientHeight);

    deleteButton = place(new QPushButton("Delete", this), "Delete", 5670, 0, 960, 330);
    savedList = place(new ComboList(this), "SavedSettings", 1365, 0, 4215, 315);
    pathsFrame = place(new ClassicFrame("Paths", this), "Frame1", 0, 315, 6630, 2640);
    label(savedList, "Load Setting:", "Label5", 0, 1170, 330);
    // On Linux a list without a box for typing is named by its chosen row; screen readers
    // then give its caption as the description.
    savedList->setAccessibleDescription("Load Setting");

    const char* const passCaptions[] = {"Generate &TerrainShadows", "&Merge TerrainShadows",
                                        "Generate &ObjectShadows"};
    const char* const passNames[] = {"TerrainCheck", "MergeCheck", "ObjectCheck"};
    const int passLefts[] = {105, 2310, 4305};
    const int passWidths[] = {2220, 2010, 2220};
    for (std::size_t pass = 0; pass < passBoxes.size(); ++pass) {
        passBoxes[pass] = place(new QCheckBox(passCaptions[pass], pathsFrame), passNames[pass],
                                passLefts[pass], 2310, passWidths[pass], 225);
        passBoxes[pass]->setEnabled(false);
    }
    saveButton = place(new QPushButton("Save", pathsFrame), "Save", 5670, 210, 855, 330);
    nameBox = place(new QLineEdit(pathsFrame), "SettingName_Text", 1470, 210, 4110, 285);
    darknessBox = place(new QLineEdit(pathsFrame), "shadow_Text", 1890, 1890, 1380, 285);
    modBox = place(new ComboList(pathsFrame), "ModName_Text", 1470, 1470, 5055, 315);
    modBox->setEditable(true);
    modBox->setInsertPolicy(QComboBox::NoInsert); // Enter is for OK, not for a new row
    levelBox = place(new QLineEdit(pathsFrame), "LevelName_Text", 1470, 1050, 5055, 285);
    browseButton = place(new QPushButton("...", pathsFrame), "Path", 6195, 630, 285, 285);
    browseButton->setAccessibleDescription("Browse for bf1942.exe");
    gamePathBox = place(new QLineEdit(pathsFrame), "GamePath_Text", 1470, 630, 4635, 285);
    okButton = place(new QPushButton("&OK", pathsFrame), "OKButton", 3990, 1890, 1215, 375);
    okButton->setDefault(true);
    cancelButton =
        place(new QPushButton("&Cancel", pathsFrame), "CancelButton", 5250, 1890, 1215, 375);
    label(nameBox, "Setting Name:", "Label6", 210, 1275, 330);
    label(darknessBox, "Shadow Darkness:", "Label4", 1890, 1800, 285);
    label(modBox, "Mod Name:", "Label3", 1470, 1170, 285);
    label(gamePathBox, "Game Path:", "Label1", 630, 1170, 330);
    label(levelBox, "Level Name:", "Label2", 1050, 1170, 285);
    // A value of config.ini is shown whole however long it is, or a save would write it cut.
    for (QLineEdit* box : {nameBox, gamePathBox, levelBox, modBox->lineEdit(), darknessBox})
        box->setMaxLength(std::numeric_limits<int>::max());

    fitCaptions(this);
    setTabOrder();
}

void PathsDialogWindow::setTabOrder() {
    const QList<QWidget*> order{savedList,    nameBox,      saveButton,  gamePathBox,
                                browseButton, levelBox,     modBox,      darknessBox,
                                okButton,     cancelButton, deleteButton};
    for (int i = 0; i + 1 < order.size(); ++i)
        QWidget::setTabOrder(order[i], order[i + 1]);
    pathsFrame->setFocusPolicy(Qt::NoFocus);
    savedList->setFocus();
}

void PathsDialogWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

} // namespace umbrakit
