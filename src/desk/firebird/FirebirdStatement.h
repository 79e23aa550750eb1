#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "desk/firebird/FirebirdField.h"
#include "desk/firebird/FirebirdTransaction.h"

namespace Firebird {
class IStatement;
class IResultSet;
}  // namespace Firebird

namespace quillon {

/// A prepared statement. Values stand for its question marks, in their order.
class FirebirdStatement {
 public:
  /// Throws DbError.
  FirebirdStatement(FirebirdTransaction& transaction, std::string sql);
  FirebirdStatement(const FirebirdStatement&) = delete;
  FirebirdStatement& operator=(const FirebirdStatement&) = delete;
  ~FirebirdStatement();

  const std::string& Sql() const { return sql_; }
  const std::vector<FirebirdField>& Inputs();
  const std::vector<FirebirdField>& Outputs();
  bool GivesRows() const;

  /// Whether it inserts, updates or deletes rows; anything else may change the tables themselves.
  bool ChangesRows() const;

  /// Fills in the aliases that the tables of the output have in the query.
  void DescribeAliases();

  /// Carries it out and answers the number of rows changed. Throws DbError, and HostError for a value that
  /// does not fit its place.
  std::int64_t Execute(FirebirdTransaction& transaction, std::span<const Variant> values = {});

  /// Opens the rows of a query; Fetch then brings one after the other into Row, until it answers false.
  void Open(std::shared_ptr<FirebirdTransaction> transaction, std::span<const Variant> values = {});
  bool Fetch();
  void Close();
  const unsigned char* Row() const { return row_.data(); }

  /// A field of the row at hand.
  Variant Value(std::size_t field);

  /// The text of a blob field of the row at hand.
  std::string BlobText(const FirebirdField& field);

 private:
  void Bind(FirebirdTransaction& transaction, std::span<const Variant> values);
  void PutBlob(FirebirdTransaction& transaction, const FirebirdField& field, const std::string& text);

  std::shared_ptr<FirebirdAttachment> attachment_;
  std::string sql_;
  Firebird::IStatement* statement_ = nullptr;
  Firebird::IMessageMetadata* inMetadata_ = nullptr;
  Firebird::IMessageMetadata* outMetadata_ = nullptr;
  std::vector<FirebirdField> inputs_;
  std::vector<FirebirdField> outputs_;
  std::vector<unsigned char> parameters_;
  std::vector<unsigned char> row_;
  std::shared_ptr<FirebirdTransaction> reading_;
  Firebird::IResultSet* cursor_ = nullptr;
};

}  // namespace quillon
