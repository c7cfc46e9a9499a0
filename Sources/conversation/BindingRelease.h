// Takes fixed entries of the ARP cache out again that a run has left behind when it was killed.
//
// An entry is taken out only when it still stands as the run has made it: nobody is asked for
// administrator rights without need.
//
// Threading and ownership: see Operation.h. The services must outlive the release.

#pragma once

#include "conversation/AddressBindings.h"
#include "conversation/NeighbourTable.h"
#include "conversation/Operation.h"
#include "conversation/RunJournal.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace kx {

class BindingRelease final : public Operation {
public:
    struct Services {
        AddressBindings& bindings;
        NeighbourTable& neighbours;
        RunJournal* journal = nullptr; // hears that an entry is gone; may be null
    };

    // `links` are the indexes of the interfaces on which entries may stand.
    BindingRelease(const Services& services, std::vector<std::uint32_t> links,
                   std::vector<JournalledBinding> left);

    struct Failure {
        JournalledBinding binding;
        ARPEntry entry; // why it could not be taken out
    };
    const std::vector<Failure>& failures() const { return _failures; }

    // The number of entries that were taken out.
    std::size_t released() const { return _released; }

    void interrupt() override { _isInterrupted = true; }

private:
    void start() override;
    void beginNext();
    bool isThere(const JournalledBinding& binding) const;
    void didRelease(const JournalledBinding& binding, const ARPEntry& entry);
    void noteGone(JournalledBinding binding);

    Services _services;
    std::vector<std::uint32_t> _links;
    std::vector<JournalledBinding> _left;
    std::vector<Failure> _failures;
    std::size_t _next = 0;
    std::size_t _released = 0;
    bool _isInterrupted = false;
    std::shared_ptr<int> _isAlive = std::make_shared<int>(); // a tool may end after this object
};

} // namespace kx
