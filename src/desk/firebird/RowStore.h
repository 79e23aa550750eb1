#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "desk/firebird/FirebirdField.h"
#include "host/values/Variant.h"

namespace quillon {

class FirebirdStatement;

/// Rows read from a query, packed: a byte for each field that tells nulls, eight bytes for each field, then
/// its texts. Rows count from 0.
class RowStore {
 public:
  /// The kinds of the fields that rows have.
  explicit RowStore(std::vector<FirebirdField::Kind> kinds) : kinds_(std::move(kinds)) {}

  std::int64_t Count() const { return static_cast<std::int64_t>(rows_.size()); }
  Variant Value(std::int64_t row, std::size_t field) const;

  /// Adds the row that the statement has just fetched.
  void Add(FirebirdStatement& statement);

  /// Adds a row of these values, or puts them in the place of a row.
  void Add(const std::vector<Variant>& values);
  void Replace(std::int64_t row, const std::vector<Variant>& values);

 private:
  std::size_t Head() const { return (kinds_.size() + 7) / 8 * 8; }
  void Begin();
  void PutSlot(std::size_t field, const void* value);
  void PutText(std::size_t field, const std::string& text);
  void Put(std::size_t field, const Variant& value);
  void Pack(const std::vector<Variant>& values);
  const char* Keep();

  std::vector<FirebirdField::Kind> kinds_;
  std::vector<const char*> rows_;
  std::vector<std::unique_ptr<char[]>> blocks_;
  std::size_t free_ = 0;
  char* next_ = nullptr;
  std::string made_;
};

}  // namespace quillon
