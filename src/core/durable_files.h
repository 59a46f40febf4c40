// Writing a file so that it survives a crash or a power cut, and putting it in the place of
// another in one step: the system calls behind every file the program saves, on Windows and
// elsewhere alike.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace umbrakit {

struct SystemResult {
    bool ok = true;
    std::string reason; // the system's reason, as UTF-8 text, when not ok
    explicit operator bool() const { return ok; }
};

// The system's file calls that saving a file is made of, one step each, so that a test can
// watch them happen and in which order. systemFiles() makes the real calls.
class SystemFiles {
  public:
    using Handle = std::intptr_t;
    virtual ~SystemFiles() = default;
    // Creates or truncates the file for writing.
    virtual SystemResult create(const std::filesystem::path& path, Handle& file) = 0;
    virtual SystemResult write(Handle file, std::string_view bytes) = 0; // all of them
    virtual SystemResult flush(Handle file) = 0;                         // to the disk
    virtual SystemResult close(Handle file) = 0;
    // Replaces `to` in one step; its folder still has to reach the disk.
    virtual SystemResult rename(const std::filesystem::path& from,
                                const std::filesystem::path& to) = 0;
    virtual void flushFolder(const std::filesystem::path& folder) = 0;
};

SystemFiles& systemFiles();

// Creates or truncates the file, writes all bytes and flushes them to the disk.
SystemResult writeDurably(const std::filesystem::path& path, std::string_view bytes,
                          SystemFiles& files = systemFiles());

// Puts `from` in the place of `to` in one step, so that `to` is either the whole old file or
// the whole new one, and flushes the change to the disk before it returns. On Windows a file
// held for a moment by a virus scanner or an indexer is tried again a few times.
SystemResult renameOver(const std::filesystem::path& from, const std::filesystem::path& to,
                        SystemFiles& files = systemFiles());

// The system's reason why its last call failed.
SystemResult lastSystemError();

// The file's own read-only mark, not whether this user could write it anyway: an
// administrator may write everything, yet a file marked read-only is one the user protects.
bool isMarkedReadOnly(const std::filesystem::path& path);

} // namespace umbrakit
