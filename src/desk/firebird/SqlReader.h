#pragma once

#include <cstddef>
#include <string_view>

namespace quillon {

/// Cuts a statement into words, whole numbers, quoted texts and signs. A word goes on over points, so that
/// "a.dcd" is one, and "a." too where a star follows.
class SqlReader {
 public:
  enum class Token { kEnd, kWord, kNumber, kText, kSign, kStrange };

  /// Stands on the first token. The statement must outlive the reader.
  explicit SqlReader(std::string_view sql) : sql_(sql) { Next(); }

  void Next();

  Token Kind() const { return kind_; }
  std::string_view Text() const { return sql_.substr(start_, at_ - start_); }
  std::size_t Start() const { return start_; }
  std::size_t End() const { return at_; }
  bool IsSign(char c) const { return kind_ == Token::kSign && sql_[start_] == c; }

  /// `word` in small letters.
  bool Is(std::string_view word) const;

 private:
  Token Read(char c);
  Token ReadText();

  std::string_view sql_;
  std::size_t start_ = 0;
  std::size_t at_ = 0;
  Token kind_ = Token::kEnd;
};

}  // namespace quillon
