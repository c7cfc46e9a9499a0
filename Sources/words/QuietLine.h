// The quiet line below the edit row. It shows one sentence at a time, about one of three things.
//
//   a forecast   says what Apply will send. It stands until another sentence replaces it.
//   an outcome   says what became of an edit. It stands until a person chooses another row, types
//                something, or presses Apply, Send or Restore, until another unit is shown, or
//                until there is a message.
//   a message    says, for example, why a command was not sent. It stands until a person does one
//                of these things, presses Discover or Reload, or opens the help.
//
// News from the network ends neither an outcome nor a message. A warning may stand in front of all
// of them; no other sentence takes its place.
//
// Main thread only. Texts are UTF-8.

#pragma once

#include "conversation/EditOutcome.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace kx {

class QuietLine {
public:
    struct Forecast {
        std::string text; // empty while no parameter is chosen
    };
    struct Message {
        std::string text; // not empty
    };
    using State = std::variant<Forecast, EditOutcome, Message>;

    // `show` is called whenever a text is to be shown, also when the text has not changed.
    explicit QuietLine(std::function<void(std::string_view text)> show);

    const State& state() const { return _state; }

    // Sets the sentence that stands in front until it is set again; empty for none.
    void setWarning(std::string warning);

    // A person chose, typed or pressed something, so the present sentence ends.
    void showForecast(std::string text);

    // Replaces a forecast that stands, after a unit or the network changed what it says. Shows it
    // only when the text is another one.
    void refreshForecast(std::string text);

    // An empty message ends the present sentence and leaves the line empty.
    void showMessage(std::string text);

    // Replaces a message by the forecast. An outcome stays.
    void endMessage(std::string forecast);

    void showOutcome(EditOutcome outcome);

    // The unit of this serial number is shown now. An outcome about another unit is forgotten, but
    // its text stays until the next forecast.
    void unitIsShown(std::string_view serialNumber);

    // These hand an event on to the present outcome. Without an outcome they do nothing.
    void unitDidAccept(std::string_view serialNumber,
                       const std::optional<SendFailure>& requestFailure);
    void unitDidTell(std::string_view serialNumber, const UnitRecord& record);
    void arpToolDidEnd(ARPEntry entry);

private:
    void show(std::string_view text);
    void refreshOutcome();

    std::function<void(std::string_view text)> _show;
    std::string _shown; // without the warning
    std::string _warning;
    State _state;
};

} // namespace kx
