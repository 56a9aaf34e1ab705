#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Stands between a client and a port of this machine, and writes down every byte that the client sends.

TARGET_PORT LOG. Prints its own port, then forwards until its standard input is closed."""

import socket
import sys
import threading


def forward(source, target, log):
    try:
        while part := source.recv(65536):
            if log:
                with open(log, "ab") as file:
                    file.write(part)
            target.sendall(part)
    except OSError:
        pass
    for end in (source, target):
        try:
            end.shutdown(socket.SHUT_RDWR)
        except OSError:
            pass


def accept(listener, port, log):
    while True:
        client, _ = listener.accept()
        server = socket.create_connection(("127.0.0.1", port))
        threading.Thread(target=forward, args=(client, server, log), daemon=True).start()
        threading.Thread(target=forward, args=(server, client, None), daemon=True).start()


def main():
    listener = socket.socket()
    listener.bind(("127.0.0.1", 0))
    listener.listen(10)
    print(listener.getsockname()[1], flush=True)
    threading.Thread(target=accept, args=(listener, int(sys.argv[1]), sys.argv[2]), daemon=True).start()
    sys.stdin.read()


main()
