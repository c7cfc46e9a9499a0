// The forecast on the quiet line is true at every moment.

#include "ControllerFixture.h"
#include "RegistryRecords.h"
#include "units/IdentityText.h"
#include "words/EditForecast.h"

#include <functional>
#include <optional>
#include <random>

namespace kx {

namespace {

using enum UnitParameter;

class ControllerForecast : public ControllerTest {
protected:
    ControllerForecast() { launch(); }

    static constexpr const char* nothingSent =
        "Apply sends nothing: the UDP listener is not running.";
};

} // namespace

TEST_F(ControllerForecast, SaysThatAnotherUnitHasTheSerialNumberThatIsGivenAway) {
    discoverTwo();
    selectRow(serialNumber);
    controller.editTextDidChange("010203040507");
    EXPECT_EQ(quietLine(), "Apply sends ^^IdS010203040507: serial number 01 02 03 04 05 07, which "
                           "another unit has.");
    controller.editTextDidChange("010203040506"); // its own
    EXPECT_EQ(quietLine(), "Apply sends ^^IdS010203040506: serial number 01 02 03 04 05 06.");
    controller.editTextDidChange("010203040508");
    EXPECT_EQ(quietLine(), "Apply sends ^^IdS010203040508: serial number 01 02 03 04 05 08.");
}

// The registry keeps the record of a serial number that a unit had before.
TEST_F(ControllerForecast, AUnitMayTakeBackASerialNumberThatItHadBefore) {
    SampleUnit renamed;
    renamed.serial.back() = 9;
    discover({SampleUnit(), renamed});
    selectUnit("01 02 03 04 05 09");
    selectRow(serialNumber);
    store("010203040506");
    EXPECT_EQ(quietLine(), "Apply sends ^^IdS010203040506: serial number 01 02 03 04 05 06.");
    controller.applyEditParameterButton();
    receive(SampleUnit().acknowledgement());
    EXPECT_EQ(quietLine(), "The unit accepted a command and was asked for its parameters.");
}

TEST_F(ControllerForecast, SaysSoFromTheMomentTheOtherUnitAnswers) {
    discover({SampleUnit()});
    selectRow(serialNumber);
    store("010203040507");
    EXPECT_EQ(quietLine(), "Apply sends ^^IdS010203040507: serial number 01 02 03 04 05 07.");
    receive(secondSampleUnit().reply());
    EXPECT_EQ(quietLine(), "Apply sends ^^IdS010203040507: serial number 01 02 03 04 05 07, which "
                           "another unit has.");
    selectUnit("01 02 03 04 05 06");
    discover({});
    selectUnit("01 02 03 04 05 07");
    EXPECT_EQ(quietLine(), "Apply sends ^^IdS010203040507: serial number 01 02 03 04 05 07. It "
                           "goes to the unit 01 02 03 04 05 07, which was not shown when the row "
                           "was chosen.");
}

TEST_F(ControllerForecast, SaysThatNothingIsSentWhileTheListenerIsStopped) {
    discover({SampleUnit()});
    selectRow(unitID);
    EXPECT_EQ(quietLine(), "Apply sends ^^IdU00000000002A: unit ID 42.");
    discoverInVain();
    EXPECT_EQ(quietLine(), nothingSent);
    controller.editTextDidChange("7");
    EXPECT_EQ(quietLine(), nothingSent);
    selectRow(devicePortNumber);
    EXPECT_EQ(quietLine(), nothingSent);
    discover({});
    EXPECT_EQ(quietLine(), "Apply sends ^^IdP2710: device port 10000.");
}

TEST_F(ControllerForecast, IsTrueAsSoonAsTheListenerHasStoppedOrStarted) {
    discover({SampleUnit()});
    selectRow(unitID);
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    controller.udpPortSelect();
    EXPECT_EQ(quietLine(), nothingSent);
    controller.udpPortSelect();
    EXPECT_EQ(quietLine(), "Apply sends ^^IdU00000000002A: unit ID 42.");
}

TEST_F(ControllerForecast, OfAMoveKeepsTheARPEntryWhileTheListenerIsStopped) {
    discover({SampleUnit()});
    discoverInVain();
    selectRow(internalIPAddress);
    store("10.0.0.7");
    EXPECT_EQ(quietLine(), std::string("Apply enters 10.0.0.7 at 00:1A:2B:3C:4D:5E in the ARP "
                                       "cache, which needs administrator rights. ") +
                               nothingSent);
}

TEST_F(ControllerForecast, FollowsTheRecordOfTheSelectedUnit) {
    discover({SampleUnit()});
    selectRow(unitID);
    receive(sparseReplyOf(SampleUnit()));
    EXPECT_EQ(quietLine(), "Apply sends nothing: the address of the unit is not known.");
    receive(SampleUnit().reply());
    EXPECT_EQ(quietLine(), "Apply sends ^^IdU00000000002A: unit ID 42.");

    selectRow(internalIPAddress);
    SampleUnit exchanged;
    exchanged.internalMAC.back() = 0x77;
    receive(exchanged.reply());
    EXPECT_TRUE(quietLine().starts_with("Apply enters 192.168.1.10 at 00:1A:2B:3C:4D:77"))
        << quietLine();
}

// A screen reader would say it with each reply.
TEST_F(ControllerForecast, IsNotSaidAgainForRepliesThatDoNotChangeIt) {
    discoverTwo();
    selectRow(unitID);
    const int before = window.quietLine.setCount();
    for (const SampleUnit& unit : {SampleUnit(), secondSampleUnit()}) {
        receive(unit.reply());
        receive(unit.acknowledgement());
    }
    EXPECT_EQ(window.quietLine.setCount(), before);
    receive(sparseReplyOf(SampleUnit()));
    EXPECT_EQ(window.quietLine.setCount(), before + 2) << "with a warning in front of it";
}

namespace {

// A person and a network that do anything at any time. The expected forecast is made from what can
// be seen of the controller, without its own idea of when a forecast has to change.
class AnyForecast : public ControllerForecast {
protected:
    void doAnything(std::mt19937& random) {
        const auto pick = [&](std::size_t count) { return random() % count; };
        SampleUnit unit;
        unit.serial.back() = static_cast<std::uint8_t>(pick(12));
        unit.internalMAC.back() = unit.serial.back();
        switch (pick(19)) {
        case 0:
            return controller.discoverButton();
        case 1:
            systemCalls.failNext(Operation::bind, EADDRINUSE);
            return controller.udpPortSelect();
        case 2:
            return runLoop.advanceBy(std::chrono::milliseconds(pick(2500)));
        case 3:
        case 4:
            return receiveIfListening(unit.reply());
        case 5:
            return receiveIfListening(sparseReplyOf(unit));
        case 6:
            return receiveIfListening(unit.acknowledgement());
        case 7:
        case 8:
            return selectUnit(serialNumberText(unit.serial));
        case 9:
        case 10:
            return selectAnyRow(pick(2) == 0 ? static_cast<int>(indexOf(serialNumber))
                                             : static_cast<int>(pick(10)) - 1);
        case 11:
            typed = anyText(random);
            return controller.editTextDidChange(*typed);
        case 12:
            typed = anyText(random);
            return store(*typed);
        case 13:
            return controller.applyEditParameterButton();
        case 14:
            return controller.sendOptionButton();
        case 15:
            return controller.restoreDefaultSettings();
        case 16:
            return controller.reloadUnitParameterButton();
        case 17:
            authority.endTools(static_cast<int>(pick(2)));
            return authority.answerDialogsWith(pick(2) == 0 ? errAuthorizationSuccess
                                                            : errAuthorizationDenied);
        default:
            return controller.myHelp();
        }
    }

