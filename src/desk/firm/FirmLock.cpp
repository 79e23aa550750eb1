#include "desk/firm/FirmLock.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <unistd.h>

#include "desk/firebird/FirebirdEngine.h"
#include "host/values/Errors.h"

namespace quillon {

namespace {

std::string Engine() {
  std::array<char, 256> machine{};
  gethostname(machine.data(), machine.size() - 1);
  FirebirdEngine::Prepare();
  const char* locks = std::getenv("FIREBIRD_LOCK");
  return std::string(machine.data()) + ":" + (locks ? locks : "");
}

std::string Content(int file) {
  std::array<char, 4096> text{};
  const ssize_t size = pread(file, text.data(), text.size(), 0);
  return {text.data(), size > 0 ? static_cast<std::size_t>(size) : 0};
}

void Rewrite(int file, const std::string& text) {
  const auto size = static_cast<ssize_t>(text.size());
  if (ftruncate(file, 0) != 0 || pwrite(file, text.data(), text.size(), 0) != size) {
    throw HostError("The firm's folder cannot be written");
  }
}

}  // namespace

FirmLock::FirmLock(const std::filesystem::path& folder)
    : file_(open((folder / "firm.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666)) {
  if (file_ < 0) throw HostError("There is no permission to write in the folder " + folder.string());
  const std::string engine = Engine();
  // The first one in writes its name; those who follow may stay if they find their own.
  if (flock(file_, LOCK_EX | LOCK_NB) == 0) Rewrite(file_, engine);
  flock(file_, LOCK_SH);
  const std::string holder = Content(file_);
  if (holder == engine) return;
  close(file_);
  throw HostError("The firm in " + folder.string() + " is open for another user (" + holder +
                  "). Several users share a firm through a server");
}

FirmLock::~FirmLock() { close(file_); }

}  // namespace quillon
