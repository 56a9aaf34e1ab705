#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A proxy on a free port, which it prints: proxy_server.py {socks|http} LOG [USER:PASSWORD]

Whatever host it is asked for, it connects to that port of this machine; the host and the port go to the log,
one a line. With a name and a password it lets nobody else pass. Ends when its standard input is closed."""

import base64
import socket
import sys
import threading


def main():
    kind, log, login = sys.argv[1], sys.argv[2], sys.argv[3] if len(sys.argv) > 3 else ""
    listener = socket.create_server(("127.0.0.1", 0))
    print(listener.getsockname()[1], flush=True)
    serve = serve_socks if kind == "socks" else serve_http
    threading.Thread(target=accept, args=(listener, serve, log, login), daemon=True).start()
    sys.stdin.read()


def accept(listener, serve, log, login):
    while True:
        client = listener.accept()[0]
        threading.Thread(target=run, args=(serve, client, log, login), daemon=True).start()


def run(serve, client, log, login):
    with client:
        serve(client, log, login)


def exactly(client, size):
    data = b""
    while len(data) < size:
        part = client.recv(size - len(data))
        if not part:
            raise ConnectionError
        data += part
    return data


def serve_socks(client, log, login):
    methods = exactly(client, exactly(client, 2)[1])
    wanted = 2 if login else 0
    if wanted not in methods:
        client.sendall(b"\x05\xff")
        return
    client.sendall(bytes((5, wanted)))
    if login:
        name = exactly(client, exactly(client, 2)[1])
        password = exactly(client, exactly(client, 1)[0])
        right = (name + b":" + password).decode() == login
        client.sendall(b"\x01\x00" if right else b"\x01\x01")
        if not right:
            return
    kind = exactly(client, 4)[3]
    host = exactly(client, exactly(client, 1)[0]).decode() if kind == 3 else ""
    port = int.from_bytes(exactly(client, 2), "big")
    server = reach(log, host, port)
    if not server:
        client.sendall(b"\x05\x05\x00\x01" + bytes(6))
        return
    client.sendall(b"\x05\x00\x00\x03\x04here\x00\x00")
    pass_on(client, server)


def serve_http(client, log, login):
    head = b""
    while not head.endswith(b"\r\n\r\n"):
        head += exactly(client, 1)
    lines = head.decode().split("\r\n")
    host, _, port = lines[0].split(" ")[1].rpartition(":")
    right = "Proxy-Authorization: Basic " + base64.b64encode(login.encode()).decode()
    if login and right not in lines:
        client.sendall(b"HTTP/1.1 407 who are you\r\n\r\n")
        return
    server = reach(log, host, int(port))
    if not server:
        client.sendall(b"HTTP/1.1 502 nobody there\r\nServer: test\r\n\r\n")
        return
    client.sendall(b"HTTP/1.1 200 go on\r\nServer: test\r\n\r\n")
    pass_on(client, server)


def reach(log, host, port):
    with open(log, "a", encoding="utf-8") as file:
        file.write("%s %d\n" % (host, port))
    try:
        return socket.create_connection(("127.0.0.1", port))
    except OSError:
        return None


def pass_on(client, server):
    with server:
        back = threading.Thread(target=copy, args=(server, client), daemon=True)
        back.start()
        copy(client, server)
        back.join()


def copy(source, target):
    try:
        while data := source.recv(65536):
            target.sendall(data)
        target.shutdown(socket.SHUT_WR)
    except OSError:
        pass


if __name__ == "__main__":
    main()
