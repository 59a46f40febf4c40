// The menu entry's Exec line, as a launcher reads it back: string escapes first, then "%%" as
// "%", then the quotes and their backslashes. Each path must come back as exactly one argument.
#include "core/desktop_entry.h"

#include <doctest/doctest.h>

#include <utility>

using namespace umbrakit;

TEST_CASE("the program's path in the Exec and TryExec values") {
    const std::pair<const char*, const char*> programAndExec[] = {
        {"/opt/umbrakit", "/opt/umbrakit"},    {"/j/100%/u", "/j/100%%/u"},
        {"/j/My Maps/u", R"("/j/My Maps/u")"}, {"/j/$HOME/u", R"("/j/\\$HOME/u")"},
        {"/j/\"hi\"/u", R"("/j/\\"hi\\"/u")"}, {"/j/`x`/u", R"("/j/\\`x\\`/u")"},
        {"/j/a\\b/u", R"("/j/a\\\\b/u")"},     {"/j/it's 50% off/u", R"("/j/it's 50%% off/u")"},
        {"/j/a\nb\t/u", R"("/j/a\nb\t/u")"},   {"/j/(a);b|c&d/u", R"("/j/(a);b|c&d/u")"},
        {"/j/a\rb/u", R"("/j/a\rb/u")"}};
    for (const auto& [program, exec] : programAndExec)
        CHECK_MESSAGE(desktopExecValue(program) == exec, program);
    // TryExec is a plain path, never quoted; every placeholder is replaced, nothing else.
    CHECK(desktopEntryText("TryExec=@UMBRAKIT_TRY_EXEC@\nExec=@UMBRAKIT_EXEC@ @UMBRAKIT_EXEC@\n"
                           "Name=@UMBRAKIT@\n",
                           "/a b/c\\d") ==
          "TryExec=/a b/c\\\\d\nExec=\"/a b/c\\\\\\\\d\" \"/a b/c\\\\\\\\d\"\nName=@UMBRAKIT@\n");
}
