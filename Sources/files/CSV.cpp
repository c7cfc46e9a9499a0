#include "files/CSV.h"

#include <algorithm>
#include <cstddef>

namespace kx {

namespace {

bool mustBeQuoted(std::string_view field) {
    return field.find_first_of(",\"\r\n") != std::string_view::npos || field.starts_with(' ') ||
           field.ends_with(' ');
}

void appendField(std::string& record, std::string_view field) {
    if (!mustBeQuoted(field)) {
        record += field;
        return;
    }
    record += '"';
    for (const char character : field) {
        record += character;
        if (character == '"') {
            record += '"';
        }
    }
    record += '"';
}

// Reads the field at the front of a text, and takes it away.
std::string takeField(std::string_view& text) {
    std::string field;
    bool isQuoted = text.starts_with('"');
    if (!isQuoted) {
        const auto end = std::min(text.find_first_of(",\r\n"), text.size());
        field = text.substr(0, end);
        text.remove_prefix(end);
        return field;
    }
    text.remove_prefix(1);
    while (!text.empty() && isQuoted) {
        if (text.front() != '"') {
            field += text.front();
        } else if (text.starts_with("\"\"")) {
            field += '"';
            text.remove_prefix(1);
        } else {
            isQuoted = false;
        }
        text.remove_prefix(1);
    }
    // What a faulty writer left behind a closing quotation mark belongs to the field.
    const auto end = std::min(text.find_first_of(",\r\n"), text.size());
    field += text.substr(0, end);
    text.remove_prefix(end);
    return field;
}

void takeLineBreak(std::string_view& text) {
    text.remove_prefix(text.starts_with("\r\n") ? 2 : 1);
}

} // namespace

std::string csvRecord(std::span<const std::string> fields) {
    std::string record;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (i > 0) {
            record += ',';
        }
        // A record of one empty field would be an empty line.
        if (fields.size() == 1 && fields[i].empty()) {
            record += "\"\"";
        } else {
            appendField(record, fields[i]);
        }
    }
    return record += "\r\n";
}

std::vector<std::vector<std::string>> csvRecords(std::string_view text) {
    std::vector<std::vector<std::string>> records;
    while (!text.empty()) {
        auto& record = records.emplace_back();
        record.push_back(takeField(text));
        while (text.starts_with(',')) {
            text.remove_prefix(1);
            record.push_back(takeField(text));
        }
        if (!text.empty()) {
            takeLineBreak(text);
        }
    }
    return records;
}

} // namespace kx
