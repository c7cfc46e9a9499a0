// What is written apart from the parameter table, the dissector, the protocol's page and the help,
// agrees with it, row by row: nothing is missing and nothing is left over.

#include "units/ParameterList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <fstream>
#include <iterator>
#include <optional>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace kx {

namespace {

using Words = std::vector<std::string>;

constexpr std::size_t bytesOfTag = 3;

Words linesOfFile(const std::string& path) {
    std::ifstream file(std::string(KX_SOURCE_DIR) + "/" + path);
    EXPECT_TRUE(file.is_open()) << path;
    Words lines;
    for (std::string line; std::getline(file, line);) {
        lines.push_back(line);
    }
    EXPECT_FALSE(lines.empty()) << path;
    return lines;
}

// The groups of the pattern in each line that it is found in.
std::vector<Words> foundIn(const Words& lines, const std::string& pattern) {
    const std::regex expression(pattern);
    std::vector<Words> found;
    for (const std::string& line : lines) {
        std::smatch match;
        if (std::regex_search(line, match, expression)) {
            found.emplace_back(std::next(match.begin()), match.end());
        }
    }
    return found;
}

// The first group of the pattern in each line that it is found in, in alphabetical order.
Words firstGroups(const Words& lines, const std::string& pattern) {
    Words groups;
    for (const Words& match : foundIn(lines, pattern)) {
        groups.push_back(match.at(0));
    }
    std::ranges::sort(groups);
    return groups;
}

// One text of each row, or of each row that a command changes, in alphabetical order.
template<class Text>
Words ofEveryRow(Text text) {
    Words texts;
    for (const auto& row : parameterTable) {
        texts.push_back(text(row));
    }
    std::ranges::sort(texts);
    return texts;
}

Words commandLetters() {
    Words letters;
    for (const auto& row : parameterTable) {
        if (row.isEditable()) {
            letters.emplace_back(1, row.commandLetter);
        }
    }
    std::ranges::sort(letters);
    return letters;
}

Words names() {
    return ofEveryRow([](const auto& row) { return std::string(row.name); });
}

std::string inSmallLetters(std::string_view text) {
    std::string small(text);
    std::ranges::transform(small, small.begin(),
                           [](unsigned char letter) { return std::tolower(letter); });
    return small;
}

std::string bytesOf(const ParameterDescription& row) {
    return std::to_string(lengthOfValue(row.form));
}

// How many parameters there are, as the help says it.
std::string countInWords() {
    constexpr std::array<const char*, 13> numbers{"no",   "one",    "two",   "three", "four",
                                                  "five", "six",    "seven", "eight", "nine",
                                                  "ten",  "eleven", "twelve"};
    return numbers.at(unitParameterCount);
}

} // namespace

// --- The dissector ---

