// Composes what the program hands to the engine from any values: go.bat from any texts, any
// double (NaN, infinities, subnormals, the largest values) and any passes, and lmList.dat from
// any check box values; and checks their shape and the number text in the merge line.
#include "core/batch_script.h"
#include "core/lmlist_format.h"
#include "core/number_text.h"
#include "fuzz_check.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

using namespace umbrakit;
using umbrakit::fuzz::require;

namespace {

void checkNumberText(double value) {
    const std::string text = numberText(value);
    require(!text.empty() && text.find_first_of(" ,") == std::string::npos,
            "a number has a text without blank and comma");
    // The text holds the value to 15 digits, so reading it and writing again gives the same text.
    const std::optional<double> read = textToNumber(text);
    require(!std::isfinite(value) || (read && numberText(*read) == text),
            "the text of a finite number reads back to the same text");
}

void checkScript(const Configuration& c, CodePage codePage) {
    const std::vector<std::u32string> lines = composeScriptLines(c);
    const std::size_t passes = std::size_t{c.passes.terrain} + c.passes.merge + c.passes.object;
    require(lines.size() == 2 + passes, "folder line, drive line and one line per pass");
    require(lines[0] == U"@cd " + c.gamePath && lines[1] == U"@" + c.gamePath.substr(0, 2),
            "the folder line and the drive line");
    // Text read from the code page can always be written back to it, each line ended by CR LF.
    const auto bytes = scriptBytes(c, codePage);
    std::u32string joined;
    for (const std::u32string& line : lines)
        joined += line + U"\r\n";
    require(std::holds_alternative<std::string>(bytes) &&
                fromAnsi(std::get<std::string>(bytes), codePage) == joined,
            "the script's bytes are its lines in the code page");

    const std::u32string q = U"\"";
    const std::u32string prefix = q + c.gamePath + U"\\BF1942.exe" + q + U" +game " + c.modName +
                                  U" +workingFolder " + q + c.gamePath + U"\\ShadowWork\\" + q;
    std::vector<std::u32string_view> options;
    for (auto [on, option] : {std::pair{c.passes.terrain, U" +traceTerrainShadows "},
                              {c.passes.merge, U" +mergeTerrainShadows "},
                              {c.passes.object, U" +traceObjectShadows "}})
        if (on)
            options.push_back(option);
    for (std::size_t i = 0; i < options.size(); ++i)
        require(lines[2 + i].starts_with(prefix) &&
                    lines[2 + i].compare(prefix.size(), options[i].size(), options[i]) == 0,
                "every pass line is the engine prefix and its option, in pass order");
    const std::string darkness = " " + numberText(c.shadowDarkness) + " 0.4\"";
    require(!c.passes.merge || lines[2 + c.passes.terrain].ends_with(
                                   std::u32string(darkness.begin(), darkness.end())),
            "the merge argument closes with darkness and 0.4");
}

void checkPatchList(const PatchValues& values) {
    const std::string bytes = encodeLmList(values);
    require(bytes.size() == 2 * std::size_t(std::ranges::count(values, 1)),
            "two bytes for each value of 1");
    int previous = -1;
    for (std::size_t at = 0; at < bytes.size(); at += 2) {
        const int column = static_cast<unsigned char>(bytes[at]);
        const int row = static_cast<unsigned char>(bytes[at + 1]);
        const int patch = row * kGridSide + column;
        require(column < kGridSide && row < kGridSide && patch > previous &&
                    values[std::size_t(patch)] == 1,
                "column then row of the patches of value 1, ascending, each once");
        previous = patch;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider in(data, size);
    PatchValues values{};
    for (int& value : values) // mostly 0 and 1, so that selections are dense
        value = in.ConsumeBool() ? in.ConsumeIntegralInRange(0, 1) : in.ConsumeIntegral<int>();
    checkPatchList(values);

    Configuration c;
    c.passes = {in.ConsumeBool(), in.ConsumeBool(), in.ConsumeBool()};
    // Every bit pattern, so NaNs, infinities and subnormals come up as often as plain values.
    c.shadowDarkness = std::bit_cast<double>(in.ConsumeIntegral<std::uint64_t>());
    const CodePage codePage = in.ConsumeBool() ? kUtf8 : kWestern;
    c.gamePath = fromAnsi(in.ConsumeRandomLengthString(), codePage);
    c.levelName = fromAnsi(in.ConsumeRandomLengthString(), codePage);
    c.modName = fromAnsi(in.ConsumeRemainingBytesAsString(), codePage);
    checkNumberText(c.shadowDarkness);
    checkScript(c, codePage);
    return 0;
}
