// The object that the owner of a table sets as the table's delegate.
//
// The tables keep a plain pointer and send it nothing. A subclass of a table knows the class of its
// delegates and decides which events they are told. The delegate must outlive the table or be
// cleared.

#pragma once

namespace kx {

class GXTableDelegate {
public:
    virtual ~GXTableDelegate() = default;
};

} // namespace kx
