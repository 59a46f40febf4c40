// The world size and the two commands that tick and untick the patches.
#include <QCheckBox>

#include "gui/main_window/main_window.h"
#include "core/world_size.h"
#include "platform/combo_list.h"

namespace umbrakit {

void Form1::Combo1_Click() {
    const WorldSize world = worldSizeFor(Combo1->ListIndex());
    for (int index = 0; index < kPatchCount; ++index) {
        QCheckBox* patch = CheckBoxArray[index];
        if (isInWorld(index, world)) {
            patch->setEnabled(true);
        } else {
            patch->setEnabled(false);
            patch->setChecked(false);
        }
    }
}

void Form1::CheckAll_Click() {
    const WorldSize world = worldSizeFor(Combo1->ListIndex());
    for (int index = 0; index < kPatchCount; ++index)
        CheckBoxArray[index]->setChecked(isInWorld(index, world));
}

void Form1::ClearAll_Click() {
    for (QCheckBox* patch : CheckBoxArray)
        patch->setChecked(false);
}

} // namespace umbrakit
