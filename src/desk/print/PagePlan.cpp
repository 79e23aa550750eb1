#include "desk/print/PagePlan.h"

#include <algorithm>
#include <numeric>

#include "desk/print/ColumnWidths.h"
#include "desk/print/TextMeasure.h"
#include "host/services/IPrinter.h"

namespace quillon {

namespace {

constexpr double kLetterSize = 11;
constexpr double kReadableSize = 7;
constexpr double kSmallestSize = 4;
constexpr double kSizeStep = 0.25;
constexpr double kLetterMargin = 1440;
constexpr double kSideMargin = 680;
constexpr double kTopMargin = 600;
constexpr double kBareTopMargin = 240;
constexpr double kBottomMargin = 720;
constexpr double kLineHeight = 1.22 * 20;  // twips for each point of the font
constexpr double kCellMargin = 80;
constexpr double kRowMargin = 35;
constexpr double kBareSize = 10;

double UsualSize(const Font& font, const ReportSettings& settings) {
  if (settings.IsLetter()) return std::max(kLetterSize, font.Size);
  if (settings.Bare) return std::max(kBareSize, font.Size);
  return std::clamp(font.Size, 8.0, 10.0);
}

void SetSheet(PagePlan& plan, const ReportSettings& settings, int orientation) {
  plan.Orientation = orientation;
  plan.Sheet = PaperSizeOf(IPrinter::kA4, orientation);
  const double side = settings.IsLetter() ? kLetterMargin : kSideMargin;
  plan.Left = side;
  plan.Right = plan.Sheet.Width - side;
  plan.Top = settings.FirstForm == HeadingForm::None && settings.Bare ? kBareTopMargin : kTopMargin;
  plan.Bottom = plan.Sheet.Height - (settings.BottomMargin < 0 ? kBottomMargin : settings.BottomMargin);
}

}  // namespace

bool PagePlan::TryFit(const ReportTable& table, const std::vector<double>& leastPerPoint, double size,
                      bool force) {
  std::vector<double> least = leastPerPoint;
  for (double& width : least) width = width * size + 2 * CellMargin + 1;
  if (!force && std::accumulate(least.begin(), least.end(), 0.0) > Right - Left) return false;
  Body.Size = Bold.Size = size;
  LineHeight = size * kLineHeight;
  ColumnWidth = ShareWidth(table, least, Right - Left);
  TextWidth = ColumnWidth;
  if (IsLabels)
    TextWidth.assign(ColumnWidth.size(), *std::min_element(ColumnWidth.begin(), ColumnWidth.end()));
  ColumnLeft.clear();
  double x = Left;
  for (const double width : ColumnWidth) {
    ColumnLeft.push_back(x);
    x += width;
  }
  return true;
}

PagePlan PagePlan::For(const ReportTable& table, const ReportSettings& settings) {
  PagePlan plan;
  // A letter's lines stand as close as those of a wrapped paragraph, from margin to margin.
  plan.IsLabels = settings.IsLabels() && !table.Columns().empty();
  plan.CellMargin = settings.IsLetter() ? 0 : kCellMargin;
  plan.RowMargin = settings.IsLetter() ? 0 : kRowMargin;
  plan.Body = table.Grid().Font();
  plan.Body.Bold = plan.Body.Underline = plan.Body.Italic = false;
  plan.Bold = plan.Body;
  plan.Bold.Bold = true;
  constexpr double kMeasured = 10;
  plan.Body.Size = plan.Bold.Size = kMeasured;
  std::vector<double> least = LeastWidths(table, [&plan](std::string_view text, bool bold) {
    return TextMeasure::Width(bold ? plan.Bold : plan.Body, text);
  });
  for (double& width : least) width /= kMeasured;

  const double usual = UsualSize(table.Grid().Font(), settings);
  for (const int orientation : {IPrinter::kPortrait, IPrinter::kLandscape}) {
    SetSheet(plan, settings, orientation);
    for (double size = usual; size >= kReadableSize; size -= kSizeStep) {
      if (plan.TryFit(table, least, size, false)) return plan;
    }
  }
  for (double size = kReadableSize; size > kSmallestSize; size -= kSizeStep) {
    if (plan.TryFit(table, least, size, false)) return plan;
  }
  plan.TryFit(table, least, kSmallestSize, true);
  return plan;
}

}  // namespace quillon
