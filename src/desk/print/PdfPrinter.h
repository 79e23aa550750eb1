#pragma once

#include <functional>
#include <memory>
#include <string>

#include "desk/print/ReportPages.h"
#include "host/services/IPrinter.h"

class QPainter;

namespace quillon {

class PdfDocument;
class PrintObserver;

/// The printer that makes a PDF page for page: print-1.pdf, print-2.pdf … in the output folder. A job for a
/// chosen device goes there too, and the file stays.
class PdfPrinter : public IPrinter {
 public:
  /// The observer may be nothing, and must live as long as the printer.
  explicit PdfPrinter(std::string outputFolder, PrintObserver* observer = nullptr);
  ~PdfPrinter() override;

  bool HasFont(const std::string& name) const override;
  double TextWidth(const std::string& text) const override;
  double TextHeight(const std::string& text) const override;

  void Print(const std::string& text, bool lineEnd = true) override;
  void NewPage() override;

  /// Shows the finished pages to the user where he wanted to see them first; true when they may be printed.
  /// Without it they are printed.
  std::function<bool(const ReportPages&)> AskSight;

  /// Without anything printed there is no file.
  bool EndDoc() override;
  void ForgetJob() override;
  JobFate FateOfJob(std::string& why) override;
  std::string JobName() const override { return queued_; }
  void TakeBackJob(const std::string& name) override;
  void KillDoc() override;

  /// A job of one page that is drawn in dots, so many to the inch; a job at hand stays as it is.
  void PrintPicture(int dotsPerInch, const std::function<void(QPainter&)>& draw);

 private:
  PdfDocument& Job();
  void Deliver(PdfDocument& job, const ReportPages& pages);
  void PrintLine(const std::string& line);

  /// Whether the pages are needed again when they are finished: to be seen, or for a queue.
  bool KeepsPages() const { return SeeFirst || DeviceName != kPdfFile; }

  std::string folder_;
  PrintObserver* observer_;
  std::unique_ptr<PdfDocument> job_;
  ReportPages pages_;
  JobFate fate_ = JobFate::kNothingSent;
  std::string queued_;  // the name of the job under way
};

}  // namespace quillon
