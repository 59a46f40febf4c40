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

#endif

#ifdef _WIN32

class WindowsFiles : public SystemFiles {
  public:
    SystemResult create(const std::filesystem::path& path, Handle& file) override {
        const HANDLE handle = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                          FILE_ATTRIBUTE_NORMAL, nullptr);
        if (handle == INVALID_HANDLE_VALUE)
            return systemError();
        file = reinterpret_cast<Handle>(handle);
        return {};
    }
    SystemResult write(Handle file, std::string_view bytes) override {
        std::size_t written = 0;
        while (written < bytes.size()) {
            DWORD now = 0;
            const DWORD chunk = DWORD(std::min<std::size_t>(bytes.size() - written, 1u << 30));
            if (!WriteFile(handleOf(file), bytes.data() + written, chunk, &now, nullptr) ||
                now == 0)
                return systemError();
            written += now;
        }
        return {};
    }
    SystemResult flush(Handle file) override {
        return FlushFileBuffers(handleOf(file)) ? SystemResult{} : systemError();
    }
    SystemResult close(Handle file) override {
        return CloseHandle(handleOf(file)) ? SystemResult{} : systemError();
    }
    SystemResult rename(const std::filesystem::path& from,
                        const std::filesystem::path& to) override {
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
    // MOVEFILE_WRITE_THROUGH has flushed the rename with its folder.
    void flushFolder(const std::filesystem::path&) override {}

  private:
    static HANDLE handleOf(Handle file) { return reinterpret_cast<HANDLE>(file); }
};

#else

class PosixFiles : public SystemFiles {
  public:
    SystemResult create(const std::filesystem::path& path, Handle& file) override {
        const int handle = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
        if (handle < 0)
            return systemError();
        file = handle;
        return {};
    }
    SystemResult write(Handle file, std::string_view bytes) override {
        std::size_t written = 0;
        while (written < bytes.size()) {
            const ssize_t now = ::write(int(file), bytes.data() + written, bytes.size() - written);
            if (now < 0 && errno == EINTR)
                continue;
            if (now <= 0)
                return systemError();
            written += std::size_t(now);
        }
        return {};
    }
    SystemResult flush(Handle file) override {
        return ::fsync(int(file)) == 0 ? SystemResult{} : systemError();
    }
    SystemResult close(Handle file) override {
        return ::close(int(file)) == 0 ? SystemResult{} : systemError();
    }
    SystemResult rename(const std::filesystem::path& from,
                        const std::filesystem::path& to) override {
        return std::rename(from.c_str(), to.c_str()) == 0 ? SystemResult{} : systemError();
    }
    // A rename reaches the disk only with its folder; without this a power cut could bring
    // back the old file after the user was told the new one is saved.
    void flushFolder(const std::filesystem::path& folder) override {
        const int handle = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY);
        if (handle >= 0) {
            ::fsync(handle);
            ::close(handle);
        }
    }
};

#endif

} // namespace

SystemFiles& systemFiles() {
#ifdef _WIN32
    static WindowsFiles files;
#else
    static PosixFiles files;
#endif
    return files;
}

SystemResult lastSystemError() {
    return systemError();
}

SystemResult writeDurably(const std::filesystem::path& path, std::string_view bytes,
                          SystemFiles& files) {
    SystemFiles::Handle file = 0;
    SystemResult result = files.create(path, file);
    if (!result)
        return result;
    result = files.write(file, bytes);
    if (result)
        result = files.flush(file);
    const SystemResult closed = files.close(file);
    return result ? closed : result;
}

// The folder follows the rename before the caller hears that the file is saved.
SystemResult renameOver(const std::filesystem::path& from, const std::filesystem::path& to,
                        SystemFiles& files) {
    const SystemResult result = files.rename(from, to);
    if (result)
        files.flushFolder(to.parent_path().empty() ? std::filesystem::path(".") : to.parent_path());
    return result;
}

bool isMarkedReadOnly(const std::filesystem::path& path) {
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    return !error && std::filesystem::is_regular_file(status) &&
           (status.permissions() & std::filesystem::perms::owner_write) ==
               std::filesystem::perms::none;
}

} // namespace umbrakit
