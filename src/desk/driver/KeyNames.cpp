#include "desk/driver/KeyNames.h"

#include <map>

#include "host/controls/Keys.h"
#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

const std::map<std::string, int> kNames = {
    {"enter", keys::kEnter},   {"esc", keys::kEscape},     {"tab", keys::kTab},     {"up", keys::kUp},
    {"down", keys::kDown},     {"left", keys::kLeft},      {"right", keys::kRight}, {"pgup", keys::kPageUp},
    {"pgdn", keys::kPageDown}, {"home", keys::kHome},      {"end", keys::kEnd},     {"del", keys::kDelete},
    {"back", keys::kBack},     {"backspace", keys::kBack}, {"space", keys::kSpace}};

int ShiftOf(const std::string& names) {
  int shift = 0;
  if (names.empty()) return shift;
  for (const std::string& name : text::Split(text::Lower(names), "+")) {
    if (name == "shift") {
      shift |= keys::kShift;
    } else if (name == "ctrl") {
      shift |= keys::kCtrl;
    } else if (name == "alt") {
      shift |= keys::kAlt;
    } else {
      throw HostError("There is no key \"" + name + "\" to hold");
    }
  }
  return shift;
}

}  // namespace

ScriptKey KeyOf(const std::string& name, const std::string& shift) {
  ScriptKey key;
  key.Shift = ShiftOf(shift);
  const std::string lower = text::Lower(name);
  if (const auto named = kNames.find(lower); named != kNames.end()) {
    key.KeyCode = named->second;
    const bool types =
        key.KeyCode == keys::kEnter || key.KeyCode == keys::kBack || key.KeyCode == keys::kSpace;
    key.Character = types ? key.KeyCode : 0;
    return key;
  }
  if (lower.size() > 1 && lower[0] == 'f' && lower.find_first_not_of("0123456789", 1) == std::string::npos) {
    const long long number = ValInteger(lower.substr(1));
    if (number >= 1 && number <= 12) {
      key.KeyCode = keys::kF1 + static_cast<int>(number) - 1;
      return key;
    }
  }
  if (name.empty() || text::CharBytes(name, 0) != name.size())
    throw HostError("There is no key \"" + name + "\"");
  key.Character = text::CodePoint(name);
  key.KeyCode = CodeOfCharacter(key.Character);
  return key;
}

}  // namespace quillon
