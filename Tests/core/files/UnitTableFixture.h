// Tables of units, and what is read of them in a few words.

#pragma once

#include "files/UnitTableReader.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

class UnitTableTest : public testing::Test {
protected:
    using enum TableFault;

    static inline const std::string first = "4B 58 00 00 00 01";
    static inline const std::string second = "4B 58 00 00 00 02";

    // A complaint in one word: line, column, fault, cell, other line.
    struct Told {
        std::size_t line = 0;
        std::string column;
        TableFault fault = empty;
        std::string cell;
        std::size_t otherLine = 0;

        friend bool operator==(const Told&, const Told&) = default;
        friend std::ostream& operator<<(std::ostream& stream, const Told& told) {
            return stream << "line " << told.line << ", column " << told.column << ", fault "
                          << static_cast<int>(told.fault) << ", cell " << told.cell
                          << ", other line " << told.otherLine;
        }
    };

    static std::vector<Told> complaintsAbout(std::string_view text) {
        std::vector<Told> told;
        for (const TableComplaint& complaint : readUnitTable(text).complaints) {
            told.push_back({complaint.line, complaint.column, complaint.fault, complaint.cell,
                            complaint.otherLine});
        }
        return told;
    }

    // The complaints about one cell of an otherwise right line.
    static std::vector<Told> complaintsAboutCell(const std::string& column,
                                                 const std::string& cell) {
        const std::string text = "serial," + column + "\n" + first + ",\"" + cell + "\"\n";
        return complaintsAbout(text);
    }

    static TableFault faultOfCell(const std::string& column, const std::string& cell) {
        const auto told = complaintsAboutCell(column, cell);
        if (told.empty()) {
            return empty;
        }
        EXPECT_EQ(told.size(), 1U);
        EXPECT_EQ(told.front(), (Told{2, column, told.front().fault, cell}));
        return told.front().fault;
    }

    static UnitTable wholeTable(std::string_view text) {
        UnitTable table = readUnitTable(text);
        EXPECT_TRUE(table.complaints.empty()) << complaintsAbout(text).front();
        return table;
    }

    // What a row wants: the identifiers and the values that units then show.
    static std::string wantsOf(const WantedRow& row) {
        std::string text = std::to_string(row.line) + ' ' + row.serialNumber;
        for (const ExactEdit& edit : row.edits) {
            text += ", " + std::string(descriptionOf(edit.edit.parameter).identifier) + '=' +
                    edit.edit.expectedText.value_or("?");
        }
        return text;
    }

    static std::vector<std::string> wantsIn(std::string_view text) {
        std::vector<std::string> wants;
        for (const WantedRow& row : wholeTable(text).rows) {
            wants.push_back(wantsOf(row));
        }
        return wants;
    }

    using Wants = std::vector<std::string>;
};

} // namespace kx
