// The three lighting passes: check box, menu tick and field move together. Every change goes
// through a check box's Value, whose Click then flips the tick and the field, so the three
// stay in step only while nothing else writes them.
#include "gui/main_window/main_window.h"
#include "platform/click_check_box.h"
#include "platform/menu_entry.h"

namespace umbrakit {

namespace {
void toggleValue(ClickCheckBox* box) {
    box->setValue(box->Value() == 0 ? 1 : 0);
}

void flip(MenuEntry* entry, qint16& field) {
    entry->setChecked(!entry->Checked());
    field = qint16(~field);
}
} // namespace

void Form1::menuRunTerrain_Click() {
    toggleValue(TerrainCheck);
}
void Form1::menuRunMerge_Click() {
    toggleValue(MergeCheck);
}
void Form1::menuRunObject_Click() {
    toggleValue(ObjectCheck);
}

void Form1::TerrainCheck_Click() {
    flip(menuRunTerrain, terrainBoolean);
}
void Form1::MergeCheck_Click() {
    flip(menuRunMerge, mergeBoolean);
}
void Form1::ObjectCheck_Click() {
    flip(menuRunObject, objectBoolean);
}

} // namespace umbrakit
