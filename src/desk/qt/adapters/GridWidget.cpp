#include "desk/qt/adapters/GridWidget.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "desk/qt/adapters/GridAccessible.h"
#include "desk/qt/adapters/LinePainter.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"
#include "host/controls/CGridPlus.h"

namespace quillon {

namespace {

constexpr long kPadding = 90;  // twips
constexpr int kLineTop = 2;
constexpr const char* kRuled = "*hline1*";

QColor Translucent(QColor color, int alpha) {
  color.setAlpha(alpha);
  return color;
}

Qt::Alignment AlignmentOf(int alignment) {
  switch (alignment) {
    case kAlignRight:
      return Qt::AlignRight | Qt::AlignVCenter;
    case kAlignCentre:
      return Qt::AlignHCenter | Qt::AlignVCenter;
    default:
      return Qt::AlignLeft | Qt::AlignVCenter;
  }
}

}  // namespace

GridWidget::GridWidget(GridModel& model, QWidget* parent) : QAbstractScrollArea(parent), model_(model) {
  setFrameShape(QFrame::NoFrame);
  viewport()->setMouseTracking(true);
  viewport()->setAutoFillBackground(false);
  GridAccessible::Offer();
}

int GridWidget::Padding() { return Scale::Px(kPadding); }

void GridWidget::Touch() {
  stale_ = true;
  SettleSoon();
}

void GridWidget::SettleSoon() {
  if (waiting_) return;
  waiting_ = true;
  QMetaObject::invokeMethod(
      this, [this] { Settle(); }, Qt::QueuedConnection);
}

void GridWidget::Measure() {
  layout_.Measure(model_);
  needs_ = Needs();
  layout_.MeasureColumns(model_, columns_, needs_, viewport()->width());
  stale_ = false;
  UpdateBars();
}

void GridWidget::Settle() {
  waiting_ = false;
  if (stale_ || !layout_.Fits(model_)) Measure();
  // The keys move the end of a selection, which a cursor alone is too.
  const CellPlace cursor{model_.RowSel, model_.ColSel};
  if (cursor != cursor_) {
    cursor_ = cursor;
    ScrollTo(cursor.row, cursor.col);
    QAccessibleEvent moved(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&moved);
  }
  Look();
  if (OnMoved) OnMoved();
  viewport()->update();
}

void GridWidget::Look() {
  if (!OnLook || !model_.Redraw || layout_.Rows().empty() || !isVisible()) return;
  const int top = Scrolled();
  const std::size_t last = layout_.Rows().size() - 1;
  const std::size_t from = std::min(layout_.PlaceAt(top), last);
  const std::size_t to = std::min(layout_.PlaceAt(top + Body().height()), last);
  if (!model_.HasView()) {
    OnLook(layout_.Rows()[from], layout_.Rows()[to]);
    return;
  }
  for (std::size_t place = from; place <= to; ++place) OnLook(layout_.Rows()[place], layout_.Rows()[place]);
}

/// What was not read yet is not empty.
std::string_view GridWidget::Known(int row, int col) const {
  return model_.KnownCell(row, col).value_or("…");
}

void GridWidget::UpdateBars() {
  const QRect body = Body();
  verticalScrollBar()->setRange(0, WholeFrom(std::max(0, layout_.Height() - body.height())));
  verticalScrollBar()->setPageStep(std::max(1, body.height()));
  verticalScrollBar()->setSingleStep(layout_.Rows().empty() ? 1 : layout_.RowHeight(0));
  horizontalScrollBar()->setRange(0, std::max(0, layout_.Width() - body.width()));
  horizontalScrollBar()->setPageStep(std::max(1, body.width()));
  horizontalScrollBar()->setSingleStep(Scale::Px(600));
  TellSight();
}

/// No row is shown in half, unless so few have room that much of it would stay empty.
bool GridWidget::IsShownWhole(std::size_t place) const {
  constexpr int kFewRows = 4;
  return layout_.RowHeight(place) * kFewRows <= Body().height();
}

/// The scrolling, as far as the row that begins there.
int GridWidget::Scrolled() const {
  const int value = verticalScrollBar()->value();
  const std::size_t place = layout_.PlaceAt(value);
  return place < layout_.Rows().size() && IsShownWhole(place) ? layout_.RowTop(place) : value;
}

/// The same or the beginning of the next row, so that nothing before it is shown in half.
int GridWidget::WholeFrom(int scrolling) const {
  const std::size_t place = layout_.PlaceAt(scrolling);
  const bool begins = place >= layout_.Rows().size() || layout_.RowTop(place) == scrolling;
  return begins || !IsShownWhole(place) ? scrolling : layout_.RowTop(place + 1);
}

void GridWidget::TellSight() {
  const QRect body = Body();
  model_.TellSight({Scale::Twips(horizontalScrollBar()->value()), Scale::Twips(Scrolled()),
                    Scale::Twips(body.width()), Scale::Twips(body.height()), layout_.ColumnTwips(),
                    layout_.Aside()});
}

void GridWidget::ScrollTo(int row, int col) {
  const QRect body = Body();
  const std::size_t place = layout_.PlaceOf(row);
  QScrollBar& down = *verticalScrollBar();
  if (place < layout_.Rows().size()) {
    const int top = layout_.RowTop(place);
    const int bottom = top + layout_.RowHeight(place);
    if (top < Scrolled()) down.setValue(top);
    if (bottom > Scrolled() + body.height()) down.setValue(WholeFrom(bottom - body.height()));
  }
  if (col < 0 || col >= layout_.Cols() || layout_.ColWidth(col) == 0) return;
  QScrollBar& right = *horizontalScrollBar();
  const int left = layout_.ColLeft(col);
  if (left + layout_.ColWidth(col) > right.value() + body.width()) {
    right.setValue(left + layout_.ColWidth(col) - body.width());
  }
  if (left < right.value()) right.setValue(left);
}

int GridWidget::TitleLine() const { return model_.Title().empty() ? 0 : Scale::Px(GridModel::kTitleLine); }

int GridWidget::FooterHeight() const {
  const auto* plus = dynamic_cast<const CGridPlus*>(&model_);
  return plus != nullptr ? FooterLine() * plus->Footer.Rows() : 0;
}

int GridWidget::FooterLine() const {
  const auto* plus = dynamic_cast<const CGridPlus*>(&model_);
  if (plus == nullptr || plus->Footer.Rows() == 0) return 0;
  return std::max(Scale::Px(plus->FooterLine()), fontMetrics().height() + Padding());
}

QRect GridWidget::Body() const {
  const int top = TitleLine() + layout_.TitleHeight();
  return {0, top, viewport()->width(), std::max(0, viewport()->height() - top - FooterHeight())};
}

int GridWidget::X(int col) const {
  return layout_.ColLeft(col) - (col < model_.FixedCols ? 0 : horizontalScrollBar()->value());
}

QRect GridWidget::CellRect(int row, int col) const {
  const std::size_t place = layout_.PlaceOf(row);
  if (place >= layout_.Rows().size() || layout_.Rows()[place] != row) return {};
  if (col < 0 || col >= layout_.Cols() || layout_.ColWidth(col) == 0) return {};
  const int y = Body().top() + layout_.RowTop(place) - Scrolled();
  return {X(col), y, layout_.ColWidth(col), layout_.RowHeight(place)};
}

QRect GridWidget::CursorRect() const { return CellRect(model_.Row, model_.Col) & Body(); }

QString GridWidget::CursorText() const {
  const int row = model_.Row;
  if (row < model_.FixedRows || row >= model_.Rows || model_.Col >= model_.Cols) return {};
  QStringList cells;
  for (int col = 0; col < model_.Cols; ++col) {
    const bool wanted = model_.IsColShown(model_.Col) ? col == model_.Col : model_.IsColShown(col);
    const std::string text(Known(row, col));
    if (!wanted || text.empty()) continue;
    const std::string title = model_.FixedRows > 0 ? model_.TextMatrix(0, col) + ": " : std::string();
    cells << QString::fromStdString(title + text);
  }
  return QStringLiteral("Row %1, %2").arg(row).arg(cells.join(QStringLiteral(", ")));
}

GridWidget::CellPlace GridWidget::CellAt(const QPoint& point) const {
  const QRect body = Body();
  if (!body.contains(point)) return {};
  const std::size_t place = layout_.PlaceAt(point.y() - body.top() + Scrolled());
  if (place >= layout_.Rows().size()) return {};
  return {layout_.Rows()[place], ColAt(point.x())};
}

int GridWidget::ColAt(int x) const {
  const int col = layout_.ColAt(x);
  return col >= 0 && col < model_.FixedCols ? col : layout_.ColAt(x + horizontalScrollBar()->value());
}

bool GridWidget::HasKeys() const { return leads_ || model_.HasFocus(); }

QColor GridWidget::Back() const {
  return model_.BackColor == Control::kDefaultColor ? Theme::Surface() : Theme::ColorOf(model_.BackColor);
}

template <class DrawCell>
void GridWidget::EachCol(QPainter& painter, const QRect& band, const DrawCell& draw) const {
  const int fixed = std::min(model_.FixedCols(), layout_.Cols());
  const int edge = layout_.ColLeft(fixed);
  for (int col = 0; col < layout_.Cols(); ++col) {
    const int width = layout_.ColWidth(col);
    const int x = X(col);
    if (width == 0 || x + width < 0 || x > band.right()) continue;
    if (col >= fixed && x + width <= edge) continue;
    const bool slidUnder = col >= fixed && x < edge;
    if (slidUnder) {
      painter.save();
      painter.setClipRect(band.adjusted(edge, 0, 0, 0), Qt::IntersectClip);
    }
    draw(col, QRect(x, band.top(), width, band.height()));
    if (slidUnder) painter.restore();
  }
}

bool GridWidget::DrawLines(QPainter& painter, const QRect& cell, const QString& text, int alignment) const {
  const bool lines = model_.WordWrap || text.contains(QLatin1Char('\n'));
  if (!lines || cell.height() < 2 * LinePainter::LineHeight(painter.font())) return false;
  LinePainter::Draw(painter, cell.adjusted(0, kLineTop, 0, -1),
                    AlignmentOf(alignment) & Qt::AlignHorizontal_Mask, text, model_.WordWrap);
  return true;
}

void GridWidget::DrawText(QPainter& painter, QRect cell, std::string_view text, int alignment) const {
  if (text.empty()) return;
  cell.adjust(Padding(), 0, -Padding(), 0);
  QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  if (DrawLines(painter, cell, shown, alignment)) return;
  const QFontMetrics metrics(painter.font());
  const int width = metrics.horizontalAdvance(shown);
  if (width > cell.width() && alignment == kAlignRight && cell.width() > 0) {
    // A figure that lost its end would be another figure: it is drawn narrower, but whole.
    painter.save();
    painter.translate(cell.left(), cell.top());
    painter.scale(static_cast<double>(cell.width()) / width, 1);
    painter.drawText(QRect(0, 0, width, cell.height()), Qt::AlignLeft | Qt::AlignVCenter, shown);
    painter.restore();
    return;
  }
  if (width > cell.width()) shown = metrics.elidedText(shown, Qt::ElideRight, cell.width());
  painter.drawText(cell, static_cast<int>(AlignmentOf(alignment)) | Qt::TextSingleLine, shown);
}

void GridWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(viewport());
  painter.setFont(font());
  painter.fillRect(viewport()->rect(), Back());
  // While a form fills the grid, its rows are not for showing.
  if (!model_.IsShownSoFar()) return;
  if (stale_ || !layout_.Fits(model_)) Measure();
  if (model_.HasView() && layout_.Rows().empty()) {
    painter.setPen(Theme::Muted());
    painter.drawText(Body().adjusted(Padding(), Padding(), -Padding(), 0), Qt::AlignTop | Qt::AlignLeft,
                     QStringLiteral("Nothing found"));
  }
  PaintRows(painter);
  PaintCursor(painter);
  PaintTitles(painter);
  PaintFooter(painter);
  painter.setPen(HasKeys() ? Theme::Accent() : Theme::Border());
  painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
}

