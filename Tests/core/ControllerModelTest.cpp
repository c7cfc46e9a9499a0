// Random operations on the controller and on a plain model of it; everything that can be seen is
// compared after each. Each life of the program is a few hundred steps long.

#include "RandomController.h"
#include "units/UnitParameter.h"

#include <gtest/gtest.h>

#include <numeric>
#include <string>
#include <vector>

namespace kx {

namespace {

using namespace std::string_literals;

class ControllerModel : public RandomController {
protected:
    struct Action {
        std::uint32_t weight;
        void (ControllerModel::*perform)();
        std::uint32_t performed = 0;
    };

    void performOne() {
        const auto weights = std::accumulate(
            actions.begin(), actions.end(), std::uint32_t{0},
            [](std::uint32_t sum, const Action& action) { return sum + action.weight; });
        std::uint32_t place = random.below(weights);
        for (Action& action : actions) {
            if (place < action.weight) {
                ++action.performed;
                (this->*action.perform)();
                return;
            }
            place -= action.weight;
        }
    }

    // --- Editing, requests and commands ---

    std::string typedValue() {
        static const Strings values{"12",
                                    "7AB",
                                    "AB",
                                    "RACK7A",
                                    "3520",
                                    "3523",
                                    "3524",
                                    "3519",
                                    "-1",
                                    "80",
                                    "65535",
                                    "65536",
                                    "70000",
                                    "99999999999",
                                    "-99999999999",
                                    " 3521x",
                                    "+3522",
                                    "\t\n3521",
                                    "none",
                                    "0",
                                    "00:1a:2B:3c:4D:5e",
                                    "::::",
                                    "00 1A 2B 3C 4D 5E",
                                    "001A2B3C4D5E",
                                    " ",
                                    "10.0.0.7",
                                    "192.168.1.20",
                                    "0x0A.0.0x1.0x0f",
                                    "0xA.0.0.1",
                                    "0X0A.0.0.1",
                                    "1..2.3",
                                    "300.1.1.1",
                                    "1.2.2.300",
                                    "256.1.1.1",
                                    "1234.1.1.1",
                                    " ,-\t\r10.0.0.9",
                                    "\n10.0.0.9",
                                    "10.0.0.1 abc",
                                    "1.2.3",
                                    "1.2.3.4.5",
                                    "255.255.255.255",
                                    "0.0.0.0",
                                    "192.168.1.255",
                                    "nonsense",
                                    "\xC3\xA9",
                                    "\xC2\xB5",
                                    "10.0.0.7\xC3\xA9",
                                    "\xFF"
                                    "AB",
                                    "1\0002"s,
                                    "a\nb",
                                    "%@ %d",
                                    std::string(254 - 7, ' ') + "1.2.3.4",
                                    std::string(255 - 7, ' ') + "1.2.3.4"};
        return random.oneIn(10) ? "" : random.oneOf(values);
    }

    std::string parameterName() {
        return random.oneIn(8)
                   ? random.oneOf<std::string>({"", "Unit ID", "unit id", "<O>", "serial number "})
                   : std::string(random.oneOf(parameterNames));
    }

    void typeIntoCell(const std::string& column, const std::string& text) {
        both->window.editParameterTableView.typeIntoCell(0, column, text);
        both->plain.store(column, text);
    }

    void type() {
        const auto column = random.oneOf<std::string>({"parameterName", "parameterValue", "other"});
        const std::string text = column == "parameterName" ? parameterName() : typedValue();
        random.tell("type into " + column + ": " + model::inOneLine(text));
        typeIntoCell(column, text);
    }

    void apply() {
        random.tell("Apply");
        both->controller.applyEditParameterButton();
        both->plain.apply();
    }

    void editAndApply() {
        const std::string name = parameterName();
        const std::string value = typedValue();
        random.tell("apply " + name + ": " + model::inOneLine(value));
        typeIntoCell("parameterName", name);
        typeIntoCell("parameterValue", value);
        both->controller.applyEditParameterButton();
        both->plain.apply();
    }

