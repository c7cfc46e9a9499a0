#include "words/QuietLine.h"

#include "words/EditOutcomeText.h"

#include <utility>

namespace kx {

QuietLine::QuietLine(std::function<void(std::string_view text)> show)
    : _show(std::move(show)) {}

void QuietLine::show(std::string_view text) {
    _shown = text;
    const bool both = !_warning.empty() && !text.empty();
    _show(both ? _warning + ' ' + _shown : _warning + _shown);
}

void QuietLine::setWarning(std::string warning) {
    if (warning != _warning) {
        _warning = std::move(warning);
        show(std::string(_shown));
    }
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

void QuietLine::arpToolDidEnd(ARPEntry entry) {
    auto* const outcome = std::get_if<EditOutcome>(&_state);
    if (outcome != nullptr && outcome->arpEntry().state != ARPEntryState::notWanted) {
        outcome->setARPEntry(std::move(entry));
        refreshOutcome();
    }
}

} // namespace kx
