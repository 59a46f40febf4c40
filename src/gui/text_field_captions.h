// How the windows name a field when they tell the user about it: by its label's caption.
#pragma once

#include <QString>

#include "core/text_field.h"

namespace umbrakit {

inline QString captionOf(TextField field) {
    switch (field) {
    case TextField::SettingName:
        return "Setting Name";
    case TextField::GamePath:
        return "Game Path";
    case TextField::LevelName:
        return "Level Name";
    case TextField::ModName:
        return "Mod Name";
    case TextField::ShadowDarkness:
        return "Shadow Darkness";
    }
    return QString();
}

} // namespace umbrakit
