#include "desk/firm/LockFolder.h"

#include <fstream>
#include <memory>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

#include "desk/firebird/FirebirdEngine.h"
#include "host/values/Errors.h"

namespace quillon {

namespace fs = std::filesystem;

namespace {

struct Process {
  std::string Name;
  std::string Begun;  ///< when it was started: a number is given again to another process
};

/// The living process of that number; without a beginning when there is none.
Process ProcessOf(const std::string& number) {
  std::ifstream in("/proc/" + number + "/stat");
  const std::string line(std::istreambuf_iterator<char>(in), {});
  const std::size_t open = line.find('(');
  const std::size_t close = line.rfind(')');
  if (open == std::string::npos || close == std::string::npos) return {};
  Process process;
  process.Name = line.substr(open + 1, close - open - 1);
  std::istringstream rest(line.substr(close + 1));
  std::string state;
  rest >> state;
  if (state == "Z" || state == "X") return {};
  constexpr int kBetween = 19;  // fields from the state to the beginning
  for (int i = 0; i < kBetween; ++i) rest >> process.Begun;
  return process;
}

struct Entry {
  std::string Number;
  Process Noted;
  bool IsLiving = false;
};

std::vector<Entry> EntriesIn(const fs::path& folder) {
  std::vector<Entry> entries;
  std::error_code missing;
  for (const auto& file : fs::directory_iterator(folder, missing)) {
    Entry entry;
    entry.Number = file.path().filename().string();
    std::ifstream in(file.path());
    in >> entry.Noted.Begun >> std::ws;
    std::getline(in, entry.Noted.Name);
    entry.IsLiving = !entry.Noted.Begun.empty() && ProcessOf(entry.Number).Begun == entry.Noted.Begun;
    entries.push_back(std::move(entry));
  }
  return entries;
}

fs::path Programs(const fs::path& folder) { return folder / "programs"; }

/// The note of this process; it goes when the process ends by itself.
class Note {
 public:
  explicit Note(const fs::path& folder)
      : file_(Programs(folder) / std::to_string(getpid())), owner_(getpid()) {}
  Note(const Note&) = delete;
  Note& operator=(const Note&) = delete;
  ~Note() {
    std::error_code ignored;
    if (owner_ == getpid()) fs::remove(file_, ignored);
  }
  void Write() const {
    const Process own = ProcessOf("self");
    std::ofstream(file_) << own.Begun << " " << own.Name << "\n";
  }

 private:
  fs::path file_;
  pid_t owner_;
};

std::unique_ptr<Note>& OwnNote() {
  static std::unique_ptr<Note> note;
  return note;
}

}  // namespace

LockFolder LockFolder::OfFirm(const fs::path& firm) {
  std::string name = PlaceOf(firm);
  if (name.empty()) throw HostError("There is no folder " + firm.string());
  name.replace(name.find(':'), 1, "-");
  return LockFolder(FirebirdEngine::UserCache() / "quillon" / "locks" / name);
}

std::string LockFolder::PlaceOf(const fs::path& folder) {
  struct stat found {};
  if (stat(folder.c_str(), &found) != 0) return {};
  return std::to_string(found.st_dev) + ":" + std::to_string(found.st_ino);
}

void LockFolder::Make() const {
  std::error_code failed;
  fs::create_directories(Programs(path_), failed);
  if (!failed) fs::permissions(path_, fs::perms::owner_all, failed);
  if (failed) throw HostError("There is no permission to write in the folder " + path_.string());
}

void LockFolder::Remake() const {
  const fs::path old = path_.string() + ".old-" + std::to_string(getpid());
  std::error_code ignored;
  fs::rename(path_, old, ignored);
  fs::remove_all(old, ignored);
  Make();
}

void LockFolder::Enter() const {
  Make();
  if (!OwnNote()) OwnNote() = std::make_unique<Note>(path_);
  OwnNote()->Write();
}

void LockFolder::Leave() { OwnNote().reset(); }

std::vector<std::string> LockFolder::Living() const {
  std::vector<std::string> living;
  for (const Entry& entry : EntriesIn(Programs(path_))) {
    if (entry.IsLiving && entry.Number != std::to_string(getpid())) {
      living.push_back(entry.Noted.Name + " (process " + entry.Number + ")");
    }
  }
  return living;
}

bool LockFolder::HasDead() const {
  for (const Entry& entry : EntriesIn(Programs(path_))) {
    if (!entry.IsLiving) return true;
  }
  return false;
}

}  // namespace quillon
