#include "desk/firebird/LiftedSql.h"

#include <algorithm>
#include <charconv>
#include <ibase.h>
#include <string_view>

#include "desk/firebird/FirebirdStatement.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

enum class Token { kEnd, kWord, kNumber, kText, kSign, kStrange };

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsWord(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || IsDigit(c) || c == '_' || c == '$' || c == '.';
}

char Small(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// Cuts a statement into words, whole numbers, quoted texts and signs.
class Reader {
 public:
  explicit Reader(std::string_view sql) : sql_(sql) { Next(); }

  Token Kind() const { return kind_; }
  std::string_view Text() const { return sql_.substr(start_, at_ - start_); }
  std::size_t Start() const { return start_; }
  std::size_t End() const { return at_; }
  bool IsSign(char c) const { return kind_ == Token::kSign && sql_[start_] == c; }

  /// `word` in small letters.
  bool Is(std::string_view word) const {
    const std::string_view text = Text();
    return kind_ == Token::kWord && text.size() == word.size() &&
           std::equal(text.begin(), text.end(), word.begin(), [](char a, char b) { return Small(a) == b; });
  }

  void Next() {
    while (at_ < sql_.size() &&
           (sql_[at_] == ' ' || sql_[at_] == '\n' || sql_[at_] == '\r' || sql_[at_] == '\t')) {
      ++at_;
    }
    start_ = at_;
    kind_ = at_ == sql_.size() ? Token::kEnd : Read(sql_[at_]);
  }

 private:
  Token Read(char c) {
    if (c == '\'') return ReadText();
    if (IsWord(c)) {
      while (at_ < sql_.size() && IsWord(sql_[at_])) ++at_;
      const std::string_view word = Text();
      if (std::all_of(word.begin(), word.end(), IsDigit)) return Token::kNumber;
      // 1.5, 1e3 and x'00' are left alone.
      const bool isPrefix = at_ < sql_.size() && sql_[at_] == '\'';
      return IsDigit(c) || c == '.' || isPrefix ? Token::kStrange : Token::kWord;
    }
    ++at_;
    return std::string_view("=,()<>+*/|-").find(c) != std::string_view::npos ? Token::kSign : Token::kStrange;
  }

  Token ReadText() {
    for (++at_; at_ < sql_.size(); ++at_) {
      if (sql_[at_] != '\'') continue;
      ++at_;
      if (at_ == sql_.size() || sql_[at_] != '\'') return Token::kText;
    }
    return Token::kStrange;
  }

  std::string_view sql_;
  std::size_t start_ = 0;
  std::size_t at_ = 0;
  Token kind_ = Token::kEnd;
};

/// Follows the places of a statement in which a literal may be lifted: after an equals sign that compares or
/// sets a column, and in a list of VALUES.
class Places {
 public:
  /// Whether a literal may be lifted here; the statement is read token by token.
  bool MayLift(const Reader& reader) {
    const bool here = afterEquals_ || (inValues_ && (afterOpen_ || afterComma_));
    const bool isEquals = reader.IsSign('=') && afterWord_;
    afterOpen_ = reader.IsSign('(');
    afterComma_ = reader.IsSign(',');
    inValues_ = inValues_ ? !reader.IsSign(')') : (afterOpen_ && afterValues_);
    afterValues_ = reader.Is("values");
    afterEquals_ = isEquals;
    afterWord_ = reader.Kind() == Token::kWord;
    return here;
  }

  static bool MayEnd(const Reader& next) {
    return next.Kind() == Token::kEnd || next.IsSign(',') || next.IsSign(')') || next.Is("and") ||
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

bool Starts(const Reader& reader) {
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
  Reader reader(sql);
  if (!Starts(reader)) return {};
  LiftedSql lifted;
  Places places;
  std::size_t copied = 0;
  while (reader.Kind() != Token::kEnd) {
    if (reader.Kind() == Token::kStrange || reader.Is("select") || reader.Is("returning")) return {};
    const bool mayLift = places.MayLift(reader);
    const Token kind = reader.Kind();
    const std::size_t start = reader.Start();
    const std::size_t end = reader.End();
    reader.Next();
    if (kind != Token::kNumber && kind != Token::kText) continue;
    if (!mayLift || !Places::MayEnd(reader)) return {};
    lifted.Shape.append(sql, copied, start - copied) += '?';
    copied = end;
    if (kind == Token::kNumber) {
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
