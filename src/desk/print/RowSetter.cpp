#include "desk/print/RowSetter.h"

#include <algorithm>

#include "desk/print/TextMeasure.h"

namespace quillon {

namespace {

constexpr double kBaseline = 0.97 * 20;  // below the top of a line, for each point of the font
constexpr double kRounding = 2;          // twips that a text may be wider than it was reckoned

}  // namespace

RowSetter::RowSetter(const ReportTable& table, const PagePlan& plan, ReportPages& pages)
    : table_(table), plan_(plan), cells_(table.Columns().size()) {
  for (const bool bold : {false, true}) {
    Font font = bold ? plan.Bold : plan.Body;
    fonts_[bold][0] = pages.FontNumber(font);
    font.Underline = true;
    fonts_[bold][1] = pages.FontNumber(font);
  }
}

void RowSetter::Begin(bool bold, bool titles) {
  bold_ = bold;
  titles_ = titles;
  lines_ = 1;
  for (CellLines& cell : cells_) cell.lines.clear();
}

void RowSetter::SetCell(std::size_t column, std::string_view text, bool underlined, long color) {
  if (text.empty()) return;
  CellLines& cell = cells_[column];
  cell.underlined = underlined;
  cell.color = color;
  const double width = plan_.TextWidth[column] - 2 * plan_.CellMargin + kRounding;
  const auto measure = [this](std::string_view part) { return TextMeasure::Width(Face(), part); };
  if (text.find('\n') == std::string_view::npos && measure(text) <= width) {
    cell.lines.push_back({text, true});
  } else {
    cell.lines = WrapText(text, width, measure);
  }
  lines_ = std::max(lines_, cell.lines.size());
}

void RowSetter::Place(ReportPage& page, double top, std::size_t from, std::size_t to) const {
  for (std::size_t column = 0; column < cells_.size(); ++column) {
    const std::vector<WrappedLine>& lines = cells_[column].lines;
    const std::size_t above = titles_ ? lines_ - lines.size() : 0;
    for (std::size_t i = std::max(from, above); i < std::min(to, above + lines.size()); ++i) {
      const double baseline =
          top + static_cast<double>(i - from) * plan_.LineHeight + Face().Size * kBaseline;
      PlaceLine(page, column, lines[i - above], baseline);
    }
  }
}

void RowSetter::PlaceLine(ReportPage& page, std::size_t column, const WrappedLine& line,
                          double baseline) const {
  if (line.Text.empty()) return;
  const ReportColumn& shown = table_.Columns()[column];
  const double left = plan_.ColumnLeft[column] + plan_.CellMargin;
  const double room = plan_.ColumnWidth[column] - 2 * plan_.CellMargin;
  const int alignment = titles_ ? shown.HeadingAlignment : shown.Alignment;
  if (shown.Justify && !titles_ && !line.EndsParagraph) {
    PlaceJustified(page, column, line.Text, baseline);
    return;
  }
  double x = left;
  if (alignment == kAlignRight) x = left + room - TextMeasure::Width(Face(), line.Text);
  if (alignment == kAlignCentre) x = left + (room - TextMeasure::Width(Face(), line.Text)) / 2;
  page.Texts.push_back(TextOf(column, line.Text, x, baseline));
}

/// Each word by itself, with the room that is left shared among the gaps; a paragraph's indent stays.
void RowSetter::PlaceJustified(ReportPage& page, std::size_t column, std::string_view line,
                               double baseline) const {
  const double room = plan_.ColumnWidth[column] - 2 * plan_.CellMargin;
  const std::size_t indent = std::min(line.find_first_not_of(' '), line.size());
  double x = plan_.ColumnLeft[column] + plan_.CellMargin + TextMeasure::Width(Face(), line.substr(0, indent));
  const std::string_view words = line.substr(indent);
  const auto gaps = static_cast<double>(std::count(words.begin(), words.end(), ' '));
  const double spare = gaps > 0 ? (room - TextMeasure::Width(Face(), line)) / gaps : 0;
  const double blank = TextMeasure::Width(Face(), " ");
  for (std::size_t at = 0; at <= words.size();) {
    const std::size_t end = std::min(words.find(' ', at), words.size());
    const std::string_view word = words.substr(at, end - at);
    if (!word.empty()) page.Texts.push_back(TextOf(column, word, x, baseline));
    x += TextMeasure::Width(Face(), word) + blank + spare;
    at = end + 1;
  }
}

ReportText RowSetter::TextOf(std::size_t column, std::string_view text, double x, double baseline) const {
  const CellLines& cell = cells_[column];
  return {x, baseline, std::string(text), fonts_[bold_][cell.underlined], cell.color};
}

}  // namespace quillon
