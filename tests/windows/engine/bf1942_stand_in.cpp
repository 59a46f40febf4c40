// Stands in for BF1942.exe under a real batch processor. Like the engine it is a windowed
// program reading its raw command line (the C runtime's split would take the backslash in
// "ShadowWork\" as escaping the quote). Each start appends to BF1942.log beside it, LF ended:
// "start <command line>", "folder <working folder>", then after a pause "end", so that a test
// sees whether one pass finished before the next began: the passes read each other's results.
// The tests' paths are ASCII, in which the ANSI calls give the same text as the wide ones.
#include <windows.h>

#include <cstdio>
#include <string>

namespace {
// Opens, appends and closes at once, so that overlapping starts would interleave their lines.
bool append(const std::string& path, const std::string& text) {
    FILE* file = std::fopen(path.c_str(), "ab");
    const bool written = file && std::fwrite(text.data(), 1, text.size(), file) == text.size();
    return file && std::fclose(file) == 0 && written;
}
} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    char exe[MAX_PATH] = {}, folder[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, exe, MAX_PATH);
    GetCurrentDirectoryA(MAX_PATH, folder);
    const std::string exePath(exe);
    const std::string log = exePath.substr(0, exePath.rfind('\\') + 1) + "BF1942.log";
    if (!append(log, std::string("start ") + GetCommandLineA() + "\nfolder " + folder + "\n"))
        return 1;
    Sleep(250);
    return append(log, "end\n") ? 0 : 1;
}
