// Lists the interfaces of a host with 10, 100 and 1,000 links in two ways: as the pop-up does when
// it opens, and with an identifier for each as the full enumeration does. The links are bridges
// with an address each, in a network namespace that this program makes. Each round reads the links
// from the kernel again, as after a change. The benchmark counts processor time, including the
// kernel's work, so that other programs do not disturb.

#include "Comparison.h"
#include "System Configuration/SystemConfiguration.h"
#include "linux/PrivateNetwork.h"
#include "platform/linux/LinuxConfigurationStore.h"
#include "platform/linux/LinuxKernelQuery.h"
#include "platform/posix/PollRunLoop.h"

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sched.h>
#include <unistd.h>

#include <ctime>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kx {

namespace {

int openNetwork() {
    return ::open("/proc/self/ns/net", O_RDONLY | O_CLOEXEC);
}

// A network with links. It is made once, because making it takes longer than everything that is
// timed.
class HostWithLinks {
public:
    static HostWithLinks& withCount(long count) {
        static std::map<long, HostWithLinks> hosts;
        return hosts.try_emplace(count, count).first->second;
    }

    explicit HostWithLinks(long count) {
        const int before = openNetwork();
        PrivateNetwork network;
        std::string commands;
        for (long i = 0; i < count; ++i) {
            const std::string name = "kx" + std::to_string(i);
            commands += "link add " + name + " type bridge\n";
            commands += "address add 10." + std::to_string(i / 250) + "." +
                        std::to_string(i % 250) + ".1/24 dev " + name + "\n";
        }
        network.batch(commands);
        _network = openNetwork();
        ::setns(before, CLONE_NEWNET);
        ::close(before);
    }
    ~HostWithLinks() { ::close(_network); }
    HostWithLinks(const HostWithLinks&) = delete;
    HostWithLinks& operator=(const HostWithLinks&) = delete;

    // While this object lives, the thread is on the host.
    class Visit {
    public:
        explicit Visit(const HostWithLinks& host) {
            ::setns(host._network, CLONE_NEWNET);
            PrivateNetwork::run("ip link set lo down");
        }
        ~Visit() {
            ::setns(_before, CLONE_NEWNET);
            ::close(_before);
        }
        Visit(const Visit&) = delete;
        Visit& operator=(const Visit&) = delete;

        // Makes the next listing read the links again.
        void change() {
            PrivateNetwork::run(_isUp ? "ip link set lo down" : "ip link set lo up");
            _isUp = !_isUp;
        }

    private:
        int _before = openNetwork();
        bool _isUp = false;
    };

private:
    int _network = -1;
};

double processorSeconds() {
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

using Titles = std::optional<std::vector<std::string>>;

Titles popUpTitles(SystemConfiguration& configuration) {
    return configuration.bsdTitlesAndServiceIDs(nullptr);
}

// Lists all titles as the first listing does, which knows no identifiers yet.
Titles allTitles(SystemConfiguration& configuration) {
    configuration.purgeInterfaceIDs();
    return configuration.interfaceTitlesAndServiceIDs(nullptr);
}

void listInterfaces(benchmark::State& state, long links,
                    Titles (*list)(SystemConfiguration&) = popUpTitles) {
    HostWithLinks::Visit visit(HostWithLinks::withCount(links));
    PollRunLoop loop;
    KernelLinks kernelLinks(loop);
    LinuxKernelQuery kernelQuery(kernelLinks);
    LinuxConfigurationStore store(loop, kernelLinks, nullptr);
    SystemConfiguration configuration(store, kernelQuery);
    for (auto _ : state) {
        visit.change();
        const double begin = processorSeconds();
        const auto titles = list(configuration);
        state.SetIterationTime(processorSeconds() - begin);
        if (!titles.has_value() || titles->size() < static_cast<std::size_t>(links)) {
            state.SkipWithError("links are missing");
            break;
        }
    }
}

void list10Interfaces(benchmark::State& state) {
    listInterfaces(state, 10);
}
BENCHMARK(list10Interfaces)->UseManualTime()->Unit(benchmark::kMicrosecond);

void list100Interfaces(benchmark::State& state) {
    listInterfaces(state, 100);
}
BENCHMARK(list100Interfaces)->UseManualTime()->Unit(benchmark::kMicrosecond);

void list1000Interfaces(benchmark::State& state) {
    listInterfaces(state, 1000);
}
BENCHMARK(list1000Interfaces)->UseManualTime()->Unit(benchmark::kMicrosecond);

void enumerate10Interfaces(benchmark::State& state) {
    listInterfaces(state, 10, allTitles);
}
BENCHMARK(enumerate10Interfaces)->UseManualTime()->Unit(benchmark::kMicrosecond);

void enumerate100Interfaces(benchmark::State& state) {
    listInterfaces(state, 100, allTitles);
}
BENCHMARK(enumerate100Interfaces)->UseManualTime()->Unit(benchmark::kMicrosecond);

void enumerate1000Interfaces(benchmark::State& state) {
    listInterfaces(state, 1000, allTitles);
}
BENCHMARK(enumerate1000Interfaces)->UseManualTime()->Unit(benchmark::kMicrosecond);

const Comparison tenfold("list 100 interfaces, beside 10 (in proportion: 10)", "list100Interfaces",
                         "list10Interfaces");
const Comparison hundredfold("list 1,000 interfaces, beside 100 (in proportion: 10)",
                             "list1000Interfaces", "list100Interfaces");
const Comparison enumeratedTenfold("enumerate 100 interfaces, beside 10 (in proportion: 10)",
                                   "enumerate100Interfaces", "enumerate10Interfaces");
const Comparison enumeratedHundredfold("enumerate 1,000 interfaces, beside 100 (in proportion: 10)",
                                       "enumerate1000Interfaces", "enumerate100Interfaces");

} // namespace

} // namespace kx
