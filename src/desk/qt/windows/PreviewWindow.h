#pragma once

#include "desk/qt/windows/PagesWindow.h"
#include "desk/qt/windows/ReportCopy.h"
#include "host/services/PrintSetup.h"

class QLabel;
class QLineEdit;

namespace quillon {

class PageView;

/// A report on the screen: pages, zoom, search, print, and the report as a PDF or a spreadsheet's file.
class PreviewWindow : public PagesWindow {
 public:
  PreviewWindow(ReportCopy report, QWidget* parent);

  PageView& Pages() { return *pages_; }
  void Zoom(int step);
  void Find();
  void GoToPage(int step);
  void Print();
  void SavePdf();
  void SaveCsv();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void done(int result) override;

 private:
  void ShowState();
  void Tell(const QString& text);

  /// The chosen name, or nothing.
  QString AskName(const QString& title, const QString& suffix);
  void Write(const QString& file, const QByteArray& bytes);
  void SavePages(const std::string& file);

  /// Just the pages that the dialog asked for, and the PDF with them.
  bool AreAll(const PrintSetup& setup) const;
  ReportPages PagesOf(const PrintSetup& setup) const;
  std::string FileOf(const PrintSetup& setup) const;

  ReportCopy report_;
  QLineEdit* search_;
  QLabel* state_;
};

}  // namespace quillon