void GridWidget::PaintTitles(QPainter& painter) const {
  const int line = TitleLine();
  const int width = viewport()->width();
  if (line > 0) {
    const QRect band(0, 0, width, line);
    painter.fillRect(band, Theme::Heading());
    painter.setPen(Theme::Accent());
    DrawText(painter, band, model_.Title(), kAlignCentre);
  }
  for (std::size_t place = 0; place < layout_.Titles().size(); ++place) {
    const QRect band(0, line + layout_.TitleTop(place), width, layout_.TitleRowHeight(place));
    painter.fillRect(band, Theme::Heading());
    painter.setPen(Theme::Border());
    painter.drawLine(band.bottomLeft(), band.bottomRight());
    const int row = layout_.Titles()[place];
    EachCol(painter, band, [&](int col, const QRect& cell) {
      painter.setPen(Theme::Border());
      painter.drawLine(cell.right(), cell.top() + Padding(), cell.right(), cell.bottom() - Padding());
      painter.setPen(Theme::Text());
      const bool sorts = col == model_.Look.SortedBy() && place + 1 == layout_.Titles().size();
      const std::string arrow = !sorts ? "" : model_.Look.IsDownwards() ? " ▼" : " ▲";
      DrawText(painter, cell, model_.TextMatrix(row, col) + arrow, model_.HeadingAlignment(col));
    });
  }
}

