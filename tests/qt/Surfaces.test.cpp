#include <QLabel>
#include <QPlainTextEdit>

#include "desk/qt/adapters/GridWidget.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"
#include "desk/qt/windows/FormPicture.h"
#include "host/controls/host_controls.h"
#include "tests/qt/FormTest.h"

namespace quillon {
namespace {

/// An inch grid with texts on it, as the layout of an envelope.
class frmSheet : public Form {
 public:
  frmSheet() : Form("frmSheet") {
    Width = 9000;
    Height = 6000;
    BackColor = 0xFFFFFF;
    for (long left = 1440; left < Width; left += 1440) DrawLine({left, 0, left, Height, 0x9696FF});
    Lbl(0).Caption = "Harbour Mills\r\n12, Dock Road\r\nKandla\r\nGujarat";
    Lbl(0).Move(300, 300, 3000, 600);
    Lbl(1).Caption = "A/c No.";
    Lbl(1).Move(300, 1050, 3000, 345);
    picSide.BorderStyle = 0;
    picSide.Move(6000, 0, 3000, 1500);
    picSide.DrawLine({0, 750, 3000, 750, 0x00FF00});
    txtLines.MultiLine = true;
    txtLines.Move(300, 1800, 3000, 1200);
    Grid.FixedRows = 0;
    Grid.Cols = 1;
    Grid.Rows = 3;
    Grid.RowHeightMin = 900;
    Grid.SetTextMatrix(0, 0,
                       "Harbour Mills\r\n  12, Dock Road\r\n  Kandla\r\n  Gujarat\r\n  India\r\n  Asia");
    Grid.Move(300, 3150, 5000, 2700);
  }

  ControlArray<Label> Lbl{*this, "Lbl", {0, 1}};
  PictureBox picSide{*this, "picSide"};
  TextBox txtLines{*this, "txtLines"};
  MSHFlexGrid Grid{*this, "Grid"};
};

class SurfacesTest : public FormTest {
 protected:
  SurfacesTest() : form_(std::make_shared<frmSheet>()) {}

  /// How many dots of the rectangle, in twips of the form, are darker than a grey.
  int Ink(long left, long top, long width, long height) {
    const QImage picture = FormPicture::Draw(form_);
    int count = 0;
    for (int y = Scale::Px(top); y < Scale::Px(top + height); ++y) {
      for (int x = Scale::Px(left); x < Scale::Px(left + width); ++x) {
        count += qGray(picture.pixel(x, y)) < 110 ? 1 : 0;
      }
    }
    return count;
  }
  QColor Dot(long left, long top) {
    return FormPicture::Draw(form_).pixelColor(Scale::Px(left), Scale::Px(top));
  }

