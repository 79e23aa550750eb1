#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/services/CReportOptions.h"
#include "host/services/PrintSetup.h"

namespace quillon {

class GridModel;

/// The report window: a filled grid laid out on pages.
class IReports {
 public:
  IReports() = default;
  IReports(const IReports&) = delete;
  IReports& operator=(const IReports&) = delete;
  virtual ~IReports() = default;

  static constexpr int kHostRuling = -1;  ///< of ShowGrid: as the host rules its reports

  /// Shows the grid as a report, with the footer that a CGridPlus has. `print` false opens the preview, true
  /// prints. `value` is the ruling asked for. `optionText` is "Name=Value,Name=Value".
  virtual void ShowGrid(GridModel& grid, CReportOptions* options, const std::string& title,
                        const std::string& subtitle, int value, bool print, const std::string& heading = "",
                        const std::string& optionText = "") = 0;

  /// The pages, counted from 1, on which the rows of such a report would end; 0 for a row that is not
  /// printed. Nothing is shown or written.
  virtual std::vector<int> PagesOfRows(GridModel& grid, CReportOptions* options, const std::string& title,
                                       const std::string& subtitle, int value) = 0;

  /// A new print dialog; `what` is "Print".
  virtual std::shared_ptr<PrintSetup> Print(const std::string& what) = 0;

  /// Below 2 a report goes to a graphic printer, 2 and above to a text-mode printer.
  virtual int PrinterMode() const = 0;
};

extern IReports* gReports;

}  // namespace quillon
