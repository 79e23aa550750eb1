#include "desk/print/PdfPrinter.h"

#include <QFont>
#include <QPainter>
#include <algorithm>

#include "desk/print/Fonts.h"
#include "desk/print/PdfDocument.h"
#include "desk/print/PrintObserver.h"
#include "desk/print/Spooler.h"
#include "desk/print/TextMeasure.h"
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
  if (!job_) job_ = std::make_unique<PdfDocument>(folder_, kStem, PaperSize, Orientation);
  return *job_;
}

void PdfPrinter::PrintLine(const std::string& line) {
  PdfDocument& job = Job();
  if (line.empty()) return;
  job.Painter().setFont(Fonts::Of(Font));
  job.Painter().drawText(QPointF(CurrentX, CurrentY + TextMeasure::Ascent(Font)),
                         QString::fromStdString(line));
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
  CurrentX = 0;
  CurrentY = 0;
}

void PdfPrinter::EndDoc() {
  const std::unique_ptr<PdfDocument> job = std::move(job_);
  CurrentX = 0;
  CurrentY = 0;
  if (job) Deliver(*job);
}

void PdfPrinter::Deliver(PdfDocument& job) {
  const std::string file = job.Finish();
  if (observer_ != nullptr) observer_->OnPrinted(file, job.Pages(), PaperSize, Orientation);
  Spooler::Send(file, {.Printer = DeviceName, .Monochrome = ColorMode == kMonochrome});
}

void PdfPrinter::KillDoc() {
  job_.reset();
  CurrentX = 0;
  CurrentY = 0;
}

void PdfPrinter::PrintPicture(int dotsPerInch, const std::function<void(QPainter&)>& draw) {
  PdfDocument job(folder_, kStem, PaperSize, Orientation, dotsPerInch);
  draw(job.Painter());
  Deliver(job);
}

}  // namespace quillon
