// The paths dialog's logic on plain values: the saved names, a row loaded into the boxes, the
// record a Save writes, the rewrites of Save and Delete, and what OK applies.
#include "core/saved_settings.h"
#include "core/text_lines.h"

#include <doctest/doctest.h>

#include <tuple>

using namespace umbrakit;

namespace {

// A record as the program writes it; passes as "101" for terrain and object.
std::string record(const std::string& name, const std::string& level = "l",
                   const char* passes = "000", const std::string& darkness = "1") {
    const auto word = [passes](int i) { return std::string(passes[i] == '1' ? "True" : "False"); };
    return "[Save=" + name + "]\r\ngamePath=g\r\nlevelName=" + level +
           "\r\nmodName=m\r\nterrainBoolean=" + word(0) + "\r\nmergeBoolean=" + word(1) +
           "\r\nobjectBoolean=" + word(2) + "\r\nshadowDarkness=" + darkness + "\r\n";
}

std::string numbered(int first, int last) {
    std::string file;
    for (int i = first; i <= last; ++i)
        file += record("N" + std::to_string(i));
    return file;
}

std::vector<std::string> rows(std::initializer_list<const char*> names) {
    std::vector<std::string> list{"(Current)"};
    list.insert(list.end(), names.begin(), names.end());
    return list;
}

DialogRefusal refusalOf(const auto& outcome) {
    return std::get<DialogRefusal>(outcome);
}

} // namespace

TEST_CASE("the saved name table") {
    const SavedNameTable full(numbered(1, 32));
    // The last row is searched like any other, names are found exactly, and row 0 is listed.
    CHECK((full.rows().size() == 31 && full.find("N30") == 30 && full.find("(Current)") == 0));
    CHECK(full.find("n1") == -1);
    CHECK((!full.hasRoomFor("New") && full.hasRoomFor("N30")));
    // Names beyond the table's room keep their records, unless one of them is saved anew.
    CHECK((full.keeps("N31", std::nullopt) && !full.keeps("N31", "N31")));
    CHECK_FALSE(full.keeps("Gone", std::nullopt));

    const SavedNameTable holed(record("") + numbered(1, 30)); // an empty name takes an entry
    CHECK((holed.rows().size() == 30 && holed.find("N30") == -1));
    CHECK(holed.keeps("N30", std::nullopt));
    CHECK((SavedNameTable().rows() == rows({}) && !SavedNameTable().namesKnown()));
}

TEST_CASE("loading a row into the boxes") {
    const std::string file =
        record("Wake", "Wake=Island", "101", "2.50") +
        "[Save=wake]\r\ngamePath=g2\r\nlevelName\r\nterrainBoolean=\r\nmergeBoolean=Yes\r\n"
        "objectBoolean=0\r\nshadowDarkness=dark\r\n\r\n";
    DialogEntries e{U"typed", U"G", U"L", U"M", U"9", {false, true, false}};
    showSaved(e, file, "Wake", kWestern);
    CHECK(e == DialogEntries{U"Wake", U"g", U"Wake=Island", U"m", U"2.5", {true, false, true}});
    // No modName line keeps the box; no Boolean keeps the pass; no number shows as saved.
    showSaved(e, file, "wake", kWestern);
    CHECK(e == DialogEntries{U"wake", U"g2", U"", U"m", U"dark", {true, false, false}});
    showSaved(e, file, "WAKE", kWestern); // no such head: nothing changes
    CHECK(e.settingName == U"wake");

    showCurrent(e, {U"D:\\BF", U"Level", U"EoD", 0.75, {false, true, true}});
    CHECK(e == DialogEntries{U"wake", U"D:\\BF", U"Level", U"EoD", U"0.75", {false, true, true}});
}

