# SPDX-License-Identifier: GPL-3.0-or-later
"""An FTP server that misbehaves as its folder says, or not at all, on a free port of the loopback.

bad_server.py FOLDER

FOLDER contains the name of the fault in "fault", read for each client, the answer to LIST, the answer to MLSD where
the server is to know it, the files, and a "certificate" where it is to know TLS; the commands that come in are
written to its "log". Prints its port; ends when its standard input does.
"""
import os
import socket
import ssl
import sys
import threading
import time

folder = sys.argv[1]


def contents(name):
    try:
        with open(os.path.join(folder, name), "rb") as file:
            return file.read()
    except FileNotFoundError:
        return None


class Session:
    def __init__(self, control):
        self.control = control
        self.fault = (contents("fault") or b"none").decode()
        self.tls = None
        self.log = open(os.path.join(folder, "log"), "a", buffering=1, errors="surrogateescape")

    def say(self, text):
        self.control.sendall(text.encode() + b"\r\n")

    def open_data(self):
        """Waits for the client at the address that it was given."""
        data = self.waiting.accept()[0]
        self.waiting.close()
        if self.tls:
            data = self.tls.wrap_socket(data, server_side=True)
            if not data.session_reused:
                self.say("522 Not the session of the commands")
                raise OSError("the client came with another session")
        return data

    def wait(self, passive_answer):
        self.waiting = socket.create_server(("127.0.0.1", 0))
        port = self.waiting.getsockname()[1]
        self.say(passive_answer.format(port=port, high=port // 256, low=port % 256))

    def start_tls(self):
        self.say("234 Go on")
        self.tls = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        self.tls.load_cert_chain(os.path.join(folder, "certificate"))
        self.control = self.tls.wrap_socket(self.control, server_side=True)

    def send(self, body, end="226 Done"):
        self.say("150 Here it comes")
        with self.open_data() as data:
            data.sendall(body)
        time.sleep(60 if self.fault == "no end" and body == contents("QZRNUM6.Dat") else 0)
        self.say(end)

    def send_file(self, body):
        half = body[: len(body) // 2]
        if self.fault == "short":
            self.send(half)
        elif self.fault in ("drop", "stall"):
            self.say("150 Here it comes")
            data = self.open_data()
            data.sendall(half)
            if self.fault == "stall":
                time.sleep(60)
            self.control.close()
        elif self.fault == "long":
            self.send(body + b"!!")
        elif self.fault == "drip":
            self.say("150 Here it comes")
            with self.open_data() as data:
                for letter in body:
                    data.sendall(bytes([letter]))
                    time.sleep(0.05)
        elif self.fault == "endless":
            self.say("150 Here it comes")
            with self.open_data() as data:
                while True:
                    data.sendall(b"0123456789" * 100)
        elif self.fault == "no answer":
            time.sleep(60)
        else:
            self.send(body)

    def answer(self, command, argument):
        if self.fault == "slow" and command in ("USER", "PASS", "PWD"):
            time.sleep(0.4)
        if self.fault == "crawl" and command == "RETR":
            time.sleep(0.2)
        if command == "AUTH" and contents("certificate") is not None:
            self.start_tls()
        elif command == "USER":
            self.say("331 Password, please")
        elif command == "PASS" and self.fault == "deny":
            self.say("530 No entry for player one with se/cr:e@t")
        elif command == "PASS":
            self.say("230 Welcome")
        elif command == "PWD":
            self.say('257 "/"')
        elif command == "CWD" and self.fault == "closing":
            self.say("421 Come back later")
        elif command == "CWD" and self.fault == "no folder":
            self.say("550 No such folder")
        elif command == "EPSV" and self.fault != "no epsv":
            self.wait("229 Here (|||{port}|)")
        elif command == "PASV":
            self.wait("227 Here (127,0,0,1,{high},{low})")
        elif command in ("LIST", "MLSD") and contents(command) is not None:
            cut = self.fault == "broken list"
            self.send(contents(command), "426 Broken off" if cut else "226 Done")
        elif command == "SIZE" and self.fault != "endless" and contents(argument) is not None:
            self.say(f"213 {len(contents(argument))}")
        elif command == "RETR" and contents(argument) is not None:
            self.send_file(contents(argument))
        elif command == "RETR":
            self.say("550 No such file")
        elif command == "QUIT":
            time.sleep(60 if self.fault == "no farewell" else 0)
            self.say("221 Bye")
        elif command in ("CWD", "TYPE", "PBSZ", "PROT"):
            self.say("200 Yes")
        else:
            self.say("502 No")

    def run(self):
        if self.fault == "silent":
            time.sleep(60)
        if self.fault == "full":
            self.say("421 Too many users")
        self.say("220 Ready")
        while line := self.read_line():
            command, _, argument = line.partition(" ")
            self.log.write("PASS\n" if command == "PASS" else line + "\n")
            self.answer(command.upper(), argument)

    def read_line(self):
        line = b""
        while not line.endswith(b"\r\n"):
            letter = self.control.recv(1)
            if not letter:
                return ""
            line += letter
        return line.decode(errors="surrogateescape").rstrip("\r\n")


def serve(control):
    try:
        Session(control).run()
    except OSError:
        pass  # The client left.
    control.close()


def be_silent_at(address):
    """Lets nobody in: its queue is full and stays so."""
    queue = socket.create_server(address, backlog=0)
    waiting = [socket.socket() for _ in range(4)]
    for client in waiting:
        client.setblocking(False)
        client.connect_ex(address)
    return queue, waiting


listener = socket.create_server(("127.0.0.1", 0))
port = listener.getsockname()[1]
silent = be_silent_at(("127.0.0.2", port))
print(port, flush=True)
threading.Thread(target=lambda: (sys.stdin.read(), os._exit(0)), daemon=True).start()
while True:
    threading.Thread(target=serve, args=(listener.accept()[0],), daemon=True).start()
