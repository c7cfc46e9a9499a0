// Saves what a person may want to hand to somebody else: the event log as text, and the datagrams
// of the session as a capture (files/Capture.h).
//
// It asks for a file (SavePanel), writes it as a whole, and says in a sentence what became of it.
// It changes nothing of what it saves, so a disk that is full loses nothing. A saved session has
// what docs/security.md tells.
//
// Threading: main thread only. Ownership: it owns nothing of its services; all of them must outlive
// it, and the panel must not answer after its end.

#pragma once

#include "Outlets.h"
#include "files/Capture.h"
#include "files/SessionRecord.h"
#include "support/Error.h"
#include "support/WallClock.h"
#include "words/LogText.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

class KXSaving {
public:
    struct Services {
        // Null when nothing is kept; then there is no session to save.
        SessionRecord* record = nullptr;

        // The program's name and version, as a capture names it.
        std::string application = {};

        std::function<CaptureCounts()> counts = {};
        std::function<CaptureTime()> now = {};

        // Writes the whole of a file, or leaves what stands there. Absent when it was written. When
        // the function is empty, nothing is saved.
        std::function<std::optional<Error>(const std::string& path, std::string_view text)>
            writeFile = {};
    };

    // `panel` may be null, then nothing is saved. `tell` shows a sentence.
    KXSaving(Services services, SavePanel* panel, const WallClock& clock,
             std::function<void(std::string sentence)> tell);

    // Asks for a file and saves the log as it is when the file was chosen: UTF-8, as a person sees
    // it. `log` must outlive this object.
    void saveLog(const LogText& log);

    // The same for the datagrams that are kept, each with its comment, and those that came without
    // one with their lines of the event log.
    void saveSession();

private:
    std::string suggestedName(std::string_view kind, std::string_view suffix) const;
    std::string capture() const;
    bool write(const std::string& path, std::string_view text);

    Services _services;
    SavePanel* _panel;
    const WallClock& _clock;
    std::function<void(std::string sentence)> _tell;
};

} // namespace kx
