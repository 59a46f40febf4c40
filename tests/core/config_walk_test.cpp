#include "core/config_walk.h"

#include "core/text_lines.h"

#include <doctest/doctest.h>

using namespace umbrakit;

namespace {

SavedRecord rec(std::string name, std::string level = "lvl") {
    return {std::move(name), "D:\\Saved Games\\BF1942", std::move(level), "m", true, false, true,
            "1.50"};
}

// The lines of a file written by this program, after the full trip through its bytes.
std::vector<std::string> fileOf(const std::vector<SavedRecord>& records) {
    std::vector<std::string> lines;
    for (const SavedRecord& r : records)
        for (std::string& line : recordLines(r))
            lines.push_back(std::move(line));
    return splitLines(joinLines(lines));
}

std::optional<std::string> get(const RecordValues& v, RecordKey k) {
    return v.values[static_cast<std::size_t>(k)];
}

std::function<bool(std::string_view)> allBut(std::string gone) {
    return [gone](std::string_view name) { return name != gone; };
}

} // namespace

TEST_CASE("awkward names and values survive the trip through the file") {
    const std::vector<std::string> names{"a=b",       "x]y",       " sp ace ",
                                         "(Current)", "(current)", "c\rr"};
    std::vector<SavedRecord> records;
    for (const std::string& n : names)
        records.push_back(rec(n, "=lvl=" + n));
    const auto lines = fileOf(records);
    CHECK(readSavedNames(lines) == names); // "Saved Games" in the path adds no name
    for (const std::string& n : names)
        CHECK(get(findRecordValues(lines, n), RecordKey::LevelName) == "=lvl=" + n);
    CHECK_FALSE(findRecordValues(lines, "A=B").found);
    CHECK(readSavedNames({}).empty());
}

TEST_CASE("hand-edited files are read by position") {
    SUBCASE("stray lines outside records are passed over, a short last record ends the walk") {
        const std::vector<std::string> lines{"junk", "[Save=a]", "gamePath=x", "levelName"};
        CHECK(readSavedNames(lines) == std::vector<std::string>{"a"});
        const RecordValues v = findRecordValues(lines, "a");
        CHECK(get(v, RecordKey::GamePath) == "x");
        CHECK(get(v, RecordKey::LevelName) == ""); // no "=" gives an empty value
        const std::vector<std::string> padded{"[Save=a]", "gamePath=x", "levelName", "", "", "",
                                              "", ""};
        CHECK(survivingRecordLines(lines, allBut("")) == padded);
        // a record saved behind the cut one keeps its own head
        const auto after = splitLines(rewrittenConfig(lines, allBut(""), rec("b")));
        CHECK(readSavedNames(after) == std::vector<std::string>{"a", "b"});
    }
    SUBCASE("a record of three value lines swallows the next head") {
        auto lines = fileOf({rec("short"), rec("next", "L2")});
        lines.erase(lines.begin() + 4, lines.begin() + 8);
        CHECK(readSavedNames(lines) == std::vector<std::string>{"short"});
        CHECK(get(findRecordValues(lines, "short"), RecordKey::LevelName) == "L2");
        CHECK(findRecordValues(lines, "next").found);
    }
    SUBCASE("first of two identical heads counts; a level name holding gamePath is a game path") {
        const RecordValues v = findRecordValues(fileOf({rec("d", "gamePath"), rec("d", "2")}), "d");
        CHECK(get(v, RecordKey::GamePath) == "gamePath");
        CHECK_FALSE(get(v, RecordKey::LevelName));
    }
}

TEST_CASE("rewriting keeps listed records in order and puts the new one last") {
    const auto lines = fileOf({rec("a"), rec("b"), rec("a"), rec("c")});
    const auto file = [](std::vector<SavedRecord> recs) { return joinLines(fileOf(recs)); };
    CHECK(rewrittenConfig(lines, allBut("b"), rec("b", "new")) ==
          file({rec("a"), rec("a"), rec("c"), rec("b", "new")}));
    CHECK(rewrittenConfig(lines, allBut("a"), std::nullopt) == file({rec("b"), rec("c")}));
    CHECK(rewrittenConfig(fileOf({rec("only")}), allBut("only"), std::nullopt) == "");
    CHECK(rewrittenConfig({}, allBut(""), rec("first")) == file({rec("first")}));
}
