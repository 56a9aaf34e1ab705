#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Serves a folder by pyftpdlib: ROOT PORT USER PASSWORD LOG [PEM_FILE, for encryption]."""

import logging
import sys

from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.handlers import FTPHandler
from pyftpdlib.servers import FTPServer


def main(root, port, user, password, log, certificate=None):
    logging.basicConfig(filename=log, level=logging.DEBUG)
    handler = FTPHandler
    if certificate:
        from pyftpdlib.handlers import TLS_FTPHandler as handler
        handler.certfile = certificate
    handler.authorizer = DummyAuthorizer()
    handler.authorizer.add_user(user, password, root, perm="elradfmwMT")
    handler.auth_failed_timeout = 0
    FTPServer(("127.0.0.1", int(port)), handler).serve_forever()


main(*sys.argv[1:])
