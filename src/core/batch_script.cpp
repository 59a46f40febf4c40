#include "core/batch_script.h"

#include "core/number_text.h"

namespace umbrakit {

namespace {
std::u32string ascii(const std::string& text) {
    return std::u32string(text.begin(), text.end());
}
} // namespace

std::vector<std::u32string> composeScriptLines(const Configuration& c) {
    const std::u32string q = U"\"";
    const std::u32string levelFolder = q + U"bf1942\\levels\\" + c.levelName + U"\\";
    // The mod name is the one part left unquoted; the engine reads it as a bare word.
    const std::u32string prefix = q + c.gamePath + U"\\BF1942.exe" + q + U" +game " + c.modName +
                                  U" +workingFolder " + q + c.gamePath + U"\\ShadowWork\\" + q;

    std::vector<std::u32string> lines;
    lines.push_back(U"@cd " + c.gamePath);
    // Switching to the drive needs "X:"; append copes with a path of one or no character.
    lines.push_back(std::u32string(U"@").append(c.gamePath, 0, 2));
    if (c.passes.terrain)
        lines.push_back(prefix + U" +traceTerrainShadows " + levelFolder + q + U" " + q +
                        c.levelName + U"\\lmList.dat" + q + U" " + q + c.gamePath +
                        U"\\ShadowWork\\bf1942\\levels\\" + c.levelName + U"\\textures" + q);
    // Folder, darkness and 0.4 make one quoted argument for the merge pass.
    if (c.passes.merge)
        lines.push_back(prefix + U" +mergeTerrainShadows " + levelFolder + U" " +
                        ascii(numberText(c.shadowDarkness)) + U" 0.4" + q);
    if (c.passes.object)
        lines.push_back(prefix + U" +traceObjectShadows " + levelFolder + q);
    return lines;
}

std::u32string composeScript(const Configuration& configuration) {
    std::u32string script;
    for (const std::u32string& line : composeScriptLines(configuration))
        script += line + U"\r\n";
    return script;
}

std::variant<std::string, UnwritableText> scriptBytes(const Configuration& c, CodePage codePage) {
    const std::pair<TextField, const std::u32string&> fields[] = {
        {TextField::GamePath, c.gamePath},
        {TextField::LevelName, c.levelName},
        {TextField::ModName, c.modName}};
    for (const auto& [field, text] : fields)
        if (const std::optional<char32_t> character = firstUnwritable(text, codePage))
            return UnwritableText{field, *character};
    // Every text can be written, and the script adds only ASCII of its own.
    return *toAnsi(composeScript(c), codePage);
}

} // namespace umbrakit
