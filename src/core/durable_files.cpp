#include "core/durable_files.h"

#include <algorithm>
#include <system_error>

#ifdef _WIN32
#include <chrono>
#include <thread>
#include <windows.h>
#else
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace umbrakit {

namespace {

#ifdef _WIN32

SystemResult systemError() {
    const DWORD code = GetLastError();
    wchar_t* text = nullptr;
    FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM |
                       FORMAT_MESSAGE_IGNORE_INSERTS,
                   nullptr, code, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    std::string reason = "Windows error " + std::to_string(code);
    if (text) {
        const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
        if (size > 1) {
            reason.assign(std::size_t(size - 1), '\0');
            WideCharToMultiByte(CP_UTF8, 0, text, -1, reason.data(), size, nullptr, nullptr);
        }
        LocalFree(text);
        while (!reason.empty() && (reason.back() == '\n' || reason.back() == '\r'))
            reason.pop_back();
    }
    return {false, reason};
}

#else

SystemResult systemError() {
    return {false, std::strerror(errno)};
}

// A rename reaches the disk only with its folder; without this a power cut could bring back
// the old file after the user was told the new one is saved.
void flushFolder(const std::filesystem::path& folder) {
    const int handle = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY);
    if (handle >= 0) {
        ::fsync(handle);
        ::close(handle);
    }
}

#endif

} // namespace

SystemResult lastSystemError() {
    return systemError();
}

#ifdef _WIN32

SystemResult writeDurably(const std::filesystem::path& path, std::string_view bytes) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return systemError();
    std::size_t written = 0;
    while (written < bytes.size()) {
        DWORD now = 0;
        const DWORD chunk = DWORD(std::min<std::size_t>(bytes.size() - written, 1u << 30));
        if (!WriteFile(file, bytes.data() + written, chunk, &now, nullptr) || now == 0)
            break;
        written += now;
    }
    SystemResult result;
    if (written < bytes.size() || !FlushFileBuffers(file))
        result = systemError();
    CloseHandle(file);
    return result;
}

SystemResult renameOver(const std::filesystem::path& from, const std::filesystem::path& to) {
    SystemResult result;
    for (int attempt = 0; attempt < 20; ++attempt) {
        if (MoveFileExW(from.c_str(), to.c_str(),
                        MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return {};
        const DWORD error = GetLastError();
        result = systemError();
        if (error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION &&
            error != ERROR_LOCK_VIOLATION)
            break;
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    return result;
}

#else

SystemResult writeDurably(const std::filesystem::path& path, std::string_view bytes) {
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (file < 0)
        return systemError();
    std::size_t written = 0;
    while (written < bytes.size()) {
        const ssize_t now = ::write(file, bytes.data() + written, bytes.size() - written);
        if (now < 0 && errno == EINTR)
            continue;
        if (now <= 0)
            break;
        written += std::size_t(now);
    }
    SystemResult result;
    if (written < bytes.size() || ::fsync(file) != 0)
        result = systemError();
    if (::close(file) != 0 && result)
        result = systemError();
    return result;
}

SystemResult renameOver(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (std::rename(from.c_str(), to.c_str()) != 0)
        return systemError();
    flushFolder(to.parent_path().empty() ? std::filesystem::path(".") : to.parent_path());
    return {};
}

#endif

bool isMarkedReadOnly(const std::filesystem::path& path) {
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    return !error && std::filesystem::is_regular_file(status) &&
           (status.permissions() & std::filesystem::perms::owner_write) ==
               std::filesystem::perms::none;
}

} // namespace umbrakit
