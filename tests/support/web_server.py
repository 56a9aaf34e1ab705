#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A web server for tests of downloads. Prints its port, then serves until its standard input is closed.

/file    300,000 bytes        /moved    leads to /file      /loop     leads to itself
/cut     ends too early       /outside  leads to a file     /stall    ends in the middle and stays open

Any path that ends in .EXE is that of /file."""

import sys
import threading
import time
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer

CONTENT = b"installer\n" * 30000


class Handler(BaseHTTPRequestHandler):
    REDIRECTIONS = {"/moved": "/file", "/loop": "/loop", "/outside": "file:///etc/passwd"}

    def do_GET(self):
        if self.path.endswith(".EXE"):
            self.path = "/file"
        if self.path in self.REDIRECTIONS:
            self.send_response(302)
            self.send_header("Location", self.REDIRECTIONS[self.path])
            self.end_headers()
        elif self.path in ("/file", "/cut", "/stall"):
            self.send_response(200)
            self.send_header("Content-Length", str(len(CONTENT)))
            self.end_headers()
            self.wfile.write(CONTENT if self.path == "/file" else CONTENT[:100000])
            if self.path == "/stall":
                time.sleep(3600)
        else:
            self.send_error(404)

    def log_message(self, *_):
        pass


def main():
    server = ThreadingHTTPServer(("127.0.0.1", 0), Handler)
    print(server.server_address[1], flush=True)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    sys.stdin.read()


main()
