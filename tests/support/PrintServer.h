#pragma once

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "tests/support/TempFolder.h"

namespace quillon {

/// A real print server of the test's own, on a socket in its folder, as any user may run one. Its queues keep
/// what arrives. It is the spooler of this process and ends with the object.
class PrintServer {
 public:
  static bool IsInstalled() { return access(kProgram, X_OK) == 0 && access(kAdmin, X_OK) == 0; }

  PrintServer() {
    namespace fs = std::filesystem;
    for (const char* made : {"bin/backend", "bin/filter", "spool/tmp", "cache", "state", "log"})
      fs::create_directories(folder_.Path() / made);
    for (const char* part : {"daemon", "notifier"})
      fs::create_directory_symlink(fs::path("/usr/lib/cups") / part, folder_.Path() / "bin" / part);
    // Where the machine keeps its own server to its own folders, a copy is not that program.
    fs::copy_file(kProgram, folder_.File("server"));
    WriteFiles();
    setenv("CUPS_SERVER", folder_.File("socket").c_str(), 1);
    Start();
    AddQueue("Laser");
  }
  PrintServer(const PrintServer&) = delete;
  PrintServer& operator=(const PrintServer&) = delete;
  ~PrintServer() {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
    unsetenv("CUPS_SERVER");
  }

  void AddQueue(const std::string& name) const { Admin("lpadmin -p " + name + " -E -v keep:/x -m raw"); }
  void RemoveQueue(const std::string& name) const { Admin("lpadmin -x " + name); }
  void StopQueue(const std::string& name) const { Admin("cupsdisable " + name); }
  void RestartQueue(const std::string& name) const { Admin("cupsenable " + name); }
  void CloseQueue(const std::string& name) const { Admin("cupsreject " + name); }
  void HoldJobs(const std::string& name) const {
    Admin("lpadmin -p " + name + " -o job-hold-until-default=indefinite");
  }

  /// From now on the printer neither takes a page nor gives it up, until GoOn.
  void Jam() const { std::ofstream(folder_.File("jam")) << "x"; }
  void GoOn() const { std::filesystem::remove(folder_.File("jam")); }

  /// From now on the printer gives up every job.
  void Break() const { std::ofstream(folder_.File("broken")) << "x"; }

  /// What has come out at the printers, in the order of the jobs.
  struct Paper {
    std::string File;
    std::string Copies;
    std::string Options;
  };
  std::vector<Paper> Arrived() const {
    std::vector<Paper> papers;
    for (int job = 1; job < 100; ++job) {
      const std::string stem = folder_.File("job-" + std::to_string(job));
      std::ifstream told(stem + ".txt");
      Paper paper{stem + ".pdf", "", ""};
      if (std::getline(told, paper.Copies) && std::getline(told, paper.Options)) papers.push_back(paper);
    }
    return papers;
  }

  /// The same once so many have come out; those that came within ten seconds.
  std::vector<Paper> Await(std::size_t many) const {
    std::vector<Paper> papers = Arrived();
    for (int look = 0; look < 1000 && papers.size() < many; ++look) {
      poll(nullptr, 0, 10);
      papers = Arrived();
    }
    return papers;
  }

 private:
  static constexpr const char* kProgram = "/usr/sbin/cupsd";
  static constexpr const char* kAdmin = "/usr/sbin/lpadmin";

  void WriteFiles() const {
    const std::string here = folder_.Path().string();
    std::ofstream(folder_.File("server.conf"))
        << "Listen " << here << "/socket\nBrowsing No\nWebInterface No\nDefaultAuthType None\n"
        << "<Location />\nAllow all\n</Location>\n<Policy default>\n<Limit All>\nAllow all\n</Limit>\n</Policy>\n"
        << "ErrorPolicy abort-job\n";
    std::ofstream(folder_.File("files.conf"))
        << "ServerRoot " << here << "\nServerBin " << here << "/bin\nCacheDir " << here << "/cache\nStateDir "
        << here << "/state\nRequestRoot " << here << "/spool\nTempDir " << here << "/spool/tmp\nErrorLog "
        << here << "/log/error\nAccessLog " << here << "/log/access\nPageLog " << here
        << "/log/page\nPrintcap\nSandboxing relaxed\n";
    const std::string backend = folder_.File("bin/backend/keep");
    std::ofstream(backend)
        << "#!/bin/sh\n[ $# -eq 0 ] && { echo 'direct keep:/ \"Keep\" \"Keep\"'; exit 0; }\n"
        << "[ -e " << here << "/broken ] && exit 1\n"
        << "while [ -e " << here << "/jam ]; do sleep 0.05; done\n"
        << "cat ${6:+\"$6\"} > " << here << "/job-$1.pdf\n"
        << "printf '%s\\n' \"$4\" \"$5\" > " << here << "/job-$1.txt\n";
    std::filesystem::permissions(backend, std::filesystem::perms::owner_all);
  }

  void Start() {
    process_ = fork();
    if (process_ == 0) {
      const std::string log = folder_.File("log/told");
      if (freopen(log.c_str(), "w", stderr) == nullptr) _exit(127);
      execl(folder_.File("server").c_str(), "cupsd", "-f", "-c", folder_.File("server.conf").c_str(), "-s",
            folder_.File("files.conf").c_str(), nullptr);
      _exit(127);
    }
    while (!Answers()) {
      if (waitpid(process_, nullptr, WNOHANG) == process_)
        throw std::runtime_error("The print server has ended");
      poll(nullptr, 0, 5);
    }
  }

  bool Answers() const {
    sockaddr_un place{};
    place.sun_family = AF_UNIX;
    folder_.File("socket").copy(place.sun_path, sizeof place.sun_path - 1);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    const bool answered = connect(socket, reinterpret_cast<const sockaddr*>(&place), sizeof place) == 0;
    close(socket);
    return answered;
  }

  void Admin(const std::string& command) const {
    if (std::system(("/usr/sbin/" + command + " 2>/dev/null").c_str()) != 0)
      throw std::runtime_error("The print server refuses " + command);
  }

  TempFolder folder_;
  pid_t process_ = 0;
};

}  // namespace quillon