  std::shared_ptr<frmSheet> form_;
};

TEST_F(SurfacesTest, LinesLieBehindTheTextsAndAreTakenAway) {
  runtime_.Show(form_);
  EXPECT_EQ(Dot(1440, 5900), QColor(0xFF, 0x96, 0x96));
  EXPECT_EQ(Dot(7500, 750), QColor(0, 0xFF, 0));
  form_->Lbl(1).BackColor = colors::kHighlight;
  form_->Lbl(1).ForeColor = -2147483634;
  EXPECT_EQ(Dot(1440, 1350), Theme::Accent()) << "the chosen text covers the line";
  QLabel& label = WidgetOf<QLabel>(form_->Lbl(1));
  EXPECT_EQ(label.palette().color(QPalette::WindowText), Theme::Surface());
  form_->Lbl(1).BackColor = 0xFFFFFF;
  form_->Lbl(0).BackColor = colors::kHighlight;
  form_->Lbl(0).Top = 1050;
  EXPECT_EQ(Dot(1440, 1350), Theme::Accent()) << "and the other texts";
  form_->Lbl(0).Top = 300;
  form_->Lbl(1).Left = 6000;
  EXPECT_EQ(Dot(1440, 1350), QColor(0xFF, 0x96, 0x96)) << "moved, it leaves the line as it was";
  form_->ClearLines();
  EXPECT_EQ(Dot(1440, 5900), QColor(Qt::white));
}

TEST_F(SurfacesTest, TextsOfSeveralLinesStandFromTheTopAndStayInTheirPlace) {
  form_->ClearLines();
  runtime_.Show(form_);
  EXPECT_GT(Ink(300, 300, 3000, 210), 40);
  EXPECT_GT(Ink(300, 510, 3000, 210), 40) << "the second line";
  EXPECT_EQ(Ink(300, 900, 3000, 150), 0) << "what does not fit is cut at the label's edge";
  form_->Lbl(1).Visible = false;
  form_->Lbl(0).Caption =
      "From: -\r\n   Harbour Mills\r\n   12, Dock Road\r\n   East\r\n   Kandla\r\n   Gujarat\r\n   LLLLLLLL";
  form_->Lbl(0).Height = 1365;
  EXPECT_GT(Ink(300, 1620, 3000, 45), 40) << "the foot of the seventh line";
  form_->Lbl(0).Caption = "Harbour Mills\r\n12, Dock Road\r\nKandla\r\nGujarat";
  form_->Lbl(0).Height = 1800;
  EXPECT_GT(Ink(300, 930, 3000, 210), 40);
  EXPECT_GT(Ink(330, 3180, 3000, 210), 40);
  EXPECT_GT(Ink(330, 3390, 3000, 210), 40);
  EXPECT_EQ(Ink(330, 4080, 3000, 840), 0) << "a cell writes nothing into the next";
}

TEST_F(SurfacesTest, ALabelIsClickedAndDoubleClickedUnderAHand) {
  int clicks = 0;
  int doubleClicks = 0;
  runtime_.Show(form_);
  form_->Lbl(1).Click = [&] { ++clicks; };
  form_->Lbl(1).DblClick = [&] { ++doubleClicks; };
  QWidget& label = WidgetOf<QWidget>(form_->Lbl(1));
  QTest::mouseClick(&label, Qt::LeftButton);
  QTest::mouseDClick(&label, Qt::LeftButton);
  QTest::mouseRelease(&label, Qt::LeftButton);
  EXPECT_EQ(doubleClicks, 1);
  EXPECT_EQ(clicks, 1) << "the second of the two is the double click and nothing more";
  EXPECT_EQ(label.cursor().shape(), Qt::ArrowCursor);
  form_->Lbl(1).MousePointer = kPointerHand;
  EXPECT_EQ(label.cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(SurfacesTest, ABoxOfSeveralLinesShowsTheCaretWhereTheModelHasIt) {
  runtime_.Show(form_);
  form_->UserFocus(form_->txtLines);
  runtime_.SetClipboardText("Dear Sir,\nwe thank you for the payment that came yesterday by cheque\nYours");
  Press(*form_, Qt::Key_V, Qt::ControlModifier);
  auto& area = WidgetOf<QPlainTextEdit>(form_->txtLines);
  ASSERT_GE(area.blockCount(), 4) << area.toPlainText().toStdString();
  Press(*form_, Qt::Key_Home, Qt::ControlModifier);
  Press(*form_, Qt::Key_Down);
  Press(*form_, Qt::Key_Down);
  EXPECT_EQ(area.textCursor().blockNumber(), 2);
  EXPECT_EQ(area.textCursor().positionInBlock(), 0);
  Press(*form_, Qt::Key_End);
  Type(*form_, "!");
  EXPECT_NE(form_->txtLines.Text().find("!"), std::string::npos);
  // The mouse puts the caret between the same letters.
  const QRect place = area.cursorRect();
  Press(*form_, Qt::Key_Home, Qt::ControlModifier);
  QTest::mouseClick(area.viewport(), Qt::LeftButton, {}, place.center());
  Press(*form_, Qt::Key_Backspace);
  EXPECT_EQ(form_->txtLines.Text().find("!"), std::string::npos);
}

}  // namespace
}  // namespace quillon
