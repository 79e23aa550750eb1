#include "desk/firebird/FirebirdRows.h"

#include <algorithm>

#include "desk/firebird/EngineThread.h"
#include "desk/firebird/EngineWatch.h"
#include "desk/firebird/FirebirdLink.h"
#include "desk/firebird/QueryText.h"
#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr std::int64_t kReadAhead = 256;
constexpr const char* kRowKey = "RDB$DB_KEY";

}  // namespace

FirebirdRows::FirebirdRows(FirebirdLink& link, const std::shared_ptr<FirebirdTransaction>& transaction,
                           const std::string& sql, const Wish& wish)
    : link_(link.weak_from_this()),
      sql_(sql),
      statement_(wish.Changeable ? std::make_unique<FirebirdStatement>(*transaction, sql)
                                 : Lean(link, *transaction, sql, wish.Reads)),
      changeable_(wish.Changeable) {
  for (const FirebirdField& field : statement_->Outputs()) names_.push_back(field.Name);
  if (changeable_) PrepareForChange(link, *transaction);
  fields_ = statement_->Outputs();
  std::vector<FirebirdField::Kind> kinds;
  for (const FirebirdField& field : fields_) {
    kinds.push_back(field.Holds);
    hasBlobs_ = hasBlobs_ || field.Holds == FirebirdField::Kind::kBlob;
  }
  store_.emplace(std::move(kinds));
  statement_->Open(transaction);
  if (wish.Keep || changeable_) Fetch(INT64_MAX);
}

std::unique_ptr<FirebirdStatement> FirebirdRows::Lean(FirebirdLink& link, FirebirdTransaction& transaction,
                                                      const std::string& sql,
                                                      const std::vector<std::string>& reads) {
  if (const std::optional<std::string> leaner = link.Leaner(sql, reads)) {
    try {
      return std::make_unique<FirebirdStatement>(transaction, *leaner);
    } catch (const DbError& error) {
      // The text itself tells what is wrong with it.
      if (error.Why() == DbError::Reason::kLost) throw;
    }
  }
  return std::make_unique<FirebirdStatement>(transaction, sql);
}

/// Notes the tables of the output and answers the key columns, with their aliases, that the query leaves out.
std::vector<std::string> FirebirdRows::FindTables(FirebirdLink& link) {
  statement_->DescribeAliases();
  const std::vector<FirebirdField>& fields = statement_->Outputs();
  std::vector<std::string> missing;
  tables_.clear();
  for (const FirebirdField& first : fields) {
    const auto isSame = [&](const Table& table) { return table.Alias == first.RelationAlias; };
    if (first.Relation.empty() || std::any_of(tables_.begin(), tables_.end(), isSame)) continue;
    Table table{first.Relation, first.RelationAlias, {}};
    std::vector<std::string> key = link.KeyOf(table.Name);
    if (key.empty()) key.emplace_back(kRowKey);
    for (const std::string& column : key) {
      // The engine describes the row key as DB_KEY, of the table but without a column's name of its own.
      const std::string described = column == kRowKey ? "DB_KEY" : column;
      const auto field = std::find_if(fields.begin(), fields.end(), [&](const FirebirdField& f) {
        return f.RelationAlias == table.Alias && (f.Column == column || f.Column == described);
      });
      if (field == fields.end()) {
        missing.push_back(table.Alias + "." + column);
      } else {
        table.Key.emplace_back(column, static_cast<std::size_t>(field - fields.begin()));
      }
    }
    tables_.push_back(std::move(table));
  }
  return missing;
}

void FirebirdRows::PrepareForChange(FirebirdLink& link, FirebirdTransaction& transaction) {
  const std::vector<std::string> missing = FindTables(link);
  if (missing.empty()) return;
  std::vector<std::string> aliases;
  for (const Table& table : tables_) aliases.push_back(table.Alias);
  try {
    auto wider = std::make_unique<FirebirdStatement>(transaction, WithColumns(sql_, aliases, missing));
    std::swap(statement_, wider);
  } catch (const DbError&) {
    // The rows of a grouped or united query have no key to add: they can be read, and a change is refused.
    tables_.clear();
    return;
  }
  FindTables(link);
}

