// The one rewrite of config.ini behind Save and Delete, as bytes in and bytes out.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/config_format.h"
#include "core/saved_name_table.h"

namespace umbrakit {

// The new file: every record that the table keeps, unchanged and in file order, then the saved
// record (none for a delete) last, every line ended by CR LF. Stray lines outside records go.
// No records give the empty string, a file of 0 bytes.
std::string rewriteConfig(std::string_view oldBytes, const SavedNameTable& names,
                          const std::optional<SavedRecord>& savedRecord);

} // namespace umbrakit
