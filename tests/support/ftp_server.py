#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A small FTP server (RFC 959, 2228, 2389, 2428, 3659, 4217; passive mode) that can be told to fail.

Prints its port, then serves until its standard input is closed. Every command is appended to the log, one a
line, with the number of its connection before it. A line on the standard input, faults parted by tabs, ends all
that is still being said, takes the place of the faults so far, lets all counts begin anew, and is answered by "ok":
from then on nothing of what was before is at work any more.

A fault is "WHICH=WHAT". WHICH is "#N", the N-th command of all; a verb, each time; or "VERB:N", its N-th time.
"TLS" stands for the greeting that follows AUTH. WHAT is
  drop       close the connection instead of replying
  reset      the same, by a reset
  silent     never reply
  megabyte   reply with as many bytes in one reply of many lines, and otherwise as always
  longline   the same in one line
  endless    lines of a reply without an end
  stall      of STOR and APPE: take some bytes and no more; of RETR: send some and no more
  cut        of STOR, APPE and RETR: close both connections in the middle of the file
  lie        of STOR and APPE: keep some bytes of the file and say that all of it is there
  452        of STOR and APPE: take the file, then say that the disk is full
  NNN text   reply so and do nothing"""

import argparse
import os
import socket
import ssl
import struct
import sys
import threading
import time

STALLED_AFTER = 20000       # bytes
LISTED_YEAR = 2020


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
    parser.add_argument("--listing", help="a file whose bytes are sent for every listing")
    parser.add_argument("--old", action="store_true", help="RFC 959 alone, with its listings of old")
    parser.add_argument("--dos", action="store_true", help="listings as a DIR of old shows them, no MLSD, no EPSV")
    parser.add_argument("--without", default="", help="verbs that are not known, parted by commas")
    parser.add_argument("--delay", type=float, default=0, help="seconds by which each reply is late")
    parser.add_argument("--most", type=int, default=0, help="connections at a time; others meet 421")
    parser.add_argument("--certificate", help="PEM file with key; offers encryption")
    parser.add_argument("--tls", choices=["1.2", "1.3", "any"], default="any")
    parser.add_argument("--implicit", action="store_true", help="encrypted from the first byte on")
    parser.add_argument("--abrupt", action="store_true",
                        help="end encrypted data connections without a good-bye, as many servers do")
    parser.add_argument("--patient", action="store_true",
                        help="close a data connection on which anything comes before the command that uses it")
    choices = parser.parse_args()
    listener = listen(choices.address, choices.port)
    print(listener.getsockname()[1], flush=True)
    server = Server(choices)
    threading.Thread(target=server.accept, args=(listener,), daemon=True).start()
    for line in sys.stdin:
        server.begin_anew(line.rstrip("\n").split("\t"))
        print("ok", flush=True)


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
        self.open = 0
        self.counts = {}
        self.faults = {}
        self.talks = {}             # sessions by their threads
        self.begin_anew(choices.fault)
        self.without = set(filter(None, choices.without.split(",")))
        if choices.old:
            self.without |= {"MLSD", "MLST", "EPSV", "SIZE", "MDTM", "REST", "FEAT", "AUTH", "STAT", "OPTS"}
        if choices.dos:
            self.without |= {"MLSD", "MLST", "EPSV", "STAT"}
        self.context = self.make_context() if choices.certificate else None

    def begin_anew(self, faults):
        self.end_talks()
        with self.lock:
            self.count = 0
            self.counts = {}
            self.faults = dict(fault.split("=", 1) for fault in faults if fault)

    def end_talks(self):
        """Hangs up, and waits until what has been received until then has been obeyed."""
        while True:
            with self.lock:
                talks = dict(self.talks)
            if not talks:
                return
            for thread, session in talks.items():
                session.hang_up()
                thread.join(0.05)

    def make_context(self):
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(self.choices.certificate)
        if self.choices.tls == "1.2":
            context.maximum_version = ssl.TLSVersion.TLSv1_2
        if self.choices.tls == "1.3":
            context.minimum_version = ssl.TLSVersion.TLSv1_3
        return context

    def accept(self, listener):
        number = 0
        while True:
            connection, _ = listener.accept()
            number += 1
            threading.Thread(target=self.serve, args=(connection, number), daemon=True).start()

    def serve(self, connection, number):
        with self.lock:
            self.open += 1
            crowded = self.choices.most and self.open > self.choices.most
        try:
            if crowded:
                connection.sendall(b"421 too many are here\r\n")
                connection.close()
            else:
                session = Session(self, connection, number)
                with self.lock:
                    self.talks[threading.current_thread()] = session
                session.serve()
        finally:
            with self.lock:
                self.open -= 1
                self.talks.pop(threading.current_thread(), None)

    def fault_of(self, verb, count):
        for which in ("#%d" % self.count, verb, "%s:%d" % (verb, count)):
            if which in self.faults:
                return self.faults[which]
        return ""

    def note(self, number, line, verb):
        """Logs a command and returns the fault that it meets."""
        with self.lock:
            with open(self.choices.log, "ab") as log:
                log.write(b"%d %s\n" % (number, line))
            self.count += 1
            self.counts[verb] = self.counts.get(verb, 0) + 1
            return self.fault_of(verb, self.counts[verb])


class Dropped(Exception):
    pass


class Session:
    def __init__(self, server, connection, number):
        self.server, self.connection, self.number = server, connection, number
        self.choices = server.choices
        self.folder = []            # names below the root
        self.user = None
        self.welcome = False
        self.data = None            # listens for the next data connection
        self.file = None            # the data connection at work
        self.private = False
        self.offset = 0
        self.renamed = None
        self.waiting = b""          # received, not yet obeyed
        self.over = threading.Event()

    def serve(self):
        try:
            self.connection.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
            if self.choices.implicit:
                self.secure()
            self.say("220 ready")
            while line := self.read_line():
                if not self.obey(line.rstrip(b"\r\n")):
                    break
        except (Dropped, OSError):
            pass
        finally:
            self.close_data()
            self.connection.close()

    def read_line(self):
        while b"\n" not in self.waiting:
            part = self.connection.recv(4096)
            if not part:
                return b""
            self.waiting += part
        line, _, self.waiting = self.waiting.partition(b"\n")
        return line + b"\n"

    def secure(self):
        self.connection = self.server.context.wrap_socket(self.connection, server_side=True)

    def say(self, text):
        if self.choices.delay:
            time.sleep(self.choices.delay)
        self.connection.sendall(text.encode("utf-8", "surrogateescape") + b"\r\n")

    def hang_up(self):
        """Lets no call of this session wait any longer; called on another thread."""
        self.over.set()
        for end in (self.connection, self.data, self.file):
            try:
                if end:
                    socket.socket.shutdown(end, socket.SHUT_RDWR)
            except OSError:
                pass

    def be_silent(self):
        self.over.wait()
        raise Dropped

    def reset(self):
        self.connection.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))

    def obey(self, line):
        word, _, argument = line.partition(b" ")
        verb = word.decode("ascii", "replace").upper()
        fault = self.server.note(self.number, line, verb)
        if fault == "drop":
            raise Dropped
        if fault == "reset":
            self.reset()
            raise Dropped
        if fault == "silent":
            self.be_silent()
        if fault == "endless":
            while True:
                self.say("250-more")
        if fault == "megabyte":
            self.connection.sendall(b"250-line of a long reply\r\n" * 40000)
        if fault == "longline":
            self.connection.sendall(b"250-" + b"x" * 1000000 + b"\r\n")
        if fault[:3].isdigit() and not (fault == "452" and verb in ("STOR", "APPE")):
            self.say(fault)
            return not fault.startswith("421")
        handler = getattr(self, "do_" + verb, None)
        if not handler or verb in self.server.without:
            self.say("502 not known")
        elif not self.welcome and verb not in ("USER", "PASS", "QUIT", "AUTH", "PBSZ", "PROT", "FEAT"):
            self.say("530 log in first")
        else:
            handler(os.fsdecode(argument), fault)
        return verb != "QUIT"

    def do_USER(self, name, _):
        self.user = name
        self.say("331 the password, please")

    def do_PASS(self, password, _):
        self.welcome = (self.user, password) == (self.choices.user, self.choices.password)
        self.say("230 welcome" if self.welcome else "530 no")

    def do_QUIT(self, *_):
        self.say("221 good-bye")

    def do_AUTH(self, *_):
        if not self.server.context:
            self.say("502 not known")
            return
        self.say("234 go on")
        with self.server.lock:
            count = self.server.counts["TLS"] = self.server.counts.get("TLS", 0) + 1
            fault = self.server.fault_of("TLS", count)
        if fault == "silent":
            self.be_silent()
        if fault:
            raise Dropped
        self.secure()

    def do_PBSZ(self, *_):
        self.say("200 fine")

    def do_PROT(self, level, _):
        self.private = level.upper() == "P"
        self.say("200 fine")

    def do_FEAT(self, *_):
        names = ["UTF8", "SIZE", "MDTM", "REST STREAM", "MLST size*;type*;modify*;"]
        if self.server.context:
            names.append("AUTH TLS")
        known = [name for name in names if name.split()[0] not in self.server.without]
        self.say("211-these\r\n" + "".join(" %s\r\n" % name for name in known) + "211 no more")

    def do_OPTS(self, *_):
        self.say("200 fine")

    def do_PWD(self, *_):
        self.say('257 "/%s"' % "/".join(self.folder))

    def do_TYPE(self, *_):
        self.say("200 fine")

    def do_NOOP(self, *_):
        self.say("200 fine")

    def resolve(self, name):
        """The names below the root that a name means, or None when it leaves the root."""
        if not self.choices.unix:
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
        return os.path.join(self.choices.root, *parts)

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

    def do_DELE(self, name, _):
        try:
            os.remove(self.path(self.resolve(name)))
            self.say("250 gone")
        except (OSError, TypeError):
            self.say("550 no such file")

    def do_RNFR(self, name, _):
        parts = self.resolve(name)
        if parts is None or not os.path.exists(self.path(parts)):
            self.say("550 no such file")
        else:
            self.renamed = parts
            self.say("350 to what")

    def do_RNTO(self, name, _):
        try:
            os.rename(self.path(self.renamed), self.path(self.resolve(name)))
            self.say("250 renamed")
        except (OSError, TypeError):
            self.say("553 not renamed")
        self.renamed = None

    def do_REST(self, offset, _):
        self.offset = int(offset)
        self.say("350 from there on")

    def do_EPSV(self, *_):
        self.close_data()
        self.data = listen(self.choices.address)
        self.say("229 (|||%d|)" % self.data.getsockname()[1])

    def do_PASV(self, *_):
        self.close_data()
        self.data = listen(self.choices.address)
        port = self.data.getsockname()[1]
        self.say("227 (%s,%d,%d)" % (self.choices.address.replace(".", ","), port >> 8, port & 255))

    def close_data(self):
        if self.data:
            self.data.close()
            self.data = None

    def open_data(self):
        with self.data as listener:
            if self.choices.patient:
                connection = self.file = listener.accept()[0]
                connection.settimeout(0.05)
                try:
                    early = connection.recv(1, socket.MSG_PEEK)
                except TimeoutError:
                    early = b""
                connection.settimeout(None)
                if early:
                    connection.close()
                    self.say("425 who speaks before being asked is not heard")
                    raise Dropped
            self.say("150 go on")
            if not self.choices.patient:
                connection = self.file = listener.accept()[0]
        self.data = None
        if self.private:
            connection = self.file = self.server.context.wrap_socket(connection, server_side=True)
        return connection

    def do_STOR(self, name, fault):
        self.take(name, fault, "r+b" if self.offset else "wb")

    def do_APPE(self, name, fault):
        self.take(name, fault, "ab")

    def take(self, name, fault, mode):
        parts = self.resolve(name)
        offset, self.offset = self.offset, 0
        try:
            target = open(self.path(parts), mode)
        except (OSError, TypeError):
            self.say("553 not stored")
            return
        with target, self.open_data() as data:
            if offset:
                target.seek(offset)
                target.truncate()
            taken = 0
            while part := data.recv(65536):
                if fault == "lie" and taken > 0:
                    continue
                target.write(part[:100] if fault == "lie" else part)
                taken += len(part)
                if taken >= STALLED_AFTER and fault == "stall":
                    self.be_silent()
                if taken >= STALLED_AFTER and fault == "cut":
                    raise Dropped
            self.part(data)
        self.say("452 disk full" if fault == "452" else "226 stored")

    def part(self, data):
        """Says good-bye on a data connection, so that its end is no cut."""
        if self.private and not self.choices.abrupt:
            try:
                data.unwrap()
            except OSError:
                pass

    def line_of(self, parts, name):
        status = os.stat(os.path.join(self.path(parts), name))
        folder = os.path.isdir(os.path.join(self.path(parts), name))
        if self.choices.dos:
            return "01-02-20  03:04PM %s %s" % ("      <DIR>         " if folder else "%20d" % status.st_size, name)
        return "%srw-r--r--   1 owner    group    %12d Jan  2  %d %s" % (
            "d" if folder else "-", status.st_size, LISTED_YEAR, name)

    def facts_of(self, parts, name):
        status = os.stat(os.path.join(self.path(parts), name))
        folder = os.path.isdir(os.path.join(self.path(parts), name))
        when = time.strftime("%Y%m%d%H%M%S", time.gmtime(status.st_mtime))
        return "type=%s;%smodify=%s; %s" % ("dir" if folder else "file",
                                            "" if folder else "size=%d;" % status.st_size, when, name)

    def listed(self, argument, line):
        parts = self.resolve(argument)
        if parts is None or not os.path.isdir(self.path(parts)):
            return None
        return [line(parts, name) for name in sorted(os.listdir(self.path(parts)))]

    def send_listing(self, argument, line):
        lines = self.listed(argument, line)
        if lines is None:
            self.say("550 no such folder")
            return
        content = "".join(text + "\r\n" for text in lines).encode("utf-8", "surrogateescape")
        if self.choices.listing:
            with open(self.choices.listing, "rb") as file:
                content = file.read()
        with self.open_data() as data:
            data.sendall(content)
            self.part(data)
        self.say("226 all of them")

    def do_NLST(self, argument, _):
        self.send_listing(argument, lambda parts, name: name)

    def do_LIST(self, argument, _):
        self.send_listing(argument, self.line_of)

    def do_MLSD(self, argument, _):
        self.send_listing(argument, self.facts_of)

    def do_MLST(self, name, _):
        parts = self.resolve(name)
        if not parts or not os.path.exists(self.path(parts)):
            self.say("550 no such file")
        else:
            self.say("250-this\r\n %s\r\n250 no more" % self.facts_of(parts[:-1], parts[-1]))

    def do_STAT(self, argument, _):
        lines = self.listed(argument, self.line_of)
        if not argument or lines is None:
            self.say("211 well" if not argument else "450 no such folder")
        else:
            self.say("213-listing\r\n" + "".join(line + "\r\n" for line in lines) + "213 no more")

    def do_SIZE(self, name, _):
        parts = self.resolve(name)
        if parts is None or not os.path.isfile(self.path(parts)):
            self.say("550 no such file")
        else:
            self.say("213 %d" % os.path.getsize(self.path(parts)))

    def do_MDTM(self, name, _):
        parts = self.resolve(name)
        if parts is None or not os.path.isfile(self.path(parts)):
            self.say("550 no such file")
        else:
            self.say(time.strftime("213 %Y%m%d%H%M%S", time.gmtime(os.path.getmtime(self.path(parts)))))

    def do_RETR(self, name, fault):
        parts = self.resolve(name)
        offset, self.offset = self.offset, 0
        if parts is None or not os.path.isfile(self.path(parts)):
            self.say("550 no such file")
            return
        with open(self.path(parts), "rb") as file, self.open_data() as data:
            file.seek(offset)
            if fault in ("stall", "cut"):
                data.sendall(file.read(STALLED_AFTER))
                if fault == "cut":
                    raise Dropped
                self.be_silent()
            data.sendall(file.read())
            self.part(data)
        self.say("226 sent")


if __name__ == "__main__":
    main()
