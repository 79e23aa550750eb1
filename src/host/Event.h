#pragma once

#include <functional>
#include <utility>

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

}  // namespace quillon
