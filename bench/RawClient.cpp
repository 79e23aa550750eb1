#include "bench/RawClient.h"

#include <benchmark/benchmark.h>
#include <cctype>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <stdexcept>

namespace quillon::bench {

namespace {

using Firebird::IAttachment;
using Firebird::IMaster;
using Firebird::IMessageMetadata;
using Firebird::IStatement;
using Firebird::ITransaction;

IMaster& Master() {
  static IMaster* const master = Firebird::fb_get_master_interface();
  return *master;
}

std::int64_t prepares = 0;
decltype(IAttachment::VTable::prepare) prepareItself = nullptr;

IStatement* CountedPrepare(IAttachment* self, Firebird::IStatus* status, ITransaction* transaction,
                           unsigned length, const char* sql, unsigned dialect, unsigned flags) throw() {
  ++prepares;
  return prepareItself(self, status, transaction, length, sql, dialect, flags);
}

/// Every attachment of the process shares the client's table of calls: the desk's are counted by it too.
void CountPrepares(IAttachment* attachment) {
  if (prepareItself != nullptr) return;
  auto* const calls = static_cast<IAttachment::VTable*>(attachment->cloopVTable);
  prepareItself = calls->prepare;
  calls->prepare = CountedPrepare;
}

struct Shape {
  std::string Text;
  std::vector<std::string> Values;
};

/// Takes whole numbers and dates after equals signs out of a statement.
Shape ShapeOf(const std::string& sql) {
  Shape shape;
  for (std::size_t at = 0; at < sql.size();) {
    shape.Text += sql[at];
    if (sql[at++] != '=' || at >= sql.size()) continue;
    std::size_t end = at;
    while (end < sql.size() && std::isdigit(static_cast<unsigned char>(sql[end])) != 0) ++end;
    const bool isDate = sql[at] == '\'' && sql.size() > at + 11 && sql[at + 5] == '-' && sql[at + 11] == '\'';
    if (isDate) end = at + 12;
    if (end == at) continue;
    shape.Values.push_back(isDate ? sql.substr(at + 1, 10) : sql.substr(at, end - at));
    shape.Text += '?';
    at = end;
  }
  return shape;
}

template <class T>
T Load(const unsigned char* at) {
  T value;
  std::memcpy(&value, at, sizeof value);
  return value;
}

}  // namespace

struct RawClient::Field {
  unsigned Type;
  unsigned Length;
  unsigned Offset;
  unsigned NullOffset;
};

struct RawClient::Statement {
  IStatement* Handle = nullptr;
  IMessageMetadata* In = nullptr;
  IMessageMetadata* Out = nullptr;
  std::vector<Field> Inputs;
  std::vector<Field> Outputs;
  std::vector<unsigned char> Parameters;
  std::vector<unsigned char> Row;

  Statement() = default;
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;
  ~Statement() {
    Firebird::CheckStatusWrapper status(Master().getStatus());
    In->release();
    Out->release();
    Handle->free(&status);
    status.dispose();
  }

  static std::vector<Field> Fields(Firebird::ThrowStatusWrapper& status, IMessageMetadata& data) {
    std::vector<Field> fields;
    for (unsigned i = 0; i < data.getCount(&status); ++i) {
      fields.push_back({data.getType(&status, i) & ~1U, data.getLength(&status, i),
                        data.getOffset(&status, i), data.getNullOffset(&status, i)});
    }
    return fields;
  }

  void Bind(const std::vector<std::string>& values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      const Field& field = Inputs[i];
      std::int32_t value = 0;
      if (field.Type == SQL_TYPE_DATE) {
        unsigned year = 0;
        unsigned month = 0;
        unsigned day = 0;
        if (std::sscanf(values[i].c_str(), "%u-%u-%u", &year, &month, &day) != 3)
          throw std::logic_error(values[i]);
        value = Master().getUtilInterface()->encodeDate(year, month, day);
      } else if (field.Type == SQL_LONG) {
        std::from_chars(values[i].data(), values[i].data() + values[i].size(), value);
      } else {
        throw std::logic_error("The floor binds whole numbers and dates only");
      }
      std::memcpy(Parameters.data() + field.Offset, &value, sizeof value);
      std::memset(Parameters.data() + field.NullOffset, 0, sizeof(short));
    }
  }
};

RawClient::RawClient(const std::string& database) : status_(Master().getStatus()) {
  Firebird::IXpbBuilder* const dpb =
      Master().getUtilInterface()->getXpbBuilder(&status_, Firebird::IXpbBuilder::DPB, nullptr, 0);
  dpb->insertString(&status_, isc_dpb_lc_ctype, "UTF8");
  dpb->insertString(&status_, isc_dpb_user_name, "SYSDBA");
  Firebird::IProvider* const provider = Master().getDispatcher();
  attachment_ = provider->attachDatabase(&status_, database.c_str(), dpb->getBufferLength(&status_),
                                         dpb->getBuffer(&status_));
  provider->release();
  dpb->dispose();
  CountPrepares(attachment_);
  read_ = Start(false);
  write_ = Start(true);
}

