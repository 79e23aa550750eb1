#pragma once

#include <string>

namespace quillon {

/// The firm as the sender on an envelope.
struct Sender {
  std::string FirmName;
  std::string Address1;
  std::string Address2;
  std::string Address3;
  std::string Station;
  std::string Pin;
  std::string State;
  std::string Phone;
};

/// "From: -" and the sender's lines, each three blanks in.
std::string FromBlock(const Sender& sender);

}  // namespace quillon