    // The editor is still open, and may refuse to end.
    void applyOpenEdit() {
        const std::string value = typedValue();
        random.tell("apply with an open editor: " + model::inOneLine(value));
        both->window.window.beginEdit(
            [this, value] {
                both->window.editParameterTableView.typeIntoCell(0, "parameterValue", value);
            },
            random.oneIn(2));
        both->controller.applyEditParameterButton();
        both->plain.store("parameterValue", value);
        both->plain.apply();
        EXPECT_FALSE(both->window.window.isEditing());
    }

    void reload() {
        random.tell("Reload");
        both->controller.reloadUnitParameterButton();
        both->plain.requestParameters();
    }

    void restore() {
        random.tell("Restore Defaults");
        both->controller.restoreDefaultSettings();
        both->plain.restoreDefaults();
    }

    void chooseOption() {
        if (const auto& titles = both->window.optionCommandPopUp.titles(); !titles.empty()) {
            const std::string title = random.oneOf(titles);
            random.tell("option " + title);
            both->window.optionCommandPopUp.selectItemWithTitle(title);
            both->plain.optionPopUp.choose(title);
        }
        both->controller.optionCommandPopUp();
        both->plain.optionChosen();
    }

    void sendOption() {
        if (random.oneIn(2)) {
            const std::string text = typedValue();
            random.tell("type an option command: " + model::inOneLine(text));
            both->window.optionCommandField.setStringValue(text);
            both->plain.optionField = text;
        }
        random.tell("Send");
        both->controller.sendOptionButton();
        both->plain.sendOption();
    }

    void sendCommand() {
        const auto command =
            random.oneOf<Text>({"^^IdX", "", "a\nb", "^^IdM\xC3\x84", "^^IdP2711", std::nullopt});
        const Text address = random.oneIn(4) ? std::nullopt : Text(typedValue());
        random.tell("send " + model::inOneLine(command.value_or("nothing")) + " to " +
                    model::inOneLine(address.value_or("nobody")));
        const bool isToUnit = random.oneIn(2);
        const bool wasSent = isToUnit ? both->controller.sendCommand(command)
                                      : both->controller.sendCommandToAddress(command, address);
        const bool isSent = isToUnit ? both->plain.sendCommand(command)
                                     : both->plain.sendCommandTo(command, address);
        EXPECT_EQ(wasSent, isSent);
    }

    const std::vector<std::string_view> parameterNames = [] {
        std::vector<std::string_view> names;
        for (const UnitParameter parameter : allUnitParameters) {
            names.push_back(nameOfUnitParameter(parameter));
        }
        return names;
    }();
    std::vector<Action> actions{
        {28, &ControllerModel::receive},
        {1, &ControllerModel::receiveManyAcknowledgements},
        {12, &ControllerModel::passTime},
        {4, &ControllerModel::failNextCall},
        {3, &ControllerModel::tellEvent},
        {3, &ControllerModel::discover},
        {1, &ControllerModel::choosePort},
        {6, &ControllerModel::chooseUnit},
        {8, &ControllerModel::chooseRow},
        {3, &ControllerModel::chooseInterface},
        {1, &ControllerModel::changeOneService},
        {4, &ControllerModel::type},
        {4, &ControllerModel::apply},
        {12, &ControllerModel::editAndApply},
        {3, &ControllerModel::applyOpenEdit},
        {3, &ControllerModel::reload},
        {3, &ControllerModel::restore},
        {2, &ControllerModel::chooseOption},
        {3, &ControllerModel::sendOption},
        {2, &ControllerModel::sendCommand},
        {2, &ControllerModel::changeRights},
        {4, &ControllerModel::moveDrawer},
    };
};

} // namespace

TEST_F(ControllerModel, DoesTheSameAsThePlainModelAfterEveryRandomStep) {
    constexpr std::uint32_t longestLife = 400;
    std::uint32_t left = 0;
    while (!HasFailure() && random.next()) {
        if (left == 0) {
            left = 1 + random.below(longestLife);
            begin();
        } else {
            performOne();
        }
        compare();
        if (--left == 0) {
            end();
        }
    }
    ASSERT_FALSE(HasFailure());
    constexpr std::uint32_t enoughForAll = 1000;
    for (const Action& action : actions) {
        EXPECT_TRUE(action.performed > 0 || random.steps() < enoughForAll)
            << &action - actions.data();
    }
}

} // namespace kx
