// The datagrams that the units heard, and the units' settings, as lines of text that a test can
// search.
//
// There are two kinds of line. Single blanks separate the fields:
//
//   4B5800000001 192.0.2.11 3520 5E5E496458
//       a datagram that a unit took: the unit's serial number at its arrival, the destination IP
//       address and port, the bytes
//   state 4B5800000001 hardware=02:4B:58:00:00:01 address=192.0.2.11 destination=192.0.2.1
//   destination-port=3520 device-port=10000 unit-id=000000000001
//   destination-hardware=02:00:00:00:00:01 clock=-
//       a unit's settings on request and at the end, on one line; a clock that was never set
//       is "-"
//
// Lines are kept until flush(). It appends them with one system call as long as the system takes
// them whole, so several programs may share one file. Threading: one thread.

#pragma once

#include "Simulator/Frame.h"
#include "Simulator/SimulatedUnit.h"

#include <string>

namespace kx::simulator {

class CommandRecord {
public:
    // Appends to the file at `path`, which is made when it is missing. In a folder where everybody
    // may make files, such as /tmp, the path must not name a link, nor a file that another user
    // owns or that has a second name. Throws std::system_error.
    explicit CommandRecord(const std::string& path);

    // Appends to standard output.
    CommandRecord();

    ~CommandRecord();
    CommandRecord(const CommandRecord&) = delete;
    CommandRecord& operator=(const CommandRecord&) = delete;

    void addCommand(const SimulatedUnit& unit, const Datagram& datagram);
    void addState(const SimulatedUnit& unit);

    // Throws std::system_error when the lines cannot be written.
    void flush();

private:
    int _descriptor;
    std::string _lines;
};

} // namespace kx::simulator