void GridWidget::PaintRows(QPainter& painter) const {
  const QRect body = Body();
  painter.save();
  painter.setClipRect(body);
  const int scrolled = Scrolled();
  for (std::size_t place = layout_.PlaceAt(scrolled); place < layout_.Rows().size(); ++place) {
    const int top = body.top() + layout_.RowTop(place) - scrolled;
    const bool whole = top + layout_.RowHeight(place) <= body.bottom() + 1;
    if (top > body.bottom() || (!whole && IsShownWhole(place))) break;
    PaintRow(painter, layout_.Rows()[place], {0, top, body.width(), layout_.RowHeight(place)});
  }
  painter.restore();
}

void GridWidget::PaintRow(QPainter& painter, int row, const QRect& band) const {
  const std::vector<GridModel::Paint>& paints = model_.Paints(row);
  const QColor own =
      model_.ForeColor == Control::kDefaultColor ? Theme::Text() : Theme::ColorOf(model_.ForeColor);
  const bool block = model_.IsBlockSelected();
  EachCol(painter, band, [&](int col, const QRect& cell) {
    QColor fore = own;
    for (const GridModel::Paint& paint : paints) {
      if (col < paint.firstCol || col > paint.lastCol) continue;
      if (paint.backColor != Control::kDefaultColor) painter.fillRect(cell, Theme::ColorOf(paint.backColor));
      if (paint.foreColor != Control::kDefaultColor) fore = Theme::ColorOf(paint.foreColor);
    }
    if (block && model_.IsSelected(row, col)) {
      painter.fillRect(cell, Translucent(Theme::Accent(), 60));
    }
    if (model_.Finder.Marks(Known(row, col))) {
      painter.fillRect(cell.adjusted(1, 1, -1, -2), Theme::Found());
      painter.setPen(Theme::FoundEdge());
      painter.drawRect(cell.adjusted(1, 1, -2, -3));
    }
    const bool command = col == layout_.Cols() - 1 && Known(row, col) == kRuled;
    if (command) return;
    painter.setPen(fore);
    QFont font = painter.font();
    font.setUnderline(model_.CellFontUnderline(row, col));
    painter.setFont(font);
    DrawText(painter, cell, Known(row, col), model_.ColAlignment(col));
  });
  const bool ruled = model_.Cols > 0 && Known(row, model_.Cols - 1) == kRuled;
  painter.setPen(ruled ? QPen(Theme::Text(), 1) : QPen(Translucent(Theme::Border(), 130), 1));
  painter.drawLine(band.bottomLeft(), band.bottomRight());
}

