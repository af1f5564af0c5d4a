// SPDX-License-Identifier: GPL-3.0-or-later
// FTP servers of the tests' own, each a process on a free port of the loopback that ends with its object.
#pragma once

#include "support/host.h"

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#ifdef _WIN32
#include <winsock2.h>
// A macro there, a class here.
#undef MessageBox
#else
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace tallywick::test {

/// What the servers know their only user by.
inline constexpr const char* serverLogin = "player one";
inline constexpr const char* serverPassword = "se/cr:e@t %41";

#ifdef _WIN32

/// A connection to the keeper of servers outside Wine, see tests/support/server_keeper.py.
class KeeperConnection {
 public:
  explicit KeeperConnection(const std::string& line) {
    const char* port = std::getenv("TALLYWICK_SERVER_KEEPER");
    WSADATA started{};
    ::WSAStartup(MAKEWORD(2, 2), &started);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = ::htonl(INADDR_LOOPBACK);
    address.sin_port = ::htons(static_cast<std::uint16_t>(std::atoi(port != nullptr ? port : "0")));
    socket_ = ::socket(AF_INET, SOCK_STREAM, 0);
    if (::connect(socket_, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
        ::send(socket_, line.data(), static_cast<int>(line.size()), 0) != static_cast<int>(line.size())) {
      throw std::runtime_error("nobody keeps the tests' servers: scripts/windows runs them");
    }
    for (char letter = 0; ::recv(socket_, &letter, 1, 0) == 1 && letter != '\n';) answer_ += letter;
  }
  ~KeeperConnection() { ::closesocket(socket_); }
  KeeperConnection(const KeeperConnection&) = delete;
  KeeperConnection& operator=(const KeeperConnection&) = delete;

  const std::string& answer() const { return answer_; }

 private:
  SOCKET socket_ = INVALID_SOCKET;
  std::string answer_;
};

class ServerProcess {
 public:
  ServerProcess(const std::string& script, const std::vector<std::string>& arguments)
      : connection_(line(script, arguments)) {
    if (connection_.answer().empty()) throw std::runtime_error("the test's server did not start");
  }

  std::string address() const { return "127.0.0.1:" + connection_.answer(); }

 private:
  static std::string line(const std::string& script, const std::vector<std::string>& arguments) {
    std::string text = std::string("server\t" TALLYWICK_TEST_SERVERS "/") + script;
    for (const std::string& argument : arguments) text += "\t" + argument;
    return text + "\n";
  }

  KeeperConnection connection_;
};

/// What a line of the shell outside Wine ends with.
inline int shell(const std::string& line) {
  return std::atoi(KeeperConnection("shell\t" + line + "\n").answer().c_str());
}

#else

/// A Python that has what the real server needs. There may be several on a machine.
inline std::string pythonWithServer() {
  for (const char* python : {"python3", "/usr/bin/python3", "/usr/local/bin/python3"}) {
    const std::string attempt =
        std::string(python) +
        " -c 'import importlib.util as i; exit(not i.find_spec(\"pyftpdlib\"))' 2>/dev/null";
    if (std::system(attempt.c_str()) == 0) return python;
  }
  throw std::runtime_error(
      "no FTP server for the tests: install Python's pyftpdlib (Debian: python3-pyftpdlib)");
}

class ServerProcess {
 public:
  /// Starts the script and waits until it reports its port.
  ServerProcess(const std::string& script, const std::vector<std::string>& arguments) {
    const std::string python = script == "good_server.py" ? pythonWithServer() : "python3";
    std::vector<std::string> words = {python, std::string(TALLYWICK_TEST_SERVERS) + "/" + script};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);

    int input[2];
    int output[2];
    if (::pipe(input) != 0 || ::pipe(output) != 0) throw std::runtime_error("no pipe");
    process_ = ::fork();
    if (process_ == 0) {
      ::dup2(input[0], STDIN_FILENO);
      ::dup2(output[1], STDOUT_FILENO);
      for (const int end : {input[0], input[1], output[0], output[1]}) ::close(end);
      ::execvp(pointers[0], pointers.data());
      ::_exit(127);
    }
    ::close(input[0]);
    ::close(output[1]);
    input_ = input[1];
    readPort(output[0]);
  }
  ~ServerProcess() {
    ::close(input_);
    ::kill(process_, SIGKILL);
    ::waitpid(process_, nullptr, 0);
  }
  ServerProcess(const ServerProcess&) = delete;
  ServerProcess& operator=(const ServerProcess&) = delete;

  std::string address() const { return "127.0.0.1:" + port_; }

 private:
  void readPort(int from) {
    std::FILE* const output = ::fdopen(from, "r");
    for (int letter = std::fgetc(output); letter > ' '; letter = std::fgetc(output)) {
      port_ += static_cast<char>(letter);
    }
    std::fclose(output);
    if (port_.empty()) throw std::runtime_error("the test's FTP server did not start");
  }

  pid_t process_ = -1;
  int input_ = -1;
  std::string port_;
};

/// What a line of the shell ends with.
inline int shell(const std::string& line) {
  return std::system(line.c_str());
}

#endif

inline std::string textOf(const std::filesystem::path& file) {
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

/// What a server shows as its root, so that driveOf(tree), which exists, is "/D:/" there.
inline std::filesystem::path served(const std::filesystem::path& tree) {
  if (hasPosixFiles) return tree;
  // The tree itself, as the server follows no link that leads out of its root.
  std::filesystem::path root = tree.parent_path() / "served";
  const std::string drive = root.string() + "/D:";
  shell("if [ ! -L " + tree.string() + " ]; then mkdir " + root.string() + " && mv " + tree.string() + " " +
        drive + " && ln -s " + drive + " " + tree.string() + "; fi");
  return root;
}

inline void putText(const std::filesystem::path& file, const std::string& text) {
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << text;
}

/// What a certificate of the tests' servers is for. The second name is for Windows, whose library compares
/// names alone.
inline constexpr const char* thisComputer = "IP:127.0.0.1,DNS:127.0.0.1";

/// A certificate with its key, in one file. Without an `authority`, the file of another one, it vouches for
/// itself.
inline void makeCertificate(const std::string& file, const std::string& owner = thisComputer,
                            const std::string& authority = "") {
  const std::string signer = authority.empty() ? "" : " -CA " + authority + " -CAkey " + authority + ".key";
  const std::string make =
      "openssl req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -days 2 "
      "-addext subjectAltName=" +
      owner + " -subj /CN=" + std::filesystem::path(file).filename().string() + signer + " -out " + file +
      " -keyout " + file + ".key 2>/dev/null && cat " + file + ".key >> " + file;
  if (shell(make) != 0) throw std::runtime_error("the openssl command makes no certificate");
}

}  // namespace tallywick::test
