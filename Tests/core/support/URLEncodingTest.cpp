#include "support/URLEncoding.h"

#include <gtest/gtest.h>

#include <string_view>

namespace kx {
namespace {

TEST(URLEncoding, EscapesWhatHasAMeaningInAURL) {
    EXPECT_EQ(stringByURLEncoding("a b&c"), "a%20b%26c");
    EXPECT_EQ(stringByURLEncoding("x/y?z"), "x%2Fy%3Fz");
    EXPECT_EQ(stringByURLEncoding("!*'();:@&=+$,/?%#[]"),
              "%21%2A%27%28%29%3B%3A%40%26%3D%2B%24%2C%2F%3F%25%23%5B%5D");
}

TEST(URLEncoding, EscapesWhatNoURLMayHold) {
    EXPECT_EQ(stringByURLEncoding("\"<>\\^`{|}"), "%22%3C%3E%5C%5E%60%7B%7C%7D");
    EXPECT_EQ(stringByURLEncoding(std::string_view("\0\n\x7F", 3)), "%00%0A%7F");
}

TEST(URLEncoding, KeepsLettersDigitsAndFourMarks) {
    constexpr std::string_view kept =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~";
    EXPECT_EQ(stringByURLEncoding(kept), kept);
    EXPECT_EQ(stringByURLEncoding(""), "");
}

TEST(URLEncoding, EscapesEachByteOfOtherCharacters) {
    EXPECT_EQ(stringByURLEncoding("é"), "%C3%A9");
    EXPECT_EQ(stringByURLEncoding("装置"), "%E8%A3%85%E7%BD%AE");
}

TEST(URLEncoding, AnEscapedTextIsEscapedAgain) {
    EXPECT_EQ(stringByURLEncoding("a%20b"), "a%2520b");
}

TEST(FileURL, KeepsTheFoldersAndEscapesTheirNames) {
    EXPECT_EQ(fileURLForPath("/usr/share/kxconfig/homepage/index.html"),
              "file:///usr/share/kxconfig/homepage/index.html");
    EXPECT_EQ(fileURLForPath("/home/Zoë/my help/#1?.html"),
              "file:///home/Zo%C3%AB/my%20help/%231%3F.html");
    EXPECT_EQ(fileURLForPath("/"), "file:///");
    EXPECT_EQ(fileURLForPath("/a//b/"), "file:///a//b/");
}

TEST(FileURL, OnlyAnAbsolutePathHasOne) {
    EXPECT_EQ(fileURLForPath("index.html"), std::nullopt);
    EXPECT_EQ(fileURLForPath(""), std::nullopt);
}

} // namespace
} // namespace kx
