#include "envelopes/FromBlock.h"

namespace quillon {

std::string FromBlock(const Sender& sender) {
  std::string block = "From: -";
  const auto line = [&](const std::string& text) { block += "\r\n   " + text; };
  line(sender.FirmName);
  if (!sender.Address1.empty()) {
    line(sender.Address1 + (sender.Address2.empty() ? "" : ", " + sender.Address2));
  } else if (!sender.Address2.empty()) {
    line(sender.Address2);
  }
  if (!sender.Address3.empty()) line(sender.Address3);
  line(sender.Station);
  if (!sender.Pin.empty()) {
    block += " - " + sender.Pin;
    if (!sender.State.empty()) line(sender.State);
  } else if (!sender.State.empty()) {
    block += " (" + sender.State + ")";
  }
  if (!sender.Phone.empty()) line("Phone : " + sender.Phone);
  return block;
}

}  // namespace quillon
