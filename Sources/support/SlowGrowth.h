// Growth of a vector that may become large: by an eighth of its length and a few elements, where
// push_back() alone doubles it. An element is then moved some eight times in all.

#pragma once

#include <cstddef>
#include <vector>

namespace kx {

// Makes room for one more element when there is none.
template<class Element>
void makeRoomForOneMore(std::vector<Element>& elements) {
    constexpr std::size_t few = 8;
    if (elements.size() == elements.capacity()) {
        elements.reserve(elements.size() + elements.size() / 8 + few);
    }
}

} // namespace kx
