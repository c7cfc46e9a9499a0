// The dissector has a list of its own of the characters that act on the screen, because it is a
// script of another program. Both lists are the same.

#include "support/VisibleText.h"

#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace kx {

namespace {

using Ranges = std::vector<std::pair<char32_t, char32_t>>;

Ranges rangesOfDissector() {
    std::ostringstream text;
    text << std::ifstream(KX_SOURCE_DIR "/Resources/wireshark/kxconfig.lua").rdbuf();
    const std::string script = text.str();
    const std::size_t begin = script.find("local actingCharacters = {");
    EXPECT_NE(begin, script.npos);
    const std::string list = script.substr(begin, script.find("\n}", begin) - begin);
    const std::regex range(R"(\{ 0x([0-9A-F]+), 0x([0-9A-F]+) \})");
    Ranges ranges;
    for (std::sregex_iterator each(list.begin(), list.end(), range), end; each != end; ++each) {
        ranges.emplace_back(std::stoul((*each)[1], nullptr, 16),
                            std::stoul((*each)[2], nullptr, 16));
    }
    return ranges;
}

} // namespace

TEST(ActingCharactersInDissector, AreTheSameAsOurs) {
    const Ranges ranges = rangesOfDissector();
    ASSERT_FALSE(ranges.empty());
    auto next = ranges.begin();
    for (char32_t code = 0; code <= 0x10FFFF; ++code) {
        while (next != ranges.end() && code > next->second) {
            ++next;
            ASSERT_TRUE(next == ranges.end() || next->first >= code) << "they are not in order";
        }
        const bool isListed = next != ranges.end() && code >= next->first;
        ASSERT_EQ(isListed, actsOnTheScreen(code)) << static_cast<unsigned>(code);
    }
}

} // namespace kx
