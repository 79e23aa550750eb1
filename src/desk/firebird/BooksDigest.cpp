#include "desk/firebird/BooksDigest.h"

#include <algorithm>
#include <fstream>
#include <set>

#include "desk/firebird/EngineThread.h"
#include "desk/firebird/EngineWatch.h"
#include "desk/firebird/FirebirdStatement.h"
#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr const char* kColumns =
    "select trim(r.rdb$relation_name),trim(f.rdb$field_name),iif(s.rdb$index_name is null,0,1) "
    "from rdb$relations r join rdb$relation_fields f on f.rdb$relation_name=r.rdb$relation_name "
    "left join rdb$relation_constraints c on c.rdb$relation_name=r.rdb$relation_name and "
    "c.rdb$constraint_type='PRIMARY KEY' left join rdb$index_segments s on s.rdb$index_name=c.rdb$index_name and "
    "s.rdb$field_name=f.rdb$field_name where coalesce(r.rdb$system_flag,0)=0 and r.rdb$view_blr is null "
    "order by 1,f.rdb$field_position";

constexpr const char* kBegin = "quillon digest 1";

struct Column {
  std::string Name;
  bool IsKey;
};

using Tables = std::map<std::string, std::vector<Column>>;

class Reader {
 public:
  explicit Reader(const FirebirdAddress& database)
      : transaction_(std::make_shared<FirebirdTransaction>(FirebirdAttachment::Attach(database),
                                                           FirebirdTransaction::Kind::kSnapshot)) {}

  template <class Take>
  void Each(const std::string& sql, Take take) {
    FirebirdStatement statement(*transaction_, sql);
    statement.Open(transaction_);
    while (statement.Fetch()) take(statement);
  }

  Tables AllTables() {
    Tables tables;
    Each(kColumns, [&tables](FirebirdStatement& row) {
      tables[row.Value(0).ToText()].push_back({row.Value(1).ToText(), row.Value(2).ToInteger() != 0});
    });
    return tables;
  }

 private:
  std::shared_ptr<FirebirdTransaction> transaction_;
};

/// Fowler, Noll and Vo's, of 64 bits.
void Mix(std::uint64_t& hash, const std::string& text) {
  constexpr std::uint64_t kPrime = 1099511628211ULL;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * kPrime;
  hash = (hash ^ 0xffU) * kPrime;  // no UTF-8 has this byte
}

constexpr std::uint64_t kEmptyHash = 14695981039346656037ULL;

std::string TextOf(const Variant& value) { return value.IsNull() ? "\x01" : value.ToText(); }

std::string Quoted(const std::string& name) { return "\"" + name + "\""; }

void Put(std::ostream& out, std::uint64_t number) {
  out.write(reinterpret_cast<const char*>(&number), sizeof number);
}

void Put(std::ostream& out, const std::string& text) {
  Put(out, text.size());
  out.write(text.data(), static_cast<std::streamsize>(text.size()));
}

std::uint64_t TakeNumber(std::istream& in) {
  std::uint64_t number = 0;
  in.read(reinterpret_cast<char*>(&number), sizeof number);
  return number;
}

std::string TakeText(std::istream& in) {
  constexpr std::uint64_t kLongest = 1U << 20U;
  const std::uint64_t size = TakeNumber(in);
  if (!in || size > kLongest) {
    in.setstate(std::ios::failbit);
    return {};
  }
  std::string text(size, '\0');
  in.read(text.data(), static_cast<std::streamsize>(size));
  return text;
}

}  // namespace

BooksDigest BooksDigest::Of(const FirebirdAddress& database) {
  BooksDigest digest;
  EngineThread::Do([&] {
    const EngineWatch::Call call(database);
    Reader reader(database);
    for (const auto& table : reader.AllTables()) {
      const std::vector<Column>& columns = table.second;
      const bool hasKey =
          std::any_of(columns.begin(), columns.end(), [](const Column& c) { return c.IsKey; });
      std::vector<std::string> names;
      names.reserve(columns.size());
      for (const Column& column : columns) names.push_back(Quoted(column.Name));
      Rows& rows = digest.tables_[table.first];
      reader.Each("select " + text::Join(names, ",") + " from " + Quoted(table.first),
                  [&](FirebirdStatement& read) {
                    Row row{{}, kEmptyHash};
                    for (std::size_t i = 0; i < columns.size(); ++i) {
                      const std::string value = TextOf(read.Value(i));
                      Mix(row.Content, value);
                      if (hasKey && !columns[i].IsKey) continue;
                      row.Key += (row.Key.empty() ? "" : ",") + value;
                    }
                    rows.push_back(std::move(row));
                  });
      std::sort(rows.begin(), rows.end());
    }
  });
  return digest;
}

std::vector<RowChange> BooksDigest::ChangesTo(const BooksDigest& later) const {
  std::vector<RowChange> changes;
  std::set<std::string> names;
  for (const auto& table : tables_) names.insert(table.first);
  for (const auto& table : later.tables_) names.insert(table.first);
  static const Rows kNone;
  for (const std::string& name : names) {
    const auto before = tables_.find(name);
    const auto after = later.tables_.find(name);
    const Rows& old = before == tables_.end() ? kNone : before->second;
    const Rows& now = after == later.tables_.end() ? kNone : after->second;
    auto was = old.begin();
    auto is = now.begin();
    while (was != old.end() || is != now.end()) {
      if (is == now.end() || (was != old.end() && was->Key < is->Key)) {
        changes.push_back({name, (was++)->Key, RowChange::Kind::kGone});
      } else if (was == old.end() || is->Key < was->Key) {
        changes.push_back({name, (is++)->Key, RowChange::Kind::kAdded});
      } else {
        if (was->Content != is->Content) changes.push_back({name, is->Key, RowChange::Kind::kChanged});
        ++was;
        ++is;
      }
    }
  }
  return changes;
}

void BooksDigest::Write(const std::filesystem::path& file) const {
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  Put(out, std::string(kBegin));
  Put(out, tables_.size());
  for (const auto& table : tables_) {
    Put(out, table.first);
    Put(out, table.second.size());
    for (const Row& row : table.second) {
      Put(out, row.Key);
      Put(out, row.Content);
    }
  }
  if (!out.flush()) throw HostError("The file " + file.string() + " cannot be written");
}

BooksDigest BooksDigest::Read(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  BooksDigest digest;
  const bool isDigest = in && TakeText(in) == kBegin;
  for (std::uint64_t tables = isDigest ? TakeNumber(in) : 0; in && tables > 0; --tables) {
    Rows& rows = digest.tables_[TakeText(in)];
    for (std::uint64_t left = TakeNumber(in); in && left > 0; --left) {
      std::string key = TakeText(in);
      rows.push_back({std::move(key), TakeNumber(in)});
    }
  }
  if (!isDigest || !in) throw HostError("The file " + file.string() + " is missing or damaged");
  return digest;
}

}  // namespace quillon
