#include "core/batch_start.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace umbrakit {

std::wstring cmdCommandLine(const std::wstring& cmdPath, const std::wstring& scriptPath) {
    return L"\"" + cmdPath + L"\" /s /c \"\"" + scriptPath + L"\"\"";
}

#ifdef _WIN32

namespace {
// cmd.exe from the system folder, never a namesake beside the program or on the search path.
std::wstring systemCmd() {
    wchar_t folder[MAX_PATH] = {};
    const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
    return length > 0 && length < MAX_PATH ? std::wstring(folder, length) + L"\\cmd.exe"
                                           : std::wstring(L"cmd.exe");
}
} // namespace

SystemResult startWithCmd(const std::filesystem::path& script) {
    const std::wstring cmd = systemCmd();
    std::wstring commandLine = cmdCommandLine(cmd, script.wstring());
    const std::wstring folder = script.parent_path().wstring();
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(cmd.c_str(), commandLine.data(), nullptr, nullptr, FALSE,
                        CREATE_NEW_CONSOLE | CREATE_UNICODE_ENVIRONMENT, nullptr,
                        folder.empty() ? nullptr : folder.c_str(), &startup, &process))
        return lastSystemError();
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return {};
}

#endif

} // namespace umbrakit
