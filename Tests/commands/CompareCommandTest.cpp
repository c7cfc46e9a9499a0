#include "CommandFixture.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace kx {

namespace {

class CompareCommandTest : public CommandTest {
protected:
    CompareCommandTest() {
        std::string name = "/tmp/kxc-XXXXXX";
        folder = ::mkdtemp(name.data());
        file = folder + "/a.json";
        secondFile = folder + "/b.json";
    }
    ~CompareCommandTest() override { std::filesystem::remove_all(folder); }

    // Saves the units that answer now.
    void save(const std::string& path) {
        ASSERT_LE(run({"discover", "--json", "--save", path}), 1) << console.notes;
        ASSERT_TRUE(std::filesystem::exists(path));
    }

    // The sample unit and the second one answer, and that is saved.
    void saveTwo() {
        play({});
        play({.unit = secondSampleUnit()});
        save(file);
    }

    static std::string textIn(const std::string& path) {
        std::ostringstream text;
        text << std::ifstream(path).rdbuf();
        return text.str();
    }

    // Changes a value in a saved document.
    static void rewrite(const std::string& path, const std::function<void(Json&)>& change) {
        Json json = Json::parse(textIn(path));
        change(json);
        std::ofstream(path) << json.dump();
    }

    // "new 1 missing 0 changed 2 same 3", with the numbers of rows.
    static std::string countsIn(const Json& comparison) {
        std::ostringstream text;
        text << "new " << comparison["new"].size() << " missing " << comparison["missing"].size()
             << " changed " << comparison["changed"].size() << " same "
             << comparison["same"].get<int>();
        return text.str();
    }

    std::string counts() const { return countsIn(document()); }

    std::size_t requestsTo(const std::string& place) const {
        const Words all = sentThrough(systemCalls);
        return static_cast<std::size_t>(std::ranges::count(all, place + " ^^IdX"));
    }

    std::string folder;
    std::string file;
    std::string secondFile;
};

} // namespace

TEST_F(CompareCommandTest, TheSameUnitsAreNoDifference) {
    saveTwo();
    EXPECT_EQ(run({"compare", file, "--json"}), 0);
    EXPECT_EQ(counts(), "new 0 missing 0 changed 0 same 2");
    EXPECT_EQ(document()["error"], nullptr);
    EXPECT_EQ(run({"compare", file}), 0);
    EXPECT_EQ(console.output, "");
    EXPECT_EQ(console.notes, "Nothing differs from “" + file + "”: 2 the same.\n");
}

TEST_F(CompareCommandTest, WhatIsSavedIsReadBackWhateverAUnitTells) {
    SampleUnit unit;
    for (const Bytes& unitID :
         {Bytes{0, 0, 0, 0, 0, 0}, Bytes{'R', 0, 'A', 0, 0, 0}, Bytes{0xFF, 0xFE, 1, 2, 3, 4},
          Bytes{'"', '\\', '\n', 0x1B, 7, 0}}) {
        units.clear();
        unit.unitID = unitID;
        unit.internalIP = {192, 168, 1, 10};
        play({.unit = unit});
        save(file);
        EXPECT_EQ(run({"compare", file, "--json"}), 0) << console.output;
    }
}

TEST_F(CompareCommandTest, ADifferenceIsToldParameterByParameter) {
    saveTwo();
    units[0]->unit.devicePort = {0x0F, 0xA0};
    units[0]->unit.unitID = {'R', '1', 0, 0, 0, 0};
    EXPECT_EQ(run({"compare", file, "--json"}), 1);
    EXPECT_EQ(errorCode(), "differs");
    EXPECT_EQ(document()["changed"],
              Json::parse(R"([{"serial":"01 02 03 04 05 06","parameter":"device-port",)"
                          R"("from":"10000","to":"4000"},)"
                          R"({"serial":"01 02 03 04 05 06","parameter":"unit-id","from":"42",)"
                          R"("to":"R1"}])"));
    EXPECT_EQ(counts(), "new 0 missing 0 changed 2 same 1");
    EXPECT_EQ(run({"compare", file}), 1);
    EXPECT_EQ(console.output,
              "state    serial             unit-id  internal-ip   parameter    from   to\n"
              "changed  01 02 03 04 05 06  R1       192.168.1.10  device-port  10000  4000\n"
              "changed  01 02 03 04 05 06  R1       192.168.1.10  unit-id      42     R1\n");
    EXPECT_EQ(console.notes, "kxctl: The units differ from “" + file +
                                 "”: 0 new, 0 missing, 1 changed, 1 the same.\n");
}

