#pragma once

#include <string>
#include <vector>

namespace quillon {

/// The text of an address label: the lines one under the other, two blanks in. A line that repeats the one
/// before it, case and outer blanks ignored, is left out: many addresses end with the town that follows.
std::string LabelText(const std::vector<std::string>& lines);

}  // namespace quillon
