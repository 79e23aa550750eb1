#include <QMenuBar>

#include "tests/qt/DeskTest.h"

namespace quillon {
namespace {

TEST_F(DeskTest, TheMenusShowTheLinesWhoseScreensTheModuleHasAndNoneBesides) {
  QStringList shown;
  for (const QAction* menu : window_.menuBar()->actions()) {
    EXPECT_FALSE(menu->menu()->isEmpty()) << menu->text().toStdString();
    for (const QAction* line : menu->menu()->actions()) shown << line->text();
  }
  for (const DeskMenuLine& line : DeskMenuLines()) {
    const bool has = window_.Books().Module().GetForm(line.FormKey) != nullptr;
    EXPECT_EQ(shown.count(QString::fromUtf8(line.Caption)), has ? 1 : 0) << line.Key;
  }
}

}  // namespace
}  // namespace quillon
