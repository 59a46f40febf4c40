#include <doctest/doctest.h>

#include "core/desktop_entry.h"

using namespace umbrakit;

TEST_CASE("the Exec value reads back as the one program path") {
    CHECK(desktopExecValue("/opt/umbrakit/umbrakit") == "/opt/umbrakit/umbrakit");
    CHECK(desktopExecValue("/home/ann/BF 1942 tools/umbrakit") ==
          "\"/home/ann/BF 1942 tools/umbrakit\"");
    // Inside the quotes '"', '`', '$' and '\' are escaped, and then every backslash once more
    // as a string value; four backslashes stand for one.
    CHECK(desktopExecValue("/a \"b\"/$HOME/`x`/c\\d") == R"("/a \\"b\\"/\\$HOME/\\`x\\`/c\\\\d")");
    CHECK(desktopExecValue("/tools/100%/umbrakit") == "/tools/100%%/umbrakit");
    CHECK(desktopExecValue("/a;b/it's/umbrakit") == "\"/a;b/it's/umbrakit\"");
    CHECK(desktopExecValue("/line\nbreak/tab\there") == "\"/line\\nbreak/tab\\there\"");
}

TEST_CASE("the template gets the program in both of its keys and is otherwise kept") {
    const std::string entry = desktopEntryText(
        "[Desktop Entry]\nTryExec=@UMBRAKIT_TRY_EXEC@\nExec=@UMBRAKIT_EXEC@\nIcon=umbrakit\n",
        "/my tools/100%\\umbrakit");
    CHECK(entry == "[Desktop Entry]\nTryExec=/my tools/100%\\\\umbrakit\n"
                   "Exec=\"/my tools/100%%\\\\\\\\umbrakit\"\nIcon=umbrakit\n");
    CHECK(desktopEntryText("Exec=@UMBRAKIT_EXEC@ @UMBRAKIT_EXEC@", "@UMBRAKIT_EXEC@") ==
          "Exec=@UMBRAKIT_EXEC@ @UMBRAKIT_EXEC@");
}
