#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/values/Variant.h"

namespace quillon {

class FirebirdStatement;

/// A statement with its literals lifted out: texts that differ only in their values have one shape, which is
/// prepared once.
struct LiftedSql {
  struct Literal {
    std::string Text;  ///< digits, or a text without its quotes
    bool IsNumber;
  };

  std::string Shape;
  std::vector<Literal> Literals;

  /// Lifts whole numbers and quoted texts that stand alone after an equals sign or in a list of VALUES, of
  /// updates, inserts and deletes. Nothing when the text has anything that makes that unsafe.
  static std::optional<LiftedSql> Of(const std::string& sql);

  /// The literals as values of the statement prepared from the shape; nothing when one of them would not mean
  /// the same there as it does in the text.
  std::optional<std::vector<Variant>> ValuesFor(FirebirdStatement& statement) const;
};

}  // namespace quillon
