#include "desk/firebird/FirebirdLink.h"

#include <sys/stat.h>
#include <thread>
#include <utility>

#include "desk/firebird/EngineThread.h"
#include "desk/firebird/EngineWatch.h"
#include "desk/firebird/FirebirdRows.h"
#include "desk/firebird/LiftedSql.h"
#include "desk/firebird/QueryText.h"
#include "desk/firebird/SortedJoin.h"
#include "host/forms/Runtime.h"
#include "host/values/Errors.h"

namespace quillon {

namespace {

constexpr std::size_t kPreparedKept = 32;
constexpr std::chrono::seconds kTriedAgainFor(2);
constexpr std::chrono::milliseconds kPause(50);
constexpr std::chrono::milliseconds kUnseen(500);  // so long nobody minds

constexpr const char* kKeyQuery =
    "select trim(s.rdb$field_name) from rdb$relation_constraints c "
    "join rdb$index_segments s on s.rdb$index_name=c.rdb$index_name "
    "where c.rdb$constraint_type='PRIMARY KEY' and c.rdb$relation_name='";

/// Shows that a statement waits, from the first time that it says so to its end.
class WaitingSign {
 public:
  explicit WaitingSign(bool& isPatient) : isPatient_(isPatient) {}
  WaitingSign(const WaitingSign&) = delete;
  WaitingSign& operator=(const WaitingSign&) = delete;
  ~WaitingSign() {
    if (isPatient_ && gRuntime != nullptr) gRuntime->ShowWaiting(false);
    isPatient_ = false;
  }
  void Show() {
    if (!isPatient_ && gRuntime != nullptr) gRuntime->ShowWaiting(true);
    isPatient_ = true;
  }

