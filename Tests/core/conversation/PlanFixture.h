// Tables for units of HeardUnitSamples.h, and the plans that follow from them.

#pragma once

#include "HeardUnitSamples.h"
#include "conversation/UnitPlan.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace kx {

class PlanTest : public testing::Test {
protected:
    using Edits = std::vector<std::pair<UnitParameter, std::string>>;

    static WantedRow row(std::size_t line, std::uint32_t number, const Edits& edits) {
        WantedRow row{.line = line, .serialNumber = sampleSerial(number), .edits = {}};
        for (const auto& [parameter, value] : edits) {
            row.edits.push_back(std::get<ExactEdit>(exactEdit(parameter, value)));
        }
        return row;
    }

    static std::string address(std::uint32_t number) { return stringForIP(0xC0000200U + number); }

    static Edits move(std::uint32_t number) {
        return {{UnitParameter::internalIPAddress, address(number)}};
    }
    static Edits rename(std::uint32_t number) {
        return {{UnitParameter::serialNumber, sampleSerial(number)}};
    }

    void hear(std::uint32_t first, std::uint32_t last) {
        for (std::uint32_t number = first; number <= last; ++number) {
            heard.add(heardUnit(number));
        }
    }

    const UnitPlan& plan(const std::vector<WantedRow>& rows) {
        latest = planOfRows(rows, heard, network);
        return latest;
    }

    std::vector<RowState> states() const {
        std::vector<RowState> all;
        for (const PlannedRow& each : latest.rows) {
            all.push_back(each.state);
        }
        return all;
    }

    RowObjection objection(std::size_t place) const {
        return latest.rows.at(place).reason.objection;
    }

    // This host is 192.0.1.1, and its network has the addresses of 65,535 units.
    static HostInterface ownInterface() {
        HostInterface interface;
        interface.name = "kx0";
        interface.link = 2;
        interface.networks = {{.address = 0xC0000101U, .mask = 0xFFFF0000U}};
        return interface;
    }

    HeardUnits heard;
    PlanNetwork network{.interfaces = {ownInterface()}, .asked = {ownInterface()}};
    UnitPlan latest;
};

} // namespace kx
