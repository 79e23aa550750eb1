#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desk/firebird/FirebirdStatement.h"
#include "desk/firebird/RowStore.h"
#include "host/data/RowSet.h"

namespace quillon {

class FirebirdLink;

/// The rows of a query: read in blocks, and kept, so that they can be walked both ways.
class FirebirdRows final : public RowSet {
 public:
  /// Rows that are kept are read all at once and let the cursor go: such a set outlives transactions, and its
  /// own changes do not come back to it. A changeable set is always read so.
  FirebirdRows(FirebirdLink& link, const std::shared_ptr<FirebirdTransaction>& transaction,
               const std::string& sql, const Wish& wish);

  const std::vector<std::string>& FieldNames() const override { return names_; }
  bool Seek(std::int64_t row) override;
  std::int64_t Count() override;
  Variant Value(std::int64_t row, std::size_t field) override { return store_->Value(row, field); }
  void Detach() override;
  void Write(std::int64_t row, const Changes& fields) override;
  void Append(const Changes& fields) override;

  bool HasBlobs() const { return hasBlobs_; }

 private:
  /// A table of the query whose rows can be told apart by fields of the output.
  struct Table {
    std::string Name;
    std::string Alias;
    std::vector<std::pair<std::string, std::size_t>> Key;  // column, field
  };

  static std::unique_ptr<FirebirdStatement> Lean(FirebirdLink& link, FirebirdTransaction& transaction,
                                                 const std::string& sql,
                                                 const std::vector<std::string>& reads);
  void PrepareForChange(FirebirdLink& link, FirebirdTransaction& transaction);
  std::vector<std::string> FindTables(FirebirdLink& link);
  const Table& TableOf(std::size_t field) const;
  void UpdateTable(FirebirdLink& link, const Table& table, std::int64_t row, const Changes& fields);
  std::vector<Variant> Values(std::int64_t row) const;
  FirebirdLink& Link() const;
  bool FetchTo(std::int64_t row);
  void Fetch(std::int64_t row);

  std::weak_ptr<FirebirdLink> link_;
  std::string sql_;
  std::unique_ptr<FirebirdStatement> statement_;
  std::vector<FirebirdField> fields_;
  std::vector<std::string> names_;
  std::vector<Table> tables_;
  std::optional<RowStore> store_;
  bool changeable_;
  bool hasBlobs_ = false;
};

}  // namespace quillon
