// The quiet line below the edit row: one sentence at a time, about one of three things.
//
//   a forecast   what Apply will send; stands until something else is to be said
//   an outcome   what became of an edit: stands until another row is chosen, something is typed,
//                Apply, Send or Restore is pressed, another unit is shown, or there is a message
//   a message    such as why a command was not sent: stands until a person does the like,
//                presses Discover or Reload, or gets help
//
// What the network brings ends neither outcome nor message.
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

    // `show` is called with the text whenever it is to be shown, also when it is the same again: a
    // screen reader then says it once more.
    explicit QuietLine(std::function<void(std::string_view text)> show);

    const State& state() const { return _state; }

    // A person chose, typed or pressed something: whatever stood ends.
    void showForecast(std::string text);

    // The forecast as it is now, where one stands: what a unit or the network did may have changed
    // it. Shown only when it says something else than the line does.
    void refreshForecast(std::string text);

    // An empty message is the end of whatever stood, and leaves the line empty.
    void showMessage(std::string text);

    // The forecast in the place of a message. An outcome stays.
    void endMessage(std::string forecast);

    void showOutcome(EditOutcome outcome);

    // The unit of this serial number is shown now: an outcome that is about another one is
    // forgotten, though its text stays until the next forecast.
    void unitIsShown(std::string_view serialNumber);

    // What a standing outcome has to be told. Without one nothing happens.
    void unitDidAccept(std::string_view serialNumber,
                       const std::optional<SendFailure>& requestFailure);
    void unitDidTell(std::string_view serialNumber, const UnitRecord& record);
    void arpToolDidEnd(std::int32_t status);

private:
    void show(std::string_view text);
    void showOutcomeAnew();

    std::function<void(std::string_view text)> _show;
    std::string _shown;
    State _state;
};

} // namespace kx
