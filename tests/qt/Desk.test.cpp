#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QStatusBar>
#include <algorithm>
#include <thread>

#include "desk/firm/Firm.h"
#include "desk/qt/dialogs/DateDialog.h"
#include "desk/qt/windows/PageView.h"
#include "desk/qt/windows/PreviewWindow.h"
#include "host/forms/Progress.h"
#include "host/forms/ScreenForm.h"
#include "host/forms/Unbroken.h"
#include "host/services/ISession.h"
#include "host/values/Text.h"
#include "tests/qt/DeskTest.h"

namespace quillon {
namespace {

/// A full-size screen that answers F1 itself where it is told to.
class frmPicker : public ScreenForm {
 public:
  frmPicker() : ScreenForm(kSpec, Origin::Module) {}

  bool AnswersHelp = false;

 protected:
  void BuildBar() override {}
  void LoadScreen() override {}
  void Pressed(const std::string&) override {}
  void OnKeyDown(KeyEvent& key) override {
    if (AnswersHelp && key.KeyCode == keys::kF1) {
      key.KeyCode = 0;
      lblTitle.Caption = "Answered";
    }
    ScreenForm::OnKeyDown(key);
  }

 private:
  static constexpr ScreenSpec kSpec{"frmPicker", "Picker", "", "", "Picker", "List", 0, 0, false, false, 3};
};

/// A window that is not modal.
class frmNote : public Form {
 public:
  frmNote() : Form("frmNote"), txtNote(*this, "txtNote") { Height = 1500; }