bool FirebirdRows::FetchTo(std::int64_t row) {
  if (!statement_) return row < store_->Count();
  const auto owner = link_.lock();
  const FirebirdAddress address = owner ? owner->Address() : FirebirdAddress();
  Firebird::IAttachment* const handle = owner ? owner->Handle() : nullptr;
  try {
    EngineThread::Do(
        [&] {
          const EngineWatch::Call call(address, handle);
          Fetch(row);
        },
        handle);
  } catch (const DbError& error) {
    if (owner) owner->NoteFailure(sql_, error);
    throw DbError(error.what(), error.SqlState(), sql_, error.EngineText(), error.Why());
  }
  return row < store_->Count();
}

void FirebirdRows::Fetch(std::int64_t row) {
  while (store_->Count() <= row) {
    if (!statement_->Fetch()) {
      statement_->Close();
      statement_.reset();
      return;
    }
    store_->Add(*statement_);
  }
}

bool FirebirdRows::Seek(std::int64_t row) {
  if (row < store_->Count()) return true;
  FetchTo(row + kReadAhead);
  return row < store_->Count();
}

std::int64_t FirebirdRows::Count() {
  FetchTo(INT64_MAX);
  return store_->Count();
}

void FirebirdRows::Detach() {
  FetchTo(INT64_MAX);
  link_.reset();
}

FirebirdLink& FirebirdRows::Link() const {
  if (!changeable_) throw HostError("This data set was not opened for changes");
  const auto link = link_.lock();
  if (!link) throw HostError("The data set has no connection any more");
  return *link;
}

const FirebirdRows::Table& FirebirdRows::TableOf(std::size_t field) const {
  for (const Table& table : tables_) {
    if (!fields_[field].Relation.empty() && table.Alias == fields_[field].RelationAlias) return table;
  }
  throw HostError("The field " + fields_[field].Name +
                  " cannot be changed: its table has no key in this query");
}

std::vector<Variant> FirebirdRows::Values(std::int64_t row) const {
  std::vector<Variant> values;
  for (std::size_t i = 0; i < fields_.size(); ++i) values.push_back(store_->Value(row, i));
  return values;
}

void FirebirdRows::UpdateTable(FirebirdLink& link, const Table& table, std::int64_t row,
                               const Changes& fields) {
  std::vector<std::string> sets;
  std::vector<Variant> values;
  for (const auto& [field, value] : fields) {
    if (&TableOf(field) != &table) continue;
    sets.push_back(fields_[field].Column + "=?");
    values.push_back(value);
  }
  if (sets.empty()) return;
  std::vector<std::string> conditions;
  for (const auto& [column, field] : table.Key) {
    conditions.push_back(column + "=?");
    values.push_back(store_->Value(row, field));
  }
  const std::string sql =
      "update " + table.Name + " set " + text::Join(sets, ",") + " where " + text::Join(conditions, " and ");
  if (link.ExecuteWith(sql, values) == 0) {
    throw DbError("The record is gone: another user has deleted it or changed its key", "02000", sql);
  }
}

void FirebirdRows::Write(std::int64_t row, const Changes& fields) {
  FirebirdLink& link = Link();
  for (const auto& [field, value] : fields) TableOf(field);
  for (const Table& table : tables_) UpdateTable(link, table, row, fields);
  std::vector<Variant> values = Values(row);
  for (const auto& [field, value] : fields) values[field] = value;
  store_->Replace(row, values);
}

void FirebirdRows::Append(const Changes& fields) {
  FirebirdLink& link = Link();
  if (fields.empty()) throw HostError("A new record has no values");
  const Table& table = TableOf(fields.front().first);
  std::vector<std::string> columns;
  std::vector<std::string> marks;
  std::vector<Variant> inserted;
  std::vector<Variant> values(fields_.size(), Variant::Null());
  for (const auto& [field, value] : fields) {
    if (&TableOf(field) != &table) throw HostError("A new record belongs to one table only");
    columns.push_back(fields_[field].Column);
    marks.emplace_back("?");
    inserted.push_back(value);
    values[field] = value;
  }
  // The database may give the key itself; the row is known by it from now on.
  std::vector<std::string> keys;
  for (const auto& [column, field] : table.Key) keys.push_back(column);
  const std::vector<Variant> key =
      link.InsertWith("insert into " + table.Name + " (" + text::Join(columns, ",") + ") values (" +
                          text::Join(marks, ",") + ") returning " + text::Join(keys, ","),
                      inserted);
  for (std::size_t i = 0; i < key.size(); ++i) values[table.Key[i].second] = key[i];
  store_->Add(values);
}

}  // namespace quillon
