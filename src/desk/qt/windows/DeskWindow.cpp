#include "desk/qt/windows/DeskWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QSettings>
#include <QStackedLayout>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>
#include <algorithm>
#include <filesystem>

#include "desk/firm/FirmFile.h"
#include "desk/firm/FirmLock.h"
#include "desk/qt/adapters/Acts.h"
#include "desk/qt/adapters/ElidedLabel.h"
#include "desk/qt/adapters/Icons.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"
#include "desk/qt/dialogs/ChoiceDialog.h"
#include "desk/qt/dialogs/OpenFirmDialog.h"
#include "desk/qt/dialogs/RecentFirms.h"
#include "desk/qt/windows/DeskArea.h"
#include "desk/qt/windows/FormView.h"
#include "desk/qt/windows/PreviewWindow.h"
#include "desk/qt/windows/QtRuntime.h"
#include "desk/qt/windows/StartPage.h"
#include "desk/sample/SampleFirm.h"
#include "desk/screens/BulkTrial.h"
#include "host/data/CDataSet.h"
#include "host/forms/Progress.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr int kWidth = 1280;
constexpr int kHeight = 760;
constexpr long kBesideAmounts = 300;
constexpr ScreenArea kLeastArea{0, 0, 15000, 7800};
constexpr long kLeastPart = 300;
constexpr int kSaidFor = 8000;  // milliseconds
constexpr int kLookEvery = 3000;

/// Each set of displays has a place of its own.
QString PlaceKey() {
  QStringList displays;
  for (const QScreen* display : QApplication::screens()) {
    const QRect place = display->geometry();
    displays << QStringLiteral("%1x%2+%3+%4")
                    .arg(place.width())
                    .arg(place.height())
                    .arg(place.left())
                    .arg(place.top());
  }
  return QStringLiteral("place/") + displays.join(QLatin1Char(' '));
}

/// What finds no room in the line ends in dots.
QLabel* NewPartOfLine(QWidget* parent) {
  auto* const part = new ElidedLabel(parent);
  part->setMinimumWidth(Scale::Px(kLeastPart));
  return part;
}

}  // namespace

DeskWindow::DeskWindow(QtRuntime& runtime, const std::string& modulePath)
    : runtime_(runtime),
      area_(new DeskArea(this)),
      start_(new StartPage(this)),
      firm_(NewPartOfLine(this)),
      year_(new QToolButton(this)),
      user_(NewPartOfLine(this)),
      selected_(NewPartOfLine(this)),
      busy_(NewPartOfLine(this)) {
  setWindowIcon(Icons::Of(QStringLiteral("desk")));
  auto* const middle = new QWidget(this);
  auto* const pages = new QStackedLayout(middle);
  pages->addWidget(start_);
  pages->addWidget(area_);
  setCentralWidget(middle);
  middle->installEventFilter(this);
  year_->setAutoRaise(true);
  year_->setFocusPolicy(Qt::NoFocus);
  year_->setToolTip(QStringLiteral("Another financial year"));
  connect(year_, &QToolButton::clicked, this, &DeskWindow::AskYear);
  statusBar()->addWidget(firm_);
  statusBar()->addWidget(year_);
  statusBar()->addWidget(user_, 1);
  selected_->setContentsMargins(Scale::Px(kBesideAmounts), 0, 0, 0);
  statusBar()->addPermanentWidget(selected_);
  statusBar()->addPermanentWidget(busy_);
  statusBar()->setSizeGripEnabled(false);
  BuildMenus();
  runtime_.SetArea(area_);
  runtime_.OnBusy = [this](bool on, const std::string& text) { ShowBusy(on, text); };
  runtime_.OnSaid = [this](const std::string& text) { Say(QString::fromStdString(text)); };
  runtime_.OnSelected = [this](const std::string& text) { selected_->setText(QString::fromStdString(text)); };
  runtime_.OnProgress = [this](const std::string& text) { busy_->setText(QString::fromStdString(text)); };
  runtime_.OnWaiting = [this](bool on) { ShowWaiting(on); };
  start_->OnOpen = [this] { AskFirm(); };
  start_->OnSample = [this] { OpenSample(); };
  start_->OnStatement = [this] { OpenStatement(); };
  start_->OnAccounts = [this] { OpenAccount(); };
  runtime_.OnTopChanged = [this] { ShowPage(); };
  Desk::Options options;
  options.ModulePath = modulePath;
  options.OutputFolder = reports_.path().toStdString();
  options.Reports = this;
  options.CopiesBulkWork = true;
  desk_ = std::make_unique<Desk>(options);
  desk_->OnGoBack = [this](int run) {
    QMetaObject::invokeMethod(
        this, [this, run] { GoBack(run); }, Qt::QueuedConnection);
  };
  desk_->RunTrial = [this](const std::string& folder, const std::string& form, std::int64_t account) {
    if (!OnTrial) throw HostError("This desk cannot start another one");
    DeskSession& session = desk_->Session();
    OnTrial(QString::fromStdString(folder), QString::fromStdString(session.UserToOpenWith()),
            session.Year().StartYear(), QString::fromStdString(form + ":" + std::to_string(account)));
  };
  desk_->ShowCopy = [this](const std::string& folder) {
    if (!OnCopy) throw HostError("This desk cannot start another one");
    OnCopy(QString::fromStdString(folder), QString::fromStdString(desk_->Session().UserToOpenWith()));
  };
  auto* const look = new QTimer(this);
  connect(look, &QTimer::timeout, this, &DeskWindow::LeaveWhereAsked);
  look->start(kLookEvery);
  const QSize wanted(Scale::Px(kWidth * Runtime::kTwipsPerPixel),
                     Scale::Px(kHeight * Runtime::kTwipsPerPixel));
  resize(wanted.boundedTo(screen()->availableSize()));
  ShowState();
}