    // Mostly a serial number that a unit has, or will have.
    static std::string anyText(std::mt19937& random) {
        static const Lines texts{"10.0.0.7", "3521", "", "Zürich"};
        const auto pick = random() % 12;
        return pick < texts.size() ? texts[pick]
                                   : hexStringForData(Bytes{1, 2, 3, 4, 5, std::uint8_t(pick)}, "");
    }

    void receiveIfListening(const Bytes& datagram) {
        if (controller.udpListener()->port() != 0) {
            receive(datagram);
        }
    }

    void selectAnyRow(int row) {
        window.unitParameterTableView.selectRow(row);
        controller.tableViewSelectionDidChange();
        typed = row >= 0 ? editCell("parameterValue") : typed;
        unitOfRow = row >= 0 ? controller.selectedUnit() : unitOfRow;
    }

    // The unit that the line says to have the address, if what it says is true.
    std::optional<std::string> truthfulHolder(const ParameterEdit& edit) const {
        for (const auto& [serial, record] : recordsBySerialNumber(controller.devices())) {
            const auto hardware = record.value(internalMACAddress);
            const bool isItself =
                serial == controller.selectedUnit() ||
                (hardware.has_value() && hardware == selectedValue(internalMACAddress));
            if (!isItself && record.value(internalIPAddress) == edit.value &&
                quietLine().find("The unit " + serial + " has it.") != std::string::npos) {
                return serial;
            }
        }
        return std::nullopt;
    }

