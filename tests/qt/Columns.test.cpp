#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>
#include <QSettings>
#include <optional>

#include "desk/qt/adapters/GridWidget.h"
#include "host/services/IApp.h"
#include "host/values/Text.h"
#include "tests/qt/DeskTest.h"

namespace quillon {
namespace {

class ColumnsTest : public DeskTest {
 protected:
  ColumnsTest() {
    QSettings().clear();
    window_.resize(1280, 760);
    QApplication::processEvents();
    grid_ = &OpenWorkbench();
    QApplication::processEvents();
  }

  GridWidget& Shown() { return WidgetOf<GridWidget>(*grid_); }
  int Column(const char* heading) const {
    for (int col = 0; col < grid_->Cols; ++col) {
      if (grid_->IsColVisible(col) && grid_->TextMatrix(0, col) == heading) return col;
    }
    ADD_FAILURE() << "no column " << heading;
    return 0;
  }
  int WidthOf(const char* heading) { return Shown().ColWidth(Column(heading)); }

  /// On the border at the right of a heading.
  QPoint Border(const char* heading) {
    return {Shown().CellRect(grid_->Row, Column(heading)).right() + 1, Shown().Body().top() - 5};
  }
  void DragBorder(const char* heading, int by) {
    const QPoint from = Border(heading);
    QTest::mousePress(Shown().viewport(), Qt::LeftButton, {}, from);
    for (const QPoint at : {from + QPoint(by / 2, 0), from + QPoint(by, 0)}) {
      QMouseEvent move(QEvent::MouseMove, at, at, Qt::LeftButton, Qt::LeftButton, {});
      QApplication::sendEvent(Shown().viewport(), &move);
    }
    QTest::mouseRelease(Shown().viewport(), Qt::LeftButton, {}, from + QPoint(by, 0));
  }

  /// Opens the menu at a place, or that of the key where there is none, and takes the line of these words, in
  /// the menu that opens from it. What the menu offers is answered.
  QStringList TakeLine(std::optional<QPoint> place, const QStringList& path) {
    QStringList offered;
    Soon([&] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(menu, nullptr);
      for (const QString& words : path) {
        QAction* wanted = nullptr;
        offered.clear();
        for (QAction* act : menu->actions()) {
          const QString line = act->text().remove(QLatin1Char('&')).section(QLatin1Char('\t'), 0, 0);
          offered << line;
          if (line == words) wanted = act;
        }
        if (wanted == nullptr) break;
        menu->setActiveAction(wanted);
        QTest::keyClick(menu, wanted->menu() != nullptr ? Qt::Key_Right : Qt::Key_Return);
        if (wanted->menu() == nullptr) return;
        menu = wanted->menu();
      }
      while (QApplication::activePopupWidget() != nullptr) QApplication::activePopupWidget()->close();
    });
    const auto reason = place ? QContextMenuEvent::Mouse : QContextMenuEvent::Keyboard;
    const QPoint at = place.value_or(QPoint());
    QContextMenuEvent asked(reason, at, Shown().viewport()->mapToGlobal(at));
    QApplication::sendEvent(Shown().viewport(), &asked);
    QApplication::processEvents();
    return offered;
  }
  QPoint Heading(const char* heading) { return Border(heading) - QPoint(20, 0); }

