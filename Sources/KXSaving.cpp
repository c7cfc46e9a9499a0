#include "KXSaving.h"

#include "support/LocalizedText.h"
#include "words/DatagramLines.h"
#include "words/QuotedText.h"

#include <array>
#include <utility>

namespace kx {

namespace {

void append(std::string& text, const Bytes& bytes) {
    text.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
}

std::string sentenceOfSavedSession(std::uint64_t datagrams) {
    return datagrams == 1 ? localizedText("The session was saved: 1 datagram.")
                          : localizedText("The session was saved: %d datagrams.",
                                          {static_cast<long long>(datagrams)});
}

} // namespace

KXSaving::KXSaving(Services services, SavePanel* panel, const WallClock& clock,
                   std::function<void(std::string sentence)> tell)
    : _services(std::move(services))
    , _panel(panel)
    , _clock(clock)
    , _tell(std::move(tell)) {}

void KXSaving::saveLog(const LogText& log) {
    if (_panel == nullptr || !_services.writeFile) {
        return;
    }
    _panel->ask({.title = localizedText("Save Event Log"),
                 .suggestedName = suggestedName("log", "txt"),
                 .kind = localizedText("Text"),
                 .suffix = "txt"},
                [this, &log](const std::string& path) {
                    if (write(path, log.copiedText(0, log.size()) + '\n')) {
                        _tell(localizedText("The event log was saved."));
                    }
                });
}

void KXSaving::saveSession() {
    if (_panel == nullptr || !_services.writeFile || _services.record == nullptr) {
        return;
    }
    _panel->ask({.title = localizedText("Save Session"),
                 .suggestedName = suggestedName("session", "pcapng"),
                 .kind = localizedText("Captures"),
                 .suffix = "pcapng"},
                [this](const std::string& path) {
                    if (write(path, capture())) {
                        _tell(sentenceOfSavedSession(_services.record->kept()));
                    }
                });
}

// Sorted by name, such files are sorted by time.
std::string KXSaving::suggestedName(std::string_view kind, std::string_view suffix) const {
    const std::tm time = _clock.localTime();
    std::array<char, 32> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y%m%d-%H%M%S", &time);
    return "kxconfig-" + std::string(kind) + '-' + std::string(text.data(), length) + '.' +
           std::string(suffix);
}

std::string KXSaving::capture() const {
    std::string text;
    append(text, captureHeader(_services.application, _services.record->forgotten()));
    _services.record->forEach([&text](CapturedDatagram datagram, ByteView data) {
        const bool isOfLog = !datagram.isOwn && datagram.comment.empty();
        const std::string line = isOfLog ? lineOfReceivedDatagram(data) : std::string();
        if (isOfLog) {
            datagram.comment = line;
        }
        append(text, capturedDatagram(datagram, data));
    });
    append(text, captureStatistics(_services.now(), _services.counts()));
    return text;
}

bool KXSaving::write(const std::string& path, std::string_view text) {
    const auto error = _services.writeFile(path, text);
    if (error.has_value()) {
        _tell(localizedText(
            "“%@” cannot be written: %@. Nothing is lost: save it in another place.",
            {safeForSentence(path, mostCharactersOfSentence), error->localizedDescription()}));
    }
    return !error.has_value();
}

} // namespace kx
