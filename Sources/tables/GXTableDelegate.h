// The object that the owner of a table sets as the table's delegate.
//
// The tables keep a plain pointer and send it nothing; what a delegate is told is up to a subclass
// of the table, which knows the class of its delegates. The delegate must outlive the table or be
// cleared.

#pragma once

namespace kx {

class GXTableDelegate {
public:
    virtual ~GXTableDelegate() = default;
};

} // namespace kx
