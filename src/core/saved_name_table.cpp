#include "core/saved_name_table.h"

#include <algorithm>

#include "core/config_walk.h"
#include "core/text_lines.h"

namespace umbrakit {

SavedNameTable::SavedNameTable(std::string_view configBytes) : namesKnown_(true) {
    const std::vector<std::string> names = readSavedNames(splitLines(configBytes));
    for (std::size_t n = 0; n < names.size(); ++n) {
        if (n >= std::size_t(kSavedNameCapacity))
            beyondTable_.push_back(names[n]);
        else if (!names[n].empty())
            rows_.push_back(names[n]);
    }
}

int SavedNameTable::find(std::string_view name) const {
    int found = -1;
    for (int row = 0; row <= kSavedNameCapacity; ++row) {
        const std::string_view text =
            std::size_t(row) < rows_.size() ? std::string_view(rows_[row]) : std::string_view();
        if (text == name)
            found = row;
    }
    return found;
}

bool SavedNameTable::hasRoomFor(std::string_view name) const {
    return find(name) > 0 || int(rows_.size()) - 1 < kSavedNameCapacity;
}

void SavedNameTable::remove(int row) {
    if (row >= 0 && std::size_t(row) < rows_.size())
        rows_.erase(rows_.begin() + row);
}

void SavedNameTable::append(std::string name) {
    rows_.push_back(std::move(name));
}

bool SavedNameTable::keeps(std::string_view name, std::optional<std::string_view> savedName) const {
    if (find(name) != -1)
        return true;
    return std::ranges::find(beyondTable_, name) != beyondTable_.end() && savedName != name;
}

} // namespace umbrakit
