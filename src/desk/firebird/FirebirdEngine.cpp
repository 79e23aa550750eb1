#include "desk/firebird/FirebirdEngine.h"

#include <cstdlib>
#include <dlfcn.h>
#include <firebird/Interface.h>
#include <fstream>
#include <mutex>
#include <pwd.h>
#include <unistd.h>

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
    "TempCacheLimit = 64M\n";

fs::path UserCache() {
  if (const char* cache = std::getenv("XDG_CACHE_HOME"); cache && *cache) return cache;
  if (const char* home = std::getenv("HOME"); home && *home) return fs::path(home) / ".cache";
  const passwd* user = getpwuid(geteuid());
  return user ? fs::path(user->pw_dir) / ".cache" : fs::temp_directory_path();
}

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

void LinkTo(const fs::path& target, const fs::path& link) {
  const fs::path made = Aside(link);
  fs::remove(made);
  fs::create_symlink(target, made);
  PutInPlace(made, link);
}

void PrepareOnce(fs::path root) {
  if (const char* given = std::getenv("FIREBIRD"); given && *given) return;
  if (root.empty()) root = UserCache() / "quillon" / "firebird";
  root = fs::absolute(root);
  FirebirdEngine::MakeRoot(root, kEmbeddedSettings);
  setenv("FIREBIRD", root.c_str(), 1);
  setenv("FIREBIRD_LOCK", (root / "lock").c_str(), 0);
}

std::once_flag prepared;

}  // namespace

void FirebirdEngine::MakeRoot(const fs::path& root, const std::string& settings) {
  const fs::path package = PackageFolder();
  try {
    fs::create_directories(root / "lock");
    fs::permissions(root, fs::perms::owner_all);
    for (const char* part : {"plugins", "intl", "firebird.msg", "plugins.conf"}) {
      LinkTo(package / part, root / part);
    }
    WriteWhole(root / "databases.conf", "");
    WriteWhole(root / "firebird.conf", settings);
  } catch (const fs::filesystem_error& error) {
    throw HostError("The folder of the database engine cannot be made: " + std::string(error.what()));
  }
}

void FirebirdEngine::Prepare(const fs::path& root) { std::call_once(prepared, PrepareOnce, root); }

fs::path FirebirdEngine::Root() {
  Prepare();
  return std::getenv("FIREBIRD");
}

Firebird::IMaster& FirebirdEngine::Master() {
  Prepare();
  static Firebird::IMaster* const master = Firebird::fb_get_master_interface();
  return *master;
}

}  // namespace quillon
