#include "desk/firm/LockHolder.h"

#include <array>
#include <fstream>
#include <sstream>
#include <unistd.h>
#include <utility>

namespace quillon {

namespace {

constexpr std::pair<const char*, std::string LockHolder::*> kParts[] = {
    {"machine", &LockHolder::Machine}, {"boot", &LockHolder::Boot},   {"user", &LockHolder::User},
    {"host", &LockHolder::Host},       {"place", &LockHolder::Place}, {"folder", &LockHolder::Folder},
};

std::string FirstLine(const char* file) {
  std::string line;
  std::getline(std::ifstream(file) >> std::ws, line);
  return line;
}

}  // namespace

LockHolder LockHolder::Own(const std::string& folder, const std::string& place) {
  std::array<char, 256> name{};
  gethostname(name.data(), name.size() - 1);
  LockHolder own;
  own.Boot = FirstLine("/proc/sys/kernel/random/boot_id");
  own.Machine = FirstLine("/etc/machine-id");
  // A machine without a number is another one after each start.
  if (own.Machine.empty()) own.Machine = own.Boot;
  own.User = std::to_string(geteuid());
  own.Host = name.data();
  own.Place = place;
  own.Folder = folder;
  return own;
}

LockHolder LockHolder::OfText(const std::string& text) {
  LockHolder holder;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    for (const auto& [name, part] : kParts) {
      const std::string begin = std::string(name) + " ";
      if (line.starts_with(begin)) holder.*part = line.substr(begin.size());
    }
  }
  return holder;
}

std::string LockHolder::Text() const {
  std::string text;
  for (const auto& [name, part] : kParts) text += std::string(name) + " " + this->*part + "\n";
  return text;
}

}  // namespace quillon