DeskWindow::~DeskWindow() {
  centralWidget()->removeEventFilter(this);
  desk_->CloseFirm();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  runtime_.OnBusy = {};
  runtime_.OnSaid = {};
  runtime_.OnSelected = {};
  runtime_.OnProgress = {};
  runtime_.OnWaiting = {};
  runtime_.OnTopChanged = {};
  runtime_.SetArea(nullptr);
}

void DeskWindow::RestorePlace() { restoreGeometry(QSettings().value(PlaceKey()).toByteArray()); }

/// In one line, as long as the window is wide; all of it under the mouse.
void DeskWindow::Say(const QString& text) {
  const int room = statusBar()->width() - Scale::Px(kBesideAmounts);
  statusBar()->setToolTip(text);
  statusBar()->showMessage(statusBar()->fontMetrics().elidedText(text, Qt::ElideRight, room), kSaidFor);
}

void DeskWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  // Its frame is known when it is on the screen.
  QMetaObject::invokeMethod(this, &DeskWindow::FitScreen, Qt::QueuedConnection);
}

/// With its frame the window lies on the screen, also when that is another one than the last time.
void DeskWindow::FitScreen() {
  if (isMaximized() || isFullScreen()) return;
  const QRect room = screen()->availableGeometry();
  const QSize frame = frameGeometry().size() - size();
  if (frameGeometry().width() > room.width() || frameGeometry().height() > room.height()) {
    resize(size().boundedTo(room.size() - frame));
  }
  const QRect whole(pos(), size() + frame);
  const int left =
      std::clamp(whole.left(), room.left(), std::max(room.left(), room.right() + 1 - whole.width()));
  const int top =
      std::clamp(whole.top(), room.top(), std::max(room.top(), room.bottom() + 1 - whole.height()));
  if (QPoint(left, top) != pos()) move(left, top);
}

ScreenArea DeskWindow::AreaNow() const {
  const QSize room = centralWidget()->size();
  // A screen that opens in a small window is made for a larger one, and laid out in the small one.
  return {0, 0, std::max(kLeastArea.width, Scale::Twips(room.width())),
          std::max(kLeastArea.height, Scale::Twips(room.height()))};
}

bool DeskWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == centralWidget() && event->type() == QEvent::Resize) TakeArea();
  return QMainWindow::eventFilter(watched, event);
}