TEST_F(CompareCommandTest, UnitIDsOfOneTextAreToldByTheirBytes) {
    SampleUnit unit;
    unit.unitID = {0, 0, 0, 0, 0, 1};
    play({.unit = unit});
    save(file);
    units[0]->unit.unitID = {'1', 0, 0, 0, 0, 0};
    EXPECT_EQ(run({"compare", file, "--json"}), 1);
    EXPECT_EQ(document()["changed"][0]["from"], "000000000001");
    EXPECT_EQ(document()["changed"][0]["to"], "310000000000");
}

TEST_F(CompareCommandTest, AValueThatIsNotToldAnyMoreIsNull) {
    saveTwo();
    rewrite(file, [](Json& json) { json["units"][0]["destination_ip"] = nullptr; });
    EXPECT_EQ(run({"compare", file, "--json"}), 1);
    EXPECT_EQ(document()["changed"][0]["from"], nullptr);
    EXPECT_EQ(document()["changed"][0]["to"], "192.168.1.1");
}

TEST_F(CompareCommandTest, AMissingUnitWasAskedAtItsLastAddress) {
    saveTwo();
    units.pop_back();
    const std::size_t before = requestsTo("192.168.1.11:10000");
    EXPECT_EQ(run({"compare", file, "--json"}), 1);
    EXPECT_EQ(counts(), "new 0 missing 1 changed 0 same 1");
    EXPECT_EQ(document()["missing"][0]["serial"], "01 02 03 04 05 07");
    EXPECT_EQ(document()["missing"][0]["interface"], "kx0");
    EXPECT_EQ(requestsTo("192.168.1.11:10000") - before, 8U);
    EXPECT_EQ(requestsTo("192.168.1.10:10000"), 0U) << "who has answered is left alone";
}

TEST_F(CompareCommandTest, AUnitThatAnswersAtItsLastAddressOnlyIsNotMissing) {
    saveTwo();
    units[1]->hearsBroadcasts = false;
    EXPECT_EQ(run({"compare", file, "--json"}), 0) << console.output;
    EXPECT_EQ(counts(), "new 0 missing 0 changed 0 same 2");
    EXPECT_EQ(run({"discover", "--compare", file, "--json"}), 0);
    EXPECT_EQ(document()["units"].size(), 2U) << "it has answered";
}

TEST_F(CompareCommandTest, ANewUnitIsToldAsAUnit) {
    play({});
    save(file);
    play({.unit = secondSampleUnit()});
    EXPECT_EQ(run({"compare", file, "--json"}), 1);
    EXPECT_EQ(counts(), "new 1 missing 0 changed 0 same 1");
    EXPECT_EQ(document()["new"][0]["internal_ip"], "192.168.1.11");
    EXPECT_EQ(document()["warnings"], Json::array());
}

TEST_F(CompareCommandTest, AfterAnIncompleteDiscoveryANewUnitIsDoubtful) {
    saveTwo();
    rewrite(file, [](Json& json) {
        json["complete"] = false;
        json["units"].erase(1);
    });
    EXPECT_EQ(run({"compare", file, "--json"}), 1);
    EXPECT_EQ(document()["warnings"][0]["code"], "baseline");
    units.pop_back();
    EXPECT_EQ(run({"compare", file, "--json"}), 0);
    EXPECT_EQ(document()["warnings"], Json::array()) << "nothing is called new";
}

