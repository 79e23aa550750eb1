#include "desk/firebird/LiftedSql.h"

#include <algorithm>
#include <charconv>
#include <ibase.h>

#include "desk/firebird/FirebirdStatement.h"
#include "desk/firebird/SqlReader.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

/// Follows the places of a statement in which a literal may be lifted: after an equals sign that compares or
/// sets a column, and in a list of VALUES.
class Places {
 public:
  /// Whether a literal may be lifted here; the statement is read token by token.
  bool MayLift(const SqlReader& reader) {
    const bool here = afterEquals_ || (inValues_ && (afterOpen_ || afterComma_));
    const bool isEquals = reader.IsSign('=') && afterWord_;
    afterOpen_ = reader.IsSign('(');
    afterComma_ = reader.IsSign(',');
    inValues_ = inValues_ ? !reader.IsSign(')') : (afterOpen_ && afterValues_);
    afterValues_ = reader.Is("values");
    afterEquals_ = isEquals;
    afterWord_ = reader.Kind() == SqlReader::Token::kWord;
    return here;
  }

  static bool MayEnd(const SqlReader& next) {
    return next.Kind() == SqlReader::Token::kEnd || next.IsSign(',') || next.IsSign(')') || next.Is("and") ||
           next.Is("or") || next.Is("where");
  }

 private:
  bool afterWord_ = false;
  bool afterEquals_ = false;
  bool afterValues_ = false;
  bool afterOpen_ = false;
  bool afterComma_ = false;
  bool inValues_ = false;
};

bool Starts(const SqlReader& reader) {
  return reader.Is("update") || reader.Is("insert") || reader.Is("delete");
}

std::optional<Variant> NumberFor(const FirebirdField& field, const std::string& text) {
  std::int64_t number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  if (result.ec != std::errc()) return {};
  if (field.Holds == FirebirdField::Kind::kAmount) {
    constexpr std::int64_t kLargest = 100'000'000'000;
    return number <= kLargest && field.Type == SQL_INT64 ? std::optional<Variant>(number) : std::nullopt;
  }
  if (field.Holds != FirebirdField::Kind::kInteger) return {};
  const std::int64_t limit = field.Type == SQL_SHORT  ? INT16_MAX
                             : field.Type == SQL_LONG ? INT32_MAX
                                                      : INT64_MAX;
  return number <= limit ? std::optional<Variant>(number) : std::nullopt;
}

std::optional<Variant> TextFor(const FirebirdField& field, const std::string& value) {
  if (field.Holds == FirebirdField::Kind::kDate && field.Type == SQL_TYPE_DATE) {
    const Date date = value.size() == 10 && value[4] == '-' ? Date::Parse(value) : Date();
    return date.IsEmpty() ? std::nullopt : std::optional<Variant>(date);
  }
  // The engine takes no literal beyond 16,383 characters, but a blob of any length.
  if (field.Holds == FirebirdField::Kind::kBlob) return value;
  if (field.Holds != FirebirdField::Kind::kText || field.Type != SQL_VARYING) return {};
  return value.size() <= field.Length / 4 ? std::optional<Variant>(value) : std::nullopt;
}

}  // namespace

/// A literal that stays in its place would make each text a shape of its own, so a statement is lifted whole
/// or not.
std::optional<LiftedSql> LiftedSql::Of(const std::string& sql) {
  SqlReader reader(sql);
  if (!Starts(reader)) return {};
  LiftedSql lifted;
  Places places;
  std::size_t copied = 0;
  while (reader.Kind() != SqlReader::Token::kEnd) {
    if (reader.Kind() == SqlReader::Token::kStrange || reader.Is("select") || reader.Is("returning"))
      return {};
    const bool mayLift = places.MayLift(reader);
    const SqlReader::Token kind = reader.Kind();
    const std::size_t start = reader.Start();
    const std::size_t end = reader.End();
    reader.Next();
    if (kind != SqlReader::Token::kNumber && kind != SqlReader::Token::kText) continue;
    if (!mayLift || !Places::MayEnd(reader)) return {};
    lifted.Shape.append(sql, copied, start - copied) += '?';
    copied = end;
    if (kind == SqlReader::Token::kNumber) {
      lifted.Literals.push_back({sql.substr(start, end - start), true});
    } else {
      lifted.Literals.push_back({text::ReplaceAll(sql.substr(start + 1, end - start - 2), "''", "'"), false});
    }
  }
  if (lifted.Literals.empty()) return {};
  lifted.Shape.append(sql, copied);
  return lifted;
}

std::optional<std::vector<Variant>> LiftedSql::ValuesFor(FirebirdStatement& statement) const {
  const std::vector<FirebirdField>& fields = statement.Inputs();
  if (fields.size() != Literals.size()) return {};
  std::vector<Variant> values;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const Literal& literal = Literals[i];
    std::optional<Variant> value =
        literal.IsNumber ? NumberFor(fields[i], literal.Text) : TextFor(fields[i], literal.Text);
    if (!value) return {};
    values.push_back(std::move(*value));
  }
  return values;
}

}  // namespace quillon