void GridWidget::PaintCursor(QPainter& painter) const {
  const QRect body = Body();
  const std::size_t place = layout_.PlaceOf(model_.Row);
  if (place >= layout_.Rows().size() || layout_.Rows()[place] != model_.Row) return;
  painter.save();
  painter.setClipRect(body);
  const QRect row(0, body.top() + layout_.RowTop(place) - Scrolled(),
                  std::min(body.width(), layout_.Width() - horizontalScrollBar()->value()),
                  layout_.RowHeight(place));
  painter.fillRect(row, Translucent(Theme::Accent(), HasKeys() ? 38 : 18));
  const QRect cell = CellRect(model_.Row, model_.Col);
  if (!cell.isEmpty()) {
    painter.setPen(QPen(HasKeys() ? Theme::Accent() : Theme::Border(), 2));
    painter.drawRect(cell.adjusted(1, 1, -1, -2));
  }
  painter.restore();
}

void GridWidget::PaintFooter(QPainter& painter) const {
  const auto* plus = dynamic_cast<const CGridPlus*>(&model_);
  const int line = FooterLine();
  if (line == 0) return;
  const int top = viewport()->height() - FooterHeight();
  for (int row = 0; row < plus->Footer.Rows(); ++row) {
    const QRect band(0, top + row * line, viewport()->width(), line);
    const long color = plus->Footer.BackColor(row);
    painter.fillRect(band, color == Control::kDefaultColor ? Theme::Heading() : Theme::ColorOf(color));
    painter.setPen(Theme::Text());
    EachCol(painter, band, [&](int col, const QRect& cell) {
      DrawText(painter, cell, plus->Footer.TextMatrix(row, col), model_.ColAlignment(col));
    });
  }
  painter.setPen(Theme::Muted());
  painter.drawLine(0, top, viewport()->width(), top);
}

void GridWidget::ShowStrip(QWidget* strip) {
  if (strip != strip_ && strip_ != nullptr) strip_->hide();
  strip_ = strip;
  const int height = strip != nullptr ? strip->sizeHint().height() : 0;
  if (viewportMargins().bottom() != height) setViewportMargins(0, 0, 0, height);
  PlaceStrip();
}

