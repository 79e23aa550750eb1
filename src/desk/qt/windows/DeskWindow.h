#pragma once

#include <QMainWindow>
#include <QTemporaryDir>
#include <functional>
#include <memory>

#include "desk/print/DeskReports.h"
#include "desk/qt/windows/ReportCopy.h"
#include "desk/shell/Desk.h"

class QLabel;
class QToolButton;
class QMenu;

namespace quillon {

class DeskArea;
class QtRuntime;
class StartPage;

/// The main window: menus, the area of the full screens, and a line that says which books are open.
class DeskWindow : public QMainWindow, private ReportObserver {
 public:
  /// An empty path looks for the module beside the program. Throws HostError when it cannot be loaded.
  DeskWindow(QtRuntime& runtime, const std::string& modulePath);
  ~DeskWindow() override;

  /// What is wrong with the firm in plain words; empty when it is open.
  QString OpenFirm(const QString& folder, const QString& user = {}, int startYear = 0);

  /// The sample firm of this user, which is made at the first time.
  void OpenSample();
  void AskFirm();
  Desk& Books() { return *desk_; }

  void SetZoom(int percent);

  /// Carries out a screen in a firm of trial, in a desk of its own, and returns when that has closed. Throws
  /// HostError.
  std::function<void(const QString& folder, const QString& user, int startYear, const QString& work)> OnTrial;

  /// Starts a desk of its own to look at a copied firm. Throws HostError.
  std::function<void(const QString& folder, const QString& user)> OnCopy;

  /// Nobody shall take what is open in this desk for the firm itself.
  void MarkAsCopy();

  /// In a firm of trial: opens the screen, "acmassdeletion:201", and closes the desk when it is left.
  void CarryOutTrial(const std::string& work);

  /// Before it is shown: place, size and state as they were when a desk was last closed.
  void RestorePlace();

  /// Starts a desk on another firm, which this process cannot open beside the first: called when this desk is
  /// ready to close, and closes afterwards. Without it the firm is opened here.
  std::function<void(const QString& folder, const QString& user, int startYear)> OnOtherFirm;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void OnReport(const ReportShown& report) override;
  void Preview(ReportCopy report, bool print);
  void BuildMenus();
  QMenu* AddMenu(const QString& title);
  void BuildFirmMenu();
  void BuildBooksMenu();
  void BuildWindowsMenu();
  void BuildHelpMenu();
  void AddZooms(QMenu& menu);
  void FillWindows(QMenu& menu);

  /// Makes the lines anew that the firm's module and user have.
  void ShowMenuLines();
  QMenu& MenuOfLine(const QString& title);
  QAction* AddAct(QMenu& menu, const QString& text, const QKeySequence& key, void (DeskWindow::*act)());

  /// Asks each form whether it may close; false when one refused.
  bool CloseForms();
  void CloseFirm();

  /// Asks what the firm's lock leaves to the user. Answers what is wrong; empty when the firm is open.
  QString TryFirm(const QString& folder, const QString& user, int startYear);
  void AskYear();
  void AskUser();
  void AskPrinter();
  void OpenStatement();
  void OpenAccount();
  void ShowKeys();
  void ShowAbout();
  void ShowBusy(bool on, const std::string& text);
  void ShowWaiting(bool on);
  void ShowState();

  /// Closes the screens, takes the firm back to before a run of bulk work and opens it again.
  void GoBack(int run);

  /// Closes the firm when another program asks all to leave it.
  void LeaveWhereAsked();
  bool MayCloseScreens(const std::string& why);
  void ShowPage();
  void TakeArea();
  void FitScreen();
  void Say(const QString& text);
  void Tell(const QString& text);
  ScreenArea AreaNow() const;

  QtRuntime& runtime_;
  QTemporaryDir reports_;
  DeskArea* area_;
  StartPage* start_;
  QLabel* firm_;
  QToolButton* year_;
  QLabel* user_;
  QLabel* selected_;
  QLabel* busy_;
  QString beforeWaiting_;  // what busy_ told
  QString folder_;
  QList<QAction*> firmActs_;
  QList<QAction*> lineActs_;
  QList<QMenu*> lineMenus_;     // those that stand for their lines alone
  QAction* firmEnd_ = nullptr;  // lines of the Firm menu come before it
  QMenu* windows_ = nullptr;
  std::unique_ptr<Desk> desk_;
};

}  // namespace quillon
