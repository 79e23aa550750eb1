#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <new>
#include <optional>
#include <string_view>
#include <utility>

#include "host/values/LaterTexts.h"

namespace quillon {

/// The text of a grid's cell in the room of one pointer: a short one stands in it, a longer one is shared
/// when the cell is copied. A grid of 100,000 rows holds millions of them, and most are empty or short. It
/// may be the key of a text that is read when somebody looks at it. Not for use across threads.
class CellText {
 public:
  CellText() = default;
  explicit CellText(std::string_view text) {
    if (text.size() <= kShort) {
      std::uintptr_t packed = 0;
      std::memcpy(Bytes(packed), text.data(), text.size());
      if (!text.empty()) bits_ = packed | text.size() << 1U | 1U;
    } else {
      void* memory = ::operator new(sizeof(Body) + text.size());
      auto* const body = new (memory) Body{1, static_cast<std::uint32_t>(text.size())};
      std::memcpy(Characters(body), text.data(), text.size());
      bits_ = reinterpret_cast<std::uintptr_t>(body);
    }
  }
  CellText(std::shared_ptr<LaterTexts> texts, std::int64_t key)
      : bits_(reinterpret_cast<std::uintptr_t>(
            static_cast<Body*>(new LaterBody{{1, kLater}, std::move(texts), key}))) {}
  CellText(const CellText& other) : bits_(other.bits_) {
    if (IsShared()) ++Shared()->holders;
  }
  CellText(CellText&& other) noexcept : bits_(std::exchange(other.bits_, 0)) {}
  CellText& operator=(CellText other) noexcept {
    std::swap(bits_, other.bits_);
    return *this;
  }
  ~CellText() {
    if (!IsShared() || --Shared()->holders > 0) return;
    if (IsLater()) {
      delete Later();
    } else {
      ::operator delete(Shared());
    }
  }

  /// One that is to be read later is not.
  bool IsEmpty() const { return bits_ == 0; }

  /// Reads it where it is to be read later; throws what the reading throws. Holds until the cell changes.
  std::string_view View() const { return IsLater() ? Later()->texts->Read(Later()->key) : Held(); }

  /// Without reading anything.
  std::optional<std::string_view> Known() const {
    return IsLater() ? Later()->texts->Known(Later()->key) : Held();
  }

 private:
  struct Body {
    std::uint32_t holders;
    std::uint32_t size;
  };
  struct LaterBody : Body {
    std::shared_ptr<LaterTexts> texts;
    std::int64_t key;
  };
  static constexpr std::uint32_t kLater = UINT32_MAX;

  // A short text has an odd first byte, which tells its length, and a body an even address.
  static_assert(std::endian::native == std::endian::little);
  static constexpr std::size_t kShort = sizeof(std::uintptr_t) - 1;
  static char* Bytes(std::uintptr_t& bits) { return reinterpret_cast<char*>(&bits) + 1; }

  bool IsShared() const { return bits_ != 0 && (bits_ & 1U) == 0; }
  bool IsLater() const { return IsShared() && Shared()->size == kLater; }
  Body* Shared() const { return reinterpret_cast<Body*>(bits_); }
  LaterBody* Later() const { return static_cast<LaterBody*>(Shared()); }

  std::string_view Held() const {
    if (IsShared()) return {Characters(Shared()), Shared()->size};
    return {reinterpret_cast<const char*>(&bits_) + 1, (bits_ & 0xFFU) >> 1U};
  }

  static char* Characters(Body* body) { return reinterpret_cast<char*>(body + 1); }

  std::uintptr_t bits_ = 0;
};

}  // namespace quillon
