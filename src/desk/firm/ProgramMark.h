#pragma once

#include <string>

namespace quillon {

/// What no other program on any machine is called: for rows that a killed program leaves behind.
std::string OwnProgramMark();

/// Whether the program of a mark is still at work. One of another machine, or of this one before its last
/// start, counts as ended.
bool IsAtWork(const std::string& mark);

}  // namespace quillon
