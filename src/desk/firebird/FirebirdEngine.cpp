#include "desk/firebird/FirebirdEngine.h"

#include <chrono>
#include <clocale>
#include <cstdlib>
#include <dlfcn.h>
#include <firebird/Interface.h>
#include <fstream>
#include <iterator>
#include <langinfo.h>
#include <mutex>
#include <pwd.h>
#include <unistd.h>

#include "desk/firebird/EngineWatch.h"
#include "host/values/Errors.h"

namespace quillon {

namespace fs = std::filesystem;

namespace {

// Classic lets several processes share a database; without the remote loopback a failure to attach is told by
// the engine itself; the caches are the engine's own defaults for one process that has the machine for
// itself.
constexpr const char* kEmbeddedSettings =
    "ServerMode = Classic\n"
    "Providers = Remote,Engine12\n"
    "DefaultDbCachePages = 2048\n"
    "TempCacheLimit = 64M\n"
    // A program that was killed holds its locks until the others look: in seconds.
    "DeadlockTimeout = 1\n";

/// The folder of the installed package: firebird/3.0 beside the client library.
fs::path PackageFolder() {
  Dl_info info{};
  if (!dladdr(reinterpret_cast<void*>(&Firebird::fb_get_master_interface), &info) || !info.dli_fname) {
    throw HostError("The Firebird client library cannot be found");
  }
  fs::path folder = fs::canonical(info.dli_fname).parent_path() / "firebird" / "3.0";
  if (!fs::exists(folder / "plugins")) {
    throw HostError("The Firebird engine is not installed: there is no folder " + folder.string());
  }
  return folder;
}

/// Several processes may do this at the same time: each file appears whole, by a rename.
void PutInPlace(const fs::path& made, const fs::path& place) { fs::rename(made, place); }

fs::path Aside(const fs::path& place) { return place.string() + "." + std::to_string(getpid()); }

void WriteWhole(const fs::path& file, const std::string& text) {
  const fs::path made = Aside(file);
  std::ofstream(made, std::ios::binary) << text;
  PutInPlace(made, file);
}

bool Holds(const fs::path& file, const std::string& text) {
  std::ifstream in(file, std::ios::binary);
  return in && std::string(std::istreambuf_iterator<char>(in), {}) == text;
}

void LinkTo(const fs::path& target, const fs::path& link) {
  const fs::path made = Aside(link);
  fs::remove(made);
  fs::create_symlink(target, made);
  PutInPlace(made, link);
}

void PrepareOnce(fs::path root) {
  // File names are UTF-8; without a language of its own the process would know ASCII only.
  if (std::string(nl_langinfo(CODESET)) != "UTF-8") setlocale(LC_CTYPE, "C.UTF-8");
  if (const char* given = std::getenv("FIREBIRD"); given && *given) return;
  if (root.empty()) root = FirebirdEngine::UserCache() / "quillon" / "firebird";
  root = fs::absolute(root);
  FirebirdEngine::MakeRoot(root, kEmbeddedSettings);
  setenv("FIREBIRD", root.c_str(), 1);
}

std::once_flag prepared;

constexpr const char* kNames = "databases.conf";
constexpr const char* kAllNames = "include $(this)/names/*.conf\n";

constexpr const char* kLocks = "FIREBIRD_LOCK";

std::optional<fs::path> GivenLocks() {
  const char* const given = std::getenv(kLocks);
  return given && *given ? std::optional<fs::path>(given) : std::nullopt;
}

// Read before main, so that what the program sets itself is not taken for given.
const bool locksAreGiven = GivenLocks().has_value();
std::optional<fs::path> locksInUse;

}  // namespace

void FirebirdEngine::MakeRoot(const fs::path& root, const std::string& settings) {
  const fs::path package = PackageFolder();
  try {
    fs::create_directories(root / "lock");
    fs::create_directories(root / "names");
    fs::permissions(root, fs::perms::owner_all);
    for (const char* part : {"plugins", "intl", "firebird.msg", "plugins.conf"}) {
      LinkTo(package / part, root / part);
    }
    // Its time tells engines that a list has changed, so it is not written for nothing.
    if (!Holds(root / kNames, kAllNames)) WriteWhole(root / kNames, kAllNames);
    WriteWhole(root / "firebird.conf", settings);
  } catch (const fs::filesystem_error& error) {
    throw HostError("The folder of the database engine cannot be made: " + std::string(error.what()));
  }
}

void FirebirdEngine::PutNames(const fs::path& folder, const std::string& name, const std::string& list) {
  try {
    LinkTo(folder, Names() / name);
    WriteWhole(Names() / (name + ".conf"), list);
    // By its second an engine sees that a list has changed.
    const fs::path all = Root() / kNames;
    if (!Holds(all, kAllNames)) WriteWhole(all, kAllNames);
    fs::last_write_time(all, fs::last_write_time(all) + std::chrono::seconds(1));
  } catch (const fs::filesystem_error& error) {
    throw HostError("The folder of the database engine cannot be written: " + std::string(error.what()));
  }
}

void FirebirdEngine::Prepare(const fs::path& root) { std::call_once(prepared, PrepareOnce, root); }

bool FirebirdEngine::LocksAreGiven() { return locksAreGiven; }

std::optional<fs::path> FirebirdEngine::Locks() { return locksInUse; }

fs::path FirebirdEngine::UseLocks(const fs::path& folder) {
  if (locksInUse) return *locksInUse;
  locksInUse = locksAreGiven ? GivenLocks() : folder.empty() ? Root() / "lock" : folder;
  setenv(kLocks, locksInUse->c_str(), 1);
  return *locksInUse;
}

void FirebirdEngine::ForgetLocks() {
  if (!locksAreGiven) unsetenv(kLocks);
}

fs::path FirebirdEngine::UserCache() {
  if (const char* cache = std::getenv("XDG_CACHE_HOME"); cache && *cache) return cache;
  if (const char* home = std::getenv("HOME"); home && *home) return fs::path(home) / ".cache";
  const passwd* user = getpwuid(geteuid());
  return user ? fs::path(user->pw_dir) / ".cache" : fs::temp_directory_path();
}

fs::path FirebirdEngine::Root() {
  Prepare();
  return std::getenv("FIREBIRD");
}

Firebird::IMaster& FirebirdEngine::Master() {
  Prepare();
  static Firebird::IMaster* const master = [] {
    Firebird::IMaster* const interface = Firebird::fb_get_master_interface();
    on_exit([](int status, void*) { EngineWatch::Leave(status); }, nullptr);
    return interface;
  }();
  return *master;
}

}  // namespace quillon