  TextBox txtNote;
};

/// Takes some seconds of the engine's time.
constexpr const char* kSlow =
    "select count(*) from rdb$fields a,rdb$fields b,rdb$fields c,rdb$relation_fields d where a.rdb$field_length+b.rdb$field_length+c.rdb$field_length<0";

TEST_F(DeskTest, WhileTheEngineWorksTheWindowsPaintAndKeysWait) {
  OpenStatement();
  const auto note = std::make_shared<frmNote>();
  runtime_.Show(note);
  int ticks = 0;
  QTimer clock;
  QObject::connect(&clock, &QTimer::timeout, [&] { ++ticks; });
  clock.start(20);
  const auto press = [&](Qt::Key key, const char* text) {
    QCoreApplication::postEvent(
        runtime_.ViewOf(*note)->window()->windowHandle(),
        new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, QString::fromLatin1(text)));
  };
  QTimer::singleShot(200, qApp, [&] {
    press(Qt::Key_4, "4");
    press(Qt::Key_7, "7");
    EXPECT_EQ(note->txtNote.Text(), "");
    EXPECT_THROW(gSession->MainDb().RowExists("select 1 from rdb$database"), HostError)
        << "the engine is taken";
  });
  QTimer::singleShot(500, qApp, [&] { press(Qt::Key_Escape, ""); });
  std::string failure;
  Acts::Run([&] {
    try {
      gSession->MainDb().RowExists(kSlow);
    } catch (const DbError& error) {
      failure = error.what();
    }
    EXPECT_EQ(note->txtNote.Text(), "") << "what was typed waits for the end of the act";
    EXPECT_TRUE(gSession->MainDb().RowExists("select 1 from rdb$database"))
        << "only that statement was broken off";
  });
  EXPECT_EQ(failure, "The work was broken off.");
  EXPECT_GT(ticks, 10);
  QApplication::processEvents();
  EXPECT_EQ(note->txtNote.Text(), "47");
  press(Qt::Key_Escape, "");
  Acts::Run([] {
    const Unbroken whole;
    EXPECT_NO_THROW(gSession->MainDb().RowExists(
        "select count(*) from rdb$relation_fields a,rdb$relation_fields b where a.rdb$field_position<-b.rdb$field_position"));
  });
  EXPECT_TRUE(note->IsShownToUser());
}

TEST_F(DeskTest, AModalScreenLiesInTheAreaAndKeepsTheMenusAway) {
  OpenStatement();
  const auto picker = std::make_shared<frmPicker>();
  const auto note = std::make_shared<frmNote>();
  runtime_.Show(note);
  int helps = 0;
  Soon([&] {
    FormView* const view = runtime_.ViewOf(*picker);
    EXPECT_FALSE(view->isWindow());
    EXPECT_TRUE(view->isVisible());
    EXPECT_FALSE(window_.menuBar()->isEnabled());
    QTest::keyClick(runtime_.ViewOf(*note)->focusWidget(), Qt::Key_A);
    EXPECT_EQ(note->txtNote.Text(), "") << "the windows beside it wait";
    Soon([&] {
      if (QWidget* help = QApplication::activeModalWidget()) {
        const QList<QLabel*> words = help->findChildren<QLabel*>();
        helps += static_cast<int>(std::count_if(words.begin(), words.end(), [](const QLabel* each) {
          return each->text().contains(QStringLiteral("the bank's own statement"));
        }));
        QTest::keyClick(help, Qt::Key_Escape);
      }
    });
    Press(Qt::Key_F1);
    EXPECT_EQ(helps, 1) << "what stands under its context";
    picker->AnswersHelp = true;
    Press(Qt::Key_F1);
    EXPECT_EQ(picker->lblTitle.Caption(), "Answered");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    window_.close();
    EXPECT_TRUE(window_.isVisible()) << "the desk waits for the answer";
    Press(Qt::Key_Escape);
  });
  Acts::Run([&] { gRuntime->Show(picker, true); });
  EXPECT_FALSE(picker->IsLoaded());
  EXPECT_TRUE(window_.menuBar()->isEnabled());
  QTest::keyClick(runtime_.ViewOf(*note)->focusWidget(), Qt::Key_A);
  EXPECT_EQ(note->txtNote.Text(), "a");
  runtime_.Unload(*note);
  EXPECT_EQ(Top().Name(), "frmAccount");
  EXPECT_TRUE(runtime_.TopView()->isVisible());
}

TEST_F(DeskTest, AStoreThatWaitsForAnotherProgramSaysSo) {
  CGridPlus& grid = OpenWorkbench();
  int row = grid.FixedRows;
  while (Val(grid.Cell(row, 0)) == 0) ++row;
  const auto other = Firm::Open(folder_.Path() / "firm");
  CDbLink& theirs = *other->OpenYear(2024).Db;
  theirs.BeginTrans();
  theirs.Execute("update FAData set dSrNo=dSrNo where VoucherID=" + grid.TextMatrix(row, 0));
  const auto words = [this] {
    QStringList all;
    for (const QLabel* label : window_.statusBar()->findChildren<QLabel*>()) all << label->text();
    return all.join(QLatin1Char('|'));
  };
  const QString before = words();
  QString waiting;
  bool isBusy = false;
  grid.UserMoveTo(row, kCleared);
  Type("5");
  QTimer::singleShot(900, qApp, [&] {
    waiting = words();
    isBusy = QApplication::overrideCursor() != nullptr;
    std::thread([&] { theirs.CommitTrans(); }).join();
  });
  Press(Qt::Key_Return);
  EXPECT_TRUE(waiting.contains(QStringLiteral("Waiting for another program"))) << waiting.toStdString();
  EXPECT_TRUE(isBusy);
  QApplication::processEvents();
  EXPECT_EQ(words(), before);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(grid.TextMatrix(row, kCleared).substr(0, 3), "05-") << "it went on when the other was done";
}

TEST_F(DeskTest, EnterGoesFromDateToDateAndAcceptsInTheLast) {
  OpenStatement();
  Soon([&] {
    auto* const dialog = dynamic_cast<DateDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    QTest::keyClicks(dialog->focusWidget(), "1/5");
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
    ASSERT_TRUE(dialog->isVisible()) << "the second date was not looked at yet";
    QTest::keyClicks(dialog->focusWidget(), "31/2");
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
    ASSERT_TRUE(dialog->isVisible()) << "no date keeps the user in the field";
    dynamic_cast<QLineEdit&>(*dialog->focusWidget()).selectAll();
    QTest::keyClicks(dialog->focusWidget(), "30/6");
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
  });
  Press(Qt::Key_F3);
  EXPECT_EQ(dynamic_cast<Label&>(Top().ControlAt("lblTitle1", 2)).Caption(),
            "Period: 01/05/2024 to 30/06/2024");
}

TEST_F(DeskTest, AReportIsShownOnPagesThatAreSearchedAndFitTheWidth) {
  OpenStatement();
  bool found = false;
  Press(Qt::Key_F8);
  Soon([&] {
    auto* const preview = dynamic_cast<PreviewWindow*>(QApplication::activeModalWidget());
    ASSERT_NE(preview, nullptr);
    found = preview->Pages().FindNext(QStringLiteral("balance"));
    QTest::keyClick(preview, Qt::Key_F2);
    EXPECT_NEAR(preview->Pages().width(), preview->Pages().parentWidget()->width(), 20) << "fits the width";
    QTest::keyClick(preview, Qt::Key_F, Qt::ControlModifier);
    EXPECT_NE(dynamic_cast<QLineEdit*>(preview->focusWidget()), nullptr);
    QTest::keyClick(preview, Qt::Key_Escape);
  });
  QApplication::processEvents();
  EXPECT_TRUE(found);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(DeskTest, AnotherUserClosesTheScreensOnlyAfterAQuestion) {
  OpenStatement();
  const FormPtr first = runtime_.ActiveForm();
  EXPECT_FALSE(window_.windowTitle().contains(QStringLiteral("Asha")));
  const FormPtr second = gApp->GetForm("Account");
  second->Set("AccountCode", gSession->MainDb().Lookup("FAMaster", "min(mcd)", "mhd like '%Traders%'"));
  Acts::Run([&] { gApp->ShowForm(second); });
  const std::string head = second->Get("FAMaster").ToObject()->Get("AcHead").ToText();
  EXPECT_TRUE(window_.windowTitle().contains(QString::fromStdString(head)))
      << "two of a kind tell whose they are";
  QAction* act = nullptr;
  for (QAction* each : window_.findChildren<QAction*>()) {
    if (each->text() == QStringLiteral("&User …")) act = each;
  }
  ASSERT_NE(act, nullptr);
  for (const Qt::Key answer : {Qt::Key_Escape, Qt::Key_Return}) {
    QString asked;
    Soon([&] {
      auto* const users = dynamic_cast<QListWidget*>(QApplication::activeModalWidget()->focusWidget());
      ASSERT_NE(users, nullptr);
      QTest::keyClick(users, users->currentRow() == 0 ? Qt::Key_Down : Qt::Key_Up);
      Dismiss(asked, answer);
      QTest::keyClick(users, Qt::Key_F7);
    });
    act->trigger();
    EXPECT_EQ(asked.toStdString(), "2 open screens are closed when another user goes on. Go on?");
    EXPECT_EQ(first->IsLoaded() && second->IsLoaded(), answer == Qt::Key_Escape);
  }
}

TEST_F(DeskTest, ALongJobTellsHowFarItIsAndCannotBeClosedAway) {
  OpenWorkbench();
  const FormPtr bench = runtime_.ActiveForm();
  std::vector<std::string> told;
  runtime_.OnProgress = [&](const std::string& words) { told.push_back(words); };
  Acts::Run([&] {
    Soon([&] { window_.close(); });
    QCoreApplication::postEvent(runtime_.TopView(), new QCloseEvent);
    Progress progress("Filling dates", 123456);
    while (told.empty()) progress.Step();
  });
  ASSERT_EQ(told.size(), 2U);
  EXPECT_TRUE(QString::fromStdString(told[0]).startsWith(QStringLiteral("Filling dates "))) << told[0];
  EXPECT_TRUE(QString::fromStdString(told[0]).endsWith(QStringLiteral(" of 1,23,456"))) << told[0];
  EXPECT_EQ(told[1], "") << "the words go with the job";
  EXPECT_TRUE(bench->IsLoaded());
  EXPECT_TRUE(window_.isVisible());
  window_.close();
  EXPECT_FALSE(bench->IsLoaded());
}

}  // namespace
}  // namespace quillon
