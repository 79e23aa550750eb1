#include "desk/print/ReportPainter.h"

#include <QFont>
#include <QPainter>

#include "desk/print/Fonts.h"
#include "desk/print/PdfDocument.h"
#include "host/forms/Progress.h"

namespace quillon {

namespace {

constexpr double kTwipsPerMillimetre = 1440 / 25.4;

QColor ColorOf(long color) {
  return QColor(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                static_cast<int>(color >> 16 & 0xFF));
}

}  // namespace

void ReportPainter::Paint(const ReportPages& pages, std::size_t page, QPainter& painter) {
  const ReportPage& drawn = pages.Pages.at(page);
  for (const ReportFill& fill : drawn.Fills)
    painter.fillRect(QRectF(fill.X, fill.Y, fill.Width, fill.Height), ColorOf(fill.Color));
  for (const ReportLine& line : drawn.Lines) {
    painter.setPen(QPen(ColorOf(line.Color), line.Thickness, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(QPointF(line.X1, line.Y1), QPointF(line.X2, line.Y2));
  }
  std::size_t font = pages.Fonts.size();
  long color = -1;
  for (const ReportText& text : drawn.Texts) {
    if (text.Font != font) painter.setFont(Fonts::Of(pages.Fonts.at(font = text.Font)));
    if (text.Color != color) painter.setPen(ColorOf(color = text.Color));
    painter.drawText(QPointF(text.X, text.Baseline), QString::fromStdString(text.Text));
  }
}

std::string ReportPainter::WritePdf(const ReportPages& pages, const std::string& folder,
                                    const std::string& stem, const Calibration& calibration) {
  PdfDocument document(folder, stem, pages.PaperSize, pages.Orientation);
  document.Painter().translate(calibration.ShiftX() * kTwipsPerMillimetre,
                               calibration.ShiftY() * kTwipsPerMillimetre);
  document.Painter().scale(calibration.ScaleX(), calibration.ScaleY());
  Progress progress("Writing the pages", static_cast<std::int64_t>(pages.Pages.size()));
  for (std::size_t page = 0; page < pages.Pages.size(); ++page) {
    if (page > 0) document.NewPage(pages.PaperSize, pages.Orientation);
    Paint(pages, page, document.Painter());
    progress.Step();
  }
  return document.Finish();
}

}  // namespace quillon
