#include "desk/firebird/EngineNames.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <sys/stat.h>

#include "desk/firebird/FirebirdEngine.h"
#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {

namespace fs = std::filesystem;

namespace {

/// Links and lists are named by the device and number of the folder that they lead to.
std::string PlaceOf(const fs::path& folder) {
  struct stat found {};
  if (stat(folder.c_str(), &found) != 0) return {};
  return std::to_string(found.st_dev) + "-" + std::to_string(found.st_ino);
}

/// Folders that are gone, or are other ones by now, lose their names: the engine takes no file under two.
void ForgetStale(const fs::path& names) {
  std::error_code gone;
  for (const fs::directory_entry& entry : fs::directory_iterator(names, gone)) {
    const std::string name = entry.path().filename();
    if (!entry.is_symlink(gone) || name.find('.') != std::string::npos || PlaceOf(entry.path()) == name)
      continue;
    fs::remove(entry.path(), gone);
    fs::remove(entry.path().string() + ".conf", gone);
  }
}

/// A name that the list of short names takes as it is.
bool IsListable(const std::string& name) {
  return std::all_of(name.begin(), name.end(), [](unsigned char c) {
    return std::isalnum(c) != 0 || c == '.' || c == '-' || c == '_';
  });
}

}  // namespace

bool EngineNames::IsPlain(const std::string& file) {
  std::error_code unknown;
  const fs::path leadsTo = fs::weakly_canonical(file, unknown);
  const std::string path = unknown ? file : leadsTo.string();
  return path.find(':') == std::string::npos && text::Repaired(path) == path;
}

void EngineNames::Tell(const std::vector<std::string>& files) {
  std::map<fs::path, std::string> lists;  // by folder
  for (const fs::path file : files) {
    if (IsPlain(file)) continue;
    const fs::path names = FirebirdEngine::Names();
    const std::string name = file.filename();
    if (!fs::is_directory(names) || !IsPlain(names) || !IsListable(name)) {
      throw HostError(
          "The database engine cannot open the file " + file.string() +
          ": give it and its folder names without a colon and in letters that every program reads");
    }
    std::error_code missing;
    const fs::path folder = fs::weakly_canonical(file.parent_path(), missing);
    const std::string place = PlaceOf(folder);
    lists[folder] += Of(file) + " = $(this)/" + place + "/" + name + "\n";
  }
  if (!lists.empty()) ForgetStale(FirebirdEngine::Names());
  for (const auto& [folder, list] : lists) FirebirdEngine::PutNames(folder, PlaceOf(folder), list);
}

std::string EngineNames::Of(const std::string& file) {
  if (IsPlain(file)) return file;
  const fs::path path = file;
  return PlaceOf(path.parent_path()) + "-" + path.filename().string();
}

}  // namespace quillon
