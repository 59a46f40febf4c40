// Opening, loading, OK and Cancel: how the working copy comes from the main window and goes
// back to it.
#include "gui/paths_dialog/paths_dialog.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include "gui/paths_dialog/config_file.h"
#include "gui/text_field_captions.h"
#include "platform/combo_list.h"
#include "platform/qt_text.h"
#include "platform/services.h"

namespace umbrakit {

PathsDialog::PathsDialog(CurrentConfiguration& current, Services& services)
    : current_(current), services_(services), fileDialog_(services.dialogs) {}

PathsDialog::~PathsDialog() {
    delete window_.data();
}

void PathsDialog::show() {
    if (!isLoaded()) {
        window_ = new PathsDialogWindow;
        connectHandlers();
        load();
    }
    controls().show();
    controls().raise();
    controls().activateWindow();
}

void PathsDialog::hide() {
    if (isLoaded())
        controls().hide();
}

void PathsDialog::unload() {
    if (!isLoaded())
        return;
    PathsDialogWindow* window = window_;
    window_ = nullptr; // unloaded from here on, though Qt deletes the window a moment later
    window->close();
}

void PathsDialog::connectHandlers() {
    PathsDialogWindow& w = controls();
    QObject::connect(w.savedList, &ComboList::Click, &w, [this] { showSelectedRow(); });
    QObject::connect(w.browseButton, &QPushButton::clicked, &w, [this] { browseForGame(); });
    QObject::connect(w.saveButton, &QPushButton::clicked, &w, [this] { saveSetting(); });
    QObject::connect(w.deleteButton, &QPushButton::clicked, &w,
                     [this] { deleteSelectedSetting(); });
    QObject::connect(w.okButton, &QPushButton::clicked, &w, [this] { applyAndClose(); });
    QObject::connect(w.cancelButton, &QPushButton::clicked, &w, [this] { hide(); });
    // A close by the border unloads: the window deletes itself and nothing is applied.
    QObject::connect(&w, &QDialog::finished, &w, [this] { window_ = nullptr; });
}

// The boxes show the current configuration and the list the names of config.ini; selecting
// "(Current)" then loads row 0 as a user's choice would.
void PathsDialog::load() {
    PathsDialogWindow& w = controls();
    for (const char* mod : {"BF1942", "DesertCombat", "EoD"})
        w.modBox->AddItem(mod);
    entries_ = {};
    showCurrent(entries_, current_.configuration());
    entries_.settingName = U"(Current)";
    showEntries();

    const std::optional<std::string> config =
        ConfigFile(services_).read("The saved Configs could not be read.");
    names_ = config ? SavedNameTable(*config) : SavedNameTable();
    showNames(-1);
    w.savedList->setListIndex(0);
}

void PathsDialog::applyAndClose() {
    takeEntries();
    const auto configuration = configurationToApply(entries_);
    if (const auto* refusal = std::get_if<DialogRefusal>(&configuration)) {
        tell(*refusal);
        if (refusal->reason == DialogRefusal::DarknessNotNumber)
            controls().darknessBox->setFocus();
        return;
    }
    current_.applyConfiguration(std::get<Configuration>(configuration));
    unload();
}

// What the user typed counts; the passes are the dialog's own and stay as they are.
void PathsDialog::takeEntries() {
    const PathsDialogWindow& w = controls();
    entries_.settingName = toText(w.nameBox->text());
    entries_.gamePath = toText(w.gamePathBox->text());
    entries_.levelName = toText(w.levelBox->text());
    entries_.modName = toText(w.modBox->Text());
    entries_.shadowDarkness = toText(w.darknessBox->text());
}

void PathsDialog::showEntries() {
    PathsDialogWindow& w = controls();
    w.nameBox->setText(toQString(entries_.settingName));
    w.gamePathBox->setText(toQString(entries_.gamePath));
    w.levelBox->setText(toQString(entries_.levelName));
    w.modBox->setText(toQString(entries_.modName));
    w.darknessBox->setText(toQString(entries_.shadowDarkness));
    for (Pass pass : kPasses)
        w.passBoxes[std::size_t(pass)]->setChecked(entries_.passes[pass]);
}

// The rows of the name table; the row is selected without loading it.
void PathsDialog::showNames(int selectedRow) {
    ComboList& list = *controls().savedList;
    list.Clear();
    for (const std::string& name : names_.rows())
        list.AddItem(toQString(fromAnsi(name, services_.codePage)));
    list.setCurrentIndex(selectedRow);
}

void PathsDialog::tell(const QString& prompt) const {
    services_.dialogs.msgBox(prompt, {}, QString());
}

void PathsDialog::tell(const DialogRefusal& refusal) const {
    const QString field = captionOf(refusal.field);
    switch (refusal.reason) {
    case DialogRefusal::NoName:
        return tell("Please give the Config a name.");
    case DialogRefusal::LineBreak:
        return tell(QString("The %1 holds a line break, which config.ini cannot store. Nothing "
                            "was saved.")
                        .arg(field));
    case DialogRefusal::Unwritable:
        return tell(QString("The %1 holds the character \"%2\", which config.ini cannot store. "
                            "Nothing was saved.")
                        .arg(field, toQString(characterForMessage(refusal.character))));
    case DialogRefusal::NoRoom:
        return tell(QString("There is room for %1 saved Configs, and all are in use. Delete one, "
                            "or save under a listed name to replace it.")
                        .arg(kSavedNameCapacity));
    case DialogRefusal::NothingSelected:
        return tell("Please select a saved Config to delete.");
    case DialogRefusal::Incomplete:
        return tell("Please complete all entries.");
    case DialogRefusal::DarknessNotNumber:
        return tell("The Shadow Darkness must be a number, such as 1.5.");
    }
}

} // namespace umbrakit
