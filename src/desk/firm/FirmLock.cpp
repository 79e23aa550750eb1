#include "desk/firm/FirmLock.h"

#include <array>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "desk/firebird/EngineProbe.h"
#include "desk/firebird/FirebirdEngine.h"
#include "desk/firm/LockFolder.h"
#include "desk/firm/LockHolder.h"
#include "host/values/Text.h"

namespace quillon {

namespace fs = std::filesystem;

namespace {

/// Where the engine of this process has its locks, as it was when it went in; the folder may have been remade
/// since.
std::string& EnteredPlace() {
  static std::string place;
  return place;
}

std::string Content(int file) {
  std::array<char, 8192> text{};
  const ssize_t size = pread(file, text.data(), text.size(), 0);
  return {text.data(), size > 0 ? static_cast<std::size_t>(size) : 0};
}

void Rewrite(int file, const std::string& text) {
  const auto size = static_cast<ssize_t>(text.size());
  if (ftruncate(file, 0) != 0 || pwrite(file, text.data(), text.size(), 0) != size) {
    throw HostError("The firm's folder cannot be written");
  }
}

void Enter(const LockFolder& folder) {
  folder.Enter();
  if (EnteredPlace().empty()) EnteredPlace() = LockFolder::PlaceOf(folder.Path());
}

bool Answers(const std::string& database) {
  const EngineProbe::Answer answer = EngineProbe::Ask({database, "", ""});
  if (answer == EngineProbe::Answer::kDied) {
    throw HostError("The database " + database + " is damaged: the engine does not survive opening it");
  }
  return answer != EngineProbe::Answer::kNone;
}

[[noreturn]] void TellStuck(const LockFolder& folder) {
  const std::vector<std::string> living = folder.Living();
  throw DeadLockError("A program that had this firm open was killed. Close all Quillon programs on it." +
                      (living.empty() ? std::string() : "\nOpen on it: " + text::Join(living, ", ")));
}

[[noreturn]] void TellOther(const fs::path& folder, const std::string& whom) {
  throw HostError("The firm in " + folder.string() + " is open for another user (" + whom +
                  "). Several users share a firm through a server");
}

[[noreturn]] void TellFresh(const fs::path& folder) {
  throw OtherFirmError("The firm in " + folder.string() +
                       " has to be opened by a program that is started anew");
}

}  // namespace

FirmLock::FirmLock(const fs::path& folder, const std::string& database, const std::string& takeOver)
    : file_(open((folder / "firm.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666)) {
  if (file_ < 0) throw HostError("There is no permission to write in the folder " + folder.string());
  try {
    wasFirst_ = KeepAlone();
    if (wasFirst_) {
      Begin(folder, database, takeOver);
      Share();
    } else {
      Join(folder, database);
    }
  } catch (...) {
    close(file_);
    throw;
  }
}

/// The last one takes its name out: what stands in the file afterwards tells that a machine has lost its
/// power.
FirmLock::~FirmLock() {
  if (flock(file_, LOCK_EX | LOCK_NB) == 0 && ftruncate(file_, 0) != 0) Share();
  close(file_);
}

bool FirmLock::KeepAlone() {
  if (flock(file_, LOCK_EX | LOCK_NB) == 0) return true;
  // Waits while another one makes ready.
  Share();
  return false;
}

void FirmLock::Share() { flock(file_, LOCK_SH); }

void FirmLock::Begin(const fs::path& folder, const std::string& database, const std::string& takeOver) {
  const LockHolder last = LockHolder::OfText(Content(file_));
  if (!last.IsEmpty() && last.Machine != LockHolder::Own("", "").Machine && last.Host != takeOver) {
    throw OtherMachineError(
        "The firm in " + folder.string() + " is open on the machine " + last.Host +
            ", or was when that machine stopped. Two machines that write the same files damage the books",
        last.Host);
  }
  const bool isFresh = !FirebirdEngine::Locks();
  const LockFolder usual = LockFolder::OfFirm(folder);
  const bool mayRemake = isFresh && !FirebirdEngine::LocksAreGiven();
  if (mayRemake && usual.HasDead() && usual.Living().empty()) usual.Remake();
  const LockFolder locks(FirebirdEngine::UseLocks(usual.Path()));
  Enter(locks);
  const auto write = [&] { Rewrite(file_, LockHolder::Own(locks.Path().string(), EnteredPlace()).Text()); };
  if (LockFolder::PlaceOf(locks.Path()) != EnteredPlace()) TellFresh(folder);
  write();
  if (Answers(database)) return;
  if (!mayRemake || !locks.Living().empty()) TellStuck(locks);
  locks.Remake();
  locks.Enter();
  EnteredPlace() = LockFolder::PlaceOf(locks.Path());
  write();
  if (!Answers(database)) TellStuck(locks);
}

void FirmLock::Join(const fs::path& folder, const std::string& database) {
  const LockHolder holder = LockHolder::OfText(Content(file_));
  LockHolder own = LockHolder::Own(holder.Folder, holder.Place);
  own.Host = holder.Host;
  if (holder != own) TellOther(folder, holder.Host + ", user " + holder.User);
  const LockFolder locks(FirebirdEngine::UseLocks(holder.Folder));
  if (locks.Path() == holder.Folder) Enter(locks);
  if (EnteredPlace() != holder.Place) {
    if (FirebirdEngine::LocksAreGiven()) TellOther(folder, "its engine keeps its locks in " + holder.Folder);
    TellFresh(folder);
  }
  Try(database);
}

void FirmLock::Try(const std::string& database) {
  if (!Answers(database)) TellStuck(Folder());
}

void FirmLock::Choose(const fs::path& folder) {
  Enter(LockFolder(FirebirdEngine::UseLocks(LockFolder::OfFirm(folder).Path())));
}

LockFolder FirmLock::Folder() { return LockFolder(FirebirdEngine::UseLocks({})); }

bool FirmLock::NeedsFreshProcess(const fs::path& folder) {
  const auto locks = FirebirdEngine::Locks();
  if (!locks || FirebirdEngine::LocksAreGiven() || !fs::exists(folder)) return false;
  return *locks != LockFolder::OfFirm(folder).Path() || LockFolder::PlaceOf(*locks) != EnteredPlace();
}

}  // namespace quillon
