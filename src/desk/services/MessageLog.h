#pragma once

#include <functional>
#include <string>
#include <vector>

namespace quillon {

/// Keeps the texts of the messages that screens show while it lives, with what was answered, for the journal.
/// One at a time.
class MessageLog {
 public:
  /// `onMessage` is called before each message is noted, while its screen is still as it was.
  explicit MessageLog(std::function<void()> onMessage);
  MessageLog(const MessageLog&) = delete;
  MessageLog& operator=(const MessageLog&) = delete;
  ~MessageLog();

  /// A line for each message.
  std::string Text() const;

  /// Told of every message, whether one listens or not.
  static void Note(const std::string& message, const std::string& answer);

 private:
  std::function<void()> onMessage_;
  std::vector<std::string> lines_;
};

}  // namespace quillon
