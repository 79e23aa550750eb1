#include "desk/qt/windows/PageView.h"

#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>

#include "desk/print/ReportPainter.h"
#include "desk/print/TextMeasure.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"
#include "host/forms/Runtime.h"

namespace quillon {

namespace {

constexpr int kGap = 16;
constexpr int kTwipsPerMetre = 56693;

}  // namespace

PageView::PageView(const ReportPages& pages, QWidget* parent) : QWidget(parent), pages_(pages) {
  SetPercent(percent_);
}

double PageView::PixelsPerTwip() const {
  return percent_ / 100.0 * Scale::Percent() / 100.0 / Runtime::kTwipsPerPixel;
}

int PageView::PageHeight() const { return static_cast<int>(std::lround(pages_.Height * PixelsPerTwip())); }

int PageView::PageTop(std::size_t page) const {
  return kGap + static_cast<int>(page) * (PageHeight() + kGap);
}

std::size_t PageView::PageAt(int y) const {
  const int page = std::max(0, y - kGap / 2) / (PageHeight() + kGap);
  return std::min(static_cast<std::size_t>(page), Pages() - 1);
}

void PageView::SetPercent(int percent) {
  percent_ = percent;
  setFixedSize(static_cast<int>(std::lround(pages_.Width * PixelsPerTwip())) + 2 * kGap, PageTop(Pages()));
  update();
}

bool PageView::FindNext(const QString& text) {
  if (text.isEmpty() || Pages() == 0) return false;
  std::size_t page = marked_ ? markedPage_ : 0;
  std::size_t item = marked_ ? markedText_ + 1 : 0;
  // Once round, and the page where the search began twice: behind the mark and before it.
  for (std::size_t looked = 0; looked <= Pages(); ++looked) {
    const std::vector<ReportText>& texts = pages_.Pages[page].Texts;
    for (; item < texts.size(); ++item) {
      if (!QString::fromStdString(texts[item].Text).contains(text, Qt::CaseInsensitive)) continue;
      markedPage_ = page;
      markedText_ = item;
      marked_ = true;
      update();
      return true;
    }
    item = 0;
    page = (page + 1) % Pages();
  }
  marked_ = false;
  update();
  return false;
}

QRect PageView::Mark() const {
  if (!marked_) return {};
  const ReportText& text = pages_.Pages[markedPage_].Texts[markedText_];
  const Font& font = pages_.Fonts.at(text.Font);
  const double scale = PixelsPerTwip();
  const double top = text.Baseline - TextMeasure::Ascent(font);
  return QRectF(kGap + text.X * scale, PageTop(markedPage_) + top * scale,
                TextMeasure::Width(font, text.Text) * scale, TextMeasure::LineHeight(font) * scale)
      .toAlignedRect()
      .adjusted(-2, 0, 2, 0);
}

QImage PageView::Draw(std::size_t page, const QSize& size) const {
  const qreal ratio = devicePixelRatioF();
  QImage sheet(size * ratio, QImage::Format_ARGB32_Premultiplied);
  sheet.fill(Qt::transparent);
  // A dot of the picture stands for a twip, so that fonts keep their size among them.
  sheet.setDotsPerMeterX(kTwipsPerMetre);
  sheet.setDotsPerMeterY(kTwipsPerMetre);
  QPainter painter(&sheet);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.scale(PixelsPerTwip() * ratio, PixelsPerTwip() * ratio);
  ReportPainter::Paint(pages_, page, painter);
  return sheet;
}

void PageView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const int width = this->width() - 2 * kGap;
  for (std::size_t page = 0; page < Pages(); ++page) {
    const QRect sheet(kGap, PageTop(page), width, PageHeight());
    if (!sheet.intersects(event->rect())) continue;
    painter.fillRect(sheet, Qt::white);
    painter.setPen(Theme::Border());
    painter.drawRect(sheet.adjusted(0, 0, -1, -1));
    if (marked_ && page == markedPage_) painter.fillRect(Mark(), QColor(0xFF, 0xE0, 0x80));
    painter.drawImage(sheet, Draw(page, sheet.size()));
  }
}

}  // namespace quillon
