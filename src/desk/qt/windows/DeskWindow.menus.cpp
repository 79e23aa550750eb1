#include "desk/qt/windows/DeskWindow.h"

#include <QCoreApplication>
#include <QMenuBar>

#include "desk/qt/adapters/Acts.h"
#include "desk/qt/adapters/Icons.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/dialogs/KeysDialog.h"
#include "desk/qt/windows/QtRuntime.h"

namespace quillon {

namespace {

constexpr int kZooms[] = {90, 100, 110, 125, 150, 175, 200};

}  // namespace

QMenu* DeskWindow::AddMenu(const QString& title) { return menuBar()->addMenu(title); }

QAction* DeskWindow::AddAct(QMenu& menu, const QString& text, const QKeySequence& key,
                            void (DeskWindow::*act)()) {
  QAction* const made = menu.addAction(text);
  made->setShortcut(key);
  connect(made, &QAction::triggered, this, [this, act] { Acts::Run([&] { (this->*act)(); }); });
  return made;
}

void DeskWindow::BuildMenus() {
  BuildFirmMenu();
  BuildBooksMenu();
  BuildWindowsMenu();
  BuildHelpMenu();
}

void DeskWindow::BuildFirmMenu() {
  QMenu& menu = *AddMenu(QStringLiteral("&Firm"));
  AddAct(menu, QStringLiteral("&Open …"), QKeySequence(Qt::CTRL | Qt::Key_O), &DeskWindow::AskFirm)
      ->setIcon(Icons::ForMenu(QStringLiteral("open")));
  AddAct(menu, QStringLiteral("&Sample Firm"), {}, &DeskWindow::OpenSample);
  menu.addSeparator();
  firmActs_ << AddAct(menu, QStringLiteral("&Year …"), {}, &DeskWindow::AskYear)
            << AddAct(menu, QStringLiteral("&User …"), QKeySequence(Qt::CTRL | Qt::Key_U),
                      &DeskWindow::AskUser)
            << AddAct(menu, QStringLiteral("&Printer …"), {}, &DeskWindow::AskPrinter);
  firmEnd_ = menu.addSeparator();
  QAction* const exit = menu.addAction(QStringLiteral("E&xit"));
  exit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
  connect(exit, &QAction::triggered, this, [this] { close(); });
}

void DeskWindow::BuildBooksMenu() {
  QMenu& menu = *AddMenu(QStringLiteral("&Books"));
  QAction* const accounts = AddAct(menu, QStringLiteral("&Accounts …"), QKeySequence(Qt::CTRL | Qt::Key_L),
                                   &DeskWindow::OpenAccount);
  accounts->setIcon(Icons::ForMenu(QStringLiteral("customers")));
  QAction* const statement = AddAct(menu, QStringLiteral("&Statement of Account …"),
                                    QKeySequence(Qt::CTRL | Qt::Key_T), &DeskWindow::OpenStatement);
  statement->setIcon(Icons::ForMenu(QStringLiteral("acstatement")));
  firmActs_ << accounts << statement;
}

QMenu& DeskWindow::MenuOfLine(const QString& title) {
  for (const QAction* act : menuBar()->actions()) {
    if (act->menu() != nullptr && act->menu()->title() == title) return *act->menu();
  }
  lineMenus_ << new QMenu(title, menuBar());
  menuBar()->insertMenu(windows_->menuAction(), lineMenus_.back());
  return *lineMenus_.back();
}

void DeskWindow::ShowMenuLines() {
  qDeleteAll(lineActs_);
  lineActs_.clear();
  qDeleteAll(lineMenus_);
  lineMenus_.clear();
  if (!desk_->HasFirm()) return;
  DeskMenu& lines = desk_->Menu();
  for (const DeskMenuLine& line : lines.Lines()) {
    QMenu& menu = MenuOfLine(QString::fromUtf8(line.Menu));
    auto* const act = new QAction(QString::fromUtf8(line.Caption), &menu);
    menu.insertAction(menu.actions().contains(firmEnd_) ? firmEnd_ : nullptr, act);
    act->setObjectName(QString::fromUtf8(line.Key));
    act->setShortcut(QKeySequence::fromString(QString::fromUtf8(line.Shortcut)));
    act->setEnabled(lines.IsOn(line));
    connect(act, &QAction::triggered, this,
            [this, key = std::string(line.Key)] { Acts::Run([&] { desk_->Menu().Pick(key); }); });
    lineActs_ << act;
  }
}

void DeskWindow::BuildWindowsMenu() {
  windows_ = AddMenu(QStringLiteral("&Windows"));
  QMenu& menu = *windows_;
  connect(&menu, &QMenu::aboutToShow, this, [this, &menu] { FillWindows(menu); });
  // The keys of the zoom hold before the menu was ever opened.
  AddZooms(menu);
}

void DeskWindow::AddZooms(QMenu& menu) {
  QMenu* const zooms = menu.addMenu(QStringLiteral("&Zoom"));
  int number = 0;
  for (const int percent : kZooms) {
    QAction* const act = zooms->addAction(QStringLiteral("&%1   %2 %").arg(++number).arg(percent));
    act->setCheckable(true);
    // The menu bar measures itself anew only when its menus have closed.
    connect(
        act, &QAction::triggered, this, [this, percent] { SetZoom(percent); }, Qt::QueuedConnection);
    connect(zooms, &QMenu::aboutToShow, act,
            [act, percent] { act->setChecked(Scale::Percent() == percent); });
  }
}

void DeskWindow::FillWindows(QMenu& menu) {
  menu.clear();
  AddZooms(menu);
  menu.addSeparator();
  if (!desk_->HasFirm()) return;
  int number = 0;
  for (const OpenWindow& open : desk_->App().Windows()) {
    const FormPtr form = open.Window->Self();
    const std::string account = desk_->App().AccountBeside(*open.Window);
    const QString title = QString::fromStdString(account.empty() ? open.Title : open.Title + ": " + account)
                              .replace(QLatin1Char('&'), QLatin1String("&&"));
    QAction* const act = menu.addAction(Icons::ForMenu(QString::fromStdString(open.IconKey)),
                                        QStringLiteral("&%1   %2").arg(++number).arg(title));
    act->setCheckable(true);
    act->setChecked(runtime_.ActiveForm() == form);
    connect(act, &QAction::triggered, this, [form] { Acts::Run([&] { gRuntime->BringToFront(*form); }); });
  }
}

void DeskWindow::BuildHelpMenu() {
  QMenu& menu = *AddMenu(QStringLiteral("&Help"));
  AddAct(menu, QStringLiteral("&Keys of this Screen"), QKeySequence(Qt::Key_F1), &DeskWindow::ShowKeys);
  AddAct(menu, QStringLiteral("&About Quillon"), {}, &DeskWindow::ShowAbout);
}

void DeskWindow::ShowKeys() {
  const FormPtr form = runtime_.ActiveForm();
  KeysDialog(form.get(), form ? form->HelpContext : 0, runtime_.TopWindow()).exec();
}

void DeskWindow::ShowAbout() {
  Tell(QStringLiteral("Quillon %1\n\nBank reconciliation and the accountant's side tools.\n"
                      "Free software under the GNU General Public License, version 3 or later.")
           .arg(QCoreApplication::applicationVersion()));
}

}  // namespace quillon
