// Composes go.bat from any seven values: strings of any bytes, any double (NaN, infinities,
// subnormals, the largest values) and any passes, and checks the shape of the script and the
// number text written into the merge line.
#include "core/batch_script.h"
#include "core/number_text.h"
#include "fuzz_check.h"

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
void checkLineEnds(const std::u32string& script, const std::vector<std::u32string>& lines) {
    std::size_t at = 0;
    for (const std::u32string& line : lines) {
        require(script.compare(at, line.size(), line) == 0, "the script holds its lines in order");
        at += line.size();
        require(script.compare(at, 2, U"\r\n") == 0, "every line ends in CR LF");
        at += 2;
    }
    require(at == script.size(), "nothing follows the last CR LF");
}

std::u32string ascii(const std::string& text) {
    return std::u32string(text.begin(), text.end());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider in(data, size);
    Configuration c;
    c.passes = {in.ConsumeBool(), in.ConsumeBool(), in.ConsumeBool()};
    // Every bit pattern, so NaNs, infinities and subnormals come up as often as plain values.
    c.shadowDarkness = std::bit_cast<double>(in.ConsumeIntegral<std::uint64_t>());
    const CodePage codePage = in.ConsumeBool() ? kUtf8 : kWestern;
    c.gamePath = fromAnsi(in.ConsumeRandomLengthString(), codePage);
    c.levelName = fromAnsi(in.ConsumeRandomLengthString(), codePage);
    c.modName = fromAnsi(in.ConsumeRemainingBytesAsString(), codePage);

    checkNumberText(c.shadowDarkness);
    require(!isCompleteForRun(c) || c.shadowDarkness > 0, "no run without a darkness above 0");

    const std::vector<std::u32string> lines = composeScriptLines(c);
    const std::size_t passes = std::size_t{c.passes.terrain} + c.passes.merge + c.passes.object;
    require(lines.size() == 2 + passes, "folder line, drive line and one line per pass");
    const std::u32string script = composeScript(c);
    checkLineEnds(script, lines);
    // Text read from the code page can always be written back to it.
    const auto bytes = scriptBytes(c, codePage);
    require(std::holds_alternative<std::string>(bytes) &&
                fromAnsi(std::get<std::string>(bytes), codePage) == script,
            "the script's bytes are its text in the code page");

    require(lines[0].starts_with(U"@cd "), "the folder line changes folder");
    require(lines[1].starts_with(U"@") && lines[1].size() <= 3, "the drive line is @ and 2 more");

    const std::u32string q = U"\"";
    const std::u32string prefix = q + c.gamePath + U"\\BF1942.exe" + q + U" +game " + c.modName +
                                  U" +workingFolder " + q + c.gamePath + U"\\ShadowWork\\" + q;
    std::vector<std::u32string_view> options;
    if (c.passes.terrain)
        options.push_back(U" +traceTerrainShadows ");
    if (c.passes.merge)
        options.push_back(U" +mergeTerrainShadows ");
    if (c.passes.object)
        options.push_back(U" +traceObjectShadows ");
    for (std::size_t i = 0; i < options.size(); ++i) {
        const std::u32string& line = lines[2 + i];
        require(line.starts_with(prefix), "every pass line starts with the engine prefix");
        require(line.compare(prefix.size(), options[i].size(), options[i]) == 0,
                "the passes stand in the order terrain, merge, object");
        if (options[i] == U" +mergeTerrainShadows ")
            require(line.ends_with(U" " + ascii(numberText(c.shadowDarkness)) + U" 0.4" + q),
                    "the merge argument closes with darkness and 0.4");
    }
    return 0;
}
