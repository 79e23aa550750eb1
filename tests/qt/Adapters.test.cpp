#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QToolButton>

#include "desk/qt/adapters/GridWidget.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/dialogs/KeysDialog.h"
#include "desk/qt/windows/FormPicture.h"
#include "tests/qt/FormTest.h"
#include "tests/qt/frmEveryKind.h"

namespace quillon {
namespace {

constexpr auto kLeft = Qt::LeftButton;

class AdaptersTest : public FormTest {
 protected:
  AdaptersTest() : form_(std::make_shared<frmEveryKind>()) { runtime_.Show(form_); }

  void ClickCell(int row, int col) {
    auto& grid = WidgetOf<GridWidget>(form_->Grid);
    QTest::mouseClick(grid.viewport(), kLeft, {}, grid.CellRect(row, col).center());
  }

  std::shared_ptr<frmEveryKind> form_;
};

TEST_F(AdaptersTest, ShowWhatTheModelsSay) {
  form_->lblText.Caption = "Balance";
  EXPECT_EQ(WidgetOf<QLabel>(form_->lblText).text(), "Balance");
  EXPECT_EQ(WidgetOf<QLabel>(form_->lblText).accessibleName(), "Balance");
  form_->chkOn.CheckValue = 1;
  EXPECT_TRUE(WidgetOf<QCheckBox>(form_->chkOn).isChecked());
  form_->optSecond.Chosen = true;
  EXPECT_TRUE(WidgetOf<QRadioButton>(form_->optSecond).isChecked());
  form_->optFirst.Chosen = true;
  EXPECT_FALSE(WidgetOf<QRadioButton>(form_->optSecond).isChecked());
  form_->fraGroup.Caption = "Group";
  EXPECT_EQ(WidgetOf<QGroupBox>(form_->fraGroup).title(), "Group");
  form_->txtLines.Text = "one\r\ntwo";
  EXPECT_EQ(WidgetOf<QPlainTextEdit>(form_->txtLines).toPlainText(), "one\ntwo");
  form_->cmbOne.SetListIndex(2);
  EXPECT_EQ(WidgetOf<QComboBox>(form_->cmbOne).currentText(), "Blue");
  form_->lstBooks.SetSelected(1, true);
  EXPECT_EQ(WidgetOf<QListWidget>(form_->lstBooks).item(1)->checkState(), Qt::Checked);
  form_->scrSide.Position = 40;
  EXPECT_EQ(WidgetOf<QScrollBar>(form_->scrSide).value(), 40);
}

TEST_F(AdaptersTest, TakePlaceColourAndStateFromTheModels) {
  form_->cmdGo.Move(3000, 600, 1500, 420);
  EXPECT_EQ(WidgetOf<QWidget>(form_->cmdGo).geometry(), QRect(200, 40, 100, 28));
  form_->cmdGo.Enabled = false;
  EXPECT_FALSE(WidgetOf<QWidget>(form_->cmdGo).isEnabled());
  form_->cmdGo.Visible = false;
  EXPECT_FALSE(WidgetOf<QWidget>(form_->cmdGo).isVisible());
  form_->lblText.BackColor = 0x5EAEFF;
  EXPECT_EQ(WidgetOf<QLabel>(form_->lblText).grab().toImage().pixelColor(2, 2), QColor(0xFF, 0xAE, 0x5E));
  form_->Grid.PaintRow(2, {0, 1, 0x0000FF, Control::kDefaultColor});
  const QImage picture = FormPicture::Draw(form_);
  const QPoint grid(Scale::Px(form_->Grid.Left), Scale::Px(form_->Grid.Top));
  const QRect cell = WidgetOf<GridWidget>(form_->Grid).CellRect(2, 1);
  EXPECT_EQ(picture.pixelColor(grid + cell.center()), QColor(0xFF, 0, 0));
  // Zoomed, all is larger in proportion.
  Scale::SetPercent(200);
  runtime_.Replace();
  EXPECT_EQ(WidgetOf<QWidget>(form_->scrSide).geometry(), QRect(480, 120, 400, 40));
  Scale::SetPercent(100);
  runtime_.Replace();
}

TEST_F(AdaptersTest, ATickedFieldShowsThatItHasTheFocus) {
  for (Control* field : std::initializer_list<Control*>{&form_->chkOn, &form_->optFirst}) {
    auto& widget = WidgetOf<QWidget>(*field);
    form_->txtLine.SetFocus();
    const QImage before = widget.grab().toImage();
    field->SetFocus();
    runtime_.ViewOf(*form_)->Settle();
    EXPECT_NE(widget.grab().toImage(), before) << field->Name();
  }
}

TEST_F(AdaptersTest, TheListOfKeysReadsAsTheButtonsDo) {
  form_->cmdGo.Caption = "F7: &Save";
  const KeysDialog keys(form_.get(), 0, nullptr);
  QStringList words;
  for (const QLabel* label : keys.findChildren<QLabel*>()) words << label->text();
  EXPECT_TRUE(words.contains(QStringLiteral("Save")));
}

TEST_F(AdaptersTest, MouseReachesTheModels) {
  int clicks = 0;
  form_->lblText.Click = [&] { ++clicks; };
  form_->cmdGo.Click = [&] { clicks += 10; };
  form_->picSurface.Click = [&] { clicks += 100; };
  for (Control* control : {static_cast<Control*>(&form_->lblText), static_cast<Control*>(&form_->cmdGo),
                           static_cast<Control*>(&form_->picSurface)}) {
    QTest::mouseClick(&WidgetOf<QWidget>(*control), kLeft);
  }
  EXPECT_EQ(clicks, 111);
  EXPECT_EQ(form_->ActiveControl(), &form_->cmdGo);
  QTest::mouseClick(&WidgetOf<QWidget>(form_->chkOn), kLeft, {}, {5, 10});
  EXPECT_EQ(form_->chkOn.CheckValue(), 1);
  QTest::mouseClick(&WidgetOf<QWidget>(form_->optSecond), kLeft, {}, {5, 10});
  EXPECT_TRUE(form_->optSecond.Chosen());
  auto& list = WidgetOf<QListWidget>(form_->lstBooks);
  QTest::mouseClick(list.viewport(), kLeft, {}, {8, list.visualItemRect(list.item(1)).center().y()});
  EXPECT_EQ(form_->lstBooks.ListIndex(), 1);
  EXPECT_TRUE(form_->lstBooks.Selected(1));
  WidgetOf<QScrollBar>(form_->scrSide).triggerAction(QAbstractSlider::SliderSingleStepAdd);
  EXPECT_EQ(form_->scrSide.Position(), 1);
  int pressed = -1;
  form_->BtnBar1.ButtonPressed = [&](int index) { pressed = index; };
  const auto buttons = WidgetOf<QWidget>(form_->BtnBar1).findChildren<QPushButton*>();
  QTest::mouseClick(buttons[1], kLeft);
  EXPECT_EQ(pressed, 1);
  EXPECT_FALSE(buttons[2]->isVisible()) << "a name without a caption only keeps its place";
  form_->BtnBar1.DisableButtons({0});
  QTest::mouseClick(buttons[0], kLeft);
  EXPECT_EQ(pressed, 1);
  int picks = 0;
  form_->txpField.ButtonClick = [&] { ++picks; };
  QTest::mouseClick(WidgetOf<QWidget>(form_->txpField).findChild<QToolButton*>(), kLeft);
  EXPECT_EQ(picks, 1);
}

TEST_F(AdaptersTest, TheCornerHasExitAndTheConfigurationWhereTheFormHasOne) {
  const auto button = [&](const char* name) -> QToolButton* {
    for (auto* found : WidgetOf<QWidget>(form_->QuillonStdButtons1).findChildren<QToolButton*>()) {
      if (found->accessibleName() == QLatin1String(name)) return found;
    }
    return nullptr;
  };
  std::vector<int> pressed;
  form_->QuillonStdButtons1.ButtonClick = [&](int index, bool& cancel) {
    pressed.push_back(index);
    cancel = pressed.size() < 3;
  };
  ASSERT_NE(button("Configuration"), nullptr);
  EXPECT_FALSE(button("Configuration")->isVisible());
  form_->QuillonStdButtons1.HasConfiguration = true;
  QTest::mouseClick(button("Configuration"), kLeft);
  QTest::mouseClick(button("Exit"), kLeft);
  EXPECT_TRUE(form_->IsLoaded()) << "the form refused to close";
  QTest::mouseClick(button("Exit"), kLeft);
  EXPECT_EQ(pressed, (std::vector<int>{CStdButtons::kConfigure, CStdButtons::kExit, CStdButtons::kExit}));
  EXPECT_FALSE(form_->IsLoaded());
}

TEST_F(AdaptersTest, AFieldIsSelectedByKeys) {
  auto& field = form_->txtLine;
  const auto& shown = WidgetOf<QLineEdit>(field);
  QTest::mouseClick(&WidgetOf<QWidget>(field), kLeft);
  Type(*form_, "Bank charges");
  for (int i = 0; i < 7; ++i) Press(*form_, Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(shown.selectedText(), "charges");
  EXPECT_EQ(shown.cursorPosition(), 5) << "the caret is at the end that moves";
  Press(*form_, Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(shown.selectedText(), "harges");
  Press(*form_, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(runtime_.ClipboardText(), "harges");
  Press(*form_, Qt::Key_Right);
  EXPECT_EQ(shown.cursorPosition(), 12) << "without Shift the caret goes to that end of the selection";
  Press(*form_, Qt::Key_Left);
  Press(*form_, Qt::Key_Home, Qt::ShiftModifier);
  EXPECT_EQ(shown.selectedText(), "Bank charge");
  Press(*form_, Qt::Key_End, Qt::ShiftModifier);
  EXPECT_EQ(shown.selectedText(), "s") << "Home and End turn about the place where the selection began";
  Press(*form_, Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(field.Text(), "Bank charge");
  Press(*form_, Qt::Key_A, Qt::ControlModifier);
  Type(*form_, "x");
  EXPECT_EQ(field.Text(), "x");
  // What the mouse has selected, the keys go on with.
  field.Text = "Limit transferred";
  QTest::mouseDClick(&WidgetOf<QWidget>(field), kLeft, {}, {8, 10});
  Press(*form_, Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(shown.selectedText(), "Limit ");
  // A line's end is one character to the keys.
  form_->txtLines.Text = "a\r\nb";
  form_->UserFocus(form_->txtLines);
  Press(*form_, Qt::Key_End, Qt::ControlModifier);
  Press(*form_, Qt::Key_Left);
  Press(*form_, Qt::Key_Backspace);
  EXPECT_EQ(form_->txtLines.Text(), "ab");
}

TEST_F(AdaptersTest, AFieldTakesKeysAndKeepsTheFocusThatIsRefused) {
  QTest::mouseClick(&WidgetOf<QWidget>(form_->txtLine), kLeft);
  Type(*form_, "Rs. 12");
  Press(*form_, Qt::Key_Backspace);
  EXPECT_EQ(form_->txtLine.Text(), "Rs. 1");
  Press(*form_, Qt::Key_Home);
  Type(*form_, "x");
  EXPECT_EQ(WidgetOf<QLineEdit>(form_->txtLine).text(), "xRs. 1");
  EXPECT_EQ(WidgetOf<QLineEdit>(form_->txtLine).cursorPosition(), 1);
  form_->txtLine.Validate = [](bool& cancel) { cancel = true; };
  QTest::mouseClick(&WidgetOf<QWidget>(form_->chkOn), kLeft, {}, {5, 10});
  Press(*form_, Qt::Key_Tab);
  EXPECT_EQ(form_->ActiveControl(), &form_->txtLine);
  EXPECT_EQ(form_->chkOn.CheckValue(), 0);
  form_->txtLine.Validate = [](bool&) {};
  runtime_.SetClipboardText("pasted\nlines");
  QTest::mouseDClick(&WidgetOf<QWidget>(form_->txtLine), kLeft, {}, {8, 10});
  Press(*form_, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(form_->txtLine.Text(), "pasted. 1") << "the double click took the first word";
  Press(*form_, Qt::Key_Tab);
  EXPECT_EQ(form_->ActiveControl(), &form_->txtLines);
  Type(*form_, "a");
  Press(*form_, Qt::Key_Return);
  Type(*form_, "b");
  EXPECT_EQ(form_->txtLines.Text(), "a\r\nb");
}

TEST_F(AdaptersTest, AFieldsListFollowsAndIsPickedWithTheMouse) {
  QTest::mouseClick(WidgetOf<QWidget>(form_->txpField).findChild<QLineEdit*>(), kLeft);
  ASSERT_EQ(form_->ActiveControl(), &form_->txpField);
  int picked = 0;
  form_->SelGrid1.Selected = [&] { ++picked; };
  auto* const list = WidgetOf<QWidget>(form_->SelGrid1).findChild<QAbstractScrollArea*>();
  auto* const grid = dynamic_cast<GridWidget*>(list);
  ASSERT_NE(grid, nullptr);
  QTest::mouseClick(grid->viewport(), kLeft, {}, grid->CellRect(2, 0).center());
  EXPECT_EQ(picked, 1);
  EXPECT_EQ(form_->txpField.Text(), "Pear");
}

TEST_F(AdaptersTest, AGridIsWalkedSelectedAndEdited) {
  int doubled = 0;
  form_->Grid.DblClick = [&] { ++doubled; };
  ClickCell(2, 1);
  EXPECT_EQ(form_->Grid.Row(), 2);
  EXPECT_EQ(form_->Grid.Col(), 1);
  Press(*form_, Qt::Key_Down);
  EXPECT_EQ(form_->Grid.Row(), 3);
  auto& grid = WidgetOf<GridWidget>(form_->Grid);
  QTest::mousePress(grid.viewport(), kLeft, {}, grid.CellRect(1, 0).center());
  QTest::mouseMove(grid.viewport(), grid.CellRect(2, 1).center());
  QMouseEvent move(QEvent::MouseMove, grid.CellRect(4, 2).center(), grid.CellRect(4, 2).center(), kLeft,
                   kLeft, {});
  QApplication::sendEvent(grid.viewport(), &move);
  QTest::mouseRelease(grid.viewport(), kLeft, {}, grid.CellRect(4, 2).center());
  EXPECT_EQ(form_->Grid.Row(), 1);
  EXPECT_EQ(form_->Grid.RowSel(), 4);
  EXPECT_EQ(form_->Grid.ColSel(), 2);
  form_->Grid.BeforeEdit = [](int row, int, bool& cancel, std::string&) { cancel = row > 4; };
  QTest::mouseDClick(grid.viewport(), kLeft, {}, grid.CellRect(3, 2).center());
  EXPECT_EQ(doubled, 1);
  ASSERT_TRUE(form_->Grid.EditMode());
  auto* const editor = grid.viewport()->findChild<QLineEdit*>();
  QApplication::processEvents();
  EXPECT_TRUE(editor->isVisible());
  EXPECT_EQ(editor->geometry(), grid.CellRect(3, 2));
  Type(*form_, "9.5");
  EXPECT_EQ(editor->text(), "9.5");
  // A click on another cell asks the form first.
  form_->Grid.ValidateCell = [](int, int, std::string& text, bool& cancel) { cancel = text == "9.5"; };
  ClickCell(1, 1);
  EXPECT_TRUE(form_->Grid.EditMode());
  Type(*form_, "0");
  ClickCell(1, 1);
  EXPECT_FALSE(form_->Grid.EditMode());
  EXPECT_EQ(form_->Grid.TextMatrix(3, 2), "9.50");
  EXPECT_FALSE(editor->isVisible());
}

TEST_F(AdaptersTest, AGridIsExtendedSearchedAndSortedInTheWindow) {
  auto& grid = WidgetOf<GridWidget>(form_->Grid);
  form_->Grid.Rows = 60;
  form_->Grid.SetTextMatrix(0, 0, "Fruit");
  form_->Grid.SetTextMatrix(55, 0, "Pear");
  form_->Grid.SetTextMatrix(56, 0, "Apple");
  ClickCell(2, 1);
  QTest::mouseClick(grid.viewport(), kLeft, Qt::ShiftModifier, grid.CellRect(4, 2).center());
  EXPECT_EQ(form_->Grid.Row() * 100 + form_->Grid.RowSel() * 10 + form_->Grid.ColSel(), 242);

  const auto box = [&]() -> QLineEdit* {
    for (auto* each : grid.findChildren<QLineEdit*>()) {
      if (each->accessibleName() == QLatin1String("Find")) return each;
    }
    return nullptr;
  };
  const int before = grid.Body().height();
  Press(*form_, Qt::Key_F, Qt::ControlModifier);
  Type(*form_, "pear");
  ASSERT_NE(box(), nullptr);
  EXPECT_TRUE(box()->isVisible());
  EXPECT_EQ(box()->text(), "pear");
  QApplication::processEvents();
  EXPECT_EQ(form_->Grid.Row(), 55);
  EXPECT_TRUE(grid.Body().contains(grid.CellRect(55, 0))) << "in sight, and not behind the box";
  for (int row = 1; row <= 55; ++row) {
    const QRect cell = grid.CellRect(row, 0);
    const bool isCut = cell.top() < grid.Body().top() && cell.bottom() >= grid.Body().top();
    EXPECT_FALSE(isCut) << "no row is shown in half, not " << row;
  }
  EXPECT_LT(grid.Body().height(), before);
  Press(*form_, Qt::Key_Escape);
  EXPECT_FALSE(box()->isVisible());
  EXPECT_EQ(grid.Body().height(), before);
  EXPECT_TRUE(form_->IsShownToUser());

  const QPoint heading(grid.CellRect(55, 0).center().x(), grid.Body().top() - 5);
  QTest::mouseClick(grid.viewport(), kLeft, {}, heading);
  EXPECT_FALSE(form_->Grid.HasView()) << "where the screen does not allow it a heading does nothing";
  form_->Grid.Look.IsAllowed = true;
  QTest::mouseClick(grid.viewport(), kLeft, {}, heading);
  QApplication::processEvents();
  EXPECT_EQ(form_->Grid.OuterRow(1), 56);
  EXPECT_LT(grid.CellRect(56, 0).top(), grid.CellRect(55, 0).top());
  Press(*form_, Qt::Key_Home);
  ClickCell(55, 0);
  EXPECT_EQ(form_->Grid.Row(), 55) << "the mouse meets the rows where they are shown";
}

TEST_F(AdaptersTest, AScreenReaderHearsWhatTheControlsAre) {
  form_->txpField.Caption = "Rate of Interest";
  form_->Grid.Title = "Entries";
  form_->Grid.SetTextMatrix(0, 1, "Cleared On");
  form_->Grid.SetTextMatrix(3, 1, "05-Apr-2024");
  ClickCell(3, 1);
  const auto heard = [](QWidget& widget) { return QAccessible::queryAccessibleInterface(&widget); };
  QAccessibleInterface* const grid = heard(WidgetOf<QWidget>(form_->Grid));
  EXPECT_EQ(grid->role(), QAccessible::Table);
  EXPECT_EQ(grid->text(QAccessible::Name), "Entries");
  EXPECT_EQ(grid->text(QAccessible::Description), "Row 3, Cleared On: 05-Apr-2024");
  QAccessibleInterface* const field = heard(*WidgetOf<QWidget>(form_->txpField).findChild<QLineEdit*>());
  EXPECT_EQ(field->role(), QAccessible::EditableText);
  EXPECT_EQ(field->text(QAccessible::Name), "Rate of Interest");
  EXPECT_EQ(heard(WidgetOf<QWidget>(form_->chkOn))->role(), QAccessible::CheckBox);
}

TEST_F(AdaptersTest, FiftyThousandHiddenRowsArePassedOver) {
  constexpr int kRows = 100001;
  form_->Grid.Rows = kRows;
  for (int row = 1; row < kRows; ++row) {
    form_->Grid.SetTextMatrix(row, 0, std::to_string(row));
    if (row > 10 && row <= 50010) form_->Grid.SetRowHeight(row, 0);
  }
  ClickCell(3, 0);
  for (int i = 0; i < 8; ++i) Press(*form_, Qt::Key_Down);
  EXPECT_EQ(form_->Grid.Row(), 50011) << "Down passes over what is hidden";
  const QRect cell = WidgetOf<GridWidget>(form_->Grid).CellRect(50011, 0);
  EXPECT_TRUE(WidgetOf<GridWidget>(form_->Grid).Body().contains(cell)) << "and the cursor stays in sight";
  Press(*form_, Qt::Key_End);
  auto& grid = WidgetOf<GridWidget>(form_->Grid);
  EXPECT_TRUE(grid.Body().contains(grid.CellRect(kRows - 1, 0)));
  EXPECT_EQ(grid.verticalScrollBar()->value(), grid.verticalScrollBar()->maximum());
}

}  // namespace
}  // namespace quillon
