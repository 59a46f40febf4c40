// config.ini on the disk: its lines read through the program's file operations, and its
// replacement, after which config.ini is either the whole old file or the whole new one.
// Lines stay single-byte text, one byte a character, as the format counts them; fromAnsi and
// toAnsi convert only the names and values that meet the controls.
#pragma once

#include <QString>
#include <optional>
#include <string>
#include <vector>

namespace umbrakit {

struct Services;

class ConfigFile {
  public:
    explicit ConfigFile(const Services& services) : services_(services) {}

    QString path() const;

    // The lines of config.ini; a missing file has none. If the file cannot be read, the user
    // is told, with failureText first, and the answer is nullopt.
    std::optional<std::vector<std::string>> readLines(const QString& failureText) const;

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