TEST(DissectorOfTheTable, KnowsEveryTagWithTheLengthOfItsValue) {
    std::set<std::string> expected{std::string(1, tagOfUninterpretedItem[1]) + " 6 item <o>"};
    for (const auto& row : parameterTable) {
        expected.insert(std::string(1, row.tag[1]) + " " + bytesOf(row) + " " +
                        inSmallLetters(row.name));
    }
    std::set<std::string> found;
    for (const Words& item : foundIn(linesOfFile("Resources/wireshark/kxconfig.lua"),
                                     R"re(^    ([A-Z]) = \{ name = "([^"]*)", length = (\d+))re")) {
        found.insert(item.at(0) + " " + item.at(2) + " " + inSmallLetters(item.at(1)));
    }
    EXPECT_EQ(found, expected);
}

// It has one letter for both, and says which of its items no command sets.
TEST(DissectorOfTheTable, TakesTheLetterOfATagForThatOfTheCommand) {
    Words readOnly{std::string(1, tagOfUninterpretedItem[1])};
    for (const auto& row : parameterTable) {
        if (row.isEditable()) {
            EXPECT_EQ(row.commandLetter, row.tag[1]) << row.name;
        } else {
            readOnly.emplace_back(1, row.tag[1]);
        }
    }
    std::ranges::sort(readOnly);
    EXPECT_EQ(firstGroups(linesOfFile("Resources/wireshark/kxconfig.lua"),
                          R"re(^    ([A-Z]) = \{.*isReadOnly = true)re"),
              readOnly);
}

TEST(DissectorOfTheTable, IsTestedWithACommandForEachParameter) {
    const Words datagrams = linesOfFile("Tests/wireshark/datagrams.txt");
    for (const auto& row : parameterTable) {
        if (row.isEditable()) {
            const std::string command = std::string("^^Id") + row.commandLetter;
            const std::string meaning = " | set " + inSmallLetters(row.name);
            EXPECT_TRUE(std::ranges::any_of(datagrams, [&](const std::string& line) {
                return line.starts_with(command) &&
                       inSmallLetters(line).find(meaning) != std::string::npos;
            })) << row.name;
        }
    }
}

// --- The protocol's page ---

TEST(ProtocolPageOfTheTable, HasARowForEachCommand) {
    EXPECT_EQ(firstGroups(linesOfFile("docs/protocol.md"), R"(^\| `\^\^Id([A-Z])…` \|)"),
              commandLetters());
}

TEST(ProtocolPageOfTheTable, HasARowForEachItem) {
    Words expected = ofEveryRow([](const auto& row) {
        return std::string(row.tag) + " " + bytesOf(row) + " " + std::string(row.name);
    });
    expected.push_back(std::string(tagOfUninterpretedItem) + " 6 not interpreted, not stored");
    std::ranges::sort(expected);
    Words found;
    for (const Words& item : foundIn(linesOfFile("docs/protocol.md"),
                                     R"(^\| `(<.>)` \| (\d+) octets[^|]* \| ([^|]*) \|)")) {
        found.push_back(item.at(0) + " " + item.at(1) + " " + item.at(2));
    }
    std::ranges::sort(found);
    EXPECT_EQ(found, expected);
}

TEST(ProtocolPageOfTheTable, LaysAWholeReplyOutWithoutGaps) {
    const Words lines = linesOfFile("docs/protocol.md");
    std::size_t offset = 21; // behind the header
    Words tags;
    for (const Words& item : foundIn(lines, R"(^\| (\d+) \| (\d+) \| `(<.>)` \|)")) {
        EXPECT_EQ(item.at(0), std::to_string(offset)) << item.at(2);
        const auto row = std::ranges::find(parameterTable, item.at(2), &ParameterDescription::tag);
        ASSERT_NE(row, parameterTable.end()) << item.at(2);
        EXPECT_EQ(item.at(1), std::to_string(bytesOfTag + lengthOfValue(row->form))) << item.at(2);
        offset += bytesOfTag + lengthOfValue(row->form);
        tags.push_back(item.at(2));
    }
    std::ranges::sort(tags);
    EXPECT_EQ(tags, ofEveryRow([](const auto& row) { return std::string(row.tag); }));
    EXPECT_EQ(firstGroups(lines, R"(sends a reply of (\d+) bytes)"), Words{std::to_string(offset)});
}

// --- The help ---

TEST(HelpOfTheTable, HasARowForEachParameterWithItsCommand) {
    Words expected = ofEveryRow([](const auto& row) {
        return std::string(row.name) + " " +
               (row.isEditable() ? std::string("^^Id") + row.commandLetter : "nothing");
    });
    const Words lines = linesOfFile("Resources/homepage/parameters.html");
    Words found;
    std::optional<std::string> name;
    for (const std::string& line : lines) {
        for (const Words& row : foundIn({line}, "^<tr><td><b>([^<]*)</b></td>")) {
            name = row.at(0);
        }
        for (const Words& cell :
             foundIn({line}, R"(<td>(<code>)?(\^\^Id.|nothing)(</code>)?</td></tr>$)")) {
            found.push_back(name.value_or("(no name)") + " " + cell.at(1));
            name.reset();
        }
        if (line == "</table>") {
            break; // those that follow are of one parameter each
        }
    }
    std::ranges::sort(found);
    EXPECT_EQ(found, expected);
}

TEST(HelpOfTheTable, HasAParagraphForEachParameter) {
    const Words lines = linesOfFile("Resources/homepage/parameters.html");
    const Words all = names();
    Words found;
    for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
        for (const Words& heading : foundIn({lines[i]}, "^<h2 id=\"[a-z-]*\">([^<]*)</h2>$")) {
            if (std::ranges::binary_search(all, heading.at(0))) {
                EXPECT_TRUE(lines[i + 1].starts_with("<p>")) << heading.at(0);
                found.push_back(heading.at(0));
            }
        }
    }
    std::ranges::sort(found);
    EXPECT_EQ(found, all);
}

TEST(HelpOfTheTable, CountsTheParameters) {
    for (const char* page : {"parameters", "first-steps"}) {
        const Words lines = linesOfFile(std::string("Resources/homepage/") + page + ".html");
        EXPECT_EQ(firstGroups(lines, "(?:has|lists) ([a-z]+) parameters"), Words{countInWords()})
            << page;
    }
}

TEST(HelpOfTheTable, ShowsEachParameterInTheExampleOfTheLog) {
    EXPECT_EQ(firstGroups(linesOfFile("Resources/homepage/log.html"), "^\t([^:]*): "), names());
}

// --- The simulated units; what they do is tested by their bytes ---

TEST(SimulatedUnitsOfTheTable, TellWhatTheyTake) {
    const Words rows = linesOfFile("Simulator/README.md");
    Words found;
    for (const std::string& row : rows) {
        if (row.find("digits") != std::string::npos && row.starts_with("| `^^Id")) {
            const std::regex letter(R"(`\^\^Id([A-Z])`)");
            for (std::sregex_iterator match(row.begin(), row.end(), letter), end; match != end;
                 ++match) {
                found.push_back((*match)[1]);
            }
        }
    }
    std::ranges::sort(found);
    EXPECT_EQ(found, commandLetters());
}

} // namespace kx
