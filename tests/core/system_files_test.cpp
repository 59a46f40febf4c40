// The system calls behind every saved file and behind the start of go.bat. Under Wine these
// run the Windows calls (MoveFileExW, FlushFileBuffers, CreateProcessW), elsewhere POSIX.
#include "core/batch_start.h"
#include "core/durable_files.h"

#include <doctest/doctest.h>

#include <chrono>
#include <fstream>
#include <iterator>
#include <thread>

using namespace umbrakit;
namespace fs = std::filesystem;

namespace {
std::string contentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// A fresh folder whose name holds what a shell or cmd would split on.
fs::path freshFolder(const char* name) {
    const fs::path folder = fs::temp_directory_path() / name / "Program Files (x86) & more";
    fs::remove_all(folder.parent_path());
    fs::create_directories(folder);
    return folder;
}
} // namespace

TEST_CASE("a file is written whole and put in the place of another in one step") {
    const fs::path folder = freshFolder("umbrakit-durable-files");
    const fs::path target = folder / "config.ini", temporary = folder / "config.tmp";
    REQUIRE(writeDurably(target, "old"));
    REQUIRE(writeDurably(temporary, std::string("new\0\r\n", 6)));
    REQUIRE(renameOver(temporary, target));
    CHECK(contentOf(target) == std::string("new\0\r\n", 6));
    CHECK_FALSE(fs::exists(temporary));

    CHECK_FALSE(isMarkedReadOnly(target));
    fs::permissions(target, fs::perms::owner_write, fs::perm_options::remove);
    CHECK(isMarkedReadOnly(target));
    fs::permissions(target, fs::perms::owner_write, fs::perm_options::add);
    CHECK_FALSE(isMarkedReadOnly(folder / "missing"));

    const SystemResult noFolder = writeDurably(folder / "gone" / "go.bat", "x");
    CHECK((!noFolder && !noFolder.reason.empty()));
    CHECK_FALSE(renameOver(folder / "missing", target));
    CHECK(contentOf(target) == std::string("new\0\r\n", 6));
    fs::remove_all(folder.parent_path());
}

TEST_CASE("cmd gets the script's path quoted twice") {
    CHECK(cmdCommandLine(L"C:\\Windows\\system32\\cmd.exe", L"C:\\Umbrakit (x86) & co\\go.bat") ==
          L"\"C:\\Windows\\system32\\cmd.exe\" /s /c \"\"C:\\Umbrakit (x86) & co\\go.bat\"\"");
}

#ifdef _WIN32
TEST_CASE("cmd runs go.bat detached, in its own folder") {
    const fs::path folder = freshFolder("umbrakit-batch-start");
    const fs::path script = folder / "go.bat";
    REQUIRE(writeDurably(script, "@ping -n 2 127.0.0.1 >nul\r\n@echo ran> ran.txt\r\n"));
    const auto start = std::chrono::steady_clock::now();
    REQUIRE(startWithCmd(script));
    CHECK_FALSE(fs::exists(folder / "ran.txt")); // the start did not wait for the script
    while (!fs::exists(folder / "ran.txt") &&
           std::chrono::steady_clock::now() - start < std::chrono::seconds(30))
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    CHECK(contentOf(folder / "ran.txt") == "ran\r\n");
    fs::remove_all(folder.parent_path());
}
#endif
