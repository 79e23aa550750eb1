#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "desk/print/PagePlan.h"
#include "desk/print/ReportPages.h"
#include "desk/print/ReportTable.h"
#include "desk/print/TextWrap.h"

namespace quillon {

/// Sets the cells of one row after another into the columns of a report.
class RowSetter {
 public:
  /// All must outlive the setter.
  RowSetter(const ReportTable& table, const PagePlan& plan, ReportPages& pages);

  /// Begins a row. Titles take the alignment of the headings and stand at the row's foot.
  void Begin(bool bold, bool titles = false);

  /// The text must live until the row is placed.
  void SetCell(std::size_t column, std::string_view text, bool underlined = false, long color = 0);

  /// The lines of the row's highest cell, at least 1.
  std::size_t Lines() const { return lines_; }

  /// Puts lines `from` to before `to` on the page; `top` is where the first of them begins.
  void Place(ReportPage& page, double top, std::size_t from, std::size_t to) const;

 private:
  struct CellLines {
    std::vector<WrappedLine> lines;
    bool underlined = false;
    long color = 0;
  };

  const Font& Face() const { return bold_ ? plan_.Bold : plan_.Body; }
  void PlaceLine(ReportPage& page, std::size_t column, const WrappedLine& line, double baseline) const;
  void PlaceJustified(ReportPage& page, std::size_t column, std::string_view line, double baseline) const;
  ReportText TextOf(std::size_t column, std::string_view text, double x, double baseline) const;

  const ReportTable& table_;
  const PagePlan& plan_;
  std::size_t fonts_[2][2];  // bold, underlined
  bool bold_ = false;
  bool titles_ = false;
  std::size_t lines_ = 1;
  std::vector<CellLines> cells_;
};

}  // namespace quillon
