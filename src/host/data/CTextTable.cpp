#include "host/data/CTextTable.h"

#include <algorithm>

#include "host/values/Errors.h"
#include "host/values/StoredText.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

using Row = std::vector<std::string>;

std::vector<std::string> ColumnNames(const std::string& columns) {
  if (columns.empty()) return {};
  std::vector<std::string> names = text::Split(columns, ",");
  for (std::string& name : names) name = text::Trim(name);
  return names;
}

Row ReadRow(const std::string& entry, std::size_t columns) {
  Row row;
  for (const std::string& value : text::Split(entry, std::string_view(&stored::kEndOfValue, 1))) {
    row.push_back(stored::Unescape(value));
    if (row.size() > columns && !row.back().empty()) {
      throw HostError("The stored settings are damaged: a row has more values than columns");
    }
  }
  row.resize(columns);
  return row;
}

std::vector<Row> ReadRows(const std::string& text, std::size_t columns) {
  std::vector<Row> rows;
  for (const std::string& entry : stored::Entries(text)) rows.push_back(ReadRow(entry, columns));
  return rows;
}

}  // namespace

void CTextTable::Load(const std::string& text, const std::string& columns) {
  std::vector<std::string> names = ColumnNames(columns);
  rows_ = ReadRows(text, names.size());
  columns_ = std::move(names);
}

void CTextTable::Load(const std::string& text) { rows_ = ReadRows(text, columns_.size()); }

void CTextTable::SetFields(const std::string& columns) {
  columns_ = ColumnNames(columns);
  for (Row& row : rows_) row.resize(columns_.size());
}

std::string CTextTable::Field(std::size_t row, const std::string& name) const {
  const std::size_t column = ColumnOf(name);
  return row < rows_.size() && column < columns_.size() ? rows_[row][column] : std::string();
}

void CTextTable::SetField(std::size_t row, const std::string& name, const std::string& value) {
  const std::size_t column = ColumnOf(name);
  if (column == columns_.size()) throw SubscriptError(name);
  if (row >= rows_.size()) SetRowCount(row);
  rows_[row][column] = value;
}

void CTextTable::SetRowCount(std::size_t highest) { rows_.resize(highest + 1, Row(columns_.size())); }

std::string CTextTable::RowText(std::size_t row) const {
  if (row >= rows_.size()) throw SubscriptError("row " + std::to_string(row));
  std::string text;
  for (std::size_t column = 0; column < columns_.size(); ++column) {
    if (column > 0) text += stored::kEndOfValue;
    text += stored::Escape(rows_[row][column]);
  }
  return text + stored::kEndOfEntry;
}

std::string CTextTable::Text() const {
  std::string text;
  for (std::size_t row = 0; row < rows_.size(); ++row) text += RowText(row);
  return text;
}

std::size_t CTextTable::ColumnOf(const std::string& name) const {
  const auto same = [&](const std::string& column) { return text::EqualNoCase(column, name); };
  return static_cast<std::size_t>(std::find_if(columns_.begin(), columns_.end(), same) - columns_.begin());
}

}  // namespace quillon
