#pragma once

#include <functional>
#include <string>

#include "desk/print/ReportFirm.h"
#include "desk/print/ReportPages.h"
#include "host/controls/GridModel.h"
#include "host/services/IReports.h"

namespace quillon {

/// A report that was made; grid and sheets live only while the observer is told.
struct ReportShown {
  std::string Title;
  std::string Subtitle;
  bool Print = false;
  std::string File;
  int Pages = 0;
  const GridModel& Grid;      ///< as it was handed over
  const ReportPages& Sheets;  ///< for the preview; no pages when the printer prints characters
};

class ReportObserver {
 public:
  ReportObserver() = default;
  ReportObserver(const ReportObserver&) = delete;
  ReportObserver& operator=(const ReportObserver&) = delete;
  virtual ~ReportObserver() = default;

  virtual void OnReport(const ReportShown& report) = 0;
};

/// The report engine of the desk. Each report is a file in the output folder, report-1.pdf or report-1.txt
/// and so on; one that was asked for in print goes to the chosen printer too.
class DeskReports : public IReports {
 public:
  struct Surroundings {
    std::string OutputFolder;
    std::function<ReportFirm()> Firm = ReportFirm::Current;
    std::function<std::string()> Device = {};  ///< the chosen printer; empty, or nothing, leaves the file
    std::function<int()> Mode = {};            ///< the printer mode; nothing prints graphic pages
    ReportObserver* Observer = nullptr;        ///< hears of each report, and opens the preview
  };

  explicit DeskReports(Surroundings surroundings) : desk_(std::move(surroundings)) {}

  void ShowGrid(GridModel& grid, CReportOptions* options, const std::string& title,
                const std::string& subtitle, int value, bool print, const std::string& heading = "",
                const std::string& optionText = "") override;
  std::vector<int> PagesOfRows(GridModel& grid, CReportOptions* options, const std::string& title,
                               const std::string& subtitle, int value) override;
  std::shared_ptr<PrintSetup> Print(const std::string& what) override;
  int PrinterMode() const override { return desk_.Mode ? desk_.Mode() : 0; }

 private:
  bool PrintsText() const;
  ReportFirm Firm() const { return desk_.Firm ? desk_.Firm() : ReportFirm(); }

  Surroundings desk_;
};

}  // namespace quillon
