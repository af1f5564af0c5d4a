# SPDX-License-Identifier: GPL-3.0-or-later
"""A web server with a certificate, for the tests of what is fetched over HTTPS; its paths say how it behaves.

web_server.py CERTIFICATE LOG

Speaks HTTPS and plain HTTP on one free port of the loopback. Prints the port; writes each request's head to LOG;
ends when its standard input does. /file/NAME is the file NAME beside LOG.
"""
import gzip
import os
import pathlib
import socket
import ssl
import sys
import threading
import time
import zlib
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer

certificate, log_name = sys.argv[1:]
log = open(log_name, "a", buffering=1)
draws = b"Draw Date,Winning Numbers\r\n" * 1000
bomb = gzip.compress(bytes(2_000_000), 1)
tag, date = '"version 1"', "Sat, 21 Nov 2026 10:35:00 GMT"


class Handler(BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def do_GET(self):
        log.write(f"{self.path}\n{self.headers}")
        _, way, *rest = self.path.split("/")
        getattr(self, "send_" + way, self.send_number)(*rest)

    def answer(self, status, body=b"", **headers):
        self.send_response(status)
        headers.setdefault("Content_Length", len(body))
        for name, value in headers.items():
            if value is not None:
                self.send_header(name.replace("_", "-"), value)
        self.end_headers()
        self.wfile.write(body)

    def send_number(self):
        self.answer(int(self.path[1:]), b"a page for people")

    def send_draws(self):
        if self.headers["If-None-Match"] == tag and self.headers["If-Modified-Since"] == date:
            self.answer(304)
        elif "gzip" in self.headers["Accept-Encoding"]:
            self.answer(200, gzip.compress(draws), ETag=tag, Last_Modified=date, Content_Encoding="gzip")

    def send_file(self, name):
        body = (pathlib.Path(log_name).parent / name).read_bytes()
        version = f'"{zlib.crc32(body)}"'
        if self.headers["If-None-Match"] == version:
            self.answer(304)
        else:
            self.answer(200, gzip.compress(body), ETag=version, Content_Encoding="x-gzip")

    def send_cut(self, name):
        """Everything but the checksum and the length of what was packed."""
        packed = gzip.compress((pathlib.Path(log_name).parent / name).read_bytes())
        self.answer(200, packed[:-8], Content_Encoding="gzip")

    def send_plain(self, name, length=None):
        """Without packing; without a length the end of the connection is the end."""
        body = (pathlib.Path(log_name).parent / name).read_bytes()
        self.answer(200, body, Content_Length=len(body) if length else None)
        self.close_connection = True

    def send_bare(self):
        self.answer(200, draws)

    def send_hops(self, count):
        there = "/draws" if count == "1" else f"/hops/{int(count) - 1}"
        self.answer(302, Location=there)

    def send_to(self, scheme, host):
        host = host or f"127.0.0.1:{self.server.server_port}"
        self.answer(301, Location=f"{scheme}://{host}/draws")

    def send_short(self):
        self.answer(200, draws, Content_Length=len(draws) + 1)
        self.close_connection = True

    def send_shortpieces(self):
        self.answer(200, b"4\r\nDraw\r\n", Content_Length=None, Transfer_Encoding="chunked")
        self.close_connection = True

    def send_damaged(self):
        self.answer(200, gzip.compress(draws)[:-8] + bytes(8), Content_Encoding="gzip")

    def send_bomb(self):
        self.answer(200, bomb, Content_Encoding="gzip")

    def send_silent(self):
        time.sleep(60)

    def send_drip(self):
        self.send_response(200)
        self.send_header("Content-Length", "1000")
        self.end_headers()
        for _ in range(1000):
            self.wfile.write(b"d")
            time.sleep(0.05)

    def log_message(self, *_):
        pass


class Server(ThreadingHTTPServer):
    daemon_threads = True

    def finish_request(self, request, address):
        # A first byte of 22 begins TLS.
        if request.recv(1, socket.MSG_PEEK) == b"\x16":
            request = tls.wrap_socket(request, server_side=True)
        super().finish_request(request, address)

    def handle_error(self, *_):
        pass  # The client left.


tls = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
tls.load_cert_chain(certificate)
server = Server(("127.0.0.1", 0), Handler)
print(server.server_port, flush=True)
threading.Thread(target=lambda: (sys.stdin.read(), os._exit(0)), daemon=True).start()
server.serve_forever()
