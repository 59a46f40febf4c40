// Composes go.bat from any seven values: strings of any bytes, any double (NaN, infinities,
// subnormals, the largest values) and any passes, and checks the shape of the script and the
// number text written into the merge line.
#include "fuzz_check.h"
#include "core/batch_script.h"
#include "core/number_text.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

using namespace umbrakit;
using umbrakit::fuzz::require;

namespace {

void checkNumberText(double value) {
    const std::string text = numberText(value);
    require(!text.empty(), "a number has a text");
    require(text.find_first_of(" ,") == std::string::npos,
            "the number text holds no blank and no comma");
    if (!std::isfinite(value))
        return;
    // The text holds the value to 15 digits, so reading it and writing again gives the same text.
    const std::optional<double> read = textToNumber(text);
    require(read.has_value(), "the text of a finite number reads back");
    require(numberText(*read) == text, "the text of the read value is the same text");
}

// The bytes must be the lines, each followed by CR LF, and nothing else.
void checkLineEnds(const std::string& script, const std::vector<std::string>& lines) {
    std::size_t at = 0;
    for (const std::string& line : lines) {
        require(script.compare(at, line.size(), line) == 0, "the script holds its lines in order");
        at += line.size();
        require(script.compare(at, 2, "\r\n") == 0, "every line ends in CR LF");
        at += 2;
    }
    require(at == script.size(), "nothing follows the last CR LF");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider in(data, size);
    ScriptValues v;
    v.terrain = in.ConsumeBool();
    v.merge = in.ConsumeBool();
    v.object = in.ConsumeBool();
    // Every bit pattern, so NaNs, infinities and subnormals come up as often as plain values.
    v.shadowDarkness = std::bit_cast<double>(in.ConsumeIntegral<std::uint64_t>());
    v.gamePath = in.ConsumeRandomLengthString();
    v.levelName = in.ConsumeRandomLengthString();
    v.modName = in.ConsumeRemainingBytesAsString();

    checkNumberText(v.shadowDarkness);
    require(!isCompleteForRun(v) || v.shadowDarkness > 0, "no run without a darkness above 0");

    const std::vector<std::string> lines = composeScriptLines(v);
    const std::size_t passes = std::size_t{v.terrain} + v.merge + v.object;
    require(lines.size() == 2 + passes, "folder line, drive line and one line per pass");
    require(lines.size() >= 2 && lines.size() <= 5, "2 to 5 lines");
    checkLineEnds(composeScript(v), lines);

    require(lines[0].starts_with("@cd "), "the folder line changes folder");
    require(lines[1].starts_with("@") && lines[1].size() <= 3, "the drive line is @ and 2 bytes");

    const std::string q = "\"";
    const std::string prefix = q + v.gamePath + "\\BF1942.exe" + q + " +game " + v.modName +
                               " +workingFolder " + q + v.gamePath + "\\ShadowWork\\" + q;
    std::vector<std::string_view> options;
    if (v.terrain)
        options.push_back(" +traceTerrainShadows ");
    if (v.merge)
        options.push_back(" +mergeTerrainShadows ");
    if (v.object)
        options.push_back(" +traceObjectShadows ");
    for (std::size_t i = 0; i < options.size(); ++i) {
        const std::string& line = lines[2 + i];
        require(line.starts_with(prefix), "every pass line starts with the engine prefix");
        require(line.compare(prefix.size(), options[i].size(), options[i]) == 0,
                "the passes stand in the order terrain, merge, object");
        if (options[i] == " +mergeTerrainShadows ")
            require(line.ends_with(" " + numberText(v.shadowDarkness) + " 0.4" + q),
                    "the merge argument closes with darkness and 0.4");
    }
    return 0;
}
