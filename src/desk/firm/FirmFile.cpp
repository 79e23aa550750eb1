#include "desk/firm/FirmFile.h"

#include <fstream>
#include <nlohmann/json.hpp>

#include "host/values/Errors.h"

namespace quillon {

namespace fs = std::filesystem;
using nlohmann::json;

namespace {

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

FirmFile FileOf(const json& root, const fs::path& folder) {
  FirmFile file;
  file.Name = root.at("name").get<std::string>();
  file.Common = AddressOf(root.at("common"), folder);
  for (const auto& [start, year] : root.at("years").items()) {
    const int number = std::stoi(start);
    file.Years[number] = {AddressOf(year, folder), DateOf(year, "from", Date::Of(number, 4, 1)),
                          DateOf(year, "to", Date::Of(number + 1, 3, 31))};
  }
  return file;
}

}  // namespace

FirmFile FirmFile::Read(const fs::path& folder) {
  const fs::path path = PathIn(folder);
  if (!fs::is_directory(folder)) throw HostError("There is no folder " + folder.string());
  if (!fs::exists(path))
    throw HostError("The folder " + folder.string() + " holds no firm: firm.json is missing");
  std::ifstream in(path);
  if (!in) throw HostError("There is no permission to read " + path.string());
  try {
    const json root = json::parse(in);
    if (root.at("schema").get<int>() > kSchema) {
      throw HostError("The firm in " + folder.string() + " was written by a newer version of this program");
    }
    return FileOf(root, folder);
  } catch (const json::exception& error) {
    Damaged(path, error.what());
  } catch (const std::invalid_argument&) {
    Damaged(path, "a year is no number");
  } catch (const std::out_of_range&) {
    Damaged(path, "a year is no number");
  }
}

void FirmFile::Write(const fs::path& folder) const {
  json years = json::object();
  for (const auto& [start, year] : Years) {
    json& value = years[std::to_string(start)] = JsonOf(year.Database, folder);
    value["from"] = year.StartDate.Format("yyyy-MM-dd");
    value["to"] = year.EndDate.Format("yyyy-MM-dd");
  }
  const json root{{"name", Name}, {"schema", kSchema}, {"common", JsonOf(Common, folder)}, {"years", years}};
  const fs::path made = folder / "firm.json.new";
  std::ofstream out(made);
  out << root.dump(2) << '\n';
  out.close();
  if (!out) throw HostError("The file " + made.string() + " cannot be written");
  fs::rename(made, PathIn(folder));
}

}  // namespace quillon
