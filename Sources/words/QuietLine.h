// The quiet line below the edit row. It shows one sentence at a time, about one of these things.
//
//   a forecast   says what Apply will send. It stands until another sentence replaces it.
//   an outcome   of an edit says what became of it. It stands until a person chooses another row,
//                types something, or presses Apply, Send or Restore, until another unit is shown,
//                or until there is a message.
//   an outcome   of Reload, Restore or Send says who answered. It ends in the same way, and when a
//                person presses Discover, chooses a unit or opens the help.
//   a message    says, for example, why a command was not sent. It stands until a person does one
//                of these things, presses Discover or Reload, or opens the help.
//
// News from the network ends neither an outcome nor a message. A warning may stand in front of all
// of them; no other sentence takes its place. While a person points at a button, a hint stands in
// the place of the sentence. The hint ends when they point elsewhere, or press or type something.
//
// Main thread only. Texts are UTF-8.

#pragma once

#include "conversation/EditOutcome.h"
#include "conversation/RequestOutcome.h"

#include <cstdint>
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
        bool meansTrouble;
    };
    struct Message {
        std::string text; // not empty
    };
    using State = std::variant<Forecast, EditOutcome, RequestOutcome, Message>;
    using Show = std::function<void(std::string_view text, bool meansTrouble)>;

    // `show` is called whenever a text is to be shown, also when the text has not changed. A
    // warning and a message mean trouble.
    explicit QuietLine(Show show);

    const State& state() const { return _state; }

    // Sets the sentence that stands in front until it is set again; empty for none.
    void setWarning(std::string warning);

    // Sets the sentence about the button at which a person points; empty when they point at none.
    void setHint(std::string hint);
    bool hasHint() const { return !_hint.empty(); }

    // A person chose, typed or pressed something, so the present sentence ends.
    void showForecast(std::string text, bool meansTrouble = false);

    // Replaces a forecast that stands, after a unit or the network changed what it says. Shows it
    // only when the text is another one.
    void refreshForecast(std::string text, bool meansTrouble = false);

    // An empty message ends the present sentence and leaves the line empty.
    void showMessage(std::string text);

    // Replaces a message, and the outcome of a request, by the forecast. The outcome of an edit
    // stays.
    void endMessage(std::string text, bool meansTrouble = false);

    void showOutcome(EditOutcome outcome);
    void showOutcome(RequestOutcome outcome);

    // The unit of this serial number is shown now. An outcome about another unit is forgotten, but
    // its text stays until the next forecast.
    void unitIsShown(std::string_view serialNumber);

    // These hand an event on to the present outcome. Without an outcome they do nothing. `sender`
    // is the address of the unit in host byte order, 0 when it is not known.
    void unitDidAccept(std::string_view serialNumber,
                       const std::optional<SendFailure>& requestFailure, std::uint32_t sender = 0);
    void unitDidTell(std::string_view serialNumber, const UnitRecord& record,
                     std::uint32_t sender = 0);
    void unitDidAnswer(std::string_view serialNumber, std::uint32_t sender, std::string text);
    void arpToolDidEnd(ARPEntry entry);

    // Units had enough time to answer, or are given time once more.
    void patienceDidEnd();
    void patienceDidBegin();

private:
    void show(std::string_view text, bool meansTrouble);
    void display();
    void refreshOutcome();

    Show _show;
    std::string _shown; // without the warning
    bool _shownMeansTrouble = false;
    std::string _warning;
    std::string _hint;
    State _state;
};

} // namespace kx
