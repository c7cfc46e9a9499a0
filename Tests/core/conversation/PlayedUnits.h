// Units that obey commands, the host's fixed ARP entries, and a journal that the test reads. Units,
// addresses and commands are as on the wire: nothing here uses the decoder.

#pragma once

#include "addresses/IPv4Address.h"
#include "conversation/AddressBindings.h"
#include "conversation/RunJournal.h"
#include "core/UnitReplies.h"
#include "support/RunLoop.h"
#include "units/IdentityText.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <variant>
#include <vector>

namespace kx {

// A unit of 192.168.0.0/16, and its faults.
struct PlayedUnit {
    SampleUnit settings;
    bool isSilent = false;                     // it takes nothing and answers nothing
    std::optional<int> commandsUntilSilence{}; // it takes so many commands and then nothing
    std::string ignored;    // letters of commands that it acknowledges and does not take
    std::string lost;       // letters of commands that never reach it
    std::string misread;    // letters of commands that give it another value
    bool answersARP = true; // for its own address
    bool isSparse = false;  // it tells its serial number and hardware address alone
    int commands = 0;       // that it has taken, requests aside

    std::uint32_t address() const { return numberOf(settings.internalIP); }
    std::string hardwareAddress() const { return hexStringForData(settings.internalMAC, ":"); }
    std::string serialNumber() const { return hexStringForData(settings.serial, " "); }

    static std::uint32_t numberOf(const Bytes& octets) {
        std::uint32_t number = 0;
        for (const std::uint8_t octet : octets) {
            number = number << 8U | octet;
        }
        return number;
    }

    Bytes reply() const { return isSparse ? sparseReplyOf(settings) : settings.reply(); }

    // Nothing for a request.
    void take(std::string_view command) {
        const char letter = command[4];
        ++commands;
        if (ignored.find(letter) != std::string::npos) {
            return;
        }
        Bytes value;
        for (std::size_t i = 5; i + 1 < command.size(); i += 2) {
            value.push_back(static_cast<std::uint8_t>(
                std::stoi(std::string(command.substr(i, 2)), nullptr, 16)));
        }
        if (misread.find(letter) != std::string::npos) {
            value.back() ^= 0x40U;
        }
        if (letter == 'U') {
            value.resize(6, 0);
        }
        place(letter) = value;
    }

    Bytes& place(char letter) {
        switch (letter) {
        case 'M':
            return settings.internalMAC;
        case 'I':
            return settings.internalIP;
        case 'D':
            return settings.destinationIP;
        case 'T':
            return settings.destinationPort;
        case 'P':
            return settings.devicePort;
        case 'C':
            return settings.destinationMAC;
        case 'S':
            return settings.serial;
        default:
            return settings.unitID;
        }
    }
};

// The host's fixed ARP entries.
class PlayedBindings final : public AddressBindings {
public:
    std::map<std::uint32_t, std::string> entries;
    ARPEntry answerToBind{.state = ARPEntryState::started};
    ARPEntry answerToRelease{.state = ARPEntryState::started};
    int asked = 0;

    void bind(const std::string& address, const std::string& hardwareAddress, Done done) override {
        ++asked;
        if (answerToBind.state == ARPEntryState::started) {
            entries[ipForString(address)] = hardwareAddress;
        }
        done(answerToBind);
    }
    void release(const std::string& address, const std::string& hardwareAddress,
                 Done done) override {
        const auto found = entries.find(ipForString(address));
        if (answerToRelease.state == ARPEntryState::started && found != entries.end() &&
            found->second == hardwareAddress) {
            entries.erase(found);
        }
        done(answerToRelease);
    }
    void giveUp() override {} // nobody is asked
};

class RecordedJournal final : public RunJournal {
public:
    explicit RecordedJournal(RunLoop& runLoop)
        : _runLoop(runLoop) {}

    std::vector<JournalEntry> entries;              // on the disk
    std::optional<std::size_t> entriesUntilFailure; // so many are written
    std::set<std::string> commands;                 // of the entries
    bool isSlow = false;                            // answers in the next turn of the loop

    void clear() {
        entries.clear();
        commands.clear();
    }

    void write(const JournalEntry& entry, Written written) override {
        if (!isSlow) {
            finish(entry, written);
            return;
        }
        _later.push_back(_runLoop.callOnceAfter(
            std::chrono::milliseconds(0), [this, entry, written] { finish(entry, written); }));
    }

private:
    void finish(const JournalEntry& entry, const Written& written) {
        const bool isOnDisk = !entriesUntilFailure || entries.size() < *entriesUntilFailure;
        if (isOnDisk) {
            entries.push_back(entry);
            if (const auto* const command = std::get_if<JournalledCommand>(&entry)) {
                commands.insert(command->command);
            }
        }
        written(isOnDisk);
    }

    RunLoop& _runLoop;
    std::vector<RunLoop::Handle> _later;
};

} // namespace kx
