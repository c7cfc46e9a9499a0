// The alert and the save panel in memory. A test acts as the person who answers them.

#pragma once

#include "Outlets.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kx {

// A person dismisses each alert at once, after the test's own action for the meantime.
class RecordedAlert final : public Alert {
public:
    struct Shown {
        std::string title;
        std::string message;
        std::string button;

        bool operator==(const Shown&) const = default;
    };

    void runModal(std::string_view title, std::string_view message,
                  std::string_view button) override {
        _shown.push_back({std::string(title), std::string(message), std::string(button)});
        if (_meanwhile) {
            _meanwhile();
        }
    }

    // Sets an action that runs while an alert is shown.
    void setMeanwhile(std::function<void()> meanwhile) { _meanwhile = std::move(meanwhile); }

    const std::vector<Shown>& shown() const { return _shown; }

private:
    std::vector<Shown> _shown;
    std::function<void()> _meanwhile;
};

// A person answers when the test says so.
class RecordedSavePanel final : public SavePanel {
public:
    void ask(const Question& question,
             std::function<void(const std::string& path)> chosen) override {
        _questions.push_back(question);
        _chosen = std::move(chosen);
    }

    // Acts as a person who chooses a file, or closes the panel without one.
    void choose(const std::string& path) {
        if (const auto chosen = std::exchange(_chosen, nullptr)) {
            chosen(path);
        }
    }
    void cancel() { _chosen = nullptr; }

    bool isOpen() const { return _chosen != nullptr; }
    const std::vector<Question>& questions() const { return _questions; }

private:
    std::vector<Question> _questions;
    std::function<void(const std::string& path)> _chosen;
};

} // namespace kx
