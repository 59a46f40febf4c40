// Prints the bytes of go.bat for a configuration given on the command line, so that a test
// script can hand the core's own composition to a real batch processor.
//   go_bat_text <gamePath> <levelName> <modName> <shadowDarkness> <passes>
// <passes> holds t, m and o for the terrain, merge and object passes, or "-" for none.
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

#include "core/ansi_text.h"
#include "core/batch_script.h"
#include "core/number_text.h"

int main(int argc, char** argv) {
    if (argc != 6) {
        std::fputs("usage: go_bat_text <gamePath> <levelName> <modName> <shadowDarkness> "
                   "<passes: t, m, o or ->\n",
                   stderr);
        return 2;
    }
    const std::optional<double> darkness = umbrakit::textToNumber(argv[4]);
    const std::string_view passes = argv[5];
    if (!darkness || passes.find_first_not_of("tmo-") != std::string_view::npos) {
        std::fprintf(stderr, "go_bat_text: bad darkness '%s' or passes '%s'\n", argv[4], argv[5]);
        return 2;
    }
    using umbrakit::fromAnsi, umbrakit::kWestern;
    const umbrakit::Configuration c{fromAnsi(argv[1], kWestern), fromAnsi(argv[2], kWestern),
                                    fromAnsi(argv[3], kWestern), *darkness,
                                    {passes.find('t') != std::string_view::npos,
                                     passes.find('m') != std::string_view::npos,
                                     passes.find('o') != std::string_view::npos}};
    const auto bytes = umbrakit::scriptBytes(c, kWestern);
    const std::string& script = std::get<std::string>(bytes);
    return std::fwrite(script.data(), 1, script.size(), stdout) == script.size() ? 0 : 1;
}
