#include "desk/services/PartyAddress.h"

#include "host/values/Text.h"

namespace quillon {

std::vector<std::string> PartyAddress(const CDataSet& master) {
  const auto field = [&](const char* name) { return text::Trim(master.Field(name).ToText()); };
  std::vector<std::string> lines;
  for (const char* name : {"mhd", "mhda1", "mhda2", "mhda3"}) {
    if (std::string line = field(name); !line.empty()) lines.push_back(std::move(line));
  }
  std::string place = field("mst");
  if (const std::string pin = field("mPin"); !pin.empty()) place += (place.empty() ? "" : " - ") + pin;
  if (!place.empty()) lines.push_back(place);
  if (const std::string state = field("mState"); !state.empty()) lines.push_back(state);
  return lines;
}

}  // namespace quillon
