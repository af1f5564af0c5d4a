#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs servers and commands for test programs that run under Wine, outside of it.

server_keeper.py COMMAND...: runs COMMAND with TALLYWICK_SERVER_KEEPER set to a port of the loopback, and ends with its code.

A test program connects and sends one line of words with tabs between: `server SCRIPT ARGUMENT...` is answered with the port of a
server that lives as long as the connection; `shell COMMAND` with the command's exit code. Paths of Windows become those of here."""
import os, pathlib, re, socketserver, subprocess, sys, threading

drives = pathlib.Path(os.environ['WINEPREFIX']) / 'dosdevices'


def here(text):
    """`text` with the paths of Windows in it as this system knows them."""
    return re.sub(r'\b([A-Za-z]:)([\\/][^\s\'"]*)',
                  lambda found: str(drives / found[1].lower()) + found[2].replace('\\', '/'), text)


class Request(socketserver.StreamRequestHandler):
    def handle(self):
        verb, *words = self.rfile.readline().decode().rstrip('\n').split('\t')
        words = [here(word) for word in words]
        if verb == 'shell':
            self.answer(subprocess.run(words[0], shell=True).returncode)
            return
        with subprocess.Popen([sys.executable] + words, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True) as server:
            self.answer(server.stdout.readline().strip())
            self.rfile.read()  # until the test program leaves
            server.kill()

    def answer(self, text):
        self.wfile.write(f'{text}\n'.encode())
        self.wfile.flush()


class Keeper(socketserver.ThreadingTCPServer):
    daemon_threads = True

    def handle_error(self, *_):
        pass  # The test program left.


with Keeper(('127.0.0.1', 0), Request) as keeper:
    threading.Thread(target=keeper.serve_forever, daemon=True).start()
    sys.exit(subprocess.run(sys.argv[1:], env=os.environ | {'TALLYWICK_SERVER_KEEPER': str(keeper.server_address[1])}).returncode)
