#include "units/ParameterEdit.h"

#include <gtest/gtest.h>

#include <tuple>
#include <utility>
#include <vector>

namespace kx {

namespace {

using enum UnitParameter;

ParameterEdit planned(UnitParameter parameter, std::string_view typed) {
    return std::get<ParameterEdit>(editOfParameter(parameter, typed));
}

EditRefusal refusalOf(UnitParameter parameter, std::string_view typed) {
    return std::get<EditRefusal>(editOfParameter(parameter, typed));
}

} // namespace

TEST(ParameterEdit, KnowsHowAUnitShowsTheValue) {
    const std::vector<std::tuple<UnitParameter, std::string, std::optional<std::string>>> cases{
        {internalMACAddress, "001a2b3c4d5e", "00:1A:2B:3C:4D:5E"},
        {destinationMACAddress, "0:0:1a2b3c4d5e", "00:1A:2B:3C:4D:5E"},
        {internalMACAddress, "00:1A:2B:3C:4D", std::nullopt},
        {internalMACAddress, "00-1A-2B-3C-4D-5E", std::nullopt},
        {internalIPAddress, " 10.0.0.7 or so", "10.0.0.7"},
        {destinationIPAddress, "300.1.1.1", "44.1.1.1"},
        {destinationIPAddress, "nonsense", "0.0.0.0"},
        {destinationPortNumber, "3523", "3523"},
        {destinationPortNumber, "80", "3520"},
        {devicePortNumber, "080x", "80"},
        {devicePortNumber, "65536", std::nullopt},
        {devicePortNumber, "-1", std::nullopt},
        {serialNumber, "0a0b0c 0d0e0f", "0A 0B 0C 0D 0E 0F"},
        {serialNumber, "0A", std::nullopt},
        {unitID, "255x", "255"},
        {unitID, "AB", "AB"},
        {unitID, "16706", std::string("\0\0\0\0AB", 6)},
        {unitID, "99999999999", std::nullopt},
    };
    for (const auto& [parameter, typed, shown] : cases) {
        EXPECT_EQ(planned(parameter, typed).expectedText, shown)
            << nameOfUnitParameter(parameter) << ", " << typed;
    }
}

TEST(ParameterEdit, SaysHowTheValueWasChangedOnTheWay) {
    const std::vector<std::tuple<UnitParameter, std::string, std::string, ValueChange>> cases{
        {internalMACAddress, "001a2b3c4d5e", "00:1a:2b:3c:4d:5e", ValueChange::none},
        {internalMACAddress, "00:1A:2B:3C:4D", "001A2B3C4D", ValueChange::wrongLength},
        {destinationMACAddress, "00-1A-2B-3C-4D-5E", "00-1A-2B-3C-4D-5E",
         ValueChange::notHexadecimal},
        {destinationIPAddress, "10.0.0.7", "10.0.0.7", ValueChange::none},
        {destinationIPAddress, "10.0.0.07", "10.0.0.7", ValueChange::readAs},
        {destinationIPAddress, "000.0.0.0", "0.0.0.0", ValueChange::readAs},
        {internalIPAddress, "nonsense", "0.0.0.0", ValueChange::notAnAddress},
        {internalIPAddress, "a0b", "0.0.0.0", ValueChange::notAnAddress},
        {destinationPortNumber, "3523", "3523", ValueChange::none},
        {destinationPortNumber, "03523", "3523", ValueChange::readAs},
        {destinationPortNumber, "3524", "3520", ValueChange::outOfRange},
        {destinationPortNumber, "port", "3520", ValueChange::notANumber},
        {devicePortNumber, "65535", "65535", ValueChange::none},
        {devicePortNumber, "65535.", "65535", ValueChange::readAs},
        {devicePortNumber, "65536", "65536", ValueChange::outOfRange},
        {devicePortNumber, "-1", "-1", ValueChange::outOfRange},
        {devicePortNumber, "-", "0", ValueChange::notANumber},
        {serialNumber, "0a 0b0c 0D0e 0f", "0a 0b 0c 0D 0e 0f", ValueChange::none},
        {serialNumber, "0A", "0A", ValueChange::wrongLength},
        {serialNumber, "0A:0B:0C:0D:", "0A:0B:0C:0D:", ValueChange::notHexadecimal},
        {unitID, "255", "255", ValueChange::none},
        {unitID, "256", "256", ValueChange::notShown},
        {unitID, "7AB", "7", ValueChange::readAs},
        {unitID, "RACK7A", "RACK7A", ValueChange::none},
        {unitID, "RACK7", "RACK7", ValueChange::wrongLength},
        {unitID, "RACK7AB", "RACK7AB", ValueChange::wrongLength},
    };
    for (const auto& [parameter, typed, value, change] : cases) {
        const ParameterEdit edit = planned(parameter, typed);
        EXPECT_EQ(edit.value, value) << nameOfUnitParameter(parameter) << ", " << typed;
        EXPECT_EQ(edit.change, change) << nameOfUnitParameter(parameter) << ", " << typed;
    }
}

TEST(ParameterEdit, HasTheCommandThatIsSent) {
    EXPECT_EQ(planned(destinationPortNumber, "3521").command, "^^IdT0DC1");
    EXPECT_EQ(planned(unitID, "AB").command, "^^IdU4142");
}

TEST(ParameterEdit, AnEmptyTextAndAUnitIDThatIsNoTextAreRefused) {
    for (const UnitParameter parameter : allUnitParameters) {
        EXPECT_EQ(refusalOf(parameter, ""), EditRefusal::emptyValue);
    }
    EXPECT_EQ(refusalOf(unitID, "\xFF"), EditRefusal::notUTF8);
}

TEST(ParameterEdit, IsTooLongBeyondTheLongestDatagram) {
    EXPECT_FALSE(planned(serialNumber, std::string(65'502, '1')).isTooLong());
    EXPECT_TRUE(planned(serialNumber, std::string(65'503, '1')).isTooLong());
}

TEST(LeadingNumber, IsTheSignAndTheDigitsAsTheyWereTyped) {
    EXPECT_EQ(leadingNumber(" +0123x"), "+0123");
    EXPECT_EQ(leadingNumber("-5"), "-5");
    EXPECT_EQ(leadingNumber("-"), "");
    EXPECT_EQ(leadingNumber("x1"), "");
    EXPECT_EQ(leadingNumber(""), "");
}

} // namespace kx
