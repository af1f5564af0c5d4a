# SPDX-License-Identifier: GPL-3.0-or-later
"""A real FTP server on a free port of the loopback, for the tests of the update.

good_server.py ROOT LOG [no-mlsd] [windows-list]

Prints its port; writes each command that it gets to LOG; ends when its standard input does.
"""
import logging
import os
import sys
import threading

from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.filesystems import AbstractedFS
from pyftpdlib.handlers import FTPHandler, proto_cmds
from pyftpdlib.servers import FTPServer

logging.basicConfig(level=logging.ERROR)
root, log_name, *wishes = sys.argv[1:]
log = open(log_name, "a", buffering=1)


class WindowsListing(AbstractedFS):
    def format_list(self, basedir, listing, ignore_err=True):
        for name in listing:
            path = os.path.join(basedir, name)
            size = "<DIR>    " if os.path.isdir(path) else f"{os.path.getsize(path):20}"
            yield f"11-21-26  10:35AM {size} {name}\r\n".encode()


class Handler(FTPHandler):
    def pre_process_command(self, line, cmd, arg):
        log.write("PASS\n" if cmd == "PASS" else line + "\n")
        super().pre_process_command(line, cmd, arg)


if "no-mlsd" in wishes:
    Handler.proto_cmds = {name: about for name, about in proto_cmds.items() if name != "MLSD"}
if "windows-list" in wishes:
    Handler.abstracted_fs = WindowsListing
Handler.auth_failed_timeout = 0
Handler.authorizer = DummyAuthorizer()
Handler.authorizer.add_user("player one", "se/cr:e@t %41", root, perm="elradfmw")

server = FTPServer(("127.0.0.1", 0), Handler)
print(server.address[1], flush=True)
threading.Thread(target=lambda: (sys.stdin.read(), os._exit(0)), daemon=True).start()
server.serve_forever()
