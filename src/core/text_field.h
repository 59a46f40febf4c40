// The texts a user types: the setting's name and the values of a configuration. Refusals name
// the field, so that the user knows what to change.
#pragma once

namespace umbrakit {

enum class TextField { SettingName, GamePath, LevelName, ModName, ShadowDarkness };

// A character of a field that a file cannot hold.
struct UnwritableText {
    TextField field;
    char32_t character;
    bool operator==(const UnwritableText&) const = default;
};

} // namespace umbrakit
