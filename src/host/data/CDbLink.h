#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "host/data/RowSet.h"
#include "host/values/Variant.h"

namespace quillon {

/// A connection to one database. Outside BeginTrans each statement commits by itself. Every failure is a
/// DbError that carries the engine's message, its SQLSTATE and the statement.
class CDbLink {
 public:
  /// The option that all callers pass to Execute: the statement returns no rows.
  static constexpr int kNoRows = 128;

  CDbLink() = default;
  CDbLink(const CDbLink&) = delete;
  CDbLink& operator=(const CDbLink&) = delete;
  virtual ~CDbLink() = default;

  virtual void Execute(const std::string& sql, std::int64_t& rowsAffected, int options) = 0;
  void Execute(const std::string& sql) {
    std::int64_t rows = 0;
    Execute(sql, rows, kNoRows);
  }

  /// The expression's value in the first row of the table under the condition (may be empty). No row and a
  /// null value both give an empty value, which counts as 0.
  virtual Variant Lookup(const std::string& table, const std::string& expression,
                         const std::string& where) = 0;

  /// `name` in capitals.
  virtual bool TableExists(const std::string& name) = 0;
  virtual bool RowExists(const std::string& sql) = 0;

  /// The fields of the first row of a query with values for its question marks; none without a row. The query
  /// is prepared once and kept: for what is asked anew for each row of a long list.
  virtual std::vector<Variant> FirstRowWith(const std::string& query, std::span<const Variant> values) = 0;

  /// One transaction at a time: beginning a second one throws HostError, and so do the other two without one.
  virtual void BeginTrans() = 0;
  virtual void CommitTrans() = 0;
  virtual void RollbackTrans() = 0;
  virtual bool InTransaction() const = 0;

  /// What CDataSet opens.
  virtual std::unique_ptr<RowSet> OpenRows(const std::string& sql, const RowSet::Wish& wish) = 0;

  /// Expires with the link: for what may outlive it.
  std::weak_ptr<const void> Life() const { return life_; }

 private:
  std::shared_ptr<const int> life_ = std::make_shared<const int>();
};

}  // namespace quillon
