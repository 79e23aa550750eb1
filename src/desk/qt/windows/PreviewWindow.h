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
  void FitWidth();
  void Find();

  /// By so many pages from the one at the top.
  void GoToPage(int step);

  /// To a page, counted from 0; the last one for a number behind it.
  void ShowPage(int page);
  void AskPage();
  void Print();
  void SavePdf();
  void SaveCsv();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void done(int result) override;

 private:
  void ShowState();
  static QString Corrected();
  void Tell(const QString& text);

  /// What failed, in a box that waits to be read.
  void TellFailure(const QString& text);
  bool GoByKey(const QKeyEvent& event);
  void OpenFolder();

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
  QString saved_;  // the file written last
};

}  // namespace quillon
