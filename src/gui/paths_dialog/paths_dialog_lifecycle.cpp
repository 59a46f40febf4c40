// Opening, loading, OK and Cancel: how the working copy comes from Form1 and goes back.
#include <QLineEdit>
#include <QPushButton>

#include "gui/main_window/main_window.h"
#include "core/number_text.h"
#include "gui/paths_dialog/paths_dialog.h"
#include "platform/click_check_box.h"
#include "platform/combo_list.h"

namespace umbrakit {

namespace {
int valueOf(qint16 boolean) {
    return boolean != 0 ? 1 : 0;
}
} // namespace

PathsDialog::PathsDialog(Form1& form1)
    : form1_(form1), services_(form1.services), cDialog(form1.services.dialogs) {}

PathsDialog::~PathsDialog() {
    delete window_.data();
}

void PathsDialog::Show() {
    if (!isLoaded()) {
        window_ = new PathsDialogWindow;
        connectHandlers();
        Form_Load();
    }
    controls().show();
    controls().raise();
    controls().activateWindow();
}

void PathsDialog::Hide() {
    if (isLoaded())
        controls().hide();
}

void PathsDialog::Unload() {
    if (!isLoaded())
        return;
    PathsDialogWindow* window = window_;
    window_ = nullptr; // unloaded from here on, though Qt deletes the window a moment later
    window->close();
}

void PathsDialog::connectHandlers() {
    PathsDialogWindow& w = controls();
    QObject::connect(w.Delete, &QPushButton::clicked, &w, [this] { Delete_Click(); });
    QObject::connect(w.Path, &QPushButton::clicked, &w, [this] { Path_Click(); });
    QObject::connect(w.Save, &QPushButton::clicked, &w, [this] { Save_Click(); });
    QObject::connect(w.SavedSettings, &ComboList::Click, &w, [this] { SavedSettings_Click(); });
    QObject::connect(w.OKButton, &QPushButton::clicked, &w, [this] { OKButton_Click(); });
    QObject::connect(w.CancelButton, &QPushButton::clicked, &w, [this] { CancelButton_Click(); });
    // A close by the border unloads: the window deletes itself and nothing goes to Form1.
    QObject::connect(&w, &QDialog::finished, &w, [this] { window_ = nullptr; });
}

void PathsDialog::Form_Load() {
    PathsDialogWindow& w = controls();
    w.ModName_Text->AddItem("BF1942");
    w.ModName_Text->AddItem("DesertCombat");
    w.ModName_Text->AddItem("EoD");
    w.GamePath_Text->setText(form1_.gamePath);
    w.LevelName_Text->setText(form1_.levelName);
    w.ModName_Text->setText(form1_.modName);
    w.shadow_Text->setText(QString::fromStdString(numberText(form1_.shadowDarkness)));
    w.TerrainCheck->setValue(valueOf(form1_.terrainBoolean));
    w.MergeCheck->setValue(valueOf(form1_.mergeBoolean));
    w.ObjectCheck->setValue(valueOf(form1_.objectBoolean));

    namesRead_ = ReadSavedNames();
    fillSavedSettings();
    w.SettingName_Text->setText("(Current)");
    w.SavedSettings->setListIndex(0); // raises SavedSettings_Click: the Booleans come from Form1
}

void PathsDialog::OKButton_Click() {
    PathsDialogWindow& w = controls();
    const QString game = w.GamePath_Text->text();
    const QString level = w.LevelName_Text->text();
    const QString mod = w.ModName_Text->Text();
    if (game.isEmpty() || level.isEmpty() || mod.isEmpty()) {
        tell("Please complete all entries.");
        return;
    }
    // Tested before anything goes to Form1, whose darkness must stay a number.
    const std::optional<double> darkness = textToNumber(w.shadow_Text->text().toStdString());
    if (!darkness) {
        tell("The Shadow Darkness must be a number, such as 1.5.");
        w.shadow_Text->setFocus();
        return;
    }

    form1_.gamePath = game;
    form1_.levelName = level;
    form1_.modName = mod;
    form1_.shadowDarkness = *darkness;
    // Through Value, so that each real change runs Form1's Click and moves tick and field along.
    form1_.TerrainCheck->setValue(valueOf(terrainBoolean));
    form1_.MergeCheck->setValue(valueOf(mergeBoolean));
    form1_.ObjectCheck->setValue(valueOf(objectBoolean));
    Unload();
}

void PathsDialog::CancelButton_Click() {
    Hide();
}

void PathsDialog::tell(const QString& prompt) const {
    services_.dialogs.msgBox(prompt, MsgBoxStyle::OkOnly, QString());
}

} // namespace umbrakit
