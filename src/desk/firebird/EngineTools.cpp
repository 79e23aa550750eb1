#include "desk/firebird/EngineTools.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "desk/firebird/EngineNames.h"
#include "desk/firebird/EngineThread.h"
#include "desk/firebird/FirebirdEngine.h"
#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {

namespace fs = std::filesystem;

namespace {

using Words = std::vector<std::string>;

std::vector<char*> Pointers(Words& words) {
  std::vector<char*> pointers;
  pointers.reserve(words.size() + 1);
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  return pointers;
}

/// Passwords go by the surroundings: the words of a process can be read by all.
Words Surroundings(const FirebirdAddress& address) {
  Words lines{"ISC_USER=" + (address.IsServer() ? address.User : "SYSDBA")};
  if (address.IsServer()) lines.push_back("ISC_PASSWORD=" + address.Password);
  for (char** line = environ; *line != nullptr; ++line) {
    const std::string text = *line;
    if (!text.starts_with("ISC_USER=") && !text.starts_with("ISC_PASSWORD=")) lines.push_back(text);
  }
  return lines;
}

std::string ReadAll(int file) {
  std::string text;
  std::array<char, 4096> piece{};
  for (ssize_t size = 0; (size = read(file, piece.data(), piece.size())) > 0;) {
    text.append(piece.data(), static_cast<std::size_t>(size));
  }
  return text;
}

/// Answers what the program said and whether it was content.
bool RunProgram(const FirebirdAddress& address, Words words, std::string& said) {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) throw HostError(std::strerror(errno));
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);
  Words surroundings = Surroundings(address);
  pid_t child = 0;
  const int fault = posix_spawnp(&child, words.front().c_str(), &actions, nullptr, Pointers(words).data(),
                                 Pointers(surroundings).data());
  posix_spawn_file_actions_destroy(&actions);
  close(ends[1]);
  if (fault == 0) said = text::Trim(ReadAll(ends[0]));
  close(ends[0]);
  if (fault != 0) throw HostError("The program " + words.front() + " is missing: " + std::strerror(fault));
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void Run(const FirebirdAddress& address, const Words& words) {
  FirebirdEngine::Prepare();
  FirebirdEngine::UseLocks({});
  std::string said;
  bool content = false;
  EngineThread::Do([&] { content = RunProgram(address, words, said); });
  if (!content) throw HostError(said.empty() ? "The program " + words.front() + " was killed" : said);
}

std::string NameOf(const FirebirdAddress& address) {
  return address.IsServer() ? address.Database : EngineNames::Of(address.Database);
}

}  // namespace

void EngineTools::Copy(const FirebirdAddress& from, const fs::path& into) {
  // Garbage is the business of those who work in the database.
  Run(from, {"gbak", "-backup_database", "-garbage_collect", NameOf(from), into.string()});
}

void EngineTools::Restore(const fs::path& from, const FirebirdAddress& into) {
  if (into.IsServer() || EngineNames::IsPlain(into.Database)) {
    Run(into, {"gbak", "-create_database", from.string(), into.Database});
    return;
  }
  // A name that the engine cannot take in is given to what it has made.
  const fs::path made = FirebirdEngine::Names() / (std::to_string(getpid()) + ".fdb");
  Run(into, {"gbak", "-create_database", from.string(), made.string()});
  std::error_code failed;
  fs::copy_file(made, into.Database, failed);
  fs::remove(made);
  if (failed) throw HostError("The file " + into.Database + " cannot be made: " + failed.message());
}

void EngineTools::ShutDown(const FirebirdAddress& database) {
  Run(database, {"gfix", "-shut", "full", "-force", "0", NameOf(database)});
}

void EngineTools::BringOnline(const FirebirdAddress& database) {
  Run(database, {"gfix", "-online", "normal", NameOf(database)});
}

void EngineTools::MakeReadOnly(const FirebirdAddress& database) {
  // Whoever opens it would have its pages written at once, which could not be set any more.
  Run(database, {"gfix", "-write", "sync", NameOf(database)});
  Run(database, {"gfix", "-mode", "read_only", NameOf(database)});
}

}  // namespace quillon
