// Stands in for BF1942.exe under a real batch processor. Like the engine it is a windowed
// program reading its raw command line (the C runtime's split would take the backslash in
// "ShadowWork\" as escaping the quote). Each start appends to BF1942.log beside it, UTF-8, LF:
// "start <GetCommandLineW>", "folder <working folder>", then after a pause "end", so that a test
// sees whether one pass finished before the next began: the passes read each other's results.
#include <windows.h>

#include <string>

namespace {

std::string utf8(const std::wstring& text) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), int(text.size()), nullptr, 0,
                                         nullptr, nullptr);
    std::string bytes(size_t(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), int(text.size()), bytes.data(), size, nullptr,
                        nullptr);
    return bytes;
}

std::wstring logPath() {
    wchar_t exe[32768] = {};
    GetModuleFileNameW(nullptr, exe, DWORD(std::size(exe)));
    const std::wstring path(exe);
    return path.substr(0, path.rfind(L'\\') + 1) + L"BF1942.log";
}

std::wstring workingFolder() {
    wchar_t folder[32768] = {};
    return std::wstring(folder, GetCurrentDirectoryW(DWORD(std::size(folder)), folder));
}

// Opens, appends and closes at once, so that overlapping starts would interleave their lines.
bool append(const std::wstring& path, const std::string& bytes) {
    HANDLE file = CreateFileW(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE,
                              nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    const bool ok = WriteFile(file, bytes.data(), DWORD(bytes.size()), &written, nullptr) &&
                    written == bytes.size();
    CloseHandle(file);
    return ok;
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    const std::wstring log = logPath();
    const std::string started =
        "start " + utf8(GetCommandLineW()) + "\nfolder " + utf8(workingFolder()) + "\n";
    if (!append(log, started))
        return 1;
    Sleep(250);
    return append(log, "end\n") ? 0 : 1;
}
