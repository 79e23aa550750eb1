#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quillon {

class GridModel;

namespace books {

/// An entry as the books know it: the voucher and the line in it.
struct EntryKey {
  std::int64_t Voucher = 0;
  std::int64_t Line = 0;

  bool operator==(const EntryKey&) const = default;

  /// The entry that a grid's row shows; without a voucher it is none.
  static EntryKey OfRow(const GridModel& grid, int row, int voucherCol, int lineCol);
  bool IsEntry() const { return Voucher != 0; }
};

struct EntryKeyHash {
  std::size_t operator()(const EntryKey& key) const {
    return std::hash<std::int64_t>()(key.Voucher * 1024 + key.Line);
  }
};

/// Finds the rows of a grid by voucher and line. It holds as long as the grid keeps its rows.
class EntryRows {
 public:
  EntryRows(const GridModel& grid, int voucherCol, int lineCol);

  /// The rows of an entry, from above; none for what is no entry.
  std::vector<int> Find(const EntryKey& key) const;

 private:
  std::unordered_multimap<EntryKey, int, EntryKeyHash> rows_;
};

}  // namespace books
}  // namespace quillon
