#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>

#include "desk/qt/adapters/EdgeLayout.h"
#include "desk/qt/adapters/GridWidget.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/dialogs/DeskDialog.h"
#include "host/controls/host_controls.h"
#include "host/services/ISession.h"
#include "host/values/Text.h"
#include "tests/qt/DeskTest.h"

namespace quillon {
namespace {

using Box = EdgeLayout::Box;
using Item = EdgeLayout::Item;

TEST(EdgeLayoutTest, WhatReachesAnEdgeStaysThereAndTheGridTakesTheRest) {
  enum { Title, Exit, First, Second, Third, Strip, Choice, Grid, Twin, Panel, Totals, Bar };
  std::vector<Item> items(Bar + 1);
  items[Title] = {{0, 0, 15000, 420}, true};
  items[Exit] = {{13800, 0, 1200, 420}};
  items[First] = {{0, 420, 5000, 360}, true};
  items[Second] = {{5000, 420, 5000, 360}, true};
  items[Third] = {{10000, 420, 5000, 360}, true};
  items[Strip] = {{0, 810, 12000, 360}, true};
  items[Choice] = {{12030, 810, 2970, 360}};
  items[Grid] = {{0, 1200, 15000, 7000}, true, true, {3000, 1500}};
  items[Twin] = items[Grid];
  items[Panel] = {{5000, 2500, 5000, 2000}};
  items[Totals] = {{0, 8230, 15000, 360}, true};
  items[Bar] = {{0, 8590, 15000, 510}, true, false, {6000, 510}};
  const EdgeLayout layout(items, {15000, 9100});
  EXPECT_EQ(layout.At({15000, 9100})[Grid], items[Grid].place) << "at its own size nothing moves";

  const std::vector<Box> large = layout.At({18000, 12100});
  EXPECT_EQ(large[Title].width, 18000);
  EXPECT_EQ(large[Exit], (Box{16800, 0, 1200, 420})) << "what lies on the title goes with its end";
  EXPECT_EQ(large[Second], (Box{6000, 420, 6000, 360})) << "the three share the line as before";
  EXPECT_EQ(large[Third], (Box{12000, 420, 6000, 360}));
  EXPECT_EQ(large[Strip].width, 15000);
  EXPECT_EQ(large[Choice], (Box{15030, 810, 2970, 360})) << "a list of choices does not grow";
  EXPECT_EQ(large[Grid], (Box{0, 1200, 18000, 10000}));
  EXPECT_EQ(large[Twin], large[Grid]);
  EXPECT_EQ(large[Panel], (Box{6500, 2500, 5000, 2000})) << "in the middle of the grid that it lies on";
  EXPECT_EQ(large[Totals], (Box{0, 11230, 18000, 360}));
  EXPECT_EQ(large[Bar], (Box{0, 11590, 18000, 510}));

  const EdgeLayout::Size least = layout.Least();
  EXPECT_EQ(least.height, 9100 - 7000 + 1500);
  const std::vector<Box> small = layout.At(least);
  EXPECT_EQ(small[Grid].height, 1500);
  EXPECT_EQ(small[Bar].top + small[Bar].height, least.height);
  for (const Box& box : small) EXPECT_LE(box.left + box.width, least.width);
}

TEST(EdgeLayoutTest, ButtonsBesideAndBelowAListKeepTheirSize) {
  enum { Label, Field, List, Up, Down, Ok, Cancel };
  std::vector<Item> items(Cancel + 1);
  items[Label] = {{150, 150, 1200, 360}, true};
  items[Field] = {{1350, 150, 2000, 360}};
  items[List] = {{150, 600, 6000, 3000}, true, true, {1000, 1000}};
  items[Up] = {{6240, 600, 450, 450}};
  items[Down] = {{6240, 1140, 450, 450}};
  items[Ok] = {{3600, 3900, 1500, 420}};
  items[Cancel] = {{5250, 3900, 1500, 420}};
  const std::vector<Box> places = EdgeLayout(items, {6900, 4500}).At({9900, 6500});
  EXPECT_EQ(places[Label], items[Label].place) << "a line that does not reach the end stays where it is";
  EXPECT_EQ(places[Field], items[Field].place);
  EXPECT_EQ(places[List], (Box{150, 600, 9000, 5000}));
  EXPECT_EQ(places[Up], (Box{9240, 600, 450, 450}));
  EXPECT_EQ(places[Down], (Box{9240, 1140, 450, 450}));
  EXPECT_EQ(places[Ok], (Box{6600, 5900, 1500, 420}));
  EXPECT_EQ(places[Cancel], (Box{8250, 5900, 1500, 420}));
}

class RoomTest : public DeskTest {
 protected:
  void Resize(int width, int height) {
    window_.resize(width, height);
    QApplication::processEvents();
  }
  QRect PlaceOf(const char* control) {
    QWidget& widget = WidgetOf<QWidget>(Top().ControlAt(control));
    return {widget.mapTo(runtime_.TopView(), QPoint()), widget.size()};
  }
};

/// What a module, a script and a page read of a form's places.
std::vector<long> ModelPlaces(Form& form) {
  std::vector<long> places{form.Left, form.Top, form.Width, form.Height};
  for (const Control* control : form.Controls()) {
    for (const long place : {control->Left(), control->Top(), control->Width(), control->Height()}) {
      places.push_back(place);
    }
  }
  return places;
}

TEST_F(RoomTest, AnOpenScreenIsLaidOutAnewWithItsWindowAndTheFormHearsNothingOfIt) {
  Resize(1280, 760);
  CGridPlus& grid = OpenWorkbench();
  const std::vector<long> places = ModelPlaces(Top());
  const long width = grid.ColWidth(kCleared);
  const QRect before = PlaceOf("Grid");
  for (const QSize size : {QSize(1900, 1000), QSize(900, 480), QSize(1280, 760)}) {
    Resize(size.width(), size.height());
    const FormView& view = *runtime_.TopView();
    EXPECT_EQ(view.verticalScrollBar()->maximum() + view.horizontalScrollBar()->maximum(), 0) << size.width();
    EXPECT_EQ(PlaceOf("BtnBar1").bottom() + 1, view.height()) << "the keys are in sight";
    EXPECT_EQ(PlaceOf("MStrip2").bottom() + 3, PlaceOf("BtnBar1").top())
        << "the other account stands above them";
    EXPECT_EQ(PlaceOf("Grid").width(), view.width());
    EXPECT_EQ(PlaceOf("cmbFilter").right() + 1, view.width());
    EXPECT_GT(PlaceOf("Grid").height(), 150);
    EXPECT_EQ(ModelPlaces(Top()), places);
    EXPECT_EQ(grid.ColWidth(kCleared), width);
  }
  EXPECT_EQ(PlaceOf("Grid"), before);
  const auto& bar = WidgetOf<QWidget>(Top().ControlAt("BtnBar1"));
  Resize(620, 480);
  for (const auto* button : bar.findChildren<QPushButton*>()) {
    EXPECT_TRUE(button->isHidden() || button->width() >= Scale::Px(1125) - 5)
        << "in two lines the keys can be read";
  }
}

TEST_F(RoomTest, AtTwiceTheSizeOnASmallScreenTheCellUnderEditIsInSight) {
  Resize(1024, 560);
  OpenWorkbench();
  window_.SetZoom(200);
  QApplication::processEvents();
  auto& grid = dynamic_cast<CGridPlus&>(Top().ControlAt("Grid"));
  const auto inSight = [&] {
    QApplication::processEvents();
    const auto& shown = WidgetOf<GridWidget>(grid);
    const QWidget& view = *runtime_.TopView()->viewport();
    const QRect cell = shown.CellRect(grid.Row, grid.Col);
    return view.rect().contains(QRect(shown.mapTo(&view, cell.topLeft()), cell.size()));
  };
  int row = grid.FixedRows;
  while (Val(grid.Cell(row, 0)) == 0) ++row;
  grid.UserMoveTo(row, kCleared);
  Type("5");
  EXPECT_TRUE(inSight());
  Press(Qt::Key_Return);
  Press(Qt::Key_End);
  EXPECT_TRUE(inSight()) << "and so is the last row";
  window_.SetZoom(100);
}

TEST_F(RoomTest, TheWindowComesBackWhereItWasAndItsLineFitsAnyWidth) {
  window_.setGeometry(40, 60, 620, 480);
  window_.close();
  DeskWindow again(runtime_, "");
  again.RestorePlace();
  again.show();
  QApplication::processEvents();
  EXPECT_EQ(again.geometry(), QRect(40, 60, 620, 480));
  EXPECT_EQ(again.OpenFirm(QString::fromStdString(folder_.File("firm"))), "");
  runtime_.OnBusy(true, std::string(400, 'x'));
  runtime_.OnSelected(std::string(400, 'y'));
  runtime_.Say(std::string(400, 'z'));
  again.resize(500, 400);
  QApplication::processEvents();
  EXPECT_EQ(again.width(), 500) << "no long word holds the window wide";
  EXPECT_LE(again.statusBar()->fontMetrics().horizontalAdvance(again.statusBar()->currentMessage()),
            500 + 120);
  EXPECT_TRUE(again.statusBar()->currentMessage().endsWith(QStringLiteral("…")));
}

/// A face on which places are inches.
class frmFace : public Form {
 public:
  frmFace() : Form("frmFace") {
    Width = gSession->FormWidth();
    Height = gSession->FormHeight();
    picFace.Move(0, 0, Width, Height - 600);
    picFace.DrawLine({0, 1440, Width, 1440, 0});
    lblAmount.Move(6000, 3000, 3000, 345);
    btnFar.Move(Width - 1500, Height - 420, 1500, 420);
  }
  PictureBox picFace{*this, "picFace"};
  Label lblAmount{picFace, "lblAmount"};
  CommandButton btnFar{*this, "btnFar"};
};

TEST_F(RoomTest, AFaceWithMeasuresIsNeverStretched) {
  const auto face = std::make_shared<frmFace>();
  Acts::Run([&] { gRuntime->Show(face); });
  const QWidget& amount = WidgetOf<QWidget>(face->lblAmount);
  for (const QSize size : {QSize(1900, 1000), QSize(700, 400)}) {
    Resize(size.width(), size.height());
    EXPECT_EQ(amount.geometry(), Scale::Rect(face->lblAmount));
  }
  const FormView& view = *runtime_.TopView();
  EXPECT_GT(view.horizontalScrollBar()->maximum(), 0);
  Acts::Run([&] { face->UserFocus(face->btnFar); });
  EXPECT_TRUE(view.rect().contains(PlaceOf("btnFar"))) << "what the keys come to is scrolled to";
  runtime_.Unload(*face);
}

/// A dialog of the desk with many fields.
class FieldsDialog : public DeskDialog {
 public:
  FieldsDialog() : DeskDialog(QStringLiteral("Fields"), nullptr) {
    for (int field = 0; field < 40; ++field) Content().addWidget(new QLineEdit(this));
    AddOkCancel();
    findChild<QLineEdit*>()->setFocus();
  }
};

TEST_F(RoomTest, ADialogOfTheDeskKeepsItsButtonsOnTheScreenAndScrollsToItsFields) {
  FieldsDialog dialog;
  dialog.show();
  QApplication::processEvents();
  EXPECT_TRUE(dialog.screen()->availableGeometry().contains(QRect(QPoint(), dialog.size())));
  const auto fields = dialog.findChildren<QLineEdit*>();
  ASSERT_EQ(dialog.focusWidget(), fields.first());
  const auto inSight = [](const QWidget* widget) {
    return widget->visibleRegion().boundingRect() == widget->rect();
  };
  EXPECT_FALSE(inSight(fields.last()));
  for (const QPushButton* button : dialog.findChildren<QPushButton*>()) EXPECT_TRUE(inSight(button));
  for (int field = 1; field < fields.size(); ++field) QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
  ASSERT_EQ(dialog.focusWidget(), fields.last());
  EXPECT_TRUE(inSight(fields.last()));
}

/// A dialog that is larger than the screen.
class frmLarge : public Form {
 public:
  frmLarge() : Form("frmLarge") {
    Width = gRuntime->ScreenWidth() + 3000;
    Height = gRuntime->ScreenHeight() + 3000;
    txtFirst.Move(150, 150, 3000, 345);
    txtLast.Move(Width - 3150, Height - 495, 3000, 345);
  }
  TextBox txtFirst{*this, "txtFirst"};
  TextBox txtLast{*this, "txtLast"};
};

TEST_F(RoomTest, ADialogThatTheScreenCannotHoldIsScrolledToItsField) {
  const auto dialog = std::make_shared<frmLarge>();
  runtime_.Show(dialog);
  FormView& view = *runtime_.ViewOf(*dialog);
  EXPECT_TRUE(view.screen()->availableGeometry().contains(view.geometry()));
  EXPECT_TRUE(view.rect().contains(PlaceOf("txtFirst")));
  Press(Qt::Key_Tab);
  ASSERT_EQ(dialog->ActiveControl(), &dialog->txtLast);
  EXPECT_TRUE(view.viewport()->rect().contains(PlaceOf("txtLast")));
  runtime_.Unload(*dialog);
}

}  // namespace
}  // namespace quillon
