#include "desk/print/PdfPrinter.h"

#include <QFont>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "desk/print/Fonts.h"
#include "desk/print/PageSender.h"
#include "desk/print/Paper.h"
#include "desk/print/PdfDocument.h"
#include "desk/print/PrintObserver.h"
#include "desk/print/QueuedJob.h"
#include "desk/print/TextMeasure.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr const char* kStem = "print";

std::vector<std::string> Lines(const std::string& text) {
  return text::Split(text::ReplaceAll(text, "\r\n", "\n"), "\n");
}

}  // namespace

PdfPrinter::PdfPrinter(std::string outputFolder, PrintObserver* observer)
    : folder_(std::move(outputFolder)), observer_(observer) {}

PdfPrinter::~PdfPrinter() = default;

bool PdfPrinter::HasFont(const std::string& name) const { return Fonts::Has(name); }

double PdfPrinter::TextWidth(const std::string& text) const {
  double widest = 0;
  for (const std::string& line : Lines(text)) widest = std::max(widest, TextMeasure::Width(Font, line));
  return widest;
}

double PdfPrinter::TextHeight(const std::string& text) const {
  return TextMeasure::LineHeight(Font) * static_cast<double>(Lines(text).size());
}

PdfDocument& PdfPrinter::Job() {
  if (job_) return *job_;
  job_ = std::make_unique<PdfDocument>(folder_, kStem, PaperSize, Orientation);
  const PaperExtent paper = PaperSizeOf(PaperSize, Orientation);
  pages_ = ReportPages();
  pages_.PaperSize = PaperSize;
  pages_.Orientation = Orientation;
  pages_.Width = paper.Width;
  pages_.Height = paper.Height;
  pages_.Pages.resize(1);
  return *job_;
}

void PdfPrinter::PrintLine(const std::string& line) {
  PdfDocument& job = Job();
  if (line.empty()) return;
  job.Painter().setFont(Fonts::Of(Font));
  const double baseline = CurrentY + TextMeasure::Ascent(Font);
  job.Painter().drawText(QPointF(CurrentX, baseline), QString::fromStdString(line));
  if (KeepsPages()) {
    pages_.Pages.back().Texts.push_back({CurrentX, baseline, line, pages_.FontNumber(Font), 0});
  }
  if (observer_ != nullptr) observer_->OnText(job.Pages(), CurrentX, CurrentY, line, Font);
}

void PdfPrinter::Print(const std::string& text, bool lineEnd) {
  const std::vector<std::string> lines = Lines(text);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    PrintLine(lines[i]);
    if (lineEnd || i + 1 < lines.size()) {
      CurrentY += TextMeasure::LineHeight(Font);
      CurrentX = 0;
    } else {
      CurrentX += TextMeasure::Width(Font, lines[i]);
    }
  }
}

void PdfPrinter::NewPage() {
  Job().NewPage(PaperSize, Orientation);
  pages_.Pages.emplace_back();
  CurrentX = 0;
  CurrentY = 0;
}

bool PdfPrinter::EndDoc() {
  const std::unique_ptr<PdfDocument> job = std::move(job_);
  CurrentX = 0;
  CurrentY = 0;
  const bool asks = std::exchange(SeeFirst, false) && job && AskSight;
  if (asks && !AskSight(pages_)) return false;
  if (job) Deliver(*job, pages_);
  return true;
}

void PdfPrinter::Deliver(PdfDocument& job, const ReportPages& pages) {
  const std::string file = job.Finish();
  if (observer_ != nullptr) observer_->OnPrinted(file, job.Pages(), PaperSize, Orientation);
  fate_ = JobFate::kInDoubt;
  queued_.clear();
  queued_ = PageSender::Send(
      pages, file, {.Printer = DeviceName, .Monochrome = ColorMode == kMonochrome, .Paper = PaperSize});
  fate_ = DeviceName == kPdfFile ? JobFate::kPrinted : JobFate::kUnderWay;
  const std::string heldUp = queued_.empty() ? "" : QueuedJob(queued_).HeldUp();
  if (heldUp.empty()) return;
  fate_ = JobFate::kInDoubt;
  if (gStd != nullptr) gStd->MsgBox(heldUp + " What was sent waits in its queue.", "", "W");
}

IPrinter::JobFate PdfPrinter::FateOfJob(std::string& why) {
  if (fate_ == JobFate::kUnderWay) fate_ = QueuedJob(queued_).Fate(why);
  return fate_;
}

void PdfPrinter::ForgetJob() {
  fate_ = JobFate::kNothingSent;
  queued_.clear();
}

void PdfPrinter::TakeBackJob(const std::string& name) { QueuedJob(name).TakeBack(); }

void PdfPrinter::KillDoc() {
  job_.reset();
  CurrentX = 0;
  CurrentY = 0;
}

void PdfPrinter::PrintPicture(int dotsPerInch, const std::function<void(QPainter&)>& draw) {
  PdfDocument job(folder_, kStem, PaperSize, Orientation, dotsPerInch);
  draw(job.Painter());
  Deliver(job, {});
}

}  // namespace quillon
