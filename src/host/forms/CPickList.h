#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quillon {

class CDbLink;

/// A modal pick list of lines with columns; each line carries a number.
class CPickList {
 public:
  struct ColumnSpec {
    std::string title;
    long width = 0;  ///< twips
    int alignment = 1;
  };
  struct Line {
    std::vector<std::string> cells;
    std::int64_t data = 0;
  };

  void Modal(bool modal) { modal_ = modal; }
  void Title(const std::string& title) { title_ = title; }

  /// Twips.
  long Width = 6000;
  long Height = 4500;

  void AddColumn(const std::string& title, long width, int alignment);

  /// Cells joined by tabs.
  void AddItem(const std::string& cells, std::int64_t data);

  /// Lines from a query: the first field is shown, the second is the line's number.
  void Load(const std::string& sql, CDbLink& db);

  /// True when a line was picked.
  bool Show();

  /// The number of the line picked.
  std::int64_t ItemData() const { return picked_; }

  const std::string& TitleText() const { return title_; }
  const std::vector<ColumnSpec>& Columns() const { return columns_; }
  const std::vector<Line>& Lines() const { return lines_; }

 private:
  bool modal_ = true;
  std::string title_;
  std::vector<ColumnSpec> columns_;
  std::vector<Line> lines_;
  std::int64_t picked_ = 0;
};

}  // namespace quillon
