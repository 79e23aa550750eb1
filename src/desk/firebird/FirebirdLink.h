#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "desk/firebird/FirebirdAttachment.h"
#include "desk/firebird/FirebirdStatement.h"
#include "desk/firebird/FirebirdTransaction.h"
#include "desk/firebird/SqlObserver.h"
#include "host/data/CDbLink.h"

namespace quillon {

class DbError;

/// A file's device and number.
struct FilePlace {
  std::uint64_t Device;
  std::uint64_t Number;
  bool operator==(const FilePlace&) const = default;
};

/// A connection to a Firebird database. Queries outside BeginTrans read in a transaction of their own, which
/// sees what is committed, so that open sets stay readable while statements commit. When the connection is
/// lost the statement at hand fails and the next one attaches again; inside BeginTrans all statements fail
/// until RollbackTrans. A single statement that commits by itself is tried again for two seconds when it
/// meets a conflict; after half a second the runtime shows that it waits. Where the file was replaced or
/// deleted since it was opened every statement fails.
class FirebirdLink final : public CDbLink, public std::enable_shared_from_this<FirebirdLink> {
 public:
  /// `label` is what the observer is told: "common" or a year. Throws DbError.
  static std::shared_ptr<FirebirdLink> Open(FirebirdAddress address, std::string label);

  /// Use Open.
  FirebirdLink(FirebirdAddress address, std::string label);
  ~FirebirdLink() override;

  using CDbLink::Execute;
  void Execute(const std::string& sql, std::int64_t& rowsAffected, int options) override;
  Variant Lookup(const std::string& table, const std::string& expression, const std::string& where) override;
  bool TableExists(const std::string& name) override;
  bool RowExists(const std::string& sql) override;
  std::vector<Variant> FirstRowWith(const std::string& query, std::span<const Variant> values) override;
  void BeginTrans() override;
  void CommitTrans() override;
  void RollbackTrans() override;
  std::unique_ptr<RowSet> OpenRows(const std::string& sql, const RowSet::Wish& wish) override;

  /// Runs a statement that changes rows, with values for its question marks, prepared once and kept. Answers
  /// the number of rows changed.
  std::int64_t ExecuteWith(const std::string& statement, std::span<const Variant> values);

  /// The same for an insert that ends in RETURNING: answers what it returns.
  std::vector<Variant> InsertWith(const std::string& statement, std::span<const Variant> values);

  const std::string& Label() const { return label_; }
  bool InTransaction() const override { return inTransaction_; }

  /// The observer must outlive the link or be taken off with nothing.
  void SetObserver(SqlObserver* observer) { observer_ = observer; }

  /// Is called once, before the next statement or transaction that may change rows, which fails with what it
  /// throws.
  std::function<void()> BeforeFirstStore;

  /// The columns of a table's primary key, in its order; none when the table has no such key.
  const std::vector<std::string>& KeyOf(const std::string& table);

  /// The same query in a form that the engine answers faster; nothing where there is none. Of a table that it
  /// asks whole only the columns `reads` are answered, where any are named.
  std::optional<std::string> Leaner(const std::string& query, const std::vector<std::string>& reads = {});

  /// The connection at hand; nothing while there is none.
  Firebird::IAttachment* Handle() const { return attachment_ ? attachment_->Handle() : nullptr; }
  const FirebirdAddress& Address() const { return address_; }

  /// Told by the link's open sets when reading on has failed.
  void NoteFailure(const std::string& sql, const DbError& error);

 private:
  enum class Aim { kRead, kStore };

  template <class Action>
  void Send(const std::string& sql, Aim aim, Action action);
  template <class Action>
  void Repeat(Action action);
  bool MayTryAgain(const DbError& error, std::chrono::steady_clock::time_point first) const;
  void TellFirstStore();
  void RequirePlace() const;
  void Attach();
  void Drop();
  void Tell(const std::string& sql, std::int64_t rows, const std::string& error);
  const std::shared_ptr<FirebirdTransaction>& Reading();
  FirebirdTransaction& Writing();
  std::optional<std::int64_t> ExecuteLifted(const std::string& sql);
  std::int64_t ExecutePlain(const std::string& sql);
  FirebirdStatement& Prepared(const std::string& statement);
  bool SortsWholeRows();
  Variant FirstValue(const std::string& sql);

  FirebirdAddress address_;
  std::string label_;
  SqlObserver* observer_ = nullptr;
  std::shared_ptr<FirebirdAttachment> attachment_;
  std::optional<FilePlace> place_;
  std::shared_ptr<FirebirdTransaction> read_;
  std::shared_ptr<FirebirdTransaction> auto_;
  std::shared_ptr<FirebirdTransaction> patient_;
  std::shared_ptr<FirebirdTransaction> work_;
  bool inTransaction_ = false;
  bool isPatient_ = false;
  std::unordered_map<std::string, std::unique_ptr<FirebirdStatement>> prepared_;
  std::map<std::string, std::vector<std::string>> keys_;
  std::optional<bool> sortsWholeRows_;
};

}  // namespace quillon
