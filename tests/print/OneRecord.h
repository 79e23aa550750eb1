#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/data/CDbLink.h"
#include "host/data/RowSet.h"
#include "host/values/Errors.h"

namespace quillon {

/// A connection whose every query gives one record of texts, for headings that print fields of a master.
class OneRecord : public CDbLink {
 public:
  using Fields = std::vector<std::pair<std::string, std::string>>;

  explicit OneRecord(Fields fields) : fields_(std::move(fields)) {}

  using CDbLink::Execute;
  void Execute(const std::string& sql, std::int64_t&, int) override { Refuse(sql); }
  Variant Lookup(const std::string& table, const std::string&, const std::string&) override {
    Refuse(table);
    return {};
  }
  bool TableExists(const std::string&) override { return false; }
  bool RowExists(const std::string&) override { return true; }
  std::vector<Variant> FirstRowWith(const std::string& query, std::span<const Variant>) override {
    Refuse(query);
    return {};
  }
  void BeginTrans() override { Refuse("begin"); }
  void CommitTrans() override { Refuse("commit"); }
  void RollbackTrans() override { Refuse("rollback"); }
  bool InTransaction() const override { return false; }
  std::unique_ptr<RowSet> OpenRows(const std::string&, const RowSet::Wish&) override {
    return std::make_unique<Rows>(fields_);
  }

 private:
  class Rows : public RowSet {
   public:
    explicit Rows(const Fields& fields) {
      for (const auto& [name, value] : fields) {
        names_.push_back(name);
        values_.push_back(value);
      }
    }
    const std::vector<std::string>& FieldNames() const override { return names_; }
    bool Seek(std::int64_t row) override { return row == 0; }
    std::int64_t Count() override { return 1; }
    Variant Value(std::int64_t, std::size_t field) override { return values_.at(field); }
    void Detach() override {}
    void Write(std::int64_t, const std::vector<std::pair<std::size_t, Variant>>&) override {
      Refuse("write");
    }
    void Append(const std::vector<std::pair<std::size_t, Variant>>&) override { Refuse("append"); }

   private:
    std::vector<std::string> names_;
    std::vector<std::string> values_;
  };

  static void Refuse(const std::string& what) { throw HostError("A report only reads: " + what); }

  Fields fields_;
};

}  // namespace quillon
