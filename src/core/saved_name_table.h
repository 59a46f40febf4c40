// The saved names as the paths dialog lists them. Row 0 is "(Current)", the current
// configuration; then one row for each name of config.ini, in file order, as far as the
// table's 30 entries reach. The list decides what a rewrite keeps: a record lives on while its
// name is listed. Names are the file's own bytes, so a name is found exactly as it is written.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace umbrakit {

inline constexpr int kSavedNameCapacity = 30;
inline constexpr std::string_view kCurrentRow = "(Current)";

class SavedNameTable {
  public:
    // "(Current)" alone: the names of config.ini are not known, because it could not be read.
    SavedNameTable() = default;
    // The names of config.ini. A head with an empty name takes an entry but gets no row;
    // names beyond the 30 entries get no row either, and their records live on all the same.
    explicit SavedNameTable(std::string_view configBytes);

    bool namesKnown() const { return namesKnown_; }
    const std::vector<std::string>& rows() const { return rows_; }

    // The last of rows 0 to 30 that equals name exactly, or -1. All 31 rows are searched, so
    // a name in the last row is listed like any other; a row behind the last reads as empty.
    int find(std::string_view name) const;

    // A new name needs a free entry; a listed one can always be saved again.
    bool hasRoomFor(std::string_view name) const;

    void remove(int row);
    void append(std::string name);

    // Whether a rewrite keeps a record of this name: while it is listed, or while it stands
    // beyond the table's room and no record of that name is being saved last.
    bool keeps(std::string_view name, std::optional<std::string_view> savedName) const;

  private:
    std::vector<std::string> rows_{std::string(kCurrentRow)};
    std::vector<std::string> beyondTable_;
    bool namesKnown_ = false;
};

} // namespace umbrakit