 private:
  bool& isPatient_;
};

/// What tells a file from another one of its name; nothing for one on a server.
std::optional<FilePlace> PlaceOf(const FirebirdAddress& address) {
  struct stat file {};
  if (address.IsServer() || stat(address.Database.c_str(), &file) != 0) return {};
  return FilePlace{file.st_dev, file.st_ino};
}

}  // namespace

std::shared_ptr<FirebirdLink> FirebirdLink::Open(FirebirdAddress address, std::string label) {
  auto link = std::make_shared<FirebirdLink>(std::move(address), std::move(label));
  link->Attach();
  return link;
}

FirebirdLink::FirebirdLink(FirebirdAddress address, std::string label)
    : address_(std::move(address)), label_(std::move(label)) {}

FirebirdLink::~FirebirdLink() { Drop(); }

void FirebirdLink::Attach() {
  if (attachment_) return;
  if (inTransaction_) {
    throw DbError("The connection was lost in the middle of a transaction; nothing of it was stored.",
                  "08006", "", "", DbError::Reason::kLost);
  }
  attachment_ = FirebirdAttachment::Attach(address_);
  if (!place_) place_ = PlaceOf(address_);
}

/// Nothing is acknowledged that went into a file which is no longer the firm's.
void FirebirdLink::RequirePlace() const {
  if (address_.IsServer() || PlaceOf(address_) == place_) return;
  throw DbError(
      "The file " + address_.Database +
          " was replaced or deleted while it was open. Nothing is stored any more: open the firm again.",
      "08006", "", "", DbError::Reason::kLost);
}

/// The engine has undone a single statement that met a conflict whole, so it may be sent again.
bool FirebirdLink::MayTryAgain(const DbError& error, std::chrono::steady_clock::time_point first) const {
  if (inTransaction_ || error.Why() != DbError::Reason::kConflict) return false;
  if (std::chrono::steady_clock::now() - first > kTriedAgainFor - kPause) return false;
  std::this_thread::sleep_for(kPause);
  return true;
}

void FirebirdLink::Drop() {
  prepared_.clear();
  read_.reset();
  auto_.reset();
  patient_.reset();
  work_.reset();
  attachment_.reset();
  sortsWholeRows_.reset();
}

void FirebirdLink::Tell(const std::string& sql, std::int64_t rows, const std::string& error) {
  if (observer_) observer_->OnStatement(*this, label_, sql, rows, error);
}

void FirebirdLink::NoteFailure(const std::string& sql, const DbError& error) {
  if (error.Why() == DbError::Reason::kLost) {
    if (attachment_) attachment_->Cut();
    Drop();
  }
  Tell(sql, 0, error.what());
}

template <class Action>
void FirebirdLink::Repeat(Action action) {
  const auto first = std::chrono::steady_clock::now();
  WaitingSign sign(isPatient_);
  for (;;) {
    try {
      action();
      return;
    } catch (const DbError& error) {
      if (!MayTryAgain(error, first)) throw;
    }
    // From now on the engine waits, which also notices a program that died over the record.
    if (std::chrono::steady_clock::now() - first > kUnseen) sign.Show();
  }
}

void FirebirdLink::TellFirstStore() {
  if (BeforeFirstStore) std::exchange(BeforeFirstStore, nullptr)();
}

/// What reads may be broken off by its user, what stores never.
template <class Action>
void FirebirdLink::Send(const std::string& sql, Aim aim, Action action) {
  if (aim == Aim::kStore) TellFirstStore();
  try {
    EngineThread::Do(
        [&] {
          const EngineWatch::Call call(address_, Handle());
          Attach();
          Repeat(action);
          RequirePlace();
        },
        aim == Aim::kRead ? Handle() : nullptr);
  } catch (const DbError& error) {
    NoteFailure(sql, error);
    if (error.Statement() == sql) throw;
    throw DbError(error.what(), error.SqlState(), sql, error.EngineText(), error.Why());
  } catch (const HostError& error) {
    Tell(sql, 0, error.what());
    throw;
  }
}

const std::shared_ptr<FirebirdTransaction>& FirebirdLink::Reading() {
  if (work_) return work_;
  if (!read_) read_ = std::make_shared<FirebirdTransaction>(attachment_, FirebirdTransaction::Kind::kRead);
  return read_;
}

FirebirdTransaction& FirebirdLink::Writing() {
  if (work_) return *work_;
  using Kind = FirebirdTransaction::Kind;
  std::shared_ptr<FirebirdTransaction>& own = isPatient_ ? patient_ : auto_;
  const Kind kind = isPatient_ ? Kind::kPatient : Kind::kAutoCommit;
  if (!own) own = std::make_shared<FirebirdTransaction>(attachment_, kind);
  return *own;
}

FirebirdStatement& FirebirdLink::Prepared(const std::string& statement) {
  const auto kept = prepared_.find(statement);
  if (kept != prepared_.end()) return *kept->second;
  if (prepared_.size() >= kPreparedKept) prepared_.clear();
  return *prepared_.emplace(statement, std::make_unique<FirebirdStatement>(Writing(), statement))
              .first->second;
}

void FirebirdLink::Execute(const std::string& sql, std::int64_t& rowsAffected, int /*options*/) {
  Send(sql, Aim::kStore, [&] {
    const std::optional<std::int64_t> rows = ExecuteLifted(sql);
    rowsAffected = rows ? *rows : ExecutePlain(sql);
  });
  Tell(sql, rowsAffected, {});
}

/// A statement in a loop costs its parse: those that differ only in their values are prepared once.
std::optional<std::int64_t> FirebirdLink::ExecuteLifted(const std::string& sql) {
  const std::optional<LiftedSql> lifted = LiftedSql::Of(sql);
  if (!lifted) return {};
  FirebirdStatement* statement = nullptr;
  try {
    statement = &Prepared(lifted->Shape);
  } catch (const DbError& error) {
    // The text itself tells what is wrong with it.
    if (error.Why() == DbError::Reason::kLost) throw;
    return {};
  }
  const std::optional<std::vector<Variant>> values = lifted->ValuesFor(*statement);
  if (!values) return {};
  return statement->Execute(Writing(), *values);
}

std::int64_t FirebirdLink::ExecutePlain(const std::string& sql) {
  FirebirdStatement statement(Writing(), sql);
  if (!statement.ChangesRows()) {
    // Prepared statements would hold on to tables that this one alters.
    prepared_.clear();
    keys_.clear();
  }
  if (!statement.GivesRows()) return statement.Execute(Writing());
  statement.Open(Reading());
  return 0;
}

std::int64_t FirebirdLink::ExecuteWith(const std::string& statement, std::span<const Variant> values) {
  const std::string shown = observer_ ? WithLiterals(statement, values) : statement;
  std::int64_t rows = 0;
  Send(shown, Aim::kStore, [&] { rows = Prepared(statement).Execute(Writing(), values); });
  Tell(shown, rows, {});
  return rows;
}

std::vector<Variant> FirebirdLink::InsertWith(const std::string& statement, std::span<const Variant> values) {
  const std::string shown = observer_ ? WithLiterals(statement, values) : statement;
  std::vector<Variant> returned;
  Send(shown, Aim::kStore, [&] {
    FirebirdStatement& prepared = Prepared(statement);
    prepared.Execute(Writing(), values);
    for (std::size_t i = 0; i < prepared.Outputs().size(); ++i) returned.push_back(prepared.Value(i));
  });
  Tell(shown, 1, {});
  return returned;
}

Variant FirebirdLink::FirstValue(const std::string& sql) {
  Variant value;
  Send(sql, Aim::kRead, [&] {
    FirebirdStatement statement(*Reading(), sql);
    statement.Open(Reading());
    value = statement.Fetch() ? statement.Value(0) : Variant();
    // What LIST makes lives as long as its transaction.
    if (statement.Outputs()[0].Holds == FirebirdField::Kind::kBlob) read_.reset();
  });
  Tell(sql, 0, {});
  return value;
}

Variant FirebirdLink::Lookup(const std::string& table, const std::string& expression,
                             const std::string& where) {
  const Variant value = FirstValue("select first 1 " + expression + " from " + table +
                                   (where.empty() ? "" : " where " + where));
  return value.IsNull() ? Variant() : value;
}

bool FirebirdLink::TableExists(const std::string& name) {
  return !FirstValue(WithLiterals("select 1 from rdb$relations where rdb$relation_name=?", {{Variant(name)}}))
              .IsEmpty();
}

bool FirebirdLink::RowExists(const std::string& sql) { return !FirstValue(sql).IsEmpty(); }

std::vector<Variant> FirebirdLink::FirstRowWith(const std::string& query, std::span<const Variant> values) {
  const std::string shown = observer_ ? WithLiterals(query, values) : query;
  std::vector<Variant> row;
  Send(shown, Aim::kRead, [&] {
    FirebirdStatement& statement = Prepared(query);
    statement.Open(Reading(), values);
    if (statement.Fetch()) {
      for (std::size_t i = 0; i < statement.Outputs().size(); ++i) row.push_back(statement.Value(i));
    }
    statement.Close();
  });
  Tell(shown, 0, {});
  return row;
}

void FirebirdLink::BeginTrans() {
  if (inTransaction_) throw HostError("A transaction is open already");
  Send("", Aim::kStore,
       [&] { work_ = std::make_shared<FirebirdTransaction>(attachment_, FirebirdTransaction::Kind::kWork); });
  inTransaction_ = true;
}

void FirebirdLink::CommitTrans() {
  if (!inTransaction_) throw HostError("There is no transaction to store");
  const std::shared_ptr<FirebirdTransaction> ended = std::move(work_);
  try {
    Send("", Aim::kStore, [&] {
      if (ended) ended->Commit();
    });
  } catch (const DbError&) {
    inTransaction_ = false;
    throw;
  }
  inTransaction_ = false;
}

void FirebirdLink::RollbackTrans() {
  if (!inTransaction_) throw HostError("There is no transaction to take back");
  inTransaction_ = false;
  work_.reset();
}

std::unique_ptr<RowSet> FirebirdLink::OpenRows(const std::string& sql, const RowSet::Wish& wish) {
  std::unique_ptr<FirebirdRows> rows;
  Send(sql, Aim::kRead, [&] {
    RowSet::Wish wanted = wish;
    wanted.Keep = wish.Keep || inTransaction_;
    rows = std::make_unique<FirebirdRows>(*this, Reading(), sql, wanted);
    if (rows->HasBlobs()) read_.reset();
  });
  Tell(sql, 0, {});
  return rows;
}

/// Engines from 4 on leave wide columns out of a sort by themselves.
bool FirebirdLink::SortsWholeRows() {
  if (!sortsWholeRows_) {
    FirebirdStatement asked(*Reading(),
                            "select rdb$get_context('SYSTEM','ENGINE_VERSION') from rdb$database");
    asked.Open(Reading());
    sortsWholeRows_ = asked.Fetch() && asked.Value(0).ToText().starts_with("3.");
  }
  return *sortsWholeRows_;
}

std::optional<std::string> FirebirdLink::Leaner(const std::string& query,
                                                const std::vector<std::string>& reads) {
  std::optional<std::string> leaner =
      SortedBeforeJoin(query, reads, [this](const std::string& table) { return KeyOf(table); });
  return leaner && SortsWholeRows() ? leaner : std::nullopt;
}

const std::vector<std::string>& FirebirdLink::KeyOf(const std::string& table) {
  const auto known = keys_.find(table);
  if (known != keys_.end()) return known->second;
  FirebirdStatement statement(*Reading(), kKeyQuery + table + "' order by s.rdb$field_position");
  statement.Open(Reading());
  std::vector<std::string> columns;
  while (statement.Fetch()) columns.push_back(statement.Value(0).ToText());
  return keys_.emplace(table, std::move(columns)).first->second;
}

}  // namespace quillon
