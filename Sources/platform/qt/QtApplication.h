// The application over Qt's event loop. Needs a QCoreApplication.

#pragma once

#include "Outlets.h"

namespace kx {

class QtApplication final : public Application {
public:
    void terminate() override;
};

} // namespace kx
