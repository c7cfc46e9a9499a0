#include "platform/qt/LogRowLayout.h"

#include "platform/qtcore/QtText.h"

#include <gtest/gtest.h>

#include <string>

namespace kx {

TEST(LogRowLayout, ShowsControlCharactersAsWhatCannotHarm) {
    const std::string text("a\0\r\x1B\x7F\tb", 7);
    EXPECT_EQ(utf8Text(shownText(text)), "a����\tb");
    EXPECT_EQ(utf8Text(shownText("\u0085\u2028\u2029\u202E\u2066\u200F")), "������");
    EXPECT_EQ(utf8Text(shownText("Ä網😀 שלום")), "Ä網😀 שלום");
}

TEST(LogRowLayout, ShowsTheCarriageReturnThatEndsACommandAsABlank) {
    EXPECT_EQ(utf8Text(shownText("command: ^^IdV\r")), "command: ^^IdV ");
    EXPECT_EQ(utf8Text(shownText("\r\r")), "� ");
}

} // namespace kx
