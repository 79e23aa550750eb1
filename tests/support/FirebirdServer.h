#pragma once

#include <arpa/inet.h>
#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <netinet/in.h>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include "desk/firebird/FirebirdAttachment.h"
#include "desk/firebird/FirebirdEngine.h"
#include "tests/support/TempFolder.h"

namespace quillon {

/// A real Firebird server of the test's own, on a free port of this machine; it ends with the object.
class FirebirdServer {
 public:
  static constexpr const char* kUser = "DESK";
  static constexpr const char* kPassword = "open sesame";

  static bool IsInstalled() {
    return access(kProgram, X_OK) == 0 && std::system("command -v isql-fb >/dev/null") == 0;
  }

  FirebirdServer() : port_(FreePort()) {
    FirebirdEngine::MakeRoot(
        folder_.Path(), "ServerMode = Super\nRemoteBindAddress = 127.0.0.1\nRemoteServicePort = " +
                            std::to_string(port_) + "\nSecurityDatabase = " + folder_.File("security.fdb") +
                            "\nAuthServer = Srp\nUserManager = Srp\n");
    MakeUser();
    Start();
  }
  FirebirdServer(const FirebirdServer&) = delete;
  FirebirdServer& operator=(const FirebirdServer&) = delete;
  ~FirebirdServer() { Stop(); }

  /// A file of the server's folder, as a client names it.
  FirebirdAddress Address(const std::string& file) const {
    return {"inet://127.0.0.1:" + std::to_string(port_) + "/" + folder_.File(file), kUser, kPassword};
  }

  /// The folder that the server may use.
  const std::filesystem::path& Folder() const { return folder_.Path(); }

  void Start() {
    process_ = fork();
    if (process_ == 0) {
      SetEnvironment();
      execl(kProgram, kProgram, nullptr);
      _exit(127);
    }
    while (!Answers()) {
      if (waitpid(process_, nullptr, WNOHANG) == process_) throw std::runtime_error("The server has ended");
      poll(nullptr, 0, 5);
    }
  }

  /// Stands still without a word to those who wait for it.
  void Pause() const { kill(process_, SIGSTOP); }
  void GoOn() const { kill(process_, SIGCONT); }

  void Stop() {
    if (process_ <= 0) return;
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
    process_ = 0;
  }

 private:
  static constexpr const char* kProgram = "/usr/sbin/firebird";

  static sockaddr_in Place(int port) {
    sockaddr_in place{};
    place.sin_family = AF_INET;
    place.sin_port = htons(static_cast<std::uint16_t>(port));
    place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return place;
  }

  static int FreePort() {
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in place = Place(0);
    socklen_t size = sizeof place;
    const bool isBound = bind(socket, reinterpret_cast<sockaddr*>(&place), size) == 0 &&
                         getsockname(socket, reinterpret_cast<sockaddr*>(&place), &size) == 0;
    close(socket);
    if (!isBound) throw std::runtime_error("There is no free port");
    return ntohs(place.sin_port);
  }

  bool Answers() const {
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in place = Place(port_);
    const bool answered = connect(socket, reinterpret_cast<const sockaddr*>(&place), sizeof place) == 0;
    close(socket);
    return answered;
  }

  void SetEnvironment() const {
    setenv("FIREBIRD", folder_.Path().c_str(), 1);
    setenv("FIREBIRD_LOCK", folder_.File("lock").c_str(), 1);
  }

  void MakeUser() const {
    const std::string database = folder_.File("security.fdb");
    std::ofstream(folder_.File("user.sql"))
        << "create database '" << database << "' user 'SYSDBA';\ncreate user " << kUser << " password '"
        << kPassword << "' grant admin role using plugin Srp;\ncommit;\n"
        << "grant create database to user " << kUser << ";\ncommit;\n";
    const std::string command = "FIREBIRD='" + folder_.Path().string() + "' FIREBIRD_LOCK='" +
                                folder_.File("lock") + "' isql-fb -q -b -i '" + folder_.File("user.sql") +
                                "'";
    if (std::system(command.c_str()) != 0) throw std::runtime_error("The server's user cannot be made");
  }

  TempFolder folder_;
  int port_;
  pid_t process_ = 0;
};

}  // namespace quillon
