#include "commands/CommandTable.h"

#include "commands/CommandHelp.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>

namespace kx {

namespace {

std::vector<OptionRow> optionsOf(const CommandRow& row) {
    std::vector<OptionRow> all(row.options.begin(), row.options.end());
    all.insert(all.end(), generalOptions().begin(), generalOptions().end());
    return all;
}

bool contains(const std::string& text, std::string_view part) {
    return text.find(part) != std::string::npos;
}

} // namespace

TEST(CommandTable, EveryRowIsWholeAndFoundByItsName) {
    for (const CommandRow& row : commandTable()) {
        EXPECT_EQ(commandForName(row.name), &row);
        EXPECT_FALSE(row.summary.empty() || row.text.empty() || row.examples.empty()) << row.name;
        EXPECT_FALSE(row.summary.ends_with('.')) << row.name;
        EXPECT_NE(row.run, nullptr) << row.name;
        EXPECT_EQ(row.arguments.empty(), row.mostWords == 0) << row.name;
    }
    EXPECT_EQ(commandForName("nothing"), nullptr);
}

TEST(CommandTable, NoOptionHasTwoMeaningsInACommand) {
    for (const CommandRow& row : commandTable()) {
        std::set<std::string_view> names;
        for (const OptionRow& option : optionsOf(row)) {
            EXPECT_TRUE(names.insert(option.name).second) << row.name << " " << option.name;
            EXPECT_EQ(option.value.empty(), option.kind == ValueKind::none) << option.name;
            EXPECT_FALSE(option.text.empty()) << option.name;
        }
    }
}

TEST(CommandTable, TheSameOptionTakesAValueEverywhereOrNowhere) {
    for (const CommandRow& left : commandTable()) {
        for (const CommandRow& right : commandTable()) {
            for (const OptionRow& one : left.options) {
                for (const OptionRow& other : right.options) {
                    EXPECT_TRUE(one.name != other.name || one.kind == other.kind) << one.name;
                }
            }
        }
    }
}

TEST(CommandTable, TheHelpTellsEveryCommandAndEveryOption) {
    const std::string program = helpOfProgram();
    EXPECT_TRUE(contains(program, "Example"));
    for (const CommandRow& row : commandTable()) {
        EXPECT_TRUE(contains(program, "\n  " + std::string(row.name))) << row.name;
        const std::string help = helpOfCommand(row);
        for (const OptionRow& option : optionsOf(row)) {
            EXPECT_TRUE(contains(help, "\n  " + std::string(option.name))) << option.name;
        }
        for (const std::string_view example : row.examples) {
            EXPECT_TRUE(contains(help, example));
        }
    }
}

TEST(CommandTable, TheHelpFitsATerminal) {
    std::string all = helpOfProgram();
    for (const CommandRow& row : commandTable()) {
        all += helpOfCommand(row);
    }
    std::istringstream lines(all);
    for (std::string line; std::getline(lines, line);) {
        EXPECT_LE(line.size(), 80U) << line;
        EXPECT_FALSE(line.ends_with(' ')) << line;
    }
}

TEST(CommandTable, TheManualPageAndTheCompletionsTellThemToo) {
    const std::string page = manualPage("2030-01-31");
    EXPECT_TRUE(page.starts_with(".TH KXCTL 1 \"2030-01-31\""));
    for (const std::string& text : {bashCompletion(), zshCompletion(), fishCompletion()}) {
        for (const CommandRow& row : commandTable()) {
            EXPECT_TRUE(contains(text, row.name)) << row.name;
            for (const OptionRow& option : optionsOf(row)) {
                EXPECT_TRUE(contains(text, option.name.substr(option.name.rfind('-') + 1)));
            }
        }
        EXPECT_TRUE(contains(text, "destination-port="));
    }
    for (const CommandRow& row : commandTable()) {
        EXPECT_TRUE(contains(page, ".SS " + std::string(row.name))) << row.name;
        EXPECT_TRUE(row.options.empty() || contains(page, "\\-\\-")) << row.name;
    }
}

TEST(CommandTable, AManualPageHasNoLineThatWouldBeARequestByAccident) {
    std::istringstream lines(manualPage("2030-01-31"));
    const std::set<std::string> requests{".TH", ".SH", ".SS", ".PP", ".TP", ".B",
                                         ".BI", ".BR", ".RI", ".I",  ".EX", ".EE"};
    for (std::string line; std::getline(lines, line);) {
        EXPECT_FALSE(line.starts_with('\'')) << line;
        if (line.starts_with('.')) {
            EXPECT_TRUE(requests.contains(line.substr(0, line.find(' ')))) << line;
        }
    }
}

} // namespace kx