TEST_F(CompareCommandTest, NobodyIsCalledMissingWhileDatagramsAreDropped) {
    saveTwo();
    units.pop_back();
    at(100ms, [this] { receiveBuffers.drop(systemCalls.lastDescriptor(), 5); });
    EXPECT_EQ(run({"compare", file, "--json"}), 1);
    EXPECT_EQ(errorCode(), "fewer");
    EXPECT_EQ(counts(), "new 0 missing 0 changed 0 same 1");
    units[0]->unit.devicePort = {0x0F, 0xA0};
    at(100ms, [this] { receiveBuffers.drop(systemCalls.lastDescriptor(), 5); });
    EXPECT_EQ(run({"compare", file, "--json"}), 1);
    EXPECT_EQ(errorCode(), "differs");
    EXPECT_EQ(document()["warnings"][0]["code"], "unverified");
    EXPECT_EQ(counts(), "new 0 missing 0 changed 1 same 0");
}

TEST_F(CompareCommandTest, NobodyIsCalledMissingWhoCouldNotBeAsked) {
    saveTwo();
    units.pop_back();
    rewrite(file, [](Json& json) {
        json["units"][1]["internal_ip"] = "0.0.0.0";
        json["units"][1]["source_ip"] = "0.0.0.0";
    });
    EXPECT_EQ(run({"compare", file, "--json"}), 1);
    EXPECT_EQ(errorCode(), "fewer");
    EXPECT_EQ(counts(), "new 0 missing 0 changed 0 same 1");
}

TEST_F(CompareCommandTest, AUnitOfAnInterfaceThatIsGoneIsAskedByTheRoutes) {
    saveTwo();
    units.pop_back();
    rewrite(file, [](Json& json) { json["units"][1]["interface"] = "kx9"; });
    EXPECT_EQ(run({"compare", file, "--json"}), 1);
    EXPECT_EQ(document()["missing"][0]["interface"], "kx9");
    EXPECT_EQ(systemCalls.sentDatagrams().back().link, 0U);
}

TEST_F(CompareCommandTest, ASignalLeavesNobodyMissing) {
    saveTwo();
    units.pop_back();
    for (const auto time : {100ms, 2300ms}) {
        interruptAfter(time);
        EXPECT_EQ(run({"compare", file, "--json"}), 130);
        EXPECT_EQ(errorCode(), "interrupted");
        EXPECT_EQ(document()["missing"], Json::array());
    }
}

TEST_F(CompareCommandTest, WithTwoFilesNobodyIsAsked) {
    saveTwo();
    units.erase(units.begin());
    units[0]->unit.destinationIP = {192, 168, 1, 77};
    save(secondFile);
    const std::size_t before = systemCalls.sentDatagrams().size();
    interfaces.interfaces.clear();
    EXPECT_EQ(run({"compare", file, secondFile, "--json"}), 1);
    EXPECT_EQ(errorCode(), "differs");
    EXPECT_EQ(counts(), "new 0 missing 1 changed 1 same 0");
    EXPECT_EQ(document()["missing"][0]["interface"], "kx0") << "as the file says";
    EXPECT_EQ(run({"compare", secondFile, file, "--json"}), 1);
    EXPECT_EQ(counts(), "new 1 missing 0 changed 1 same 0");
    EXPECT_EQ(run({"compare", file, file, "--json"}), 0);
    EXPECT_EQ(systemCalls.sentDatagrams().size(), before);
}

TEST_F(CompareCommandTest, AgainstAnIncompleteFileNobodyIsMissing) {
    saveTwo();
    units.pop_back();
    save(secondFile);
    rewrite(secondFile, [](Json& json) { json["complete"] = false; });
    EXPECT_EQ(run({"compare", file, secondFile, "--json"}), 1);
    EXPECT_EQ(errorCode(), "fewer");
    EXPECT_EQ(counts(), "new 0 missing 0 changed 0 same 1");
}

