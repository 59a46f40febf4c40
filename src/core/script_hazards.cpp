#include "core/script_hazards.h"

#include <optional>
#include <string_view>

namespace umbrakit {

namespace {
std::optional<char32_t> firstHazard(std::u32string_view text, std::u32string_view ownCharacters) {
    for (char32_t c : text)
        if (c >= 0x80 || ownCharacters.find(c) != std::u32string_view::npos)
            return c;
    return std::nullopt;
}
} // namespace

std::vector<ScriptHazard> scriptHazards(const Configuration& c) {
    const struct {
        TextField field;
        const std::u32string& text;
        std::u32string_view ownCharacters;
    } fields[] = {{TextField::GamePath, c.gamePath, U"%\""},
                  {TextField::LevelName, c.levelName, U"%\""},
                  {TextField::ModName, c.modName, U"%\"^&|<>"}};
    std::vector<ScriptHazard> hazards;
    for (const auto& field : fields)
        if (const std::optional<char32_t> character = firstHazard(field.text, field.ownCharacters))
            hazards.push_back({field.field, *character});
    return hazards;
}

} // namespace umbrakit
