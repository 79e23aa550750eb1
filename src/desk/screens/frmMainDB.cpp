#include "desk/screens/frmMainDB.h"

#include "host/values/Text.h"

namespace quillon {

frmMainDB::frmMainDB() : Form("frmMainDB", Origin::Desk) {
  Routine("MakeFileName", &frmMainDB::MakeFileName);
}

std::string frmMainDB::MakeFileName(int /*reserved*/, const std::string& head) {
  constexpr std::string_view kForbidden = "\\/:*?\"<>|";
  std::string name;
  for (const char c : head) {
    const bool allowed = static_cast<unsigned char>(c) >= ' ' && kForbidden.find(c) == std::string_view::npos;
    const char kept = allowed ? c : ' ';
    if (kept != ' ' || (!name.empty() && name.back() != ' ')) name += kept;
  }
  // A leading or trailing point would hide the file or be dropped.
  while (!name.empty() && (name.back() == ' ' || name.back() == '.')) name.pop_back();
  const std::size_t first = name.find_first_not_of('.');
  name = first == std::string::npos ? "" : name.substr(first);
  return name.empty() ? "Unnamed" : name;
}

}  // namespace quillon
