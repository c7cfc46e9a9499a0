"""Receives batches of datagrams through an asyncio endpoint, for the reception benchmark.

usage: asyncio_receiver.py PORT BATCH

Prints "ready" when the port is bound. For each line on standard input it runs the loop until a
batch has arrived, and prints the seconds that this took.
"""
import asyncio
import sys
import time


class Receiver(asyncio.DatagramProtocol):
    """Counts datagrams, and stops the loop when the batch is complete."""

    def __init__(self, loop, batch):
        self.loop, self.batch, self.received = loop, batch, 0

    def datagram_received(self, data, addr):
        self.received += 1
        if self.received % self.batch == 0:
            self.loop.stop()


def main():
    port, batch = int(sys.argv[1]), int(sys.argv[2])
    loop = asyncio.new_event_loop()
    loop.run_until_complete(loop.create_datagram_endpoint(
        lambda: Receiver(loop, batch), local_addr=("127.0.0.1", port)))
    print("ready", flush=True)
    for _ in sys.stdin:
        begin = time.perf_counter()
        loop.run_forever()
        print(time.perf_counter() - begin, flush=True)


main()
