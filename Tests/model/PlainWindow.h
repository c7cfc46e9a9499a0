// A plain model of the window (see PlainText.h): its controls, as far as a person sees them, and
// what the controller does that needs nothing else.

#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace kx::model {

// A title is there once. Without a choice the first title to come is chosen.
struct PlainPopUp {
    std::vector<std::string> titles;
    std::optional<std::string> chosen;

    void removeAll() {
        titles.clear();
        chosen.reset();
    }

    void add(const std::vector<std::string>& added) {
        for (const std::string& title : added) {
            std::erase(titles, title);
            titles.push_back(title);
        }
        if (!chosen.has_value()) {
            chooseFirst();
        }
    }

    void chooseFirst() {
        if (!titles.empty()) {
            chosen = titles.front();
        }
    }

    void choose(const std::string& title) {
        chosen.reset();
        if (std::find(titles.begin(), titles.end(), title) != titles.end()) {
            chosen = title;
        }
    }
};

struct PlainDrawer {
    enum State { closed, opening, open, closing };

    State state = closed;

    void finishMoving() { state = state == opening ? open : state == closing ? closed : state; }
};

struct PlainWindow {
    using Text = std::optional<std::string>;
    struct Row {
        Text name;
        Text value;
    };

    std::string dateInOptions; // month, day, hour and minute, as the wall clock tells them

    PlainPopUp interfacePopUp, portPopUp, unitPopUp, optionPopUp;
    bool interfacesCanBeChosen = true;
    std::string unitIDField, optionField;
    std::vector<Row> rows;
    int selectedRow = -1;
    PlainDrawer drawer;
    std::string log, logView;
    bool isEndOfLogVisible = true;
    Row edit;
    std::optional<Row> shownEdit; // in the edit table, which is empty at first
    int alerts = 0;

    void optionChosen() {
        const std::string title = optionPopUp.chosen.value_or("");
        optionField = title.substr(0, title.find("  "));
        if (optionField.rfind("-Z", 0) == 0) {
            optionField = "-Z" + dateInOptions;
        }
    }

    void store(const std::string& column, const std::string& text) {
        if (column == "parameterName") {
            edit.name = text;
        } else if (column == "parameterValue") {
            edit.value = text;
        } else {
            return;
        }
        shownEdit = edit;
    }

    void toggleDrawer() {
        if (drawer.state == PlainDrawer::closed) {
            drawer.state = PlainDrawer::opening;
            logView = log;
            isEndOfLogVisible = false;
        } else if (drawer.state == PlainDrawer::open) {
            drawer.state = PlainDrawer::closing;
        }
    }

    void append(const std::string& text) {
        log += text;
        if (drawer.state != PlainDrawer::closed) {
            logView += text;
            isEndOfLogVisible = true;
        }
    }
};

} // namespace kx::model