RawClient::~RawClient() {
  prepared_.clear();
  read_->rollback(&status_);
  write_->rollback(&status_);
  attachment_->detach(&status_);
  status_.dispose();
}

ITransaction* RawClient::Start(bool write) {
  std::vector<unsigned char> tpb{isc_tpb_version3, isc_tpb_read_committed, isc_tpb_rec_version};
  if (write) {
    tpb.insert(tpb.end(), {isc_tpb_write, isc_tpb_wait, isc_tpb_autocommit});
  } else {
    tpb.insert(tpb.end(), {isc_tpb_read, isc_tpb_nowait});
  }
  return attachment_->startTransaction(&status_, static_cast<unsigned>(tpb.size()), tpb.data());
}

std::unique_ptr<RawClient::Statement> RawClient::Prepare(ITransaction* transaction, const std::string& sql) {
  auto statement = std::make_unique<Statement>();
  statement->Handle = attachment_->prepare(&status_, transaction, static_cast<unsigned>(sql.size()),
                                           sql.data(), SQL_DIALECT_V6, IStatement::PREPARE_PREFETCH_METADATA);
  statement->In = statement->Handle->getInputMetadata(&status_);
  statement->Out = statement->Handle->getOutputMetadata(&status_);
  statement->Inputs = Statement::Fields(status_, *statement->In);
  statement->Outputs = Statement::Fields(status_, *statement->Out);
  statement->Parameters.resize(statement->In->getMessageLength(&status_));
  statement->Row.resize(statement->Out->getMessageLength(&status_));
  return statement;
}

void RawClient::Read(const Statement& statement, const unsigned char* row) {
  for (const Field& field : statement.Outputs) {
    if (Load<short>(row + field.NullOffset) != 0) continue;
    const unsigned char* const at = row + field.Offset;
    switch (field.Type) {
      case SQL_VARYING:
        text_.assign(reinterpret_cast<const char*>(at) + 2, Load<unsigned short>(at));
        sum_ += text_.size();
        break;
      case SQL_TEXT:
        text_.assign(reinterpret_cast<const char*>(at), field.Length);
        sum_ += text_.size();
        break;
      case SQL_SHORT:
        sum_ += static_cast<std::uint64_t>(Load<std::int16_t>(at));
        break;
      case SQL_INT64:
        sum_ += static_cast<std::uint64_t>(Load<std::int64_t>(at));
        break;
      default:
        sum_ += static_cast<std::uint64_t>(Load<std::int32_t>(at));
    }
  }
}

void RawClient::CarryOut(Statement& statement) {
  if (statement.Outputs.empty()) {
    statement.Handle->execute(&status_, whole_ != nullptr ? whole_ : write_, statement.In,
                              statement.Parameters.data(), nullptr, nullptr);
    return;
  }
  Firebird::IResultSet* const rows =
      statement.Handle->openCursor(&status_, whole_ != nullptr ? whole_ : read_, statement.In,
                                   statement.Parameters.data(), statement.Out, 0);
  while (rows->fetchNext(&status_, statement.Row.data()) == Firebird::IStatus::RESULT_OK) {
    Read(statement, statement.Row.data());
  }
  rows->close(&status_);
  benchmark::DoNotOptimize(sum_);
}

void RawClient::Run(const std::string& sql) { CarryOut(*Prepare(write_, sql)); }

void RawClient::Begin() {
  const std::vector<unsigned char> tpb{isc_tpb_version3, isc_tpb_read_committed, isc_tpb_rec_version,
                                       isc_tpb_write, isc_tpb_wait};
  whole_ = attachment_->startTransaction(&status_, static_cast<unsigned>(tpb.size()), tpb.data());
}

void RawClient::Commit() {
  whole_->commit(&status_);
  whole_ = nullptr;
}

void RawClient::RunPrepared(const std::string& sql) {
  const Shape shape = ShapeOf(sql);
  std::unique_ptr<Statement>& statement = prepared_[shape.Text];
  if (!statement) statement = Prepare(write_, shape.Text);
  statement->Bind(shape.Values);
  CarryOut(*statement);
}

std::vector<std::int64_t> RawClient::Numbers(const std::string& sql) {
  ITransaction* const transaction = Start(false);
  const std::unique_ptr<Statement> statement = Prepare(transaction, sql);
  Firebird::IResultSet* const rows =
      statement->Handle->openCursor(&status_, transaction, statement->In, nullptr, statement->Out, 0);
  std::vector<std::int64_t> numbers;
  if (rows->fetchNext(&status_, statement->Row.data()) == Firebird::IStatus::RESULT_OK) {
    for (const Field& field : statement->Outputs) {
      const unsigned char* const at = statement->Row.data() + field.Offset;
      numbers.push_back(field.Type == SQL_INT64 ? Load<std::int64_t>(at) : Load<std::int32_t>(at));
    }
  }
  rows->close(&status_);
  transaction->commit(&status_);
  return numbers;
}

std::int64_t RawClient::StatementsPrepared() { return prepares; }

}  // namespace quillon::bench