TEST_F(CompareCommandTest, AFileThatHoldsNoDiscoveryIsToldBeforeAnythingIsSent) {
    saveTwo();
    const std::string whole = textIn(file);
    const std::size_t before = systemCalls.sentDatagrams().size();
    const auto expectRefused = [&](const std::string& text, const std::string& reason) {
        std::ofstream(secondFile) << text;
        for (const Words& words :
             {Words{"compare", secondFile}, Words{"compare", file, secondFile},
              Words{"compare", secondFile, file}, Words{"discover", "--compare", secondFile}}) {
            Words all = words;
            all.emplace_back("--json");
            EXPECT_EQ(run(all), 2);
            EXPECT_EQ(errorCode(), "file");
            EXPECT_NE(console.notes.find(reason), std::string::npos) << console.notes;
        }
    };
    expectRefused(whole.substr(0, whole.size() / 2), "is damaged");
    expectRefused("", "is damaged");
    Json json = Json::parse(whole);
    json["schema"] = 2;
    expectRefused(json.dump(), "another version");
    json["schema"] = 1;
    json["command"] = "show";
    expectRefused(json.dump(), "is no saved discovery");
    json["command"] = "discover";
    json["port"] = nullptr;
    expectRefused(json.dump(), "could not ask");
    std::filesystem::remove(secondFile);
    EXPECT_EQ(run({"compare", secondFile, "--json"}), 2);
    EXPECT_EQ(run({"compare", folder, "--json"}), 2);
    EXPECT_EQ(systemCalls.sentDatagrams().size(), before);
}

TEST_F(CompareCommandTest, WhereNobodyCanBeAskedNothingIsCompared) {
    saveTwo();
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    EXPECT_EQ(run({"compare", file, "--json"}), 3);
    EXPECT_EQ(errorCode(), "socket");
    interfaces.interfaces.clear();
    EXPECT_EQ(run({"compare", file, "--json"}), 3);
    EXPECT_EQ(errorCode(), "interface");
    EXPECT_EQ(counts(), "new 0 missing 0 changed 0 same 0");
}

TEST_F(CompareCommandTest, DiscoverComparesAndListsTheUnitsAllTheSame) {
    saveTwo();
    units.pop_back();
    EXPECT_EQ(run({"discover", "--compare", file, "--json"}), 1);
    EXPECT_EQ(errorCode(), "differs");
    EXPECT_EQ(countsIn(document()["compare"]), "new 0 missing 1 changed 0 same 1");
    EXPECT_EQ(document()["units"].size(), 1U);
    EXPECT_EQ(run({"discover", "--compare", file}), 1);
    EXPECT_NE(console.output.find("\n\nstate    serial"), std::string::npos) << console.output;
    EXPECT_EQ(run({"discover", "--compare", file, "--csv"}), 1);
    EXPECT_EQ(console.output.find("missing"), std::string::npos) << "the table stays a table";
    EXPECT_NE(console.notes.find("1 missing"), std::string::npos);
    EXPECT_EQ(run({"discover", "--json"}), 0);
    EXPECT_FALSE(document().contains("compare")) << "nobody asked for it";
}

TEST_F(CompareCommandTest, FewerThanExpectedWeighsMoreThanADifference) {
    saveTwo();
    units.pop_back();
    EXPECT_EQ(run({"discover", "--compare", file, "--expect", "2", "--json"}), 1);
    EXPECT_EQ(errorCode(), "fewer");
    EXPECT_EQ(document()["compare"]["missing"].size(), 1U);
    units.clear();
    EXPECT_EQ(run({"discover", "--compare", file, "--json"}), 1);
    EXPECT_EQ(errorCode(), "not-found");
    EXPECT_EQ(document()["compare"]["missing"].size(), 2U);
}

TEST_F(CompareCommandTest, WhatIsSavedHasTheUnitsWhetherTheDocumentIsPrintedOrNot) {
    saveTwo();
    EXPECT_EQ(run({"discover", "--save", secondFile}), 0);
    EXPECT_EQ(textIn(secondFile), textIn(file));
    EXPECT_EQ(Json::parse(textIn(secondFile))["units"].size(), 2U);
}

TEST_F(CompareCommandTest, OneFileMayBeComparedAndReplaced) {
    saveTwo();
    units.pop_back();
    EXPECT_EQ(run({"discover", "--compare", file, "--save", file, "--json"}), 1);
    EXPECT_EQ(countsIn(document()["compare"]), "new 0 missing 1 changed 0 same 1");
    EXPECT_EQ(textIn(file), console.output);
    EXPECT_EQ(run({"discover", "--compare", file, "--save", file, "--json"}), 0);
    EXPECT_EQ(countsIn(document()["compare"]), "new 0 missing 0 changed 0 same 1");
}

} // namespace kx
