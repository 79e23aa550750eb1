#pragma once

#include <QDialog>
#include <functional>

#include "desk/print/ReportPages.h"

class QHBoxLayout;
class QScrollArea;

namespace quillon {

class PageView;

/// A window that shows pages below a line of tools.
class PagesWindow : public QDialog {
 protected:
  PagesWindow(const QString& title, QWidget* parent);

  /// The pages, once; they must live as long as the window.
  void ShowPages(const ReportPages& pages);

  QHBoxLayout& Tools() { return *tools_; }
  void AddTool(const QString& caption, const QString& icon, const std::function<void()>& pressed);

  PageView* pages_ = nullptr;
  QScrollArea* area_;

 private:
  QHBoxLayout* tools_;
};

}  // namespace quillon
