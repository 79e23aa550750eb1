#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/controls/ListBox.h"

namespace quillon {

/// What a person ticked in a list.
struct TickedNames {
  std::vector<std::string> Names;
  bool IsAll = false;

  static TickedNames Of(const ListBox& list);
};

/// Which entries of an account a transfer takes.
struct EntrySelection {
  enum class Side { kBoth, kDebits, kCredits };

  std::int64_t Account = 0;
  std::string Dates;  ///< the pair that follows "between"
  TickedNames Books;
  TickedNames Types;
  Side Which = Side::kBoth;
  std::string Narration;  ///< what the narration holds; empty for any

  /// The entries, all columns, without opening balances and without those that have no narration row.
  std::string Query() const;
};

}  // namespace quillon
