#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A small FTP server (RFC 959, passive mode, no encryption) that can be told to fail.

Prints its port, then serves until its standard input is closed. Every command is appended to the log, one a
line, with the number of its connection before it.

A fault is "WHICH=WHAT". WHICH is "#N", the N-th command of all; a verb, each time; or "VERB:N", its N-th time.
WHAT is
  drop       close the connection instead of replying
  silent     never reply
  megabyte   reply with as many bytes in one reply of many lines, and otherwise as always
  longline   the same in one line
  endless    lines of a reply without an end
  stall      of STOR: take some bytes and no more; of RETR: send some and no more
  cut        of STOR and RETR: close both connections in the middle of the file
  452        of STOR: take the file, then say that the disk is full
  NNN text   reply so and do nothing"""

import argparse
import os
import socket
import sys
import threading
import time

STALLED_AFTER = 20000       # bytes


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("root")
    parser.add_argument("--log", required=True)
    parser.add_argument("--user", default="user")
    parser.add_argument("--password", default="secret")
    parser.add_argument("--fault", action="append", default=[])
    parser.add_argument("--address", default="127.0.0.1", help="address of this machine to listen at")
    parser.add_argument("--port", type=int, default=0, help="0 is any free one")
    parser.add_argument("--unix", action="store_true", help="only the slash parts names")
    parser.add_argument("--listing", help="a file whose bytes are sent for every NLST")
    choices = parser.parse_args()
    listener = listen(choices.address, choices.port)
    print(listener.getsockname()[1], flush=True)
    server = Server(choices)
    threading.Thread(target=server.accept, args=(listener,), daemon=True).start()
    sys.stdin.read()


def listen(address, port=0):
    listener = socket.socket()
    listener.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
    listener.bind((address, port))
    listener.listen(10)
    return listener


class Server:
    def __init__(self, choices):
        self.choices = choices
        self.lock = threading.Lock()
        self.count = 0
        self.counts = {}
        self.faults = dict(fault.split("=", 1) for fault in choices.fault)

    def accept(self, listener):
        number = 0
        while True:
            connection, _ = listener.accept()
            number += 1
            threading.Thread(target=Session(self, connection, number).serve, daemon=True).start()

    def note(self, number, line, verb):
        """Logs a command and returns the fault that it meets."""
        with self.lock:
            with open(self.choices.log, "ab") as log:
                log.write(b"%d %s\n" % (number, line))
            self.count += 1
            self.counts[verb] = self.counts.get(verb, 0) + 1
            for which in ("#%d" % self.count, verb, "%s:%d" % (verb, self.counts[verb])):
                if which in self.faults:
                    return self.faults[which]
        return ""


class Dropped(Exception):
    pass


class Session:
    def __init__(self, server, connection, number):
        self.server, self.connection, self.number = server, connection, number
        self.folder = []            # names below the root
        self.user = None
        self.welcome = False
        self.data = None

    def serve(self):
        try:
            self.connection.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
            self.say("220 ready")
            for line in self.connection.makefile("rb"):
                if not self.obey(line.rstrip(b"\r\n")):
                    break
        except (Dropped, OSError):
            pass
        finally:
            self.close_data()
            self.connection.close()

    def say(self, text):
        self.connection.sendall(text.encode() + b"\r\n")

    def obey(self, line):
        word, _, argument = line.partition(b" ")
        verb = word.decode("ascii", "replace").upper()
        fault = self.server.note(self.number, line, verb)
        if fault == "drop":
            raise Dropped
        if fault == "silent":
            time.sleep(3600)
        if fault == "endless":
            while True:
                self.say("250-more")
        if fault == "megabyte":
            self.connection.sendall(b"250-line of a long reply\r\n" * 40000)
        if fault == "longline":
            self.connection.sendall(b"250-" + b"x" * 1000000 + b"\r\n")
        if fault[:3].isdigit() and not (fault == "452" and verb == "STOR"):
            self.say(fault)
            return True
        handler = getattr(self, "do_" + verb, None)
        if not handler:
            self.say("502 not known")
        elif not self.welcome and verb not in ("USER", "PASS", "QUIT"):
            self.say("530 log in first")
        else:
            handler(os.fsdecode(argument), fault)
        return verb != "QUIT"

    def do_USER(self, name, _):
        self.user = name
        self.say("331 the password, please")

    def do_PASS(self, password, _):
        self.welcome = (self.user, password) == (self.server.choices.user, self.server.choices.password)
        self.say("230 welcome" if self.welcome else "530 no")

    def do_QUIT(self, *_):
        self.say("221 good-bye")

    def do_PWD(self, *_):
        self.say('257 "/%s"' % "/".join(self.folder))

    def do_TYPE(self, *_):
        self.say("200 fine")

    def resolve(self, name):
        """The names below the root that a name means, or None when it leaves the root."""
        if not self.server.choices.unix:
            name = name.replace("\\", "/")
        parts = [] if name.startswith("/") else list(self.folder)
        for part in name.split("/"):
            if part == "..":
                if not parts:
                    return None
                parts.pop()
            elif part not in ("", "."):
                parts.append(part)
        return parts

    def path(self, parts):
        return os.path.join(self.server.choices.root, *parts)

    def do_CWD(self, name, _):
        parts = self.resolve(name)
        if parts is None or not os.path.isdir(self.path(parts)):
            self.say("550 no such folder")
        else:
            self.folder = parts
            self.say("250 there")

    def do_MKD(self, name, _):
        parts = self.resolve(name)
        try:
            os.mkdir(self.path(parts))
            self.say('257 "%s" made' % name)
        except (OSError, TypeError):
            self.say("550 not made")

    def do_EPSV(self, *_):
        self.close_data()
        self.data = listen(self.server.choices.address)
        self.say("229 (|||%d|)" % self.data.getsockname()[1])

    def close_data(self):
        if self.data:
            self.data.close()
            self.data = None

    def open_data(self):
        listener, self.data = self.data, None
        self.say("150 go on")
        with listener:
            return listener.accept()[0]

    def do_STOR(self, name, fault):
        parts = self.resolve(name)
        try:
            target = open(self.path(parts), "wb")
        except (OSError, TypeError):
            self.say("553 not stored")
            return
        with target, self.open_data() as data:
            taken = 0
            while part := data.recv(65536):
                target.write(part)
                taken += len(part)
                if taken >= STALLED_AFTER and fault == "stall":
                    time.sleep(3600)
                if taken >= STALLED_AFTER and fault == "cut":
                    raise Dropped
        self.say("452 disk full" if fault == "452" else "226 stored")

    def do_NLST(self, *_):
        if self.server.choices.listing:
            with open(self.server.choices.listing, "rb") as file:
                names = file.read()
        else:
            names = b"".join(os.fsencode(name) + b"\r\n" for name in sorted(os.listdir(self.path(self.folder))))
        with self.open_data() as data:
            data.sendall(names)
        self.say("226 all of them")

    def do_SIZE(self, name, _):
        parts = self.resolve(name)
        if parts is None or not os.path.isfile(self.path(parts)):
            self.say("550 no such file")
        else:
            self.say("213 %d" % os.path.getsize(self.path(parts)))

    def do_RETR(self, name, fault):
        parts = self.resolve(name)
        if parts is None or not os.path.isfile(self.path(parts)):
            self.say("550 no such file")
            return
        with open(self.path(parts), "rb") as file, self.open_data() as data:
            if fault in ("stall", "cut"):
                data.sendall(file.read(STALLED_AFTER))
                if fault == "cut":
                    raise Dropped
                time.sleep(3600)
            data.sendall(file.read())
        self.say("226 sent")


if __name__ == "__main__":
    main()
