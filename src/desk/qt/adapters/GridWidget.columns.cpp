#include "desk/qt/adapters/GridWidget.h"

#include <QScrollBar>
#include <algorithm>
#include <cstdlib>

#include "desk/qt/adapters/Scale.h"
#include "host/controls/CGridPlus.h"

namespace quillon {

namespace {

constexpr int kBorder = 4;
constexpr long kNarrowest = 300;  // twips
constexpr long kWidest = 60'000;
constexpr std::size_t kSample = 100;
constexpr std::string_view kWidestDate = "28-May-2024";

/// "28-May-2024", or "28/05/2024", which are all equally wide.
bool IsDate(std::string_view text) {
  const bool isNamed = text.size() == kWidestDate.size() && text[2] == '-' && text[6] == '-';
  return isNamed || (text.size() == kWidestDate.size() - 1 && text[2] == '/' && text[5] == '/');
}

}  // namespace

void GridWidget::MeasureColumns() {
  layout_.MeasureColumns(model_, columns_, needs_, viewport()->width());
  UpdateBars();
  if (OnMoved) OnMoved();
  viewport()->update();
}

void GridWidget::KeepColumnsAs(const QString& name) {
  columns_.KeepAs(name);
  keepsColumns_ = true;
  Touch();
}

bool GridWidget::IsOnHeadings(const QPoint& point) const {
  return point.y() >= TitleLine() && point.y() < Body().top();
}

/// The column whose right border is at a place of the headings; -1 for none.
int GridWidget::BorderAt(const QPoint& point) const {
  if (!keepsColumns_ || !IsOnHeadings(point)) return -1;
  int found = -1;
  for (int col = 0; col < layout_.Cols(); ++col) {
    const int border = X(col) + layout_.ColWidth(col);
    if (layout_.ColWidth(col) > 0 && std::abs(border - point.x()) <= kBorder) found = col;
  }
  return found;
}

void GridWidget::StartDrag(int col, int x) {
  int beside = col + 1;
  while (beside < layout_.Cols() && layout_.ColWidth(beside) == 0) ++beside;
  if (beside == layout_.Cols()) beside = -1;
  const std::vector<long>& widths = layout_.ColumnTwips();
  const long besideWidth = beside < 0 ? 0 : widths[static_cast<std::size_t>(beside)];
  drag_ = Drag{col, beside, x, widths[static_cast<std::size_t>(col)], besideWidth};
}

void GridWidget::SetColumn(int col, long width) {
  if (col >= 0) columns_.SetWidth(model_, col, std::max(width, kNarrowest));
}

/// The border goes with the mouse: what a column gains the one that takes the room loses, and where that
/// stands on the left, the next one.
void GridWidget::DragTo(int x) {
  const std::vector<bool>& takers = layout_.Takers();
  const auto behind = takers.begin() + drag_->col + 1;
  const bool isTaker = takers[static_cast<std::size_t>(drag_->col)];
  const bool takesBehind = std::find(behind, takers.end(), true) != takers.end();
  const bool takesBefore = std::find(takers.begin(), behind, true) != behind;
  const long least = kNarrowest - drag_->width;
  const long most =
      !takesBehind && takesBefore && drag_->beside >= 0 ? drag_->besideWidth - kNarrowest : kWidest;
  const long by = std::clamp(Scale::Twips(x - drag_->from), least, std::max(least, most));
  if (takesBehind || !isTaker || drag_->beside < 0) SetColumn(drag_->col, drag_->width + by);
  if (!takesBehind && takesBefore) SetColumn(drag_->beside, drag_->besideWidth - by);
  MeasureColumns();
}

void GridWidget::WidenColumn(int col, long by) {
  SetColumn(col, layout_.ColumnTwips()[static_cast<std::size_t>(col)] + by);
  columns_.Keep();
  MeasureColumns();
}

int GridWidget::TextWidth(std::string_view text) const {
  return fontMetrics().horizontalAdvance(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

/// The headings, and the totals, which are as long as any amount above them.
template <class Take>
void GridWidget::EachOuterText(int col, const Take& take) const {
  for (const int row : layout_.Titles()) take(model_.Cell(row, col));
  const auto* const plus = dynamic_cast<const CGridPlus*>(&model_);
  for (int row = 0; plus != nullptr && row < plus->Footer.Rows(); ++row)
    take(plus->Footer.TextMatrix(row, col));
}

/// Of many rows some are looked at, so that a grid of any length is measured at once; what none of them told
/// is drawn narrower, or goes on in dots.
std::vector<long> GridWidget::Needs() const {
  std::vector<long> needs(static_cast<std::size_t>(model_.Cols()));
  const std::vector<int>& rows = layout_.Rows();
  const std::size_t step = std::max<std::size_t>(1, rows.size() / kSample);
  for (int col = 0; col < model_.Cols; ++col) {
    if (!model_.IsColVisible(col)) continue;
    int width = 0;
    std::size_t longest = 0;
    EachOuterText(col, [&](std::string_view text) { width = std::max(width, TextWidth(text)); });
    for (std::size_t place = 0; place < rows.size(); place += step) {
      const std::string_view text = Known(rows[place], col);
      const bool isDate = IsDate(text);
      if (text.size() < longest || (!isDate && model_.ColAlignment(col) == kAlignLeft)) continue;
      longest = isDate ? text.size() + 1 : text.size();
      width = std::max(width, TextWidth(isDate && text[2] == '-' ? kWidestDate : text));
    }
    // What is so much longer is no figure.
    const long most = 2 * model_.ColWidth(col);
    if (width > 0)
      needs[static_cast<std::size_t>(col)] = std::min(most, Scale::Twips(width + 2 * Padding() + 1));
  }
  return needs;
}

void GridWidget::FitColumn(int col) {
  int width = 0;
  std::size_t longest = 0;
  const auto take = [&](std::string_view text) {
    // A text of far fewer letters is not wider.
    if (text.size() * 4 < longest * 3) return;
    longest = std::max(longest, text.size());
    width = std::max(width, TextWidth(text));
  };
  EachOuterText(col, take);
  for (const int row : layout_.Rows()) take(Known(row, col));
  SetColumn(col, Scale::Twips(width + 2 * Padding() + 1));
  columns_.Keep();
  MeasureColumns();
}

void GridWidget::PutAside(int col, bool aside) {
  columns_.PutAside(model_, col, aside);
  columns_.Keep();
  MeasureColumns();
}

void GridWidget::ResetColumns() {
  columns_.Reset();
  columns_.Keep();
  MeasureColumns();
}

}  // namespace quillon
