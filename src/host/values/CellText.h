#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <string_view>
#include <utility>

namespace quillon {

/// The text of a grid's cell: one pointer, nothing for an empty text, shared when a cell is copied. A grid of
/// 100,000 rows holds millions of them, and most are empty. Not for use across threads.
class CellText {
 public:
  CellText() = default;
  explicit CellText(std::string_view text) {
    if (text.empty()) return;
    void* memory = ::operator new(sizeof(Body) + text.size());
    body_ = new (memory) Body{1, static_cast<std::uint32_t>(text.size())};
    std::memcpy(Characters(body_), text.data(), text.size());
  }
  CellText(const CellText& other) : body_(other.body_) {
    if (body_ != nullptr) ++body_->holders;
  }
  CellText(CellText&& other) noexcept : body_(std::exchange(other.body_, nullptr)) {}
  CellText& operator=(CellText other) noexcept {
    std::swap(body_, other.body_);
    return *this;
  }
  ~CellText() {
    if (body_ != nullptr && --body_->holders == 0) ::operator delete(body_);
  }

  std::string_view View() const {
    return body_ == nullptr ? std::string_view() : std::string_view(Characters(body_), body_->size);
  }

 private:
  struct Body {
    std::uint32_t holders;
    std::uint32_t size;
  };

  static char* Characters(Body* body) { return reinterpret_cast<char*>(body + 1); }

  Body* body_ = nullptr;
};

}  // namespace quillon
