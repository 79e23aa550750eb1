#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace quillon {

/// A table of named columns that is stored as one text. Rows count from 0; column names ignore case.
class CTextTable {
 public:
  /// `columns` joined by commas; a text with fewer values leaves the later columns empty, and the text of one
  /// row loads as a table of one row. Throws HostError when the text is damaged; the table then stays as it
  /// was.
  void Load(const std::string& text, const std::string& columns);

  /// Reads into the columns that SetFields named.
  void Load(const std::string& text);
  void SetFields(const std::string& columns);

  /// Empty for a row or a column without a value.
  std::string Field(std::size_t row, const std::string& name) const;

  /// Grows the table as needed; throws SubscriptError for an unknown column.
  void SetField(std::size_t row, const std::string& name, const std::string& value);

  /// Rows 0 to `highest` exist afterwards, and no others.
  void SetRowCount(std::size_t highest);
  std::size_t RowCount() const { return rows_.size(); }

  /// The stored forms; neither ever contains "<|||>".
  std::string RowText(std::size_t row) const;
  std::string Text() const;

 private:
  std::size_t ColumnOf(const std::string& name) const;

  std::vector<std::string> columns_;
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace quillon
