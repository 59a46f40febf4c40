// Writing a file so that it survives a crash or a power cut, and putting it in the place of
// another in one step: the system calls behind every file the program saves, on Windows and
// elsewhere alike.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace umbrakit {

struct SystemResult {
    bool ok = true;
    std::string reason; // the system's reason, as UTF-8 text, when not ok
    explicit operator bool() const { return ok; }
};

// Creates or truncates the file, writes all bytes and flushes them to the disk.
SystemResult writeDurably(const std::filesystem::path& path, std::string_view bytes);

// Puts `from` in the place of `to` in one step, so that `to` is either the whole old file or
// the whole new one, and flushes the change to the disk. On Windows a file held for a moment
// by a virus scanner or an indexer is tried again a few times.
SystemResult renameOver(const std::filesystem::path& from, const std::filesystem::path& to);

// The system's reason why its last call failed.
SystemResult lastSystemError();

// The file's own read-only mark, not whether this user could write it anyway: an
// administrator may write everything, yet a file marked read-only is one the user protects.
bool isMarkedReadOnly(const std::filesystem::path& path);

} // namespace umbrakit
