#include "desk/firebird/SqlReader.h"

#include <algorithm>

namespace quillon {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsWord(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || IsDigit(c) || c == '_' || c == '$' || c == '.';
}

char Small(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

bool SqlReader::Is(std::string_view word) const {
  const std::string_view text = Text();
  return kind_ == Token::kWord && text.size() == word.size() &&
         std::equal(text.begin(), text.end(), word.begin(), [](char a, char b) { return Small(a) == b; });
}

void SqlReader::Next() {
  while (at_ < sql_.size() &&
         (sql_[at_] == ' ' || sql_[at_] == '\n' || sql_[at_] == '\r' || sql_[at_] == '\t')) {
    ++at_;
  }
  start_ = at_;
  kind_ = at_ == sql_.size() ? Token::kEnd : Read(sql_[at_]);
}

SqlReader::Token SqlReader::Read(char c) {
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

SqlReader::Token SqlReader::ReadText() {
  for (++at_; at_ < sql_.size(); ++at_) {
    if (sql_[at_] != '\'') continue;
    ++at_;
    if (at_ == sql_.size() || sql_[at_] != '\'') return Token::kText;
  }
  return Token::kStrange;
}

}  // namespace quillon
