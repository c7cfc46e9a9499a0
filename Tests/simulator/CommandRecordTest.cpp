#include "Simulator/CommandRecord.h"

#include "Simulator/FactorySettings.h"
#include "simulator/Literals.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

namespace kx::simulator {
namespace {

constexpr Network unitNetwork{.base = 0xC0000200, .prefixLength = 24};

class CommandRecordTest : public testing::Test {
protected:
    void TearDown() override { std::filesystem::remove(_path); }

    std::string text() const {
        std::ostringstream contents;
        contents << std::ifstream(_path).rdbuf();
        return contents.str();
    }

    const std::string _path = testing::TempDir() + "a record with blanks";
    SimulatedUnit _unit{factorySettings(2, unitNetwork)};
};

TEST_F(CommandRecordTest, CommandIsALineOfSerialDestinationAndBytes) {
    CommandRecord record(_path);
    record.addCommand(_unit, {.source = {{}, 0xC0000201, 3521},
                              .destination = {{}, 0xC0000232, 10000},
                              .payload = bytesOfText("^^IdX\r")});
    EXPECT_EQ(text(), "");
    record.flush();
    EXPECT_EQ(text(), "4B5800000002 192.0.2.50 10000 5E5E4964580D\n");
}

TEST_F(CommandRecordTest, FinalStateIsALineOfEverySetting) {
    CommandRecord record(_path);
    record.addState(_unit);
    _unit.answer(bytesOfText("^^Id-Z03051407\r"));
    record.addState(_unit);
    record.flush();
    const std::string settings =
        "state 4B5800000002 hardware=02:4B:58:00:00:02 address=192.0.2.12 destination=192.0.2.1 "
        "destination-port=3520 device-port=10000 unit-id=553030303032 "
        "destination-hardware=02:00:00:00:00:01 clock=";
    EXPECT_EQ(text(), settings + "-\n" + settings + "03051407\n");
}

TEST_F(CommandRecordTest, LinesFollowThoseThatAreThere) {
    std::ofstream(_path) << "there\n";
    CommandRecord record(_path);
    record.addCommand(_unit, {.source = {}, .destination = {}, .payload = {}});
    record.flush();
    EXPECT_EQ(text(), "there\n4B5800000002 0.0.0.0 0 \n");
}

TEST(CommandRecord, AFileThatCannotBeOpenedIsAFailure) {
    EXPECT_THROW(CommandRecord("/nonexistent/record"), std::system_error);
}

} // namespace
} // namespace kx::simulator
