#include "commands/CommandLine.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

using Words = std::vector<std::string>;

CommandLine lineOf(const Words& arguments) {
    const auto line = commandLineOf(arguments);
    if (const auto* const failure = std::get_if<Failure>(&line)) {
        ADD_FAILURE() << failure->message;
        return {};
    }
    return std::get<CommandLine>(line);
}

std::string objectionTo(const Words& arguments) {
    const auto line = commandLineOf(arguments);
    const auto* const failure = std::get_if<Failure>(&line);
    if (failure == nullptr) {
        return "(none)";
    }
    EXPECT_EQ(failure->code, ErrorCode::usage);
    EXPECT_EQ(failure->exitStatus, exitWrong);
    return failure->message;
}

} // namespace

TEST(CommandLine, GeneralOptionsStandBeforeOrAfterTheCommand) {
    for (const Words& arguments : {Words{"-i", "kx0", "--json", "discover", "--wait", "3"},
                                   Words{"discover", "--wait=3", "--json", "-i", "kx0"},
                                   Words{"--json", "discover", "-ikx0", "--wait", "3"}}) {
        const CommandLine line = lineOf(arguments);
        EXPECT_EQ(line.command->name, "discover");
        EXPECT_EQ(line.valueOf("-i"), "kx0");
        EXPECT_EQ(line.valueOf("--wait"), "3");
        EXPECT_TRUE(line.has("--json"));
        EXPECT_FALSE(line.has("--quiet"));
        EXPECT_EQ(line.valueOf("--tries"), std::nullopt);
    }
}

TEST(CommandLine, WordsKeepTheirOrder) {
    EXPECT_EQ(lineOf({"set", "id:A", "unit-id=B", "--json", "device-port=-5"}).words,
              (Words{"id:A", "unit-id=B", "device-port=-5"}));
    EXPECT_EQ(lineOf({"show", "show", "set"}).words, (Words{"show", "set"}));
}

TEST(CommandLine, TheTextOfAnOptionCommandMayLookLikeAnOption) {
    EXPECT_EQ(lineOf({"option", "id:A", "-Z11152347"}).words, (Words{"id:A", "-Z11152347"}));
    EXPECT_EQ(lineOf({"option", "id:A", "-Z11152347", "--json"}).words,
              (Words{"id:A", "-Z11152347"}));
    EXPECT_EQ(lineOf({"option", "id:A", "--", "--json"}).words, (Words{"id:A", "--json"}));
    EXPECT_FALSE(lineOf({"option", "id:A", "--", "--json"}).has("--json"));
    EXPECT_EQ(lineOf({"option", "--", "id:A", "-i"}).words, (Words{"id:A", "-i"}));
}

TEST(CommandLine, ThePortIsOneOfFourOrTheFirstThatIsFree) {
    EXPECT_EQ(lineOf({"discover"}).ports, (std::vector<std::uint16_t>{3520, 3521, 3522, 3523}));
    EXPECT_EQ(lineOf({"discover", "--port", "auto"}).ports.size(), 4U);
    EXPECT_EQ(lineOf({"discover", "--port", "3522"}).ports, std::vector<std::uint16_t>{3522});
    for (const char* port : {"3524", "03520", "", "any"}) {
        EXPECT_NE(objectionTo({"discover", "--port", port}), "(none)") << port;
    }
}

TEST(CommandLine, TheLastOfAnOptionCounts) {
    EXPECT_EQ(lineOf({"-i", "kx0", "discover", "-i", "kx2"}).valueOf("-i"), "kx2");
}

TEST(CommandLine, AskingForHelpIsNeverWrong) {
    EXPECT_EQ(lineOf({"--help"}).command, nullptr);
    EXPECT_EQ(lineOf({"set", "--help"}).command->name, "set");
    EXPECT_TRUE(lineOf({"--version"}).has("--version"));
}

TEST(CommandLine, SixWordsAreToldHowToBeWritten) {
    const std::string objection = objectionTo({"show", "4B", "58", "00", "00", "00", "01"});
    EXPECT_NE(objection.find("4B5800000001"), std::string::npos);
    EXPECT_EQ(objectionTo({"option", "4B", "58", "00", "00", "00", "01", "V"}), objection);
    EXPECT_NE(objectionTo({"show", "4B", "58", "00", "00", "00"}), objection);
}

TEST(CommandLine, AMistypedCommandIsGuessedWhenItIsNear) {
    EXPECT_EQ(objectionTo({"dicsover"}),
              "There is no command “dicsover”. Did you mean “discover”?");
    EXPECT_EQ(objectionTo({"frobnicate"}), "There is no command “frobnicate”. See kxctl --help.");
    EXPECT_EQ(objectionTo({"\x1b[2J"}), "There is no command “\uFFFD[2J”. See kxctl --help.");
}

TEST(CommandLine, WhatIsWrongIsTold) {
    for (const Words& arguments :
         {Words{}, Words{"--json"}, Words{"discover", "--all"}, Words{"discover", "word"},
          Words{"show", "--csv", "--json", "id:A"}, Words{"set", "id:A"}, Words{"check"},
          Words{"option", "id:A", "V", "W"}, Words{"discover", "--wait"}, Words{"-i"},
          Words{"--json=x", "discover"}, Words{"discover", "-x"},
          Words{"discover", "--"
                            "wait2"},
          Words{"discover", "--", "--json"}}) {
        EXPECT_NE(objectionTo(arguments), "(none)");
    }
}