void GridWidget::PlaceStrip() {
  if (strip_ == nullptr) return;
  const QRect cells = viewport()->geometry();
  strip_->setGeometry(cells.left(), cells.bottom() + 1, cells.width(), strip_->sizeHint().height());
  strip_->show();
}

void GridWidget::resizeEvent(QResizeEvent* /*event*/) {
  PlaceStrip();
  cursor_ = {};
  // The rows are as they were.
  if (!stale_ && layout_.Fits(model_)) MeasureColumns();
  SettleSoon();
}

void GridWidget::scrollContentsBy(int /*dx*/, int /*dy*/) {
  TellSight();
  Look();
  if (OnMoved) OnMoved();
  viewport()->update();
}

void GridWidget::mousePressEvent(QMouseEvent* event) {
  if (const int border = BorderAt(event->position().toPoint()); border >= 0) {
    pressed_ = {};
    if (event->button() == Qt::LeftButton) StartDrag(border, event->position().toPoint().x());
    return;
  }
  pressed_ = event->button() == Qt::LeftButton ? CellAt(event->position().toPoint()) : CellPlace();
  dragged_ = pressed_;
  const QPoint at = event->position().toPoint();
  if (event->button() == Qt::LeftButton && IsOnHeadings(at)) {
    const int col = ColAt(at.x());
    if (OnHeading && col >= 0) OnHeading(col);
  }
  if (pressed_.row < 0 || pressed_.col < 0) return;
  if (OnExtend && (event->modifiers() & Qt::ShiftModifier)) {
    const CellPlace corner = std::exchange(pressed_, CellPlace());
    OnExtend(corner.row, corner.col);
  } else if (OnPress) {
    OnPress(pressed_.row, pressed_.col);
  }
}

void GridWidget::mouseMoveEvent(QMouseEvent* event) {
  if (drag_) {
    DragTo(event->position().toPoint().x());
    return;
  }
  if (event->buttons() == Qt::NoButton) {
    if (BorderAt(event->position().toPoint()) >= 0) {
      viewport()->setCursor(Qt::SplitHCursor);
    } else {
      viewport()->unsetCursor();
    }
  }
  if (pressed_.row < 0 || !(event->buttons() & Qt::LeftButton)) return;
  const CellPlace over = CellAt(event->position().toPoint());
  if (over.row < 0 || over.col < 0 || over == dragged_) return;
  dragged_ = over;
  if (OnDrag) OnDrag(pressed_.row, pressed_.col, over.row, over.col);
}

void GridWidget::mouseReleaseEvent(QMouseEvent* /*event*/) {
  pressed_ = {};
  if (!drag_) return;
  drag_.reset();
  columns_.Keep();
}

void GridWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  if (const int border = BorderAt(event->position().toPoint()); border >= 0) {
    if (event->button() == Qt::LeftButton) FitColumn(border);
    return;
  }
  const CellPlace cell = CellAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || cell.row < 0 || cell.col < 0) return;
  if (OnDoubleClick) OnDoubleClick(cell.row, cell.col);
}

void GridWidget::contextMenuEvent(QContextMenuEvent* event) {
  if (!OnMenu) return;
  if (event->reason() == QContextMenuEvent::Mouse && IsOnHeadings(event->pos())) {
    if (OnHeadingMenu) OnHeadingMenu(ColAt(event->pos().x()), event->globalPos());
  } else if (event->reason() == QContextMenuEvent::Mouse) {
    const CellPlace cell = CellAt(event->pos());
    OnMenu(cell.row, cell.col, event->globalPos());
  } else {
    OnMenu(-1, -1, viewport()->mapToGlobal(CellRect(model_.Row, model_.Col).bottomLeft()));
  }
}

bool GridWidget::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QAbstractScrollArea::viewportEvent(event);
  // A text that does not fit its cell is told whole.
  auto* const help = static_cast<QHelpEvent*>(event);
  const CellPlace cell = CellAt(help->pos());
  QString text;
  if (cell.row >= 0 && cell.col >= 0 && model_.Redraw && layout_.Fits(model_)) {
    text = QString::fromStdString(std::string(Known(cell.row, cell.col)));
    if (fontMetrics().horizontalAdvance(text) <= layout_.ColWidth(cell.col) - 2 * Padding()) text.clear();
  }
  QToolTip::showText(help->globalPos(), text, this);
  return true;
}

}  // namespace quillon
