// Prints the core's go.bat for a real batch processor to run. <passes>: t, m, o or "-" for none.
//   go_bat_text <gamePath> <levelName> <modName> <shadowDarkness> <passes>
#include <cstdio>
#include <string>
#include <string_view>

#include "core/ansi_text.h"
#include "core/batch_script.h"
#include "core/number_text.h"

int main(int argc, char** argv) {
    if (argc != 6)
        return 2;
    const std::string_view passes = argv[5];
    using umbrakit::fromAnsi, umbrakit::kWestern;
    const umbrakit::Configuration c{fromAnsi(argv[1], kWestern),
                                    fromAnsi(argv[2], kWestern),
                                    fromAnsi(argv[3], kWestern),
                                    umbrakit::textToNumber(argv[4]).value_or(0),
                                    {passes.find('t') != std::string_view::npos,
                                     passes.find('m') != std::string_view::npos,
                                     passes.find('o') != std::string_view::npos}};
    const std::string script = std::get<std::string>(umbrakit::scriptBytes(c, kWestern));
    return std::fwrite(script.data(), 1, script.size(), stdout) == script.size() ? 0 : 1;
}
