// The complete states of config.ini while save_loop saves: a few kept records, then one record
// that every save replaces with the other of its two variants. A kill may leave config.ini in
// one of these states and in no other.
#pragma once

#include <string>
#include <vector>

#include "platform/text_lines.h"
#include "saved/config_format.h"

namespace umbrakit::reliability {

inline const char* const kSavedName = "Killed mid-save";

// The variants differ in length, so that a file cut short or mixed from both would show.
inline SavedRecord savedRecord(int variant) {
    const bool second = variant % 2 != 0;
    return {kSavedName,
            second ? "D:\\Games\\Battlefield 1942 " + std::string(300, 'x') : "C:\\BF1942",
            second ? "Wake" : "Berlin",
            second ? "DesertCombat" : "BF1942",
            second,
            !second,
            second,
            second ? "2.25" : "1.5"};
}

inline std::string completeContent(int variant) {
    std::vector<std::string> lines;
    for (const char* kept : {"Kept 1", "Kept 2", "Kept 3"}) {
        const std::vector<std::string> record =
            recordLines({kept, "E:\\BF", kept, "EoD", true, true, false, "0.5"});
        lines.insert(lines.end(), record.begin(), record.end());
    }
    const std::vector<std::string> saved = recordLines(savedRecord(variant));
    lines.insert(lines.end(), saved.begin(), saved.end());
    return joinLines(lines);
}

} // namespace umbrakit::reliability
