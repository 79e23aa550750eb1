#include <QAbstractButton>
#include <fstream>

#include "desk/firm/FirmLock.h"
#include "tests/qt/DeskTest.h"

namespace quillon {
namespace {

TEST_F(DeskTest, AnotherFirmIsLeftToADeskThatIsStartedAnew) {
  MakeSampleFirm(folder_.Path() / "other", {.Years = {2024}, .Vouchers = 30});
  ASSERT_TRUE(FirmLock::NeedsFreshProcess(folder_.Path() / "other"));
  QStringList started;
  window_.OnOtherFirm = [&](const QString& folder, const QString& user, int year) {
    started << folder << user << QString::number(year);
  };
  std::filesystem::create_directory(folder_.Path() / "empty");
  EXPECT_TRUE(
      window_.OpenFirm(QString::fromStdString(folder_.File("empty"))).contains(QStringLiteral("empty")));
  EXPECT_TRUE(window_.isVisible());
  EXPECT_TRUE(window_.Books().HasFirm()) << "the firm at hand stays open";
  const QString other = QString::fromStdString(folder_.File("other"));
  EXPECT_EQ(window_.OpenFirm(other, "Clerk", 2024), "");
  QApplication::processEvents();
  EXPECT_EQ(started, QStringList({other, "Clerk", "2024"}));
  EXPECT_FALSE(window_.isVisible());
  EXPECT_FALSE(window_.Books().HasFirm());
}

TEST_F(DeskTest, AFirmThatAnotherMachineLeftOpenIsTakenOverByTheUsersWord) {
  window_.OnOtherFirm = {};
  MakeSampleFirm(folder_.Path() / "other", {.Years = {2024}, .Vouchers = 30});
  std::ofstream(folder_.Path() / "other/firm.lock") << "machine m2\nboot b2\nuser 1\nhost far-away\n";
  const QString other = QString::fromStdString(folder_.File("other"));
  const auto press = [&](qsizetype button) {
    Soon([button] {
      const auto buttons = QApplication::activeModalWidget()->findChildren<QAbstractButton*>();
      ASSERT_EQ(buttons.size(), 2);
      buttons[button]->click();
    });
  };
  press(1);
  EXPECT_TRUE(window_.OpenFirm(other).contains(QStringLiteral("far-away"))) << "cancelled";
  press(0);
  EXPECT_EQ(window_.OpenFirm(other).toStdString(), "") << "taken over";
  EXPECT_TRUE(window_.Books().HasFirm());
}

}  // namespace
}  // namespace quillon
