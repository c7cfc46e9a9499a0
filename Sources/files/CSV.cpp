#include "files/CSV.h"

#include <algorithm>

namespace kx {

namespace {

// Whatever the dialect is, so that no reader can take a field for two.
bool mustBeQuoted(std::string_view field) {
    return field.find_first_of(",;\t\"\r\n") != std::string_view::npos || field.starts_with(' ') ||
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

class Reader {
public:
    Reader(std::string_view text, char separator)
        : _text(text)
        , _endsOfField{separator, '\r', '\n'} {}

    bool isAtEnd() const { return _text.empty(); }

    CSVRecord takeRecord() {
        CSVRecord record{.line = _line, .fields = {}};
        takeField(record);
        while (!_text.empty() && _text.front() == _endsOfField.front()) {
            _text.remove_prefix(1);
            takeField(record);
        }
        if (!_text.empty()) {
            takeLineBreak();
        }
        return record;
    }

private:
    void takeField(CSVRecord& record) {
        CSVFault fault{.line = _line, .field = record.fields.size()};
        std::string field;
        if (_text.starts_with('"')) {
            field = takeQuotation(fault.isOpen);
            const std::string_view rest = takeToEndOfField();
            field += rest;
            if ((fault.isOpen || !rest.empty()) && !record.fault.has_value()) {
                record.fault = fault;
            }
        } else {
            field = takeToEndOfField();
        }
        record.fields.push_back(std::move(field));
    }

    std::string takeQuotation(bool& isOpen) {
        std::string text;
        _text.remove_prefix(1);
        for (;;) {
            const auto end = std::min(_text.find('"'), _text.size());
            countLines(_text.substr(0, end));
            text += _text.substr(0, end);
            isOpen = end == _text.size();
            _text.remove_prefix(isOpen ? end : end + 1);
            if (isOpen || !_text.starts_with('"')) {
                return text;
            }
            text += '"';
            _text.remove_prefix(1);
        }
    }

    std::string_view takeToEndOfField() {
        const auto end = std::min(_text.find_first_of(_endsOfField), _text.size());
        const auto field = _text.substr(0, end);
        _text.remove_prefix(end);
        return field;
    }

    void takeLineBreak() {
        _text.remove_prefix(_text.starts_with("\r\n") ? 2 : 1);
        ++_line;
    }

    void countLines(std::string_view text) {
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (text[i] == '\n' || (text[i] == '\r' && !text.substr(i + 1).starts_with('\n'))) {
                ++_line;
            }
        }
    }

    std::string_view _text;
    std::string _endsOfField;
    std::size_t _line = 1;
};

} // namespace

std::string csvRecord(std::span<const std::string> fields, const CSVDialect& dialect) {
    std::string record;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (i > 0) {
            record += dialect.separator;
        }
        // A record of one empty field would be an empty line.
        if (fields.size() == 1 && fields[i].empty()) {
            record += "\"\"";
        } else {
            appendField(record, fields[i]);
        }
    }
    return record += dialect.lineBreak;
}

std::vector<CSVRecord> csvTable(std::string_view text, char separator) {
    std::vector<CSVRecord> records;
    for (Reader reader(text, separator); !reader.isAtEnd();) {
        records.push_back(reader.takeRecord());
    }
    return records;
}

std::vector<std::vector<std::string>> csvRecords(std::string_view text) {
    std::vector<std::vector<std::string>> records;
    for (CSVRecord& record : csvTable(text)) {
        records.push_back(std::move(record.fields));
    }
    return records;
}

} // namespace kx