    std::string editCell(const std::string& column) {
        const auto cell = controller.tableViewObjectValueForTableColumnRow({column}, 0);
        const std::string* const text = cell.has_value() ? cell->text() : nullptr;
        return text != nullptr ? *text : "";
    }

    std::string expectedForecast() {
        const auto parameter = unitParameterForName(editCell("parameterName"));
        if (!parameter.has_value()) {
            return "";
        }
        const auto edit = editOfParameter(*parameter, typed.value_or(""));
        CommandTarget target{.unitIsSelected = controller.selectedUnit().has_value(),
                             .address = selectedValue(internalIPAddress),
                             .hardwareAddress = selectedValue(internalMACAddress),
                             .isListening = controller.udpListener()->port() != 0};
        if (const auto* const planned = std::get_if<ParameterEdit>(&edit)) {
            target.newSerialNumberIsTaken =
                *parameter == serialNumber && planned->expectedText.has_value() &&
                planned->expectedText != controller.selectedUnit() &&
                controller.devices().find(*planned->expectedText) != nullptr;
            const bool isAnother = unitOfRow.has_value() && unitOfRow != controller.selectedUnit();
            target.unitInPlaceOfRow = isAnother ? controller.selectedUnit() : std::nullopt;
            const auto holder =
                *parameter == internalIPAddress ? truthfulHolder(*planned) : std::nullopt;
            target.trouble = holder.has_value() ? EditTrouble::addressOfAnotherUnit
                                                : troubleOfEdit(*planned, {});
            target.holderOfAddress = holder.value_or("");
        }
        return forecastOfEdit(edit, target);
    }

    std::optional<std::string> selectedValue(UnitParameter parameter) const {
        const UnitRecord* const found =
            controller.devices().find(controller.selectedUnit().value_or(""));
        const auto text = found != nullptr ? found->value(parameter) : std::nullopt;
        return text.has_value() ? std::optional<std::string>(*text) : std::nullopt;
    }

    std::optional<std::string> typed;
    std::optional<std::string> unitOfRow;
};

} // namespace

TEST_F(AnyForecast, IsTrueWhateverHappens) {
    std::mt19937 random(20231115); // the same events in every run
    int forecasts = 0;
    for (int run = 0; run < 500; ++run) {
        launch();
        unitOfRow.reset();
        discover({SampleUnit()});
        selectAnyRow(static_cast<int>(random() % 8));
        for (int step = 0; step < 40; ++step) {
            doAnything(random);
            if (std::holds_alternative<QuietLine::Forecast>(controller.quietLine().state())) {
                ASSERT_EQ(quietLine(), expectedForecast()) << "run " << run << ", step " << step;
                forecasts += quietLine().empty() ? 0 : 1;
            }
        }
    }
    EXPECT_GT(forecasts, 5000);
}

} // namespace kx
