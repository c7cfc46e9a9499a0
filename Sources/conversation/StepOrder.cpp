#include "conversation/StepOrder.h"

#include <algorithm>

namespace kx {

namespace {

// The search for strongly connected components of R. Tarjan (1972), without recursion: a chain of
// waits may be as long as the table. A component is found after all that it waits for.
class RingSearch {
public:
    explicit RingSearch(const StepsBefore& before)
        : _before(before)
        , _numbers(before.size(), 0)
        , _lowest(before.size(), 0)
        , _isOpen(before.size(), false) {
        _result.rings.resize(before.size(), 0);
    }

    StepOrder run() {
        for (std::size_t step = 0; step < _before.size(); ++step) {
            if (_numbers[step] == 0) {
                visit(step);
            }
        }
        return std::move(_result);
    }

private:
    struct Visit {
        std::size_t step = 0;
        std::size_t next = 0; // place in the list of the steps before
    };

    void visit(std::size_t first) {
        open(first);
        while (!_path.empty()) {
            Visit& visit = _path.back();
            const std::size_t step = visit.step;
            if (visit.next < _before[step].size()) {
                goTo(_before[step][visit.next++], step);
            } else {
                leave(step);
            }
        }
    }

    void open(std::size_t step) {
        _numbers[step] = _lowest[step] = ++_count;
        _isOpen[step] = true;
        _open.push_back(step);
        _path.push_back({.step = step});
    }

    void goTo(std::size_t before, std::size_t step) {
        if (_numbers[before] == 0) {
            open(before);
        } else if (_isOpen[before]) {
            _lowest[step] = std::min(_lowest[step], _numbers[before]);
        }
    }

    void leave(std::size_t step) {
        _path.pop_back();
        if (!_path.empty()) {
            const std::size_t from = _path.back().step;
            _lowest[from] = std::min(_lowest[from], _lowest[step]);
        }
        if (_lowest[step] == _numbers[step]) {
            closeFrom(step);
        }
    }

    // The steps that were opened since this one, and itself, wait for each other.
    void closeFrom(std::size_t step) {
        const auto begin = std::ranges::find(_open.rbegin(), _open.rend(), step).base() - 1;
        const bool isRing = _open.end() - begin > 1 ||
                            std::ranges::find(_before[step], step) != _before[step].end();
        _rings += isRing ? 1 : 0;
        for (auto each = begin; each != _open.end(); ++each) {
            _isOpen[*each] = false;
            _result.rings[*each] = isRing ? _rings : 0;
        }
        _open.erase(begin, _open.end());
        if (!isRing) {
            _result.steps.push_back(step);
        }
    }

    const StepsBefore& _before;
    std::vector<std::size_t> _numbers; // in the order of the visits, from 1; 0 before the visit
    std::vector<std::size_t> _lowest;  // the lowest number that can be reached among the open ones
    std::vector<bool> _isOpen;
    std::vector<std::size_t> _open;
    std::vector<Visit> _path;
    std::size_t _count = 0;
    std::size_t _rings = 0;
    StepOrder _result;
};

} // namespace

StepOrder orderOfSteps(const StepsBefore& before) {
    return RingSearch(before).run();
}

} // namespace kx
