#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "desk/qt/windows/PageView.h"
#include "desk/qt/windows/SightWindow.h"
#include "host/controls/CButton.h"
#include "host/controls/ControlArray.h"
#include "host/controls/TextBox.h"
#include "host/forms/CPickList.h"
#include "tests/qt/FormTest.h"

namespace quillon {
namespace {

/// A dialog that closes itself by F7 and asks another one by F2.
class frmDialog : public Form {
 public:
  explicit frmDialog(std::string name)
      : Form(std::move(name)), txtValue(*this, "txtValue"), btnOKCancel(*this, "btnOKCancel", {0, 1}) {
    Width = 4500;
    Height = 2250;
    Caption = "Dialog";
    txtValue.Move(150, 150, 3000, 345);
    btnOKCancel(1).Click = [this] { gRuntime->Unload(*this); };
  }

  FormPtr Inner;
  std::string Told;

  TextBox txtValue;
  ControlArray<CButton> btnOKCancel;

 protected:
  void OnKeyDown(KeyEvent& key) override {
    if (key.KeyCode == keys::kF2 && Inner) {
      gRuntime->Show(Inner, true, Self());
      Told = "after the inner one: " + txtValue.Text();
    } else if (key.KeyCode == keys::kF7) {
      gRuntime->Unload(*this);
    } else if (key.KeyCode == keys::kF3) {
      throw HostError("The books are locked");
    }
  }
};

using FormsTest = FormTest;

TEST_F(FormsTest, AModalFormInsideAModalForm) {
  const auto outer = std::make_shared<frmDialog>("frmOuter");
  const auto inner = std::make_shared<frmDialog>("frmInner");
  outer->Inner = inner;
  std::vector<std::string> order;
  Soon([&] {
    Type(*outer, "12");
    Soon([&] {
      order.push_back("inner shown");
      EXPECT_TRUE(runtime_.ViewOf(*inner)->isModal());
      EXPECT_EQ(runtime_.TopView(), runtime_.ViewOf(*inner));
      // The form below is covered: neither keys nor the close box reach it.
      runtime_.ViewOf(*outer)->close();
      EXPECT_TRUE(outer->IsLoaded());
      Type(*inner, "7");
      Press(*inner, Qt::Key_Escape);
    });
    Press(*outer, Qt::Key_F2);
    order.push_back("inner gone");
    EXPECT_FALSE(inner->IsLoaded());
    EXPECT_EQ(outer->Told, "after the inner one: 12");
    Press(*outer, Qt::Key_F7);
  });
  runtime_.Show(outer, true);
  EXPECT_EQ(order, (std::vector<std::string>{"inner shown", "inner gone"}));
  EXPECT_FALSE(outer->IsLoaded());
  EXPECT_EQ(inner->txtValue.Text(), "7");
  EXPECT_EQ(runtime_.TopView(), nullptr);
}

TEST_F(FormsTest, AFormThatItsOwnKeyHandlerClosesTakesItsWindowAlong) {
  const auto form = std::make_shared<frmDialog>("frmSelf");
  runtime_.Show(form);
  const QPointer<FormView> view = runtime_.ViewOf(*form);
  const std::weak_ptr<frmDialog> watched = form;
  Press(*form, Qt::Key_F7);
  EXPECT_EQ(runtime_.ViewOf(*form), nullptr);
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(view.isNull());
  EXPECT_EQ(watched.use_count(), 1) << "nothing of the window holds the form";
}

TEST_F(FormsTest, AnErrorInAHandlerIsToldAndTheFormGoesOn) {
  const auto form = std::make_shared<frmDialog>("frmFaulty");
  runtime_.Show(form);
  QString told;
  Dismiss(told);
  Press(*form, Qt::Key_F3);
  EXPECT_EQ(told, "The books are locked");
  Type(*form, "on");
  EXPECT_EQ(form->txtValue.Text(), "on");
}

TEST_F(FormsTest, AMessageTakesItsDefaultByEnterAndTheLastButtonByEsc) {
  const MessageRequest request{"Exit without saving?", "Q", {"Yes", "No"}, "Quillon", 2};
  const auto answer = [&](Qt::Key key) {
    Soon([key] { QTest::keyClick(QApplication::activeModalWidget()->focusWidget(), key); });
    return runtime_.AskMessage(request);
  };
  EXPECT_EQ(answer(Qt::Key_Return), 2);
  EXPECT_EQ(answer(Qt::Key_Escape), 2);
  EXPECT_EQ(answer(Qt::Key_Y), 1);
  MessageRequest first = request;
  first.Default = 1;
  Soon([] { QTest::keyClick(QApplication::activeModalWidget()->focusWidget(), Qt::Key_Return); });
  EXPECT_EQ(runtime_.AskMessage(first), 1);
}

TEST_F(FormsTest, MessagesAndPagesStayOnTheScreen) {
  MessageRequest request{"Following cheque no. already exists: \r\n470301", "W", {"OK"}, "Quillon", 1};
  for (int number = 470302; number < 470402; ++number) request.Text += "," + std::to_string(number);
  QRect needed;
  Soon([&] {
    needed = QApplication::activeModalWidget()->geometry();
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
  });
  runtime_.AskMessage(request);
  EXPECT_LT(needed.width(), 700);
  EXPECT_LT(needed.height(), 400);
  ReportPages pages;
  pages.Pages.resize(1);
  const SightWindow sight(pages, "PDF file", nullptr);
  EXPECT_LE(sight.width(), sight.screen()->availableSize().width());
}

TEST_F(FormsTest, AFontThatNobodyChangesIsAnsweredAsItWas) {
  for (const Font& given :
       {Font{"Tahoma", 9.75, true, false, false}, Font{"Times New Roman", 8.25, false, true, true}}) {
    Font font = given;
    Soon([] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_F7); });
    ASSERT_TRUE(runtime_.AskFont(font));
    EXPECT_EQ(font, given);
  }
}

