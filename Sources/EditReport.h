// What became of an edit, in words: whether it was sent, whether the unit accepted it, and whether
// the unit's fresh parameters show it.
//
// A unit tells what it made of a command only by its parameters, so the report compares what they
// show with what was sent, in the form in which units show it. Every reply counts anew: the text is
// always about the latest one.
//
// A value type, pure but for looking up the sentences (support/LocalizedText.h), so it belongs to
// the main thread. Texts are UTF-8.

#pragma once

#include "UnitParameters.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

class EditReport {
public:
    struct Edit {
        UnitParameter parameter;
        std::string typed;                      // not empty
        std::optional<std::string> unit;        // the selected unit's key; absent without one
        std::optional<std::string> valueBefore; // as the unit's record had it
    };

    // The command was handed to the network.
    explicit EditReport(Edit edit);

    const std::optional<std::string>& unit() const { return _edit.unit; }

    // Whether what the unit of this key says is about the edit. A unit whose serial number was
    // edited speaks under the new one.
    bool isAbout(std::string_view key) const;

    // The network refused the command, for this reason.
    void sendDidFail(std::string_view reason);

    // The unit said "ok". Counts once; a reply that came before it was on its way already.
    void unitDidAccept();

    // The unit told its parameters.
    void unitDidReply(const UnitRecord& record);

    // What became of the ARP entry for a new internal IP address: the result of
    // Authorization::runToolWithArgs(), absent when administrator rights were not given, and how
    // the tool ended that was run for `address`. Only failures are worth a sentence.
    void arpEntryDidGive(std::optional<std::int32_t> result);
    void arpToolDidEnd(std::string_view address, int status);

    // One or two sentences.
    std::string text() const;

private:
    std::string textOfReply(const UnitRecord& record) const;

    Edit _edit;
    std::string _command;                 // as a note shows it
    std::optional<std::string> _expected; // how a unit shows the value; absent when it cannot
    bool _unitHasAccepted = false;
    std::string _outcome;
    std::string _arpFailure;
};

// How a unit that has taken over the typed value shows it in its parameters; absent for a value
// that has no such form, such as a MAC address of eleven digits. A unit ID comes without zero bytes
// at its end.
std::optional<std::string> shownValueOfEdit(UnitParameter parameter, std::string_view typed);

} // namespace kx
