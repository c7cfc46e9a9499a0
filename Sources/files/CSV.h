// Tables as comma-separated values (RFC 4180): fields between commas, records that end with CRLF.
// Other separators and line breaks are dialects of it.
//
// Pure; any thread. Texts are UTF-8.

#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

struct CSVDialect {
    char separator = ',';
    std::string_view lineBreak = "\r\n"; // of static storage
};

// One record with its line break. A field with a separator of any dialect, a quotation mark, a line
// break or a blank at an end is quoted.
std::string csvRecord(std::span<const std::string> fields, const CSVDialect& dialect = {});

// A quotation that does not follow the format.
struct CSVFault {
    std::size_t line = 0;  // where its field begins
    std::size_t field = 0; // counted from 0
    bool isOpen = false;   // nothing closes it; otherwise text stands behind its end
};

struct CSVRecord {
    // The line of the text in which it begins, counted from 1. Line breaks within quoted fields
    // count as those between records do.
    std::size_t line = 1;
    std::vector<std::string> fields;    // at least one; a single empty one for an empty line
    std::optional<CSVFault> fault = {}; // the first
};

// The records of a text, without its line breaks: CRLF, LF or CR, and the last one may be missing.
// A quoted field that nothing closes goes to the end of the text. Text behind the end of a
// quotation belongs to the field.
std::vector<CSVRecord> csvTable(std::string_view text, char separator = ',');

// The fields alone, the way back of csvRecord().
std::vector<std::vector<std::string>> csvRecords(std::string_view text);

} // namespace kx
