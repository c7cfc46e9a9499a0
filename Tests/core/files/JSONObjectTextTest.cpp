#include "files/JSONObjectText.h"

#include "files/UnitJSON.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

namespace kx {

namespace {

// What the library writes of an object with this one text, which is what this class must write.
std::string writtenByTheLibrary(const std::string& text) {
    Json json;
    json["text"] = text;
    return textOfJson(json);
}

std::string written(const std::string& text) {
    JSONObjectText object;
    object.add("text", text);
    return object.text();
}

} // namespace

TEST(JSONObjectText, AnObjectWithoutMembersIsEmpty) {
    EXPECT_EQ(JSONObjectText().text(), "{}");
}

TEST(JSONObjectText, MembersAreInTheOrderInWhichTheyWereAdded) {
    JSONObjectText object;
    object.add("z", "last letter");
    object.add("a", std::optional<std::string_view>());
    object.add("no", std::optional<std::int64_t>());
    object.add("number", std::optional<std::int64_t>(-7));
    object.add("truth", true);
    object.add("lie", false);
    object.addValue("list", "[1]");
    EXPECT_EQ(object.text(), R"({"z":"last letter","a":null,"no":null,"number":-7,)"
                             R"("truth":true,"lie":false,"list":[1]})");
}

TEST(JSONObjectText, NumbersKeepTheirWholeRange) {
    JSONObjectText object;
    object.add("least", std::numeric_limits<std::int64_t>::min());
    object.add("most", std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(object.text(), R"({"least":-9223372036854775808,"most":18446744073709551615})");
}

TEST(JSONObjectText, EachByteIsWrittenAsTheLibraryWritesIt) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text = {'a', static_cast<char>(byte), 'z'};
        EXPECT_EQ(written(text), writtenByTheLibrary(text)) << byte;
    }
}

TEST(JSONObjectText, HostileTextsAreWrittenAsTheLibraryWritesThem) {
    for (const char* const text : {"", "\"", "\\\"\\", "\x1b[2J", "\n\r\t\b\f", "\x7f", "\u00e4",
                                   "\u202e", "\U0001F600", "\xff\xfe", "\xe2\x82", "a\xc3"}) {
        EXPECT_EQ(written(text), writtenByTheLibrary(text));
    }
    const std::string zeroBytes("A\0B\0", 4);
    EXPECT_EQ(written(zeroBytes), writtenByTheLibrary(zeroBytes));
}

} // namespace kx
