#include "commands/CommandTable.h"

#include "commands/Commands.h"

#include <algorithm>
#include <array>

namespace kx {

namespace {

using Text = std::string_view;

constexpr std::array general{
    OptionRow{"-i", "NAME", ValueKind::interface,
              "the network interface: its name (kx0), its title (\"Office (kx0)\") or the name of "
              "its profile; \"all\" asks each in turn. Not needed when only one can broadcast."},
    OptionRow{"--port", "PORT", ValueKind::port,
              "the UDP port to listen on: 3520, 3521, 3522, 3523, or auto for the first that is "
              "free (auto)"},
    OptionRow{"--json", "", ValueKind::none, "print one JSON document"},
    OptionRow{"--quiet", "", ValueKind::none, "no sentences and no progress; errors stay"},
    OptionRow{"--capture", "FILE", ValueKind::file,
              "write every datagram to a file in the format pcapng"},
    OptionRow{"--help", "", ValueKind::none, "print the help"},
    OptionRow{"--version", "", ValueKind::none, "print the version"},
};

constexpr std::array discoverOptions{
    OptionRow{"--wait", "S", ValueKind::text, "collect answers for S seconds (2.0)"},
    OptionRow{
        "--tries", "N", ValueKind::text,
        "send N requests in all, spread over that time (2, and up to 10 more at the end as long as "
        "a unit has not answered the latest one, or nobody has answered)"},
    OptionRow{"--expect", "N", ValueKind::text,
              "end as soon as N units have answered; with fewer the exit status is 1"},
    OptionRow{"--limited", "", ValueKind::none,
              "also ask 255.255.255.255, which reaches units of other subnets on the link"},
    OptionRow{"--csv", "", ValueKind::none, "print comma-separated values"},
    OptionRow{"--save", "FILE", ValueKind::file,
              "save the JSON document in a file too; where no unit has answered, a file that is "
              "there stays as it is"},
    OptionRow{"--compare", "FILE", ValueKind::file,
              "also tell what is new, missing and changed since a saved discovery; where they "
              "differ the exit status is 1"},
};
constexpr std::array showOptions{
    OptionRow{"--all", "", ValueKind::none, "show every unit that answers"},
    OptionRow{"--csv", "", ValueKind::none, "print comma-separated values"},
};
constexpr std::array setOptions{
    OptionRow{"--dry-run", "", ValueKind::none, "tell what would be changed, and change nothing"},
    OptionRow{"--loose", "", ValueKind::none,
              "take values as the window does, even when that changes them"},
};
constexpr std::array optionOptions{
    OptionRow{"--clock", "", ValueKind::none, "set the unit's clock to this host's local time"},
};
constexpr std::array restoreOptions{
    OptionRow{"--everyone", "", ValueKind::none, "restore every unit that hears the command"},
    OptionRow{"--yes", "", ValueKind::none, "do not ask whether this is meant"},
};
constexpr std::array watchOptions{
    OptionRow{"--every", "S", ValueKind::text, "ask every S seconds (2.0), 0.1 at least"},
    OptionRow{"--for", "S", ValueKind::text, "end after S seconds"},
    OptionRow{"--until", "N", ValueKind::text,
              "end as soon as N units are there; with fewer at the end the exit status is 1"},
};
constexpr std::array planOptions{
    OptionRow{"--out", "FILE", ValueKind::file,
              "keep the plan in a file, with the values that it saw, for apply"},
};
constexpr std::array applyOptions{
    OptionRow{"--yes", "", ValueKind::none, "do not ask whether this is meant"},
    OptionRow{"--in-flight", "N", ValueKind::text,
              "change N units at once, after the first one alone (8)"},
    OptionRow{"--keep-going", "", ValueKind::none,
              "go on with the other units where one is refused, silent or left half configured"},
    OptionRow{"--journal", "FILE", ValueKind::file,
              "write the journal to this file (kxctl-journal-TIME.jsonl in the current folder); "
              "one that is there is continued"},
    OptionRow{"--report", "FILE", ValueKind::file,
              "write the table with the state of each unit and the reason to this file"},
};

constexpr std::array<Text, 2> interfacesExamples{"kxctl interfaces", "kxctl --json interfaces"};
constexpr std::array<Text, 5> discoverExamples{
    "kxctl discover -i kx0", "kxctl discover --expect 12 --wait 5",
    "kxctl discover --csv > rack.csv", "kxctl discover --save rack.json",
    "kxctl discover --compare rack.json --save rack.json"};
constexpr std::array<Text, 3> showExamples{"kxctl show 4B5800000001", "kxctl show id:RACK7A",
                                           "kxctl show --all --json"};
constexpr std::array<Text, 2> setExamples{
    "kxctl set 4B:58:00:00:00:01 unit-id=RACK7A destination-port=3521",
    "kxctl set id:RACK7A internal-ip=192.0.2.41 --dry-run"};
constexpr std::array<Text, 2> optionExamples{"kxctl option 4B5800000001 V",
                                             "kxctl option 4B5800000001 --clock"};
constexpr std::array<Text, 2> restoreExamples{"kxctl restore 4B5800000001",
                                              "kxctl restore --everyone --yes -i kx0"};
constexpr std::array<Text, 2> watchExamples{"kxctl watch --every 5",
                                            "kxctl watch --until 12 --for 60 --json"};
constexpr std::array<Text, 3> diagnoseExamples{"kxctl diagnose", "kxctl diagnose 192.0.2.41",
                                               "kxctl diagnose 4B5800000001 --json"};
constexpr std::array<Text, 1> checkExamples{"kxctl check 192.0.2.41 192.0.2.42"};
constexpr std::array<Text, 2> compareExamples{"kxctl compare rack.json",
                                              "kxctl compare monday.json friday.json"};
constexpr std::array<Text, 2> planExamples{"kxctl plan rack.csv",
                                           "kxctl plan rack.csv --out rack.plan --json"};
constexpr std::array<Text, 3> applyExamples{
    "kxctl apply rack.csv --journal rack.jsonl --report report.csv",
    "kxctl apply rack.plan --yes --json", "kxctl apply rack.csv --yes --keep-going --in-flight 4"};
constexpr std::array<Text, 1> revertExamples{"kxctl revert rack.jsonl"};

constexpr std::array<Text, 1> interfacesKeys{"interfaces"};
constexpr std::array<Text, 7> discoverKeys{"interface", "port",     "units",   "duplicates",
                                           "dropped",   "rejected", "complete"};
constexpr std::array<Text, 1> unitsKeys{"units"};
constexpr std::array<Text, 1> changesKeys{"changes"};
constexpr std::array<Text, 1> repliesKeys{"replies"};
constexpr std::array<Text, 1> addressesKeys{"addresses"};
constexpr std::array<Text, 2> diagnoseKeys{"checks", "causes"};
constexpr std::array<Text, 4> compareKeys{"new", "missing", "changed", "same"};
constexpr std::array<Text, 2> rowsKeys{"rows", "sums"};

constexpr Text unitText =
    "A unit is named by its serial number, six pairs of hexadecimal digits with blanks, colons, "
    "dashes or nothing between them, or by id:TEXT, a unit ID that exactly one unit has.";

constexpr Text setText =
    "Changes parameters of one unit, and reads them back until the unit shows them. A unit is "
    "named "
    "by its serial number or by id:TEXT. The parameters are unit-id, internal-ip, internal-mac, "
    "destination-ip, destination-mac, destination-port, device-port and serial; the names in the "
    "window are understood as well.\n\n"
    "A value that the unit would get in another form than it was typed is refused; --loose takes "
    "it.\n\n"
    "A new internal-ip must lie in the interface's network and must be held by nobody. It needs "
    "administrator rights for a moment, to enter the unit's hardware address into the ARP cache. "
    "Root has them; for others polkit asks at the desktop or, without one, in the terminal. "
    "A new serial must be one that no other unit tells; everybody is asked for two seconds.";

constexpr Text diagnoseText =
    "Checks the way from this host to the units and back: the link, the address, the port, the "
    "routes, a firewall, and what answers. It prints each check with its evidence, and then the "
    "causes that the evidence shows, the likeliest first, each with what to do. It needs no "
    "rights, and takes a second; where nobody answers for an address, up to four.\n\n"
    "With a unit or an address it tells why that one does not answer. A unit is named by its "
    "serial number or by id:TEXT.\n\n"
    "It sends three requests to everybody, three to 255.255.255.255, three to the interface's "
    "broadcast address on its own port, and a few to single hosts, parameter requests all of them. "
    "Meanwhile it listens on all of the four ports that are free. "
    "The exit status is 0 when units answer and no check fails, 1 when a cause was found, and 3 "
    "when none can be named.";
constexpr Text compareText =
    "Compares the units that answer now with those of a discovery that \"kxctl discover --save\" "
    "has written: which are new, which are missing, and which parameters have changed. With two "
    "files it compares the second one with the first one, and nobody is asked.\n\n"
    "A unit is called missing only when it was also asked at its last address and did not answer. "
    "While datagrams are dropped no unit is called missing. Where nothing differs the exit status "
    "is 0; where something differs, or a unit has not answered and cannot be called missing, it "
    "is 1.";

constexpr Text planText =
    "Reads a table of units, asks the units for their parameters, and prints what would change, "
    "line by line, and the sum. No command is sent.\n\n"
    "The table is a file of comma-separated values in UTF-8, as \"kxctl discover --csv\" writes "
    "it. Commas may be semicolons or tabs. Its first line names the columns, in any order: "
    "serial, and the parameters that shall change: unit-id, internal-ip, internal-mac, "
    "destination-ip, destination-mac, destination-port, device-port and new-serial. An empty "
    "cell leaves the parameter as it is. The columns note, state and reason, and those of an "
    "export that are no parameters, are passed over.\n\n"
    "A fault in the file is told by its line and column, and nobody is asked: exit status 2. "
    "Where a unit does not answer, somebody holds a new address, or addresses change hands in a "
    "ring, the exit status is 1.";
constexpr Text applyText =
    "Makes the units of a table, or of a plan that \"kxctl plan --out\" has kept, show the "
    "values that stand there. It plans, shows the plan and asks; then it changes one unit alone, "
    "and after that several at once. Every value is read back. Nothing is sent when a unit is "
    "refused or does not answer, and nothing new is begun after a unit was left half configured "
    "or silent, unless --keep-going says so. A kept plan refuses a unit that shows another value "
    "since.\n\n"
    "The journal gets a line on the disk before each command, with the old value. To resume an "
    "apply that was cut off, apply again, with the same journal: what the units show decides "
    "what is left to do. \"kxctl revert\" brings the old values back.\n\n"
    "Only one apply or revert runs on a host at a time; a second one ends with exit status 3.\n\n"
    "The final states are done, unchanged, refused, untouched, half and silent. The report is "
    "the table with the columns state and reason, and can be applied again.";
constexpr Text revertText =
    "Brings back the values that the units had before the run of \"kxctl apply\" that wrote the "
    "journal. A unit is found under its old or its new serial number and address. It plans, "
    "shows the plan, asks and runs as apply does, and writes a journal of its own.";

constexpr std::array commands{
    CommandRow{"interfaces",
               "",
               "list the network interfaces",
               "Lists the network interfaces of this host. Units can be asked where the column "
               "can-ask says yes: there the interface carries datagrams, can broadcast, and has an "
               "IPv4 address. With -i NAME it lists that one only.",
               {},
               interfacesExamples,
               interfacesKeys,
               0,
               0,
               ValueKind::none,
               runInterfaces},
    CommandRow{"discover", "", "list the units that answer a broadcast",
               "Broadcasts a parameter request, collects the answers, and lists the units in the "
               "order of their serial numbers. A serial number under two hardware addresses and an "
               "address under two serial numbers are warnings.\n\n"
               "With --compare the units of the file that have not answered are asked at their "
               "last addresses too. The document then has the key compare. The same file may be "
               "compared and saved.",
               discoverOptions, discoverExamples, discoverKeys, 0, 0, ValueKind::none, runDiscover},
    CommandRow{"show", "UNIT...", "show every parameter of units", unitText, showOptions,
               showExamples, unitsKeys, 0, anyNumberOfWords, ValueKind::text, runShow},
    CommandRow{"set", "UNIT NAME=VALUE...", "change parameters of a unit", setText, setOptions,
               setExamples, changesKeys, 2, anyNumberOfWords, ValueKind::parameter, runSet},
    CommandRow{
        "option", "UNIT TEXT", "send an option command to a unit",
        "Sends a text as an option command and prints what the unit answers within a second. "
        "The text is sent once, whether an answer comes or not. A text that looks like an "
        "option of kxctl stands behind --.",
        optionOptions, optionExamples, repliesKeys, 1, 2, ValueKind::text, runOption},
    CommandRow{"restore", "UNIT", "restore a unit's factory settings",
               "Restores the factory settings of a unit, and shows its parameters afterwards. It "
               "asks first. --everyone broadcasts the command; it first tells how many units "
               "answer.",
               restoreOptions, restoreExamples, unitsKeys, 0, 1, ValueKind::text, runRestore},
    CommandRow{"watch",
               "",
               "tell which units come, change and go",
               "Asks everybody again and again, and prints a line for each unit that appears, "
               "changes, falls silent or comes back. A unit is silent after three requests without "
               "an answer. With --json each line is a document, and the last one tells the exit "
               "status.",
               watchOptions,
               watchExamples,
               {},
               0,
               0,
               ValueKind::none,
               runWatch},
    CommandRow{"check",
               "ADDRESS...",
               "tell who holds IPv4 addresses",
               "Tells for each address whether somebody holds it, and who: a hardware address, and "
               "a serial number when it is a unit. For root it sends ARP probes, which find every "
               "holder; otherwise it watches the system's neighbour table, which finds one.",
               {},
               checkExamples,
               addressesKeys,
               1,
               anyNumberOfWords,
               ValueKind::text,
               runCheck},
    CommandRow{"diagnose",
               "[UNIT|ADDRESS]",
               "tell why no unit answers",
               diagnoseText,
               {},
               diagnoseExamples,
               diagnoseKeys,
               0,
               1,
               ValueKind::text,
               runDiagnose},
    CommandRow{"compare",
               "FILE [FILE]",
               "tell what is new, missing and changed since a saved discovery",
               compareText,
               {},
               compareExamples,
               compareKeys,
               1,
               2,
               ValueKind::file,
               runCompare},
    CommandRow{"plan", "FILE", "tell what a table of units would change", planText, planOptions,
               planExamples, rowsKeys, 1, 1, ValueKind::file, runPlan},
    CommandRow{"apply", "FILE", "change many units as a table says", applyText, applyOptions,
               applyExamples, rowsKeys, 1, 1, ValueKind::file, runApply},
    CommandRow{"revert", "JOURNAL", "bring back the values from before an apply", revertText,
               applyOptions, revertExamples, rowsKeys, 1, 1, ValueKind::file, runRevert},
};

} // namespace

std::span<const CommandRow> commandTable() {
    return commands;
}

std::span<const OptionRow> generalOptions() {
    return general;
}

const CommandRow* commandForName(std::string_view name) {
    const auto* const found = std::ranges::find(commands, name, &CommandRow::name);
    return found != commands.end() ? found : nullptr;
}

} // namespace kx
