#include "desk/firm/FirmFile.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <nlohmann/json.hpp>

#include "desk/firm/SchemaSteps.h"
#include "host/values/Errors.h"

namespace quillon {

namespace fs = std::filesystem;
using nlohmann::json;

namespace {

constexpr int kFirstYear = 1900;
constexpr int kLastYear = 2200;

[[noreturn]] void Damaged(const fs::path& file, const std::string& what) {
  throw HostError("The file " + file.string() + " is damaged: " + what);
}

/// A plain text names the database; an object adds a user and a password.
FirebirdAddress AddressOf(const json& value, const fs::path& folder) {
  FirebirdAddress address;
  if (value.is_string()) {
    address.Database = value.get<std::string>();
  } else {
    address.Database = value.at("database").get<std::string>();
    address.User = value.value("user", "");
    address.Password = value.value("password", "");
  }
  if (!address.IsServer())
    address.Database = fs::absolute(folder / address.Database).lexically_normal().string();
  return address;
}

json JsonOf(const FirebirdAddress& address, const fs::path& folder) {
  const fs::path path(address.Database);
  const bool isBeside = !address.IsServer() && path.parent_path() == fs::absolute(folder).lexically_normal();
  json value{{"database", isBeside ? path.filename().string() : address.Database}};
  if (!address.User.empty()) value["user"] = address.User;
  if (!address.Password.empty()) value["password"] = address.Password;
  return value;
}

Date DateOf(const json& year, const char* name, Date usual) {
  if (!year.is_object() || !year.contains(name)) return usual;
  const Date date = Date::Parse(year.at(name).get<std::string>());
  if (date.IsEmpty()) throw HostError(std::string("\"") + name + "\" is no date");
  return date;
}

int YearOf(const std::string& text) {
  int year = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), year);
  if (fault != std::errc() || end != text.data() + text.size())
    throw HostError("\"" + text + "\" is no year");
  if (year < kFirstYear || year > kLastYear)
    throw HostError("the year " + text + " is not within 1900 to 2200");
  return year;
}

FirmFile FileOf(const json& root, const fs::path& folder) {
  FirmFile file;
  file.Name = root.at("name").get<std::string>();
  file.Common = AddressOf(root.at("common"), folder);
  for (const auto& [start, year] : root.at("years").items()) {
    const int number = YearOf(start);
    const FirmFile::Year read{AddressOf(year, folder), DateOf(year, "from", Date::Of(number, 4, 1)),
                              DateOf(year, "to", Date::Of(number + 1, 3, 31))};
    if (read.EndDate < read.StartDate) throw HostError("the year " + start + " ends before it begins");
    file.Years[number] = read;
  }
  return file;
}

}  // namespace

FirmFile FirmFile::Read(const fs::path& folder) {
  const fs::path path = PathIn(folder);
  std::error_code hidden;
  if (!fs::is_directory(folder, hidden)) throw HostError("There is no folder " + folder.string());
  if (!fs::exists(path, hidden) && !hidden)
    throw HostError("The folder " + folder.string() + " holds no firm: firm.json is missing");
  std::ifstream in(path);
  if (!in) throw HostError("There is no permission to read " + path.string());
  bool isNewer = false;
  try {
    const json root = json::parse(in);
    isNewer = root.at("schema").get<int>() > VersionAfter(AllSchemaSteps());
    if (!isNewer) return FileOf(root, folder);
  } catch (const json::exception& error) {
    Damaged(path, error.what());
  } catch (const HostError& error) {
    Damaged(path, error.what());
  }
  throw HostError("The firm in " + folder.string() + " was written by a newer version of this program");
}

bool FirmFile::HasPassword() const {
  return !Common.Password.empty() || std::any_of(Years.begin(), Years.end(), [](const auto& year) {
    return !year.second.Database.Password.empty();
  });
}

void FirmFile::Write(const fs::path& folder) const {
  json years = json::object();
  for (const auto& [start, year] : Years) {
    json& value = years[std::to_string(start)] = JsonOf(year.Database, folder);
    value["from"] = year.StartDate.Format("yyyy-MM-dd");
    value["to"] = year.EndDate.Format("yyyy-MM-dd");
  }
  const json root{{"name", Name},
                  {"schema", VersionAfter(AllSchemaSteps())},
                  {"common", JsonOf(Common, folder)},
                  {"years", years}};
  const fs::path made = folder / "firm.json.new";
  std::ofstream out(made);
  // A password is nobody else's business.
  if (HasPassword()) fs::permissions(made, fs::perms::owner_read | fs::perms::owner_write);
  out << root.dump(2) << '\n';
  out.close();
  if (!out) throw HostError("The file " + made.string() + " cannot be written");
  fs::rename(made, PathIn(folder));
}

}  // namespace quillon