TEST_F(FormsTest, WhatOnlyAnExpertReadsStandsBehindDetails) {
  MessageRequest request{"The books cannot be reached.", "E", {"Try again", "Cancel"}, "Quillon", 1};
  request.Details = "SQLSTATE 08006: connection lost";
  Soon([] {
    QWidget* const box = QApplication::activeModalWidget();
    auto* const details = box->findChild<QPlainTextEdit*>();
    ASSERT_NE(details, nullptr);
    EXPECT_FALSE(details->isVisible());
    for (auto* button : box->findChildren<QPushButton*>()) {
      if (button->accessibleName() == QLatin1String("Details")) button->click();
    }
    EXPECT_TRUE(details->isVisible()) << "and the box is still open";
    EXPECT_EQ(details->toPlainText(), "SQLSTATE 08006: connection lost");
    QTest::keyClick(box, Qt::Key_Escape);
  });
  EXPECT_EQ(runtime_.AskMessage(request), 2);
}

TEST_F(FormsTest, APickListNarrowsToTheLinesOfWhichAWordBeginsSo) {
  CPickList list;
  list.Title("Choose a Bank");
  list.AddColumn("Bank", 4500, 1);
  list.AddColumn("Station", 2400, 1);
  list.AddItem("State Bank of India\tKandla", 1);
  list.AddItem("Sahyadri Bank\tPune", 2);
  list.AddItem("Bank of Maharashtra\tPune", 3);
  const auto lines = [] {
    auto* const shown = QApplication::activeModalWidget()->findChild<QTreeWidget*>();
    QStringList names;
    for (int line = 0; line < shown->topLevelItemCount(); ++line) names << shown->topLevelItem(line)->text(0);
    return names.join(QLatin1Char('|')).toStdString();
  };
  std::size_t item = 99;
  Soon([&] {
    QWidget* const field = QApplication::activeModalWidget()->focusWidget();
    EXPECT_EQ(lines(), "State Bank of India|Sahyadri Bank|Bank of Maharashtra") << "the caller's order";
    QTest::keyClicks(field, "bank");
    EXPECT_EQ(lines(), "Bank of Maharashtra|State Bank of India|Sahyadri Bank") << "the best stands first";
    QTest::keyClicks(field, " pu");
    EXPECT_EQ(lines(), "Sahyadri Bank|Bank of Maharashtra");
    QTest::keyClicks(field, "x");
    EXPECT_EQ(lines(), "");
    QTest::keyClick(field, Qt::Key_Return);
    ASSERT_NE(QApplication::activeModalWidget(), nullptr) << "nothing found is nothing picked";
    QTest::keyClick(field, Qt::Key_Backspace);
    QTest::keyClick(field, Qt::Key_Down);
    QTest::keyClick(field, Qt::Key_Return);
  });
  ASSERT_TRUE(runtime_.AskPick(list, item));
  EXPECT_EQ(item, 2U) << "its number is the caller's";
}

TEST_F(FormsTest, SentKeysReachTheFormThatTheKeyOpened) {
  const auto outer = std::make_shared<frmDialog>("frmOuter");
  const auto inner = std::make_shared<frmDialog>("frmInner");
  outer->Inner = inner;
  runtime_.Show(outer);
  runtime_.SendKeys("ab{ESC}");
  Press(*outer, Qt::Key_F2);
  EXPECT_EQ(inner->txtValue.Text(), "ab");
  EXPECT_FALSE(inner->IsLoaded());
  EXPECT_EQ(outer->txtValue.Text(), "");
}

TEST_F(FormsTest, APreviewIsSearchedFromPageToPageAndRoundAgain) {
  ReportPages pages;
  pages.Width = 3000;
  pages.Height = 4000;
  const std::size_t font = pages.FontNumber(Font());
  for (const char* text : {"Opening Balance", "Cheque 101", "Closing BALANCE"}) {
    pages.Pages.push_back({{}, {}, {{150, 600, text, font, 0}}});
  }
  PageView view(pages);
  for (const std::size_t page : {0U, 2U, 0U}) {
    ASSERT_TRUE(view.FindNext("balance"));
    EXPECT_EQ(view.PageAt(view.Mark().center().y()), page);
  }
  const int small = view.Mark().width();
  view.SetPercent(200);
  EXPECT_NEAR(view.Mark().width(), 2 * small, 8);
  EXPECT_FALSE(view.FindNext("voucher"));
  EXPECT_TRUE(view.Mark().isEmpty());
}

}  // namespace
}  // namespace quillon
