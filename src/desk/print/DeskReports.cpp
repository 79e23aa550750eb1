#include "desk/print/DeskReports.h"

#include <QFile>

#include "desk/print/OutputFile.h"
#include "desk/print/PageSender.h"
#include "desk/print/PlainReport.h"
#include "desk/print/ReportLayout.h"
#include "desk/print/ReportPainter.h"

namespace quillon {

namespace {

constexpr const char* kStem = "report";
constexpr int kFirstTextMode = 2;

std::string WriteText(const std::string& text, const std::string& folder) {
  OutputFile file(folder, kStem, ".txt");
  file.Device().write(text.data(), static_cast<qint64>(text.size()));
  return file.Finish();
}

}  // namespace

void DeskReports::ShowGrid(GridModel& grid, CReportOptions* options, const std::string& title,
                           const std::string& subtitle, int value, bool print, const std::string& heading,
                           const std::string& optionText) {
  CReportOptions own;
  CReportOptions& used = options != nullptr ? *options : own;
  used.AddOptionText(optionText);
  const ReportRequest request{grid, used, title, subtitle, heading, value, Firm(), Date::Today()};
  ReportPages sheets;
  std::string file;
  int count = 0;
  if (PrintsText()) {
    const PlainReport plain = PlainReport::Make(request);
    file = WriteText(plain.Text, desk_.OutputFolder);
    count = plain.Pages;
  } else {
    sheets = ReportLayout::Make(request);
    file = ReportPainter::WritePdf(sheets, desk_.OutputFolder, kStem);
    count = static_cast<int>(sheets.Pages.size());
  }
  if (desk_.Observer != nullptr)
    desk_.Observer->OnReport({title, subtitle, print, file, count, grid, sheets});
  if (print && desk_.Device)
    PageSender::Send(sheets, file, {.Printer = desk_.Device(), .Paper = sheets.PaperSize});
}

bool DeskReports::PrintsText() const { return PrinterMode() >= kFirstTextMode; }

std::vector<int> DeskReports::PagesOfRows(GridModel& grid, CReportOptions* options, const std::string& title,
                                          const std::string& subtitle, int value) {
  const CReportOptions own;
  const CReportOptions& used = options != nullptr ? *options : own;
  const ReportRequest request{grid, used, title, subtitle, "", value, Firm(), Date::Today()};
  return PrintsText() ? PlainReport::Make(request).RowPages : ReportLayout::Make(request).RowPages;
}

std::shared_ptr<PrintSetup> DeskReports::Print(const std::string& /*what*/) {
  return std::make_shared<PrintSetup>();
}

}  // namespace quillon
