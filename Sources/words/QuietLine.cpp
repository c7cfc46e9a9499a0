#include "words/QuietLine.h"

#include "words/EditOutcomeText.h"

#include <utility>

namespace kx {

QuietLine::QuietLine(std::function<void(std::string_view text)> show)
    : _show(std::move(show)) {}

void QuietLine::show(std::string_view text) {
    _shown = text;
    _show(text);
}

void QuietLine::showForecast(std::string text) {
    show(text);
    _state = Forecast{std::move(text)};
}

void QuietLine::refreshForecast(std::string text) {
    if (std::holds_alternative<Forecast>(_state) && text != _shown) {
        showForecast(std::move(text));
    }
}

void QuietLine::showMessage(std::string text) {
    showForecast({}); // the line is cleared first, so the same message counts as new
    if (!text.empty()) {
        show(text);
        _state = Message{std::move(text)};
    }
}

void QuietLine::endMessage(std::string forecast) {
    if (!std::holds_alternative<EditOutcome>(_state)) {
        showForecast(std::move(forecast));
    }
}

void QuietLine::showOutcome(EditOutcome outcome) {
    _state = std::move(outcome);
    refreshOutcome();
}

void QuietLine::refreshOutcome() {
    show(textOfEditOutcome(std::get<EditOutcome>(_state)));
}

void QuietLine::unitIsShown(std::string_view serialNumber) {
    const auto* const outcome = std::get_if<EditOutcome>(&_state);
    if (outcome != nullptr && outcome->unit() != serialNumber) {
        _state = Forecast{};
    }
}

void QuietLine::unitDidAccept(std::string_view serialNumber,
                              const std::optional<SendFailure>& requestFailure) {
    auto* const outcome = std::get_if<EditOutcome>(&_state);
    if (outcome != nullptr && outcome->unitDidAccept(serialNumber, requestFailure)) {
        refreshOutcome();
    }
}

void QuietLine::unitDidTell(std::string_view serialNumber, const UnitRecord& record) {
    auto* const outcome = std::get_if<EditOutcome>(&_state);
    if (outcome != nullptr && outcome->unitDidTell(serialNumber, record)) {
        refreshOutcome();
    }
}

void QuietLine::arpToolDidEnd(std::int32_t status, std::string sentence) {
    auto* const outcome = std::get_if<EditOutcome>(&_state);
    if (outcome != nullptr && outcome->arpEntry().state != ARPEntryState::notWanted) {
        outcome->setARPEntry(arpEntryForEndOfTool(status, std::move(sentence)));
        refreshOutcome();
    }
}

} // namespace kx