/// The screens that are opened from now on fill the room that there is now.
void DeskWindow::TakeArea() {
  if (desk_ && desk_->HasFirm()) desk_->Session().SetArea(AreaNow());
}

QString DeskWindow::OpenFirm(const QString& folder, const QString& user, int startYear) {
  if (!CloseForms()) return QStringLiteral("A window of the open firm is still in use.");
  if (OnOtherFirm && FirmLock::NeedsFreshProcess(folder.toStdString())) {
    try {
      FirmFile::Read(folder.toStdString());
    } catch (const HostError& error) {
      return QString::fromStdString(error.what());
    }
    OnOtherFirm(folder, user, startYear);
    QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
    return {};
  }
  CloseFirm();
  QString fault = TryFirm(folder, user, startYear);
  ShowState();
  TakeArea();
  return fault;
}

void DeskWindow::MarkAsCopy() {
  setStyleSheet(QStringLiteral("QStatusBar, QStatusBar * { background: #9a3412; color: white; }"));
}

void DeskWindow::CarryOutTrial(const std::string& work) {
  MarkAsCopy();
  desk_->Session().CopiesBulkWork = false;
  const std::size_t colon = work.find(':');
  Acts::Run([&] { quillon::CarryOutTrial(work.substr(0, colon), ValInteger(work.substr(colon + 1))); });
  close();
}

void DeskWindow::GoBack(int run) {
  if (!CloseForms()) return;
  ShowBusy(true, "Going back");
  Acts::LetPaint();
  std::string told = "The firm is as it was before No. " + std::to_string(run) +
                     ". What was there is kept: Books > Bulk Work.";
  try {
    desk_->GoBack(run);
  } catch (const std::exception& error) {
    told = "The firm is as it was: " + std::string(error.what());
  }
  ShowBusy(false, "");
  ShowState();
  TakeArea();
  Tell(QString::fromStdString(told));
}

/// Not in the middle of something; who does not answer in a minute loses the connection.
void DeskWindow::LeaveWhereAsked() {
  if (runtime_.IsWaiting() || QApplication::activeModalWidget() != nullptr || !desk_->HasFirm()) return;
  std::string words;
  Acts::Run([&] { words = desk_->WhoAsksToLeave(); });
  if (words.empty() || !CloseForms()) return;
  CloseFirm();
  ShowState();
  Tell(QStringLiteral("The firm was closed, because all were asked to leave it: %1. Open it again later.")
           .arg(QString::fromStdString(words)));
}

QString DeskWindow::TryFirm(const QString& folder, const QString& user, int startYear) {
  std::string takeOver;
  for (;;) {
    try {
      desk_->OpenFirm(folder.toStdString(), user.toStdString(), startYear, takeOver);
      folder_ = folder;
      RecentFirms::Add(folder);
      return {};
    } catch (const DeadLockError& error) {
      if (runtime_.AskMessage({error.what(), "W", {"Try again", "Cancel"}, "Quillon", 1}) != 1)
        return error.what();
    } catch (const OtherMachineError& error) {
      const std::string take = "Take over from " + error.Host();
      const std::string text = std::string(error.what()) + ". Is it closed on " + error.Host() + "?";
      if (runtime_.AskMessage({text, "W", {take, "Cancel"}, "Quillon", 2}) != 1) return error.what();
      takeOver = error.Host();
    } catch (const std::exception& error) {
      return QString::fromStdString(error.what());
    }
  }
}

bool DeskWindow::CloseForms() {
  if (runtime_.IsWaiting()) return false;
  std::vector<FormPtr> forms = runtime_.AllForms();
  const Runtime::Closing closing(runtime_, forms);
  for (auto form = forms.rbegin(); form != forms.rend(); ++form) {
    bool closed = false;
    Acts::Run([&] { closed = runtime_.Unload(**form, UnloadMode::CloseBox); });
    if (!closed) return false;
  }
  return true;
}

