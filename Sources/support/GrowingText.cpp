#include "support/GrowingText.h"

namespace kx {

void GrowingText::append(std::string_view text) {
    if (!_pieces.back().empty() && _pieces.back().size() + text.size() > pieceLength) {
        _pieces.emplace_back().reserve(pieceLength);
    }
    _pieces.back() += text;
    _size += text.size();
}

void GrowingText::clear() {
    *this = GrowingText();
}

std::string GrowingText::text() const {
    std::string whole;
    whole.reserve(_size);
    for (const std::string& piece : _pieces) {
        whole += piece;
    }
    return whole;
}

} // namespace kx
