#include "desk/print/CsvFile.h"

#include "desk/print/ReportTable.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

std::string Field(std::string_view text) {
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
  return '"' + text::ReplaceAll(std::string(text), "\"", "\"\"") + '"';
}

template <class Texts>
void AddRecord(std::string& out, std::size_t columns, const Texts& texts) {
  for (std::size_t i = 0; i < columns; ++i) {
    if (i > 0) out += ',';
    out += Field(texts(i));
  }
  out += "\r\n";
}

}  // namespace

std::string CsvFile::TextOf(const GridModel& grid) {
  const ReportTable table(grid, CReportOptions());
  std::string out;
  for (const auto* rows : {&table.TitleRows(), &table.Rows()}) {
    for (const int row : *rows)
      AddRecord(out, table.Columns().size(), [&](std::size_t i) { return table.Cell(row, i); });
  }
  for (const ReportTable::FooterRow& row : table.Footer())
    AddRecord(out, table.Columns().size(), [&](std::size_t i) { return std::string_view(row.Cells[i]); });
  return out;
}

}  // namespace quillon
