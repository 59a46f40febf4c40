// The current configuration: which game folder, level and mod the next export and lighting run
// work on, how dark the shadows are, and which lighting passes run.
#pragma once

#include <array>
#include <string>

namespace umbrakit {

enum class Pass { Terrain, Merge, Object };
inline constexpr std::array<Pass, 3> kPasses{Pass::Terrain, Pass::Merge, Pass::Object};

struct PassOptions {
    bool terrain = false;
    bool merge = false;
    bool object = false;

    bool& operator[](Pass pass) {
        return pass == Pass::Terrain ? terrain : pass == Pass::Merge ? merge : object;
    }
    bool operator[](Pass pass) const { return const_cast<PassOptions&>(*this)[pass]; }
    bool operator==(const PassOptions&) const = default;
};

struct Configuration {
    std::u32string gamePath;  // the folder that holds BF1942.exe
    std::u32string levelName; // the level's folder under bf1942\levels
    std::u32string modName;   // the mod the engine's +game names
    double shadowDarkness = 0;
    PassOptions passes;

    bool operator==(const Configuration&) const = default;
};

// A run needs a darkness above 0 and all three texts non-empty; blanks count as text.
bool isCompleteForRun(const Configuration& configuration);

} // namespace umbrakit
