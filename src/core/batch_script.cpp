#include "core/batch_script.h"

#include "core/number_text.h"
#include "core/text_lines.h"

namespace umbrakit {

std::vector<std::string> composeScriptLines(const ScriptValues& v) {
    const std::string q = "\"";
    const std::string levelFolder = q + "bf1942\\levels\\" + v.levelName + "\\";
    // The mod name is the one part left unquoted; the engine reads it as a bare word.
    const std::string prefix = q + v.gamePath + "\\BF1942.exe" + q + " +game " + v.modName +
                               " +workingFolder " + q + v.gamePath + "\\ShadowWork\\" + q;

    std::vector<std::string> lines;
    lines.push_back("@cd " + v.gamePath);
    // Switching to the drive needs "X:"; append copes with a path of one or no character.
    lines.push_back(std::string("@").append(v.gamePath, 0, 2));
    if (v.terrain)
        lines.push_back(prefix + " +traceTerrainShadows " + levelFolder + q + " " + q +
                        v.levelName + "\\lmList.dat" + q + " " + q + v.gamePath +
                        "\\ShadowWork\\bf1942\\levels\\" + v.levelName + "\\textures" + q);
    // Folder, darkness and 0.4 make one quoted argument for the merge pass.
    if (v.merge)
        lines.push_back(prefix + " +mergeTerrainShadows " + levelFolder + " " +
                        numberText(v.shadowDarkness) + " 0.4" + q);
    if (v.object)
        lines.push_back(prefix + " +traceObjectShadows " + levelFolder + q);
    return lines;
}

std::string composeScript(const ScriptValues& values) {
    return joinLines(composeScriptLines(values));
}

bool isCompleteForRun(const ScriptValues& v) {
    // Written as "> 0" so that NaN fails as well.
    return v.shadowDarkness > 0 && !v.gamePath.empty() && !v.levelName.empty() &&
           !v.modName.empty();
}

} // namespace umbrakit
