#include <doctest/doctest.h>

#include "core/lmlist_format.h"

using namespace umbrakit;

TEST_CASE("lmList.dat records") {
    PatchValues values{};
    SUBCASE("the worked example") {
        values[0] = values[5] = values[35] = values[255] = 1;
        CHECK(encodeLmList(values) == std::string("\x00\x00\x05\x00\x03\x02\x0F\x0F", 8));
    }
    SUBCASE("nothing selected gives an empty file") {
        CHECK(encodeLmList(values).empty());
    }
    SUBCASE("everything selected gives 512 bytes in ascending order, column first") {
        values.fill(1);
        const std::string bytes = encodeLmList(values);
        REQUIRE(bytes.size() == 512);
        for (int index = 0; index < 256; ++index) {
            CHECK(static_cast<unsigned char>(bytes[2 * index]) == index % 16);
            CHECK(static_cast<unsigned char>(bytes[2 * index + 1]) == index / 16);
        }
    }
    SUBCASE("only a value of exactly 1 counts") {
        values[1] = 2;
        values[2] = -1;
        values[16] = 1;
        CHECK(encodeLmList(values) == std::string("\x00\x01", 2));
    }
}
