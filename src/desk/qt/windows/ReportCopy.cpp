#include "desk/qt/windows/ReportCopy.h"

#include "desk/print/CsvFile.h"

namespace quillon {

ReportCopy ReportCopy::Of(const ReportShown& report) {
  return {report.Sheets, report.File, CsvFile::TextOf(report.Grid)};
}

}  // namespace quillon
