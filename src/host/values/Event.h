#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace quillon {

/// One event of a control with the one handler that its form gives it. Arguments that the handler answers
/// through are references. A handler may replace itself, raise the event again, or bring its form to an end.
template <class... Arguments>
class Event {
 public:
  template <class Handler>
  Event& operator=(Handler handler) {
    handler_ = std::move(handler);
    return *this;
  }

  void Raise(Arguments... arguments) const {
    if (!handler_) return;
    const auto handler = handler_;
    handler(std::forward<Arguments>(arguments)...);
  }

  explicit operator bool() const { return static_cast<bool>(handler_); }

 private:
  std::function<void(Arguments...)> handler_;
};

/// An event that several listeners hear, each known by an address of its own.
template <class... Arguments>
class Broadcast {
 public:
  using Handler = std::function<void(Arguments...)>;

  void Connect(const void* listener, Handler handler) {
    handlers_.emplace_back(listener, std::move(handler));
  }
  void Disconnect(const void* listener) {
    std::erase_if(handlers_, [listener](const auto& entry) { return entry.first == listener; });
  }

  void Raise(Arguments... arguments) const {
    const auto handlers = handlers_;
    for (const auto& [listener, handler] : handlers) handler(arguments...);
  }

 private:
  std::vector<std::pair<const void*, Handler>> handlers_;
};

}  // namespace quillon
