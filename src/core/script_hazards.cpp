#include "core/script_hazards.h"

#include <string_view>

namespace umbrakit {

namespace {
std::optional<unsigned char> firstHazard(std::string_view text, std::string_view ownCharacters) {
    for (char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x80 || ownCharacters.find(c) != std::string_view::npos)
            return byte;
    }
    return std::nullopt;
}
} // namespace

std::vector<ScriptHazard> scriptHazards(const ScriptValues& values) {
    const struct {
        ScriptHazard::Field field;
        const std::string& text;
        std::string_view ownCharacters;
    } fields[] = {{ScriptHazard::GamePath, values.gamePath, "%\""},
                  {ScriptHazard::LevelName, values.levelName, "%\""},
                  {ScriptHazard::ModName, values.modName, "%\"^&|<>"}};
    std::vector<ScriptHazard> hazards;
    for (const auto& field : fields) {
        if (const auto byte = firstHazard(field.text, field.ownCharacters))
            hazards.push_back({field.field, *byte});
    }
    return hazards;
}

} // namespace umbrakit
