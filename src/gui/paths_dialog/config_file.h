// config.ini on the disk, read and replaced through the program's file operations. After a
// replacement config.ini is either the whole old file or the whole new one.
#pragma once

#include <QString>
#include <optional>
#include <string>

namespace umbrakit {

struct Services;

class ConfigFile {
  public:
    explicit ConfigFile(const Services& services) : services_(services) {}

    QString path() const;

    // The bytes of config.ini; a missing file has none. If the file cannot be read, the user
    // is told, with failureText first, and the answer is nullopt.
    std::optional<std::string> read(const QString& failureText) const;

    // Puts bytes in the place of config.ini by way of config.tmp, which is gone afterwards.
    // On failure config.ini is as it was and the user is told, with failureText first.
    bool replace(const std::string& bytes, const QString& failureText) const;

    // Removes a config.tmp that a killed rewrite left behind; it is never read.
    void discardTemporary() const;

  private:
    void tellFailure(const QString& failureText, const QString& reason) const;

    const Services& services_;
};

} // namespace umbrakit
