// Reading config.ini by position, and rewriting it: records as the program writes them and as
// hands have edited them.
#include "core/config_format.h"
#include "core/config_rewrite.h"
#include "core/config_walk.h"
#include "core/saved_settings.h"
#include "core/text_lines.h"

#include <doctest/doctest.h>

using namespace umbrakit;

namespace {

SavedRecord rec(std::string name, std::string level = "lvl") {
    return {std::move(name), "D:\\Saved Games\\BF1942", std::move(level), "m", {true, false, true},
            "1.50"};
}

std::string fileOf(const std::vector<SavedRecord>& records) {
    std::vector<std::string> lines;
    for (const SavedRecord& r : records)
        for (std::string& line : recordLines(r))
            lines.push_back(std::move(line));
    return joinLines(lines);
}

std::optional<std::string> get(const RecordValues& v, RecordKey k) {
    return v.values[static_cast<std::size_t>(k)];
}

} // namespace

TEST_CASE("lines, heads and values") {
    CHECK(splitLines("a\r\nb\rc\n\nlast") == std::vector<std::string>{"a", "b\rc", "", "last"});
    CHECK(nameOfHead("[Save=a=b]]") == "a=b]");
    CHECK(nameOfHead("[Save=cut") == "cu"); // the last character goes, "]" or not
    for (const char* odd : {"", "[Save]", "[Save=", "[Save=]", "x="})
        CHECK(nameOfHead(odd).empty());
    CHECK(valueOfLine("gamePath=C:\\a=b") == "C:\\a=b");
    CHECK(valueOfLine("gamePath").empty());
    CHECK(keyOfLine("levelName=my gamePath map") == RecordKey::GamePath);
    CHECK(keyOfLine("shadowDarkness=levelName") == RecordKey::LevelName);
    CHECK_FALSE(keyOfLine("GamePath=x").has_value());
    for (const char* yes : {"True", "TRUE", " true\t", "-1", "+01", "99999999999999999999"})
        CHECK(textToBoolean(yes) == true);
    for (const char* no : {"False", "fAlSe ", "0", "-0", "000"})
        CHECK(textToBoolean(no) == false);
    for (const char* neither : {"", " ", "Yes", "1.5", "-", "Tr ue", "99x"})
        CHECK_FALSE(textToBoolean(neither).has_value());
}

TEST_CASE("awkward names and values survive the trip through the file") {
    const std::vector<std::string> names{"a=b",       "x]y",       " sp ace ",
                                         "(Current)", "(current)", "c\rr"};
    std::vector<SavedRecord> records;
    for (const std::string& n : names)
        records.push_back(rec(n, "=lvl=" + n));
    const auto lines = splitLines(fileOf(records));
    CHECK(readSavedNames(lines) == names); // "Saved Games" in the path adds no name
    for (const std::string& n : names)
        CHECK(get(findRecordValues(lines, n), RecordKey::LevelName) == "=lvl=" + n);
    CHECK_FALSE(findRecordValues(lines, "A=B").found);
}

TEST_CASE("hand-edited files are read by position") {
    // Stray lines are passed over; a cut record ends the walk and is padded when kept.
    const std::string cut = "junk\r\n[Save=a]\r\ngamePath=x\r\nlevelName";
    CHECK(readSavedNames(splitLines(cut)) == std::vector<std::string>{"a"});
    const RecordValues v = findRecordValues(splitLines(cut), "a");
    CHECK(get(v, RecordKey::GamePath) == "x");
    CHECK(get(v, RecordKey::LevelName) == ""); // no "=" gives an empty value
    // a record saved behind the cut one keeps its own head
    CHECK(rewriteConfig(cut, SavedNameTable(cut), rec("b")) ==
          "[Save=a]\r\ngamePath=x\r\nlevelName\r\n\r\n\r\n\r\n\r\n\r\n" + fileOf({rec("b")}));

    // A record of three value lines swallows the next head.
    auto lines = splitLines(fileOf({rec("short"), rec("next", "L2")}));
    lines.erase(lines.begin() + 4, lines.begin() + 8);
    CHECK(readSavedNames(lines) == std::vector<std::string>{"short"});
    CHECK(get(findRecordValues(lines, "short"), RecordKey::LevelName) == "L2");
    CHECK_FALSE(get(findRecordValues(lines, "short"), RecordKey::TerrainBoolean)); // 8th line
    CHECK(findRecordValues(lines, "next").found);

    // The first of two identical heads counts; a level name holding gamePath is a game path.
    const RecordValues twice =
        findRecordValues(splitLines(fileOf({rec("d", "gamePath"), rec("d", "2")})), "d");
    CHECK(get(twice, RecordKey::GamePath) == "gamePath");
    CHECK_FALSE(get(twice, RecordKey::LevelName));
}

// A head is any line holding "Save": one edited by hand is listed, loaded only by its exact
// text, and kept byte for byte, or deleted whole, by every rewrite.
TEST_CASE("heads that do not start their line") {
    const std::string values = fileOf({{"x", "D:\\BF", "l", "m", {}, "1"}}).substr(10);
    const struct {
        const char* head;
        const char* name; // its row, if any
        bool kept;        // by a rewrite of other records
    } heads[] = {{" [Save=a]", "a", true},    {"\t[Save=a]", "a", true},
                 {"old [Save=a]", "a", true}, {"[Save=a] ", "a]", true},
                 {"Saved=b]", "b", true},     {"x[Save=Save=c]", "Save=c", true},
                 {"Save it", nullptr, true},  {"[save=a]", nullptr, false},
                 {"[SAVE=a]", nullptr, false}};
    for (const auto& [head, name, kept] : heads) {
        CAPTURE(head);
        const std::string odd = std::string(head) + "\r\n" + values;
        const std::string file = fileOf({rec("first")}) + odd + fileOf({rec("last")});
        const SavedNameTable names(file);
        std::vector<std::string> listed{"(Current)", "first"};
        if (name)
            listed.push_back(name);
        listed.push_back("last");
        CHECK(names.rows() == listed);
        const std::string keptLines = kept ? odd : "";
        CHECK(std::get<Rewrite>(planSave(names, rec("new"), file)).configBytes ==
              fileOf({rec("first")}) + keptLines + fileOf({rec("last"), rec("new")}));
        CHECK(std::get<Rewrite>(planDelete(names, int(listed.size()) - 1, file)).configBytes ==
              fileOf({rec("first")}) + keptLines);
        if (name) { // its own Delete takes all eight lines; loading needs the exact head
            CHECK(std::get<Rewrite>(planDelete(names, 2, file)).configBytes ==
                  fileOf({rec("first"), rec("last")}));
            CHECK_FALSE(findRecordValues(splitLines(file), name).found);
        }
    }
}
