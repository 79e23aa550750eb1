#include "desk/driver/FreshProcess.h"

#include <QProcess>
#include <array>
#include <filesystem>
#include <sys/mman.h>
#include <unistd.h>

#include "desk/firebird/FirebirdEngine.h"
#include "desk/firm/LockFolder.h"
#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr const char* kSelf = "/proc/self/exe";
constexpr const char* kBegin = "quillon-drive: ";

void WriteAll(int file, const std::string& text) {
  for (std::size_t at = 0; at < text.size();) {
    const ssize_t size = write(file, text.data() + at, text.size() - at);
    if (size <= 0) throw HostError("What the script has done so far cannot be handed on");
    at += static_cast<std::size_t>(size);
  }
}

}  // namespace

void FreshProcess::RequireOpens(const Json& command) {
  QStringList words{QStringLiteral("--firm"), QString::fromStdString(command.at("folder").get<std::string>()),
                    QStringLiteral("--year"), QString::number(command.value("year", 0))};
  for (const char* name : {"user", "takeover"}) {
    if (command.contains(name)) {
      words << QStringLiteral("--") + QLatin1String(name)
            << QString::fromStdString(command.at(name).get<std::string>());
    }
  }
  QProcess child;
  QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
  if (!FirebirdEngine::LocksAreGiven()) surroundings.remove(QStringLiteral("FIREBIRD_LOCK"));
  child.setProcessEnvironment(surroundings);
  child.setStandardInputFile(QProcess::nullDevice());
  child.setStandardOutputFile(QProcess::nullDevice());
  child.start(QString::fromStdString(std::filesystem::read_symlink(kSelf).string()), words);
  if (!child.waitForFinished(-1) || child.exitStatus() != QProcess::NormalExit) {
    throw HostError("The firm does not open in a program that is started anew");
  }
  if (child.exitCode() == 0) return;
  std::string fault = text::Trim(child.readAllStandardError().toStdString());
  if (fault.starts_with(kBegin)) fault.erase(0, std::string(kBegin).size());
  throw HostError(fault);
}

void FreshProcess::Begin(const std::vector<std::string>& words, const Handed& handed) {
  const int file = memfd_create("quillon-drive", 0);
  WriteAll(file, Line(handed.State) + "\n" + handed.Ahead);
  std::vector<std::string> all{"quillon-drive"};
  all.insert(all.end(), words.begin(), words.end());
  all.insert(all.end(), {"--resume", std::to_string(file)});
  std::vector<char*> pointers;
  pointers.reserve(all.size() + 1);
  for (std::string& word : all) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  FirebirdEngine::ForgetLocks();
  LockFolder::Leave();
  execv(kSelf, pointers.data());
  throw HostError("A program for the other firm cannot be started");
}

FreshProcess::Handed FreshProcess::Take(int file) {
  std::string text;
  std::array<char, 65536> piece{};
  lseek(file, 0, SEEK_SET);
  for (ssize_t size = 0; (size = read(file, piece.data(), piece.size())) > 0;) {
    text.append(piece.data(), static_cast<std::size_t>(size));
  }
  close(file);
  const std::size_t end = text.find('\n');
  if (end == std::string::npos) throw HostError("What the script has done so far was not handed on");
  return {ParseLine(text.substr(0, end)), text.substr(end + 1)};
}

}  // namespace quillon
