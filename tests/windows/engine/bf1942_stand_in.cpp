// Stands in for the game's BF1942.exe when go.bat is run by a real batch processor: it writes
// down how it was started and exits. Like the engine it is a windowed program that reads its
// own raw command line; the C runtime's argument split would treat the backslash in
// "ShadowWork\" as escaping the closing quote, which the engine does not.
//
// Each start appends to BF1942.log beside the program, in UTF-8 with LF line ends:
//   start <the command line exactly as GetCommandLineW gives it>
//   folder <the working folder>
//   end
// The pause before "end" lets a test see whether the batch processor waited for one pass to
// finish before it started the next: the engine's passes read each other's results.
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
