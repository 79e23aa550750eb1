#include "desk/services/MessageLog.h"

#include "host/values/Text.h"

namespace quillon {

namespace {

MessageLog* listening = nullptr;

}  // namespace

MessageLog::MessageLog(std::function<void()> onMessage) : onMessage_(std::move(onMessage)) {
  listening = this;
}

MessageLog::~MessageLog() { listening = nullptr; }

std::string MessageLog::Text() const { return text::Join(lines_, "\n"); }

void MessageLog::Note(const std::string& message, const std::string& answer) {
  if (listening == nullptr) return;
  listening->onMessage_();
  listening->lines_.push_back(text::ReplaceAll(message, "\n", " ") + (answer == "OK" ? "" : " - " + answer));
}

}  // namespace quillon
