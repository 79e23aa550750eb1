#include "desk/firebird/SortedJoin.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "desk/firebird/SqlReader.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr std::array kWordsOfConditions = {"and", "or",   "not",      "null", "is",        "between",
                                           "in",  "like", "starting", "with", "containing"};

/// Reads such a query from its first word to its last; any other makes it not fit.
class JoinReader {
 public:
  explicit JoinReader(const std::string& query) : query_(query), reader_(query) {}

  bool Read() {
    return ReadList() && ReadTables() && ReadUpTo("order", condition_) && Word("by") &&
           ReadUpTo("", order_) && BelongsTogether();
  }

  const std::string& Table() const { return table_; }

  std::string Sorted(const std::vector<std::string>& key, const std::vector<std::string>& reads) const {
    std::string order = order_.Text;
    for (const std::string& column : key) order += "," + alias_ + "." + column;
    std::string list = list_.Text;
    std::string carried = All();
    const std::size_t all = text::Lower(list).find(text::Lower(All()));
    if (all != std::string::npos && !reads.empty()) {
      std::string asked;
      for (const std::string& column : reads) asked += (asked.empty() ? "" : ",") + alias_ + "." + column;
      list.replace(all, All().size(), asked);
      carried = asked;
      if (!IsAmong(reads, JoinedBy())) carried += "," + alias_ + "." + JoinedBy();
    }
    return "select " + list + " from (select " + carried + " from " + table_ + " " + alias_ + " where " +
           condition_.Text + " order by " + order + ") " + alias_ + join_ + joined_ + " " + joinedAlias_ +
           " on " + left_ + "=" + right_;
  }

 private:
  /// A stretch of the query with the tables whose columns stand in it.
  struct Stretch {
    std::string Text;
    std::vector<std::string> Aliases;
    bool IsPlain =
        true;            ///< nothing in it but columns with their table, literals and the words of conditions
    bool HasOr = false;  ///< outside brackets
  };

  std::string All() const { return alias_ + ".*"; }

  /// The first table's column of the equality.
  std::string JoinedBy() const {
    const std::string& own = AliasOf(left_) == text::Lower(alias_) ? left_ : right_;
    return own.substr(own.find('.') + 1);
  }

  static bool IsAmong(const std::vector<std::string>& columns, const std::string& wanted) {
    return std::any_of(columns.begin(), columns.end(),
                       [&](const std::string& column) { return text::Lower(column) == text::Lower(wanted); });
  }

  bool Word(std::string_view word) {
    if (!reader_.Is(word)) return false;
    reader_.Next();
    return true;
  }

  bool Sign(char sign) {
    if (!reader_.IsSign(sign)) return false;
    reader_.Next();
    return true;
  }

  bool Name(std::string& name) {
    if (reader_.Kind() != SqlReader::Token::kWord) return false;
    name = reader_.Text();
    reader_.Next();
    return true;
  }

  static std::string AliasOf(const std::string& column) {
    const std::size_t point = column.find('.');
    return point == std::string::npos ? std::string() : text::Lower(column.substr(0, point));
  }

  void Note(Stretch& stretch, int depth) const {
    const SqlReader::Token kind = reader_.Kind();
    if (kind == SqlReader::Token::kStrange) stretch.IsPlain = false;
    if (depth == 0 && reader_.Is("or")) stretch.HasOr = true;
    if (kind != SqlReader::Token::kWord) return;
    std::string alias = AliasOf(std::string(reader_.Text()));
    const auto isSame = [this](const char* word) { return reader_.Is(word); };
    if (!alias.empty()) {
      stretch.Aliases.push_back(std::move(alias));
    } else if (std::none_of(kWordsOfConditions.begin(), kWordsOfConditions.end(), isSame)) {
      stretch.IsPlain = false;
    }
  }

  /// Up to a word, or to the end where there is none to look for.
  bool ReadUpTo(std::string_view word, Stretch& stretch) {
    const std::size_t start = reader_.Start();
    std::size_t end = start;
    int depth = 0;
    for (; reader_.Kind() != SqlReader::Token::kEnd && (word.empty() || !reader_.Is(word)); reader_.Next()) {
      depth += reader_.IsSign('(') ? 1 : reader_.IsSign(')') ? -1 : 0;
      Note(stretch, depth);
      end = reader_.End();
    }
    stretch.Text = query_.substr(start, end - start);
    const bool found = word.empty() || Word(word);
    return found && stretch.IsPlain && end > start;
  }

  bool ReadList() {
    return Word("select") && ReadUpTo("from", list_) && list_.Text.find('(') == std::string::npos;
  }

  bool ReadTables() {
    if (!Name(table_) || !Name(alias_)) return false;
    isComma_ = Sign(',');
    if (!isComma_) {
      if (Word("left")) {
        join_ = " left join ";
      } else {
        Word("inner");
      }
      if (!Word("join")) return false;
    }
    if (!Name(joined_) || !Name(joinedAlias_) || !Word(isComma_ ? "where" : "on")) return false;
    if (!Name(left_) || !Sign('=') || !Name(right_) || !Word(isComma_ ? "and" : "where")) return false;
    return true;
  }

  bool AreOf(const Stretch& stretch, const std::string& alias) const {
    return std::all_of(stretch.Aliases.begin(), stretch.Aliases.end(),
                       [&](const std::string& other) { return other == alias; });
  }

  bool BelongsTogether() const {
    const std::string first = text::Lower(alias_);
    const std::string second = text::Lower(joinedAlias_);
    const std::string left = AliasOf(left_);
    const std::string right = AliasOf(right_);
    return first != second && ((left == first && right == second) || (left == second && right == first)) &&
           AreOf(condition_, first) && AreOf(order_, first) && !(isComma_ && condition_.HasOr);
  }

  const std::string& query_;
  SqlReader reader_;
  Stretch list_;
  Stretch condition_;
  Stretch order_;
  std::string table_;
  std::string alias_;
  bool isComma_ = false;
  std::string join_ = " join ";
  std::string joined_;
  std::string joinedAlias_;
  std::string left_;
  std::string right_;
};

}  // namespace

std::optional<std::string> SortedBeforeJoin(
    const std::string& query, const std::vector<std::string>& reads,
    const std::function<std::vector<std::string>(const std::string&)>& keyOf) {
  JoinReader reader(query);
  if (!reader.Read()) return {};
  return reader.Sorted(keyOf(text::Upper(reader.Table())), reads);
}

}  // namespace quillon
