// The JSON document of a command (RFC 8259). It is the same whatever happened: every key is there,
// also when nothing was found or the command line was wrong.
//
// Main thread only. Texts are UTF-8; foreign texts may hold anything.

#pragma once

#include "commands/CommandTable.h"
#include "commands/ExitStatus.h"
#include "conversation/HeardUnits.h"
#include "files/UnitJSON.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

class Document {
public:
    // With the keys of the command, each without a value yet. `command` is absent when the command
    // line names none.
    explicit Document(const std::optional<std::string>& command);

    Json& operator[](std::string_view key) { return _json[std::string(key)]; }

    // Appends to the list of a key, which has no other elements. It is kept as a text, because a
    // value takes much more room.
    void append(std::string_view key, const Json& element) { appendText(key, textOfJson(element)); }
    void appendText(std::string_view key, std::string_view element);

    void warn(std::string_view code, std::string_view message);

    // One line that ends with a line break. Characters beyond ASCII are escaped; what is no UTF-8
    // is replaced.
    std::string text(int exitStatus, const std::optional<Failure>& failure);

private:
    Json _json;
    std::map<std::string, std::string, std::less<>> _lists; // elements with commas between them
};

// The two kinds of units that cannot be told apart, as one list.
Json jsonOfDuplicates(const HeardUnits& units);

} // namespace kx
