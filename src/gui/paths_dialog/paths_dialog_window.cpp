// The controls of the paths dialog, each at its place and size.
#include "gui/paths_dialog/paths_dialog_window.h"

#include "platform/classic_frame.h"
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <limits>

#include "platform/accessible_names.h"
#include "platform/classic_font.h"
#include "platform/click_check_box.h"
#include "platform/combo_list.h"
#include "platform/placement.h"

namespace umbrakit {

namespace {
constexpr int kClientWidth = 6630;
constexpr int kClientHeight = 2970;

// Where the classic font is missing, its stand-in may run wider: the caption is then set a
// little narrower until it fits the control, never cut off.
void fitCaption(QWidget* control) {
    constexpr int kNarrowestStretch = 80;
    QFont font = control->font();
    for (int stretch = 99;
         control->sizeHint().width() > control->width() && stretch >= kNarrowestStretch;
         --stretch) {
        font.setStretch(stretch);
        control->setFont(font);
    }
}

QLabel* label(const QString& caption, QWidget* parent, const char* name, int left, int top,
              int width, int height) {
    QLabel* text = place(new QLabel(caption, parent), name, left, top, width, height);
    text->setFont(labelFont());
    text->setFocusPolicy(Qt::NoFocus);
    fitCaption(text);
    return text;
}

// A text box is spoken by the caption of the label before it.
template <typename Box> Box* namedAfter(Box* box, const QLabel* caption) {
    QString name = caption->text();
    name.chop(1); // the colon
    box->setAccessibleName(name);
    return box;
}

ClickCheckBox* passBox(const QString& caption, QWidget* parent, const char* name, int left,
                       int width) {
    ClickCheckBox* box = place(new ClickCheckBox(caption, parent), name, left, 2310, width, 225);
    box->setEnabled(false);
    fitCaption(box);
    return box;
}
} // namespace

PathsDialogWindow::PathsDialogWindow() : QDialog(nullptr, kFixedDialogFlags) {
    setUpFixedDialog(*this, "PathsDialog", "Set Paths...", kClientWidth, kClientHeight);

    Delete = place(new QPushButton("Delete", this), "Delete", 5670, 0, 960, 330);
    SavedSettings = place(new ComboList(this), "SavedSettings", 1365, 0, 4215, 315);
    Frame1 = place(new ClassicFrame("Paths", this), "Frame1", 0, 315, 6630, 2640);
    Label5 = label("Load Setting:", this, "Label5", 105, 0, 1170, 330);
    namedAfter(SavedSettings, Label5);

    TerrainCheck = passBox("Generate &TerrainShadows", Frame1, "TerrainCheck", 105, 2220);
    MergeCheck = passBox("&Merge TerrainShadows", Frame1, "MergeCheck", 2310, 2010);
    ObjectCheck = passBox("Generate &ObjectShadows", Frame1, "ObjectCheck", 4305, 2220);
    Save = place(new QPushButton("Save", Frame1), "Save", 5670, 210, 855, 330);
    SettingName_Text = place(new QLineEdit(Frame1), "SettingName_Text", 1470, 210, 4110, 285);
    shadow_Text = place(new QLineEdit(Frame1), "shadow_Text", 1890, 1890, 1380, 285);
    ModName_Text = place(new ComboList(Frame1), "ModName_Text", 1470, 1470, 5055, 315);
    ModName_Text->setEditable(true);
    ModName_Text->setInsertPolicy(QComboBox::NoInsert); // Enter is for OK, not for a new row
    LevelName_Text = place(new QLineEdit(Frame1), "LevelName_Text", 1470, 1050, 5055, 285);
    Path = place(new QPushButton("...", Frame1), "Path", 6195, 630, 285, 285);
    Path->setAccessibleDescription("Browse for bf1942.exe");
    GamePath_Text = place(new QLineEdit(Frame1), "GamePath_Text", 1470, 630, 4635, 285);
    OKButton = place(new QPushButton("&OK", Frame1), "OKButton", 3990, 1890, 1215, 375);
    OKButton->setDefault(true);
    CancelButton = place(new QPushButton("&Cancel", Frame1), "CancelButton", 5250, 1890, 1215, 375);
    Label6 = label("Setting Name:", Frame1, "Label6", 105, 210, 1275, 330);
    Label4 = label("Shadow Darkness:", Frame1, "Label4", 105, 1890, 1800, 285);
    Label3 = label("Mod Name:", Frame1, "Label3", 105, 1470, 1170, 285);
    Label1 = label("Game Path:", Frame1, "Label1", 105, 630, 1170, 330);
    Label2 = label("Level Name:", Frame1, "Label2", 105, 1050, 1170, 285);
    namedAfter(SettingName_Text, Label6);
    namedAfter(GamePath_Text, Label1);
    namedAfter(LevelName_Text, Label2);
    namedAfter(ModName_Text, Label3);
    namedAfter(shadow_Text, Label4);
    // A value of config.ini is shown whole however long it is, or a save would write it cut.
    for (QLineEdit* box :
         {SettingName_Text, GamePath_Text, LevelName_Text, ModName_Text->lineEdit(), shadow_Text})
        box->setMaxLength(std::numeric_limits<int>::max());

    setTabOrder();
}

void PathsDialogWindow::setTabOrder() {
    const QList<QWidget*> order{SavedSettings, SettingName_Text, Save,         GamePath_Text,
                                Path,          LevelName_Text,   ModName_Text, shadow_Text,
                                OKButton,      CancelButton,     Delete};
    for (int i = 0; i + 1 < order.size(); ++i)
        QWidget::setTabOrder(order[i], order[i + 1]);
    Frame1->setFocusPolicy(Qt::NoFocus);
    SavedSettings->setFocus();
}

void PathsDialogWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

} // namespace umbrakit
