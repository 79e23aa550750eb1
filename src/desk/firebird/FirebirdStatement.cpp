#include "desk/firebird/FirebirdStatement.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "desk/firebird/FirebirdStatus.h"
#include "host/values/Errors.h"

namespace quillon {

namespace {

constexpr unsigned kBlobPiece = 32000;

std::string RelationAlias(const unsigned char*& at, const unsigned char* end) {
  const auto length = static_cast<unsigned>(at[0]) | static_cast<unsigned>(at[1]) << 8U;
  at += 2;
  const auto size = std::min<std::size_t>(length, static_cast<std::size_t>(end - at));
  std::string text(reinterpret_cast<const char*>(at), size);
  at += size;
  return text;
}

}  // namespace

FirebirdStatement::FirebirdStatement(FirebirdTransaction& transaction, std::string sql)
    : attachment_(transaction.Attachment()), sql_(std::move(sql)) {
  FirebirdStatus status(sql_);
  constexpr unsigned kWanted = Firebird::IStatement::PREPARE_PREFETCH_METADATA;
  statement_ = (*attachment_)
                   ->prepare(&status, transaction.Handle(), static_cast<unsigned>(sql_.size()), sql_.data(),
                             SQL_DIALECT_V6, kWanted);
  const unsigned type = statement_->getType(&status);
  if (type != isc_info_sql_stmt_start_trans && type != isc_info_sql_stmt_commit &&
      type != isc_info_sql_stmt_rollback) {
    return;
  }
  // The engine would end the transaction under the link that keeps it.
  Firebird::CheckStatusWrapper silent = SilentStatus();
  statement_->free(&silent);
  throw HostError("A transaction is begun and ended by the link, not by a statement: " + sql_);
}

FirebirdStatement::~FirebirdStatement() {
  Firebird::CheckStatusWrapper status = SilentStatus();
  if (cursor_) {
    cursor_->close(&status);
    if (status.hasData()) cursor_->release();
  }
  if (inMetadata_) inMetadata_->release();
  if (outMetadata_) outMetadata_->release();
  statement_->free(&status);
  if (status.hasData()) statement_->release();
}

bool FirebirdStatement::GivesRows() const {
  FirebirdStatus status(sql_);
  return (statement_->getFlags(&status) & Firebird::IStatement::FLAG_HAS_CURSOR) != 0;
}

bool FirebirdStatement::ChangesRows() const {
  FirebirdStatus status(sql_);
  const unsigned type = statement_->getType(&status);
  return type == isc_info_sql_stmt_insert || type == isc_info_sql_stmt_update ||
         type == isc_info_sql_stmt_delete;
}

const std::vector<FirebirdField>& FirebirdStatement::Inputs() {
  if (!inMetadata_) {
    FirebirdStatus status(sql_);
    inMetadata_ = statement_->getInputMetadata(&status);
    inputs_ = FirebirdField::Describe(*inMetadata_, sql_);
    parameters_.resize(inMetadata_->getMessageLength(&status));
  }
  return inputs_;
}

const std::vector<FirebirdField>& FirebirdStatement::Outputs() {
  if (!outMetadata_) {
    FirebirdStatus status(sql_);
    outMetadata_ = statement_->getOutputMetadata(&status);
    outputs_ = FirebirdField::Describe(*outMetadata_, sql_);
    row_.resize(outMetadata_->getMessageLength(&status));
  }
  return outputs_;
}

void FirebirdStatement::DescribeAliases() {
  const std::size_t fields = Outputs().size();
  constexpr std::array<unsigned char, 4> kAsked{isc_info_sql_select, isc_info_sql_describe_vars,
                                                isc_info_sql_relation_alias, isc_info_sql_describe_end};
  std::vector<unsigned char> answer(64 + fields * 40);
  FirebirdStatus status(sql_);
  statement_->getInfo(&status, kAsked.size(), kAsked.data(), static_cast<unsigned>(answer.size()),
                      answer.data());
  const unsigned char* at = answer.data();
  const unsigned char* end = at + answer.size();
  std::size_t field = 0;
  while (at < end && *at != isc_info_end && *at != isc_info_truncated) {
    const unsigned char item = *at++;
    if (item == isc_info_sql_relation_alias && field < fields) {
      outputs_[field].RelationAlias = RelationAlias(at, end);
    } else if (item == isc_info_sql_describe_vars) {
      RelationAlias(at, end);
    } else if (item == isc_info_sql_describe_end) {
      ++field;
    }
  }
  for (FirebirdField& described : outputs_) {
    if (described.RelationAlias.empty()) described.RelationAlias = described.Relation;
  }
}

void FirebirdStatement::PutBlob(FirebirdTransaction& transaction, const FirebirdField& field,
                                const std::string& text) {
  FirebirdStatus status(sql_);
  ISC_QUAD id{};
  Firebird::IBlob* blob = (*attachment_)->createBlob(&status, transaction.Handle(), &id, 0, nullptr);
  try {
    for (std::size_t at = 0; at < text.size(); at += kBlobPiece) {
      const auto size = static_cast<unsigned>(std::min<std::size_t>(kBlobPiece, text.size() - at));
      blob->putSegment(&status, size, text.data() + at);
    }
    blob->close(&status);
  } catch (const DbError&) {
    blob->release();
    throw;
  }
  std::memcpy(parameters_.data() + field.Offset, &id, sizeof id);
}

void FirebirdStatement::Bind(FirebirdTransaction& transaction, std::span<const Variant> values) {
  if (values.size() != Inputs().size()) {
    throw HostError("The statement needs " + std::to_string(inputs_.size()) + " values: " + sql_);
  }
  for (std::size_t i = 0; i < values.size(); ++i) {
    const FirebirdField& field = inputs_[i];
    const Variant& value = values[i];
    const bool isNull = value.IsNull() || value.IsEmpty() || (value.Is<Date>() && value.As<Date>().IsEmpty());
    field.SetNull(parameters_.data(), isNull);
    if (isNull) continue;
    if (field.Holds == FirebirdField::Kind::kBlob) {
      PutBlob(transaction, field, value.ToText());
    } else {
      field.Put(parameters_.data(), value);
    }
  }
}

std::int64_t FirebirdStatement::Execute(FirebirdTransaction& transaction, std::span<const Variant> values) {
  if (!values.empty()) Bind(transaction, values);
  const bool answers = !Outputs().empty();
  FirebirdStatus status(sql_);
  statement_->execute(&status, transaction.Handle(), inMetadata_, parameters_.data(),
                      answers ? outMetadata_ : nullptr, answers ? row_.data() : nullptr);
  return static_cast<std::int64_t>(statement_->getAffectedRecords(&status));
}

void FirebirdStatement::Open(std::shared_ptr<FirebirdTransaction> transaction,
                             std::span<const Variant> values) {
  if (!values.empty()) Bind(*transaction, values);
  Outputs();
  FirebirdStatus status(sql_);
  cursor_ = statement_->openCursor(&status, transaction->Handle(), inMetadata_, parameters_.data(),
                                   outMetadata_, 0);
  reading_ = std::move(transaction);
}

bool FirebirdStatement::Fetch() {
  FirebirdStatus status(sql_);
  return cursor_->fetchNext(&status, row_.data()) == Firebird::IStatus::RESULT_OK;
}

void FirebirdStatement::Close() {
  if (!cursor_) return;
  FirebirdStatus status(sql_);
  cursor_->close(&status);
  cursor_ = nullptr;
  reading_.reset();
}

Variant FirebirdStatement::Value(std::size_t index) {
  const FirebirdField& field = Outputs()[index];
  if (field.IsNull(Row())) return Variant::Null();
  switch (field.Holds) {
    case FirebirdField::Kind::kInteger:
      return field.Whole(Row());
    case FirebirdField::Kind::kAmount:
      return Amount::OfUnits(field.Whole(Row()));
    case FirebirdField::Kind::kDouble:
      return field.Real(Row());
    case FirebirdField::Kind::kFlag:
      return field.Whole(Row()) != 0;
    case FirebirdField::Kind::kDate:
      return Date::Of(1970, 1, 1).AddDays(field.Whole(Row()));
    case FirebirdField::Kind::kBlob:
      return BlobText(field);
    default:
      return field.Text(Row());
  }
}

std::string FirebirdStatement::BlobText(const FirebirdField& field) {
  ISC_QUAD id;
  std::memcpy(&id, Row() + field.Offset, sizeof id);
  FirebirdStatus status(sql_);
  Firebird::IBlob* blob = (*attachment_)->openBlob(&status, reading_->Handle(), &id, 0, nullptr);
  std::string text;
  try {
    std::array<char, kBlobPiece> piece;
    for (;;) {
      unsigned size = 0;
      const int result = blob->getSegment(&status, kBlobPiece, piece.data(), &size);
      if (result == Firebird::IStatus::RESULT_NO_DATA) break;
      text.append(piece.data(), size);
    }
    blob->close(&status);
  } catch (const DbError&) {
    blob->release();
    throw;
  }
  return text;
}

}  // namespace quillon
