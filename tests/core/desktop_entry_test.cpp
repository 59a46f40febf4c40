// The menu entry's Exec line, as a launcher reads it back: string escapes first, then "%%" as
// "%", then the quotes and their backslashes. Each path must come back as exactly one argument.
#include "core/desktop_entry.h"

#include <doctest/doctest.h>

using namespace umbrakit;

TEST_CASE("the program's path in the Exec and TryExec values") {
    const struct {
        const char* program;
        const char* exec; // as the .desktop file holds it
    } cases[] = {
        {"/opt/umbrakit/umbrakit", "/opt/umbrakit/umbrakit"},
        {"/home/jo/100%/umbrakit", "/home/jo/100%%/umbrakit"},
        {"/home/jo/My Maps/umbrakit", R"("/home/jo/My Maps/umbrakit")"},
        {"/home/jo/$HOME/umbrakit", R"("/home/jo/\\$HOME/umbrakit")"},
        {"/home/jo/say \"hi\"/umbrakit", R"("/home/jo/say \\"hi\\"/umbrakit")"},
        {"/home/jo/`x`/umbrakit", R"("/home/jo/\\`x\\`/umbrakit")"},
        {"/home/jo/a\\b/umbrakit", R"("/home/jo/a\\\\b/umbrakit")"},
        {"/home/jo/it's 50% off/umbrakit", R"("/home/jo/it's 50%% off/umbrakit")"},
        {"/home/jo/two\nlines\t/umbrakit", R"("/home/jo/two\nlines\t/umbrakit")"},
        {"/home/jo/(a);b|c&d/umbrakit", R"("/home/jo/(a);b|c&d/umbrakit")"},
    };
    for (const auto& [program, exec] : cases) {
        CAPTURE(program);
        CHECK(desktopExecValue(program) == exec);
    }
    // TryExec is a plain path, never quoted; every placeholder is replaced, nothing else.
    CHECK(desktopEntryText("TryExec=@UMBRAKIT_TRY_EXEC@\nExec=@UMBRAKIT_EXEC@ @UMBRAKIT_EXEC@\n"
                           "Name=@UMBRAKIT@\n",
                           "/a b/c\\d") ==
          "TryExec=/a b/c\\\\d\nExec=\"/a b/c\\\\\\\\d\" \"/a b/c\\\\\\\\d\"\nName=@UMBRAKIT@\n");
}