TEST(CommandLine, NumbersAreWholeAndAboveZero) {
    const auto numberOf = [](const char* text) {
        return wholeNumberOf(lineOf({"discover", "--tries", text}), "--tries");
    };
    EXPECT_EQ(numberOf("12").number, 12);
    for (const char* text : {"0", "-1", "+1", "2.5", "1e3", " 1", "1 ", "x", "", "99999999999"}) {
        EXPECT_TRUE(numberOf(text).failure.has_value()) << text;
    }
    EXPECT_FALSE(wholeNumberOf(lineOf({"discover"}), "--tries").failure.has_value());
}

TEST(CommandLine, TimesAreSecondsUpToADay) {
    using std::chrono::milliseconds;
    const auto timeOf = [](const char* text) {
        return secondsOf(lineOf({"discover", "--wait", text}), "--wait");
    };
    EXPECT_EQ(timeOf("2").time, milliseconds(2000));
    EXPECT_EQ(timeOf("0.25").time, milliseconds(250));
    EXPECT_EQ(timeOf("86400").time, milliseconds(86'400'000));
    for (const char* text : {"0", "0.0001", "-1", "1e3", "x", "", "2s", "86401", "nan", "inf"}) {
        EXPECT_TRUE(timeOf(text).failure.has_value()) << text;
    }
}

TEST(CommandLine, TheDocumentIsWantedBeforeTheMarkOnly) {
    EXPECT_TRUE(asksForDocument({"dicsover", "--json"}));
    EXPECT_FALSE(asksForDocument({"option", "--", "--json"}));
    EXPECT_EQ(commandNameIn({"--json", "show", "--nonsense"}), "show");
    EXPECT_EQ(commandNameIn({"--json", "shwo"}), std::nullopt);
}

TEST(CommandLine, WordsStayAsTheyAre) {
    for (const char* word : {"[V]", "[a,b]", "[]", "{}", "%%", "", "-", "a b", "a,b", "\"V\"",
                             "'V'", "V=", "show", "a\\n", "++", "+"}) {
        EXPECT_EQ(lineOf({"option", "id:A", word}).words, (Words{"id:A", word}));
        EXPECT_EQ(lineOf({"option", "id:A", word, "--json"}).words, (Words{"id:A", word}));
        EXPECT_EQ(lineOf({"set", "id:A", "unit-id=B", word}).words,
                  (Words{"id:A", "unit-id=B", word}));
    }
}

TEST(CommandLine, ValuesStayAsTheyAre) {
    for (const char* value : {"[V]", "[a,b]", "[]", "{}", "%%", "", "-", "++", "a b", "a,b",
                              "\"V\"", "'V'", "V=", "=V", "show", "--json", "a\\n"}) {
        EXPECT_EQ(lineOf({"discover", "--save", value}).valueOf("--save"), value);
        EXPECT_EQ(lineOf({"-i", value, "discover"}).valueOf("-i"), value);
        EXPECT_EQ(lineOf({"-i", value, "discover"}).command->name, "discover");
    }
    for (const char* value : {"[V]", "{}", "++", "a,b", "=V"}) {
        EXPECT_EQ(lineOf({"discover", std::string("--save=") + value}).valueOf("--save"), value);
    }
}

TEST(CommandLine, AFlagHasNoValue) {
    for (const char* flag : {"--json=true", "--json=false", "--json={}", "--json=", "--json=0",
                             "--yes=false", "--help=x"}) {
        EXPECT_NE(objectionTo({flag, "restore", "id:A"}), "(none)") << flag;
        EXPECT_NE(objectionTo({"restore", "id:A", flag}), "(none)") << flag;
    }
    EXPECT_EQ(lineOf({"option", "id:A", "--", "--json=x"}).words, (Words{"id:A", "--json=x"}));
}

TEST(CommandLine, TheCommandIsTheFirstWord) {
    EXPECT_EQ(lineOf({"-i", "show", "discover"}).command->name, "discover");
    EXPECT_EQ(lineOf({"option", "show", "discover"}).words, (Words{"show", "discover"}));
    EXPECT_EQ(objectionTo({"++", "discover"}), "There is no command “++”. See kxctl --help.");
    EXPECT_EQ(objectionTo({"--wait", "3", "discover"}),
              "There is no option “--wait” here. See kxctl --help.");
    EXPECT_EQ(commandNameIn({"-i", "show", "discover", "--all"}), "discover");
    EXPECT_EQ(commandNameIn({"discover", "--json=x"}), "discover");
    EXPECT_EQ(commandNameIn({"option", "id:A", "V", "watch"}), "option");
}

TEST(CommandLine, HelpIsGivenWhateverElseIsWrong) {
    for (const Words& arguments :
         {Words{"--nonsense", "--help"}, Words{"set", "--nonsense", "--help"},
          Words{"frobnicate", "--help"}, Words{"discover", "word", "--help"}}) {
        EXPECT_TRUE(lineOf(arguments).has("--help"));
    }
}

} // namespace kx