TEST_CASE("what a Save writes, or why it writes nothing") {
    const DialogEntries valid{U"café",   U"D:\\Jeux", U"Forêt",
                              U"BF1942", U"1.50",     {true, false, true}};
    CHECK(joinLines(recordLines(std::get<SavedRecord>(recordToSave(valid, kWestern)))) ==
          "[Save=caf\xE9]\r\ngamePath=D:\\Jeux\r\nlevelName=For\xEAt\r\nmodName=BF1942\r\n"
          "terrainBoolean=True\r\nmergeBoolean=False\r\nobjectBoolean=True\r\n"
          "shadowDarkness=1.50\r\n");
    using R = DialogRefusal;
    const std::tuple<std::u32string DialogEntries::*, std::u32string, DialogRefusal> refusals[] = {
        {&DialogEntries::settingName, U"", {R::NoName}},
        {&DialogEntries::settingName, U"(Current)", {R::NoName}}, // only in exactly this form
        {&DialogEntries::settingName, U"Ω", {R::Unwritable, TextField::SettingName, U'Ω'}},
        {&DialogEntries::levelName, U"a\nb", {R::LineBreak, TextField::LevelName}},
        {&DialogEntries::shadowDarkness, U"✓", {R::Unwritable, TextField::ShadowDarkness, U'✓'}}};
    for (const auto& [text, value, refusal] : refusals) {
        DialogEntries e = valid;
        e.*text = value;
        CHECK(refusalOf(recordToSave(e, kWestern)) == refusal);
        e.settingName = U"(current)";
        CHECK(std::holds_alternative<SavedRecord>(recordToSave(e, kWestern)) ==
              (text == &DialogEntries::settingName));
    }
}

TEST_CASE("Save and Delete: the file, the rows and the selected row after each") {
    const std::string file = record("Wake") + record("Midway") + record("Berlin");
    const SavedNameTable names(file);
    const auto rewrite = [](const auto& plan) { return std::get<Rewrite>(plan); };
    const auto check = [](const Rewrite& r, const std::string& bytes,
                          std::initializer_list<const char*> listed, int selected) {
        CHECK(r.configBytes == bytes);
        CHECK(r.names.rows() == rows(listed));
        CHECK(r.selectedRow == selected);
    };
    // A new name goes last; a listed one is replaced and moves last with its row.
    check(rewrite(planSave(names, {"New", "g", "l", "m", {}, "1"}, file)), file + record("New"),
          {"Wake", "Midway", "Berlin", "New"}, 4);
    check(rewrite(planSave(names, {"Midway", "g", "x", "m", {}, "1"}, file)),
          record("Wake") + record("Berlin") + record("Midway", "x"), {"Wake", "Berlin", "Midway"},
          3);
    // Only the selected record goes, and row 0 is selected.
    check(rewrite(planDelete(names, 2, file)), record("Wake") + record("Berlin"),
          {"Wake", "Berlin"}, 0);
    CHECK(refusalOf(planDelete(names, 0, file)).reason == DialogRefusal::NothingSelected);
    const std::string hand = record("(Current)");
    CHECK(refusalOf(planDelete(SavedNameTable(hand), 1, hand)).reason == DialogRefusal::NoName);

    // A full list refuses a new name but replaces its last row; records beyond its room survive.
    const std::string thirty = numbered(1, 30), more = numbered(1, 32);
    CHECK(refusalOf(planSave(SavedNameTable(thirty), {"N31", "g", "l", "m", {}, "1"}, thirty))
              .reason == DialogRefusal::NoRoom);
    CHECK(rewrite(planSave(SavedNameTable(thirty), {"N30", "g", "x", "m", {}, "1"}, thirty))
              .configBytes == numbered(1, 29) + record("N30", "x"));
    CHECK(rewrite(planDelete(SavedNameTable(more), 1, more)).configBytes == numbered(2, 32));
}

TEST_CASE("what OK applies") {
    const DialogEntries e{U"x",      U"C:\\Game",        U"Level =1", U"Not A Listed Mod",
                          U" 0.75 ", {true, true, false}};
    CHECK(std::get<Configuration>(configurationToApply(e)) ==
          Configuration{U"C:\\Game", U"Level =1", U"Not A Listed Mod", 0.75, {true, true, false}});
    for (auto text :
         {&DialogEntries::gamePath, &DialogEntries::levelName, &DialogEntries::modName}) {
        DialogEntries incomplete = e;
        incomplete.*text = U"";
        CHECK(refusalOf(configurationToApply(incomplete)).reason == DialogRefusal::Incomplete);
    }
    for (const char32_t* darkness : {U"dark", U"", U"1,5", U"１"}) {
        DialogEntries no = e;
        no.shadowDarkness = darkness;
        CHECK(refusalOf(configurationToApply(no)).reason == DialogRefusal::DarknessNotNumber);
    }
}
