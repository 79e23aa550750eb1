#pragma once

#include <QWidget>

#include "desk/print/ReportPages.h"

namespace quillon {

/// The pages of a report one below the other, as they come out on paper.
class PageView : public QWidget {
 public:
  PageView(const ReportPages& pages, QWidget* parent = nullptr);

  /// 100 shows a page in its own size.
  void SetPercent(int percent);
  int Percent() const { return percent_; }

  /// Marks the next place with the text, ignoring case, after the one marked; from the top again after the
  /// last one. False when no page has it.
  bool FindNext(const QString& text);

  /// What is marked, in pixels of this widget; empty without a mark.
  QRect Mark() const;

  /// In pixels; pages count from 0.
  int PageTop(std::size_t page) const;
  std::size_t PageAt(int y) const;
  std::size_t Pages() const { return pages_.Pages.size(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  double PixelsPerTwip() const;
  int PageHeight() const;
  QImage Draw(std::size_t page, const QSize& size) const;

  const ReportPages& pages_;
  int percent_ = 100;
  std::size_t markedPage_ = 0;
  std::size_t markedText_ = 0;
  bool marked_ = false;
};

}  // namespace quillon