  CGridPlus* grid_ = nullptr;
};

TEST_F(ColumnsTest, TheNarrationTakesTheRoomAndDatesAndAmountsOnlyWhatTheyNeed) {
  const int date = WidthOf("Date");
  const int balance = WidthOf("Balance");
  const int narration = WidthOf("Narration");
  EXPECT_GE(date, Shown().fontMetrics().horizontalAdvance(QStringLiteral("28-May-2024")));
  window_.resize(1680, 760);
  QApplication::processEvents();
  EXPECT_EQ(WidthOf("Date"), date);
  EXPECT_EQ(WidthOf("Balance"), balance);
  EXPECT_EQ(WidthOf("Narration"), narration + 400);
  window_.resize(900, 760);
  QApplication::processEvents();
  EXPECT_EQ(Shown().horizontalScrollBar()->maximum(), 0)
      << "the narration gives before anything is out of sight";
  EXPECT_GE(WidthOf("Date"), Shown().fontMetrics().horizontalAdvance(QStringLiteral("28-May-2024")));
}

TEST_F(ColumnsTest, WidthsAreDraggedFittedKeptAndTakenBackAndTheModelKeepsItsOwn) {
  std::vector<long> stated;
  stated.reserve(static_cast<std::size_t>(grid_->Cols()));
  for (int col = 0; col < grid_->Cols; ++col) stated.push_back(grid_->ColWidth(col));
  const int date = WidthOf("Date");
  const int credit = WidthOf("Credit");
  const int narration = WidthOf("Narration");
  DragBorder("Date", 40);
  EXPECT_NEAR(WidthOf("Date"), date + 40, 1);
  EXPECT_NEAR(WidthOf("Narration"), narration - 40, 1) << "what one gains the narration loses";
  const QPoint border = Border("Credit");
  DragBorder("Credit", 30);
  EXPECT_NEAR(Border("Credit").x(), border.x() + 30, 1)
      << "right of the narration too the border goes with the mouse";
  EXPECT_NEAR(WidthOf("Credit"), credit + 30, 1);
  for (int col = 0; col < grid_->Cols; ++col)
    EXPECT_EQ(grid_->ColWidth(col), stated[static_cast<std::size_t>(col)]);

  Press(Qt::Key_Escape);
  Press(Qt::Key_F6);
  grid_ = &dynamic_cast<CGridPlus&>(Top().ControlAt("Grid"));
  QApplication::processEvents();
  EXPECT_NEAR(WidthOf("Date"), date + 40, 1) << "it is remembered";
  QTest::mouseDClick(Shown().viewport(), Qt::LeftButton, {}, Border("Date"));
  EXPECT_LT(WidthOf("Date"), date + 10);
  EXPECT_GT(WidthOf("Date"), Shown().fontMetrics().horizontalAdvance(QStringLiteral("28-May-2024")));
  TakeLine(Heading("Date"), {QStringLiteral("As the Screen Has Them")});
  EXPECT_EQ(WidthOf("Date"), date);
  EXPECT_EQ(WidthOf("Credit"), credit);
  EXPECT_TRUE(QSettings().allKeys().filter(QStringLiteral("columns/")).isEmpty());
}

TEST_F(ColumnsTest, AColumnIsPutAsideAndBroughtBackByMouseAndKeys) {
  const QStringList offered = TakeLine(Heading("Balance"), {QStringLiteral("nothing")});
  EXPECT_TRUE(offered.contains(QStringLiteral("Balance")));
  EXPECT_FALSE(offered.contains(QStringLiteral("Cleared On"))) << "a column that is typed in stays";
  TakeLine(Heading("Balance"), {QStringLiteral("Balance")});
  EXPECT_EQ(WidthOf("Balance"), 0);
  EXPECT_GT(grid_->ColWidth(Column("Balance")), 0);
  int row = grid_->FixedRows;
  while (Val(grid_->Cell(row, 0)) == 0) ++row;
  grid_->UserMoveTo(row, Column("Credit"));
  Press(Qt::Key_Right);
  EXPECT_EQ(grid_->Col(), Column("Cleared On")) << "the keys pass over it";
  Press(Qt::Key_Left);
  EXPECT_EQ(grid_->Col(), Column("Credit"));
  Press(Qt::Key_A, Qt::ControlModifier);
  Press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(runtime_.ClipboardText().find("\tBalance"), std::string::npos)
      << "what is not seen is not copied";
  TakeLine({}, {QStringLiteral("Columns"), QStringLiteral("Balance")});
  EXPECT_GT(WidthOf("Balance"), 0);
  const int credit = WidthOf("Credit");
  TakeLine({}, {QStringLiteral("Columns"), QStringLiteral("Wider")});
  EXPECT_GT(WidthOf("Credit"), credit);
}

TEST_F(ColumnsTest, TheMenuAtACellDoesWhatItsKeysDo) {
  int row = grid_->FixedRows;
  while (Val(grid_->Cell(row, 0)) == 0) ++row;
  const int narration = Column("Narration");
  grid_->UserMoveTo(grid_->OuterRow(1), narration);
  QApplication::processEvents();
  const QPoint cell = Shown().CellRect(row, narration).center();
  TakeLine(cell, {QStringLiteral("Copy")});
  EXPECT_EQ(grid_->Row(), row) << "the cursor goes to the cell first";
  EXPECT_EQ(text::Trim(runtime_.ClipboardText()), grid_->TextMatrix(row, narration));
}

}  // namespace
}  // namespace quillon
