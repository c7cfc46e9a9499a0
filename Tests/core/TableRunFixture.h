// Units configured from a file, as the window does it: tables in a folder of the test's own, units
// that the test plays, and panels that choose what the test says.

#pragma once

#include "KXTableRun.h"
#include "core/conversation/RunFixture.h"
#include "doubles/FixedWallClock.h"
#include "doubles/ScriptedRunLock.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kx {

class TableRunTest : public RunTest {
protected:
    using Stage = KXTableRun::Stage;
    using Texts = std::vector<std::string>;

    TableRunTest() { tableRun.setPanels({.open = &openPanel, .save = &savePanel}); }
    ~TableRunTest() override { std::filesystem::remove_all(folder); }

    // --- Files ---

    std::string file(const std::string& name, const std::string& text) const {
        std::ofstream(folder + '/' + name) << text;
        return folder + '/' + name;
    }
    static std::string contentsOf(const std::string& path) {
        std::ifstream stream(path);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    // A table with a unit ID and a destination port for each of these units.
    std::string table(std::uint32_t first, std::uint32_t last) const {
        std::string text = "serial,unit-id,destination-port\n";
        for (std::uint32_t number = first; number <= last; ++number) {
            text += serial(number) + ",R" + std::to_string(number) + ",3521\n";
        }
        return file("rack.csv", text);
    }
    // A table that gives each of these units another address: its own and 100.
    std::string moves(std::uint32_t first, std::uint32_t last) const {
        std::string text = "serial,internal-ip\n";
        for (std::uint32_t number = first; number <= last; ++number) {
            text += serial(number) + ',' + address(number + 100) + '\n';
        }
        return file("moves.csv", text);
    }

    Texts journals(const std::string& where) const {
        Texts paths;
        std::error_code none;
        for (const auto& entry : std::filesystem::directory_iterator(where, none)) {
            if (entry.path().extension() == ".jsonl") {
                paths.push_back(entry.path().string());
            }
        }
        return paths;
    }
    Texts journals() const { return journals(folder); }

    bool isJournalled(const std::string& command) override {
        for (const std::string& where : {folder, stateFolder}) {
            for (const std::string& path : journals(where)) {
                if (contentsOf(path).find('"' + command + '"') != std::string::npos) {
                    return true;
                }
            }
        }
        return false;
    }

    // --- Steps ---

    void passUntil(const std::function<bool()>& isReached) {
        int turns = 100'000;
        while (!isReached() && turns-- > 0) {
            turn();
        }
        EXPECT_GT(turns, 0) << "it is never reached";
    }
    void settle() {
        passUntil([this] { return tableRun.canChoose(); });
        forgetAnswers();
    }
    void openAndAsk(const std::string& path) {
        tableRun.open(path);
        settle();
    }
    void applyAndWait() {
        tableRun.apply();
        settle();
    }

    // --- What there is to see ---

    Texts column(PlanColumn column) const {
        Texts texts;
        for (std::size_t line = 0; line < tableRun.lineCount(); ++line) {
            texts.push_back(tableRun.cell(line, column));
        }
        return texts;
    }
    Texts row(std::size_t line) const {
        Texts texts;
        for (std::size_t each = 0; each < planColumnCount; ++each) {
            texts.push_back(tableRun.cell(line, static_cast<PlanColumn>(each)));
        }
        return texts;
    }
    Texts states() const { return column(PlanColumn::state); }
    static bool isIn(const std::string& text, const std::string& part) {
        return text.find(part) != std::string::npos;
    }

    // --- Doubles ---

    class ListedInterfaces final : public HostInterfaces {
    public:
        std::vector<HostInterface> interfaces{ownInterface()};
        std::vector<HostInterface> list() override { return interfaces; }
    };
    class ChoosingPanel final : public OpenPanel, public SavePanel {
    public:
        std::optional<std::string> choice; // absent when the person cancels
        std::string suggestion;
        int asked = 0;

        void ask(const OpenPanel::Question& /*question*/,
                 std::function<void(const std::string&)> chosen) override {
            answer(chosen);
        }
        void ask(const SavePanel::Question& question,
                 std::function<void(const std::string&)> chosen) override {
            suggestion = question.suggestedName;
            answer(chosen);
        }

    private:
        void answer(const std::function<void(const std::string&)>& chosen) {
            ++asked;
            if (choice.has_value()) {
                chosen(*choice);
            }
        }
    };

    static std::string newFolder() {
        std::string name = "/tmp/kx-tables-XXXXXX";
        return ::mkdtemp(name.data());
    }

    std::string folder = newFolder();
    std::string stateFolder = folder + "/state";
    FixedWallClock wallClock{2026, 11, 22, 18, 30, 5};
    ListedInterfaces hostInterfaces;
    ScriptedRunLock lock;
    ChoosingPanel openPanel;
    ChoosingPanel savePanel;
    std::optional<std::string> chosenInMainWindow;
    std::map<std::string, std::string> written; // by path
    std::optional<Error> writeError;
    std::vector<std::uint16_t> ownPorts; // that were told, in order
    KXTableRun tableRun{servicesOfRun()};

private:
    KXTableRun::Services servicesOfRun() {
        return {.session = {.runLoop = runLoop,
                            .hostResolver = hostResolver,
                            .systemCalls = systemCalls,
                            .receiveBuffers = &receiveBuffers},
                .now = [this] { return runLoop.now(); },
                .utc = [] { return std::chrono::seconds(1'795'372'205); },
                .wallClock = wallClock,
                .interfaces = hostInterfaces,
                .moves = services,
                .lock = lock,
                .writeFile =
                    [this](const std::string& path, std::string_view text) {
                        written[path] = text;
                        return writeError;
                    },
                .stateFolder = stateFolder,
                .chosenInterface = [this] { return chosenInMainWindow; },
                .usesPort =
                    [this](std::uint16_t port, const std::vector<std::uint32_t>& /*own*/) {
                        ownPorts.push_back(port);
                    }};
    }
};

} // namespace kx
