#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Uploads of a site of 205 files against `lftp mirror -R -P4`: uploads.py BUILD_FOLDER [ROUNDS].

The site is 200 files of 10 kB and 5 of 5 MB. Servers: vsftpd as it is, and the tests' own server, whose
replies come 20 ms late. Ours writes every file under a temporary name and renames it; lftp does not. The
two take turns."""

import os
import shutil
import socket
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
VSFTPD = """listen=YES
listen_port=%d
listen_address=127.0.0.1
background=NO
run_as_launching_user=YES
seccomp_sandbox=NO
isolate_network=NO
anonymous_enable=YES
no_anon_password=YES
local_enable=NO
anon_root=%s
secure_chroot_dir=%s
allow_writeable_chroot=YES
write_enable=YES
anon_upload_enable=YES
anon_mkdir_write_enable=YES
anon_other_write_enable=YES
anon_umask=022
anon_world_readable_only=NO
connect_from_port_20=NO
"""


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


def wait_for(port):
    for _ in range(200):
        try:
            socket.create_connection(("127.0.0.1", port)).close()
            return
        except OSError:
            time.sleep(0.05)
    raise SystemExit("a server does not start")


class Vsftpd:
    name = "vsftpd"
    user = "anonymous"

    def __init__(self, work):
        self.root, empty = os.path.join(work, "root"), os.path.join(work, "empty")
        os.mkdir(self.root), os.mkdir(empty)
        self.port = free_port()
        with open(os.path.join(work, "conf"), "w") as file:
            file.write(VSFTPD % (self.port, self.root, empty))
        self.process = subprocess.Popen(["vsftpd", os.path.join(work, "conf")])
        wait_for(self.port)

    def commands(self):
        return None


class Late:
    name = "replies 20 ms late"
    user = "user"

    def __init__(self, work):
        self.root, self.log = os.path.join(work, "root"), os.path.join(work, "log")
        os.mkdir(self.root)
        self.process = subprocess.Popen(
            ["/usr/bin/python3", "-B", os.path.join(ROOT, "tests/support/ftp_server.py"), self.root, "--log",
             self.log, "--unix", "--delay", "0.02"],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.port = int(self.process.stdout.readline())

    def commands(self):
        with open(self.log) as file:
            return sum(1 for line in file if " QUIT" not in line)


class Site:
    def __init__(self, work, build):
        self.folder = os.path.join(work, "program")
        shutil.copytree(os.path.join(ROOT, "tests/fixtures/program"), self.folder)
        for part in ("Symbols", "Maps"):
            shutil.rmtree(os.path.join(self.folder, part), ignore_errors=True)
        for i in range(200):
            self.write("Symbols/set/%03d.gif" % i, 10000)
        for i in range(5):
            self.write("Maps/map%d.jpg" % i, 5000000)
        self.project = os.path.join(work, "project.nvpf")
        golden = os.path.join(ROOT, "tests/engine/web/golden/buttons-two-frames-width-500/project.nvp")
        for end in "fx":
            shutil.copy(golden + end, self.project[:-1] + end)
        self.cli = os.path.join(build, "Nubivane", "nubivane-cli")
        self.environment = dict(os.environ, HOME=work, XDG_STATE_HOME=os.path.join(work, "state"),
                                NUBIVANE_PASSWORD="secret", QT_QPA_PLATFORM="offscreen")
        self.settings = os.path.join(work, "settings.ini")
        self.run("settings", "set", "Nubivane\\6.0.0\\Settings", "Ftp", "nubivane folder", "nVane")

    def write(self, name, size):
        path = os.path.join(self.folder, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as file:
            file.write(os.urandom(size))

    def run(self, *words):
        started = time.monotonic()
        subprocess.run([self.cli, "--program-folder", self.folder, "--settings", self.settings, *words],
                       env=self.environment, check=True)
        return time.monotonic() - started

    def upload(self, server, *words):
        return self.run("upload", self.project, "--initialize", "--encryption", "none", "--host", "127.0.0.1",
                        "--port", str(server.port), "--user", server.user, *words)


def mirror(site, server):
    script = ("set ftp:ssl-allow no; set net:max-retries 1; open -u %s,secret -p %d 127.0.0.1; "
              "mirror -R -P4 %s lftp; bye" % (server.user, server.port, site.folder))
    started = time.monotonic()
    subprocess.run(["lftp", "-c", script], check=True, stdout=subprocess.DEVNULL)
    return time.monotonic() - started


def commands_of(server, call):
    before = server.commands()
    seconds = call()
    return seconds, None if before is None else server.commands() - before


def measure(kind, build, rounds):
    ours, theirs, again, theirs_again = [], [], [], []
    with tempfile.TemporaryDirectory() as work:
        for _ in range(rounds):
            turn = tempfile.mkdtemp(dir=work)
            site, server = Site(turn, build), kind(turn)
            try:
                ours.append(site.upload(server))
                theirs.append(mirror(site, server))
                seconds, unchanged = commands_of(server, lambda: site.upload(server))
                again.append(seconds)
                theirs_again.append(mirror(site, server))
                site.write("Symbols/set/100.gif", 10000)
                _, changed = commands_of(server, lambda: site.upload(server))
            finally:
                server.process.kill()
                server.process.wait()
            shutil.rmtree(turn)
    rows = (("first run", ours, theirs), ("nothing changed", again, theirs_again))
    for name, mine, peer in rows:
        print("| %s, %s | %.2f | %.2f | %.2f |" % (kind.name, name, statistics.median(mine),
                                                 statistics.median(peer),
                                                 statistics.median(mine) / statistics.median(peer)))
    if unchanged is not None:
        print("commands with nothing changed: %d, with one file changed: %d" % (unchanged, changed))


def main():
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 5
    print("| Upload of 205 files | nubivane-cli s | lftp s | × |\n|---|---|---|---|")
    for kind in (Vsftpd, Late):
        measure(kind, os.path.abspath(sys.argv[1]), rounds)


if __name__ == "__main__":
    main()
