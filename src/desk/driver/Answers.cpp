#include "desk/driver/Answers.h"

#include "host/values/Errors.h"

namespace quillon {

namespace {

/// What an answer of each kind must name, unless it cancels.
const std::map<std::string, std::string> kNeeds = {
    {"message", "button"}, {"input", "text"},     {"file", "path"},    {"font", "name"},   {"date", "date1"},
    {"pick", "item"},      {"parties", "clause"}, {"printdialog", ""}, {"sight", "print"},
};

}  // namespace

void Answers::Add(const Json& command) {
  const std::string kind = command.value("to", "");
  const auto need = kNeeds.find(kind);
  if (need == kNeeds.end()) throw HostError("There is no dialog \"" + kind + "\" to answer");
  const bool cancel = command.value("cancel", false);
  if (cancel && kind == "message") throw HostError("A message is answered by a button");
  if (!cancel && !need->second.empty() && !command.contains(need->second)) {
    throw HostError("An answer to " + kind + " needs \"" + need->second + "\"");
  }
  if (kind == "message" && !command.at("button").is_number_integer()) {
    throw HostError("A message is answered by the number of a button");
  }
  queues_[kind].push_back(command);
}

std::optional<Json> Answers::Take(const std::string& kind) {
  std::deque<Json>& queue = queues_[kind];
  if (queue.empty()) return std::nullopt;
  Json answer = queue.front();
  queue.pop_front();
  return answer;
}

Json Answers::LeftOver() const {
  Json left = Json::array();
  for (const auto& [kind, queue] : queues_) {
    for (Json answer : queue) {
      answer.erase("cmd");
      left.push_back(std::move(answer));
    }
  }
  return left;
}

}  // namespace quillon
