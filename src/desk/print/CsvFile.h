#pragma once

#include <string>

namespace quillon {

class GridModel;

/// The rows of a report for a spreadsheet: UTF-8 with CR LF, fields quoted where RFC 4180 asks for it.
class CsvFile {
 public:
  /// The shown columns and rows with their titles, and the totals; without the commands of the last column.
  static std::string TextOf(const GridModel& grid);
};

}  // namespace quillon
