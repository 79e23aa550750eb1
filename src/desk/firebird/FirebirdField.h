#pragma once

#include <string>
#include <vector>

#include "host/values/Variant.h"

namespace Firebird {
class IMessageMetadata;
}

namespace quillon {

/// A field of a statement's input or output message, as the engine describes it.
struct FirebirdField {
  enum class Kind { kInteger, kAmount, kDouble, kFlag, kDate, kTime, kText, kBlob };

  std::string Name;      ///< as the query names it
  std::string Relation;  ///< the table it comes from; empty for an expression
  std::string Column;
  std::string RelationAlias;  ///< the table's alias in the query; only where asked for
  unsigned Type = 0;          ///< SQL_LONG, SQL_VARYING and the like, without the null bit
  unsigned Length = 0;        ///< in bytes
  unsigned Offset = 0;
  unsigned NullOffset = 0;
  unsigned CharSet = 0;
  int Scale = 0;
  Kind Holds = Kind::kText;

  /// Texts: whether blanks that pad it to a fixed width are no part of it.
  bool IsPadded() const;

  bool IsNull(const unsigned char* message) const;
  void SetNull(unsigned char* message, bool null) const;

  /// The number, amount (in ten-thousandths), flag or day (since 1 January 1970) in a message.
  std::int64_t Whole(const unsigned char* message) const;
  double Real(const unsigned char* message) const;

  /// A text; of a time of day its "HH:MM:SS". No blob.
  std::string Text(const unsigned char* message) const;

  /// Puts a value that is neither null nor bound for a blob into a message. Throws HostError for a value that
  /// the field cannot hold.
  void Put(unsigned char* message, const Variant& value) const;

  /// All fields of a message.
  static std::vector<FirebirdField> Describe(Firebird::IMessageMetadata& metadata,
                                             const std::string& statement);
};

}  // namespace quillon