void DeskWindow::CloseFirm() {
  desk_->CloseFirm();
  // Windows that are on their way out hold forms that know the session.
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void DeskWindow::OpenSample() {
  const QString folder =
      QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/sample");
  QString fault;
  if (!std::filesystem::exists(folder.toStdString())) {
    ShowBusy(true, "Making the sample firm");
    Acts::LetPaint();
    try {
      std::filesystem::create_directories(std::filesystem::path(folder.toStdString()).parent_path());
      Progress days("Making the sample firm, day", 0);
      MakeSampleFirm(folder.toStdString(), {.OnDay = [&days] { days.Step(); }, .HasYearBefore = true});
    } catch (const std::exception& error) {
      fault = QString::fromStdString(error.what());
    }
    ShowBusy(false, "");
  }
  if (fault.isEmpty()) fault = OpenFirm(folder);
  if (!fault.isEmpty()) Tell(fault);
}

void DeskWindow::AskFirm() {
  OpenFirmDialog([this](const QString& folder) { return OpenFirm(folder); }, this).exec();
}

/// With screens open the user is asked whether they may go.
bool DeskWindow::MayCloseScreens(const std::string& why) {
  const std::size_t open = desk_->App().Windows().size();
  if (open == 0) return true;
  const std::string screens = open == 1 ? "The open screen is" : std::to_string(open) + " open screens are";
  MessageRequest request;
  request.Text = screens + " closed when " + why + ". Go on?";
  request.Icon = "Q";
  request.Buttons = {"Yes", "No"};
  request.Title = "Quillon";
  return runtime_.AskMessage(request) == 1;
}

void DeskWindow::AskYear() {
  const std::vector<int> years = desk_->Session().Books().Years();
  const int open = desk_->Session().Year().StartYear();
  QStringList lines;
  int chosen = 0;
  for (const int year : years) {
    if (year == open) chosen = static_cast<int>(lines.size());
    lines << QString::fromStdString(YearName(year));
  }
  ChoiceDialog dialog(QStringLiteral("Financial Year"), lines, chosen, this);
  if (dialog.exec() != QDialog::Accepted || dialog.Line() == chosen) return;
  if (!MayCloseScreens("another year is opened")) return;
  const QString fault = OpenFirm(folder_, QString::fromStdString(desk_->Session().CurrentUser().Name),
                                 years[static_cast<std::size_t>(dialog.Line())]);
  if (!fault.isEmpty()) Tell(fault);
}

void DeskWindow::AskUser() {
  const QString now = QString::fromStdString(desk_->Session().CurrentUser().Name);
  QStringList names;
  CDataSet users;
  for (users.Open("Select UserName from Users order by UserName", desk_->Session().CommonDb()); !users.Eof();
       users.MoveNext()) {
    names << QString::fromStdString(users.Field("UserName").ToText());
  }
  users.Close();
  if (names.isEmpty()) names << now;
  ChoiceDialog dialog(QStringLiteral("User"), names, static_cast<int>(names.indexOf(now)), this);
  if (dialog.exec() != QDialog::Accepted || names[dialog.Line()] == now) return;
  if (!MayCloseScreens("another user goes on")) return;
  const QString fault = OpenFirm(folder_, names[dialog.Line()], desk_->Session().Year().StartYear());
  if (!fault.isEmpty()) Tell(fault);
}

void DeskWindow::OpenStatement() {
  Acts::Run([] {
    const FormPtr statement = gApp->GetForm("Account");
    statement->CallingForm = gApp->MainWindow().MainForm();
    gApp->ShowForm(statement);
  });
}

void DeskWindow::AskPrinter() { gStd->ShowDialog(gApp->GetForm("Printer"), nullptr); }

void DeskWindow::OpenAccount() {
  Acts::Run([] {
    const FormPtr picker = gApp->GetForm("SelectAc");
    picker->Set("SelectAc", true);
    gStd->ShowDialog(picker, nullptr);
    const bool picked = picker->Get("Modify").ToFlag();
    const std::int64_t code = picker->Get("ModifyCode").ToInteger();
    gRuntime->Unload(*picker);
    if (picked) gApp->ShowAccountDetails(*gApp->MainWindow().MainForm(), code);
  });
}

void DeskWindow::OnReport(const ReportShown& report) {
  if (report.Pages == 0) return;
  if (report.Sheets.Pages.empty()) {
    Tell(QStringLiteral("The lines lie in the file\n%1").arg(QString::fromStdString(report.File)));
    return;
  }
  // The preview waits until the form is done with its report, and may be used again.
  const auto copy = std::make_shared<ReportCopy>(ReportCopy::Of(report));
  QMetaObject::invokeMethod(
      this, [this, copy, print = report.Print] { Preview(std::move(*copy), print); }, Qt::QueuedConnection);
}

void DeskWindow::Preview(ReportCopy report, bool print) {
  PreviewWindow preview(std::move(report), this);
  if (print) {
    preview.Print();
  } else {
    preview.exec();
  }
}

void DeskWindow::ShowBusy(bool on, const std::string& text) {
  const QString words = text.empty() ? QStringLiteral("Working") : QString::fromStdString(text);
  const bool isOpenEnded = words.endsWith(QLatin1String("..."));
  busy_->setText(!on ? QString() : isOpenEnded ? words : words + QStringLiteral(" …"));
}

void DeskWindow::ShowWaiting(bool on) {
  if (on) beforeWaiting_ = busy_->text();
  busy_->setText(on ? QStringLiteral("Waiting for another program …") : beforeWaiting_);
}

void DeskWindow::ShowState() {
  const bool open = desk_->HasFirm();
  for (QAction* act : firmActs_) act->setEnabled(open);
  year_->setVisible(open);
  ShowMenuLines();
  if (!open) {
    firm_->clear();
    user_->clear();
    start_->ShowFirm(QString());
    ShowPage();
    return;
  }
  DeskSession& session = desk_->Session();
  const QString name = QString::fromStdString(session.FirmName());
  firm_->setText(QStringLiteral(" %1   ").arg(name));
  year_->setText(QStringLiteral("F.Y. %1").arg(QString::fromStdString(YearName(session.Year().StartYear()))));
  user_->setText(QStringLiteral("   ") + QString::fromStdString(session.CurrentUser().Name));
  start_->ShowFirm(name);
  ShowPage();
}

void DeskWindow::ShowPage() {
  // A modal screen in the area is as near to the user as a modal window before it.
  const FormPtr top = runtime_.ActiveForm();
  menuBar()->setEnabled(!top || !top->IsModal());
  const bool screen = area_->Top() != nullptr;
  static_cast<QStackedLayout*>(centralWidget()->layout())
      ->setCurrentWidget(screen ? static_cast<QWidget*>(area_) : start_);
  // The title names the screen, so that the list of windows and a screen reader tell where one is.
  QStringList parts;
  if (screen) parts << area_->Top()->windowTitle().simplified();
  if (screen && top && desk_ && desk_->HasFirm()) {
    const std::string account = desk_->App().AccountBeside(*top);
    if (!account.empty()) parts << QString::fromStdString(account);
  }
  if (desk_ && desk_->HasFirm()) parts << QString::fromStdString(desk_->Session().FirmName());
  parts << QStringLiteral("Quillon");
  setWindowTitle(parts.join(QStringLiteral(" - ")));
}

void DeskWindow::SetZoom(int percent) {
  Scale::SetPercent(percent);
  QSettings().setValue(QStringLiteral("zoom"), Scale::Percent());
  Theme::ApplyFont(*qApp);
  start_->Replace();
  runtime_.Replace();
  TakeArea();
}

void DeskWindow::Tell(const QString& text) {
  runtime_.AskMessage({text.toStdString(), "I", {"OK"}, "Quillon", 1});
}

void DeskWindow::closeEvent(QCloseEvent* event) {
  if (runtime_.IsWaiting() || !CloseForms()) {
    event->ignore();
    return;
  }
  CloseFirm();
  QSettings().setValue(PlaceKey(), saveGeometry());
  event->accept();
  QApplication::quit();
}

void DeskWindow::keyPressEvent(QKeyEvent* event) {
  // Keys that come while no control has the focus are the screen's.
  FormView* const view = runtime_.TopView();
  if (view == nullptr || !view->TakeKey(*event)) QMainWindow::keyPressEvent(event);
}

}  // namespace quillon
