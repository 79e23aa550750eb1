#include "tests/cheques/ChequeFixture.h"
#include "tests/support/PrintServer.h"
#include "tests/support/SpoolerPath.h"

namespace quillon {
namespace {

/// Cheques on a printer that draws 1 % too wide and 2 mm too far to the left.
class ChequeSight : public ChequeTest {
 protected:
  static constexpr double kMillimetre = PdfReader::kTwipsPerMillimetre;

  void AnswerSight(bool print) {
    runtime_.Laid.Add({{"to", "printdialog"}, {"printer", "Laser"}, {"seefirst", true}});
    runtime_.Laid.Add({{"to", "sight"}, {"print", print}});
  }

  void SetUp() override {
    if (!PrintServer::IsInstalled()) GTEST_SKIP() << "cups-daemon and cups-client are not installed";
    ChequeTest::SetUp();
    server_ = std::make_unique<PrintServer>();
  }

  std::unique_ptr<PrintServer> server_;
};

TEST_F(ChequeSight, PagesThatWereSeenArePrintedOrDiscarded) {
  const FormPtr form = ShowCheque();
  AnswerSight(false);
  Key(*form, keys::kF9);
  EXPECT_TRUE(Events("printed").empty());
  EXPECT_FALSE(std::filesystem::exists(folder_.File("print-1.pdf")));
  AnswerSight(true);
  Key(*form, keys::kF9);
  const std::vector<Json> seen = Events("sight");
  ASSERT_EQ(seen.size(), 2U);
  EXPECT_EQ(seen[1].at("pages"), 1);
  EXPECT_EQ(seen[1].at("printer"), "Laser");
  EXPECT_EQ(FileText(server_->Await(1).at(0).File), FileText(folder_.File("print-1.pdf")));
  runtime_.Laid.Add({{"to", "printdialog"}, {"printer", "Laser"}});
  Key(*form, keys::kF9);
  EXPECT_TRUE(Events("sight").empty()) << "the wish holds for one job";
}

TEST_F(ChequeSight, APrintersErrorIsTakenOutOnTheWayToItsQueueAlone) {
  const FormPtr dialog = gApp->GetForm("Printer");
  runtime_.NextCommand = [&] {
    const auto type = [&](int measure, const char* text) {
      Do([&] { At<CTextPlus>(dialog, "txpMeasure", measure).UserType(text); });
    };
    type(2, "500");
    AnswerMessage();
    Key(*dialog, keys::kF7);
    type(0, "18.2");
    type(2, "151.5");
    Key(*dialog, keys::kF7);
    return true;
  };
  Do([&] { gStd->ShowDialog(dialog, nullptr); });
  EXPECT_EQ(Messages().size(), 1U) << "no printer is wrong by so much";
  const FormPtr form = ShowCheque();
  AnswerSight(true);
  Key(*form, keys::kF9);
  EXPECT_EQ(Events("sight").at(0).at("corrected"), "1.98 mm right, 99 % across");
  const PdfReader sent(server_->Await(1).at(0).File);
  const PdfReader kept(folder_.File("print-1.pdf"));
  EXPECT_NEAR(kept.Find("Asha").left, 870, 0.2 * kMillimetre) << "the file stays as it was laid out";
  // What the printer makes of the corrected page is what was asked for.
  const auto printed = [](double x) { return (x / kMillimetre * 1.01 - 2) * kMillimetre; };
  for (const char* word : {"Asha", "**1,250.75", "Paise"}) {
    EXPECT_NEAR(printed(sent.Find(word).left), kept.Find(word).left, 0.2 * kMillimetre) << word;
    EXPECT_NEAR(sent.Find(word).top, kept.Find(word).top, 0.2 * kMillimetre) << word;
  }
  EXPECT_FALSE(std::filesystem::exists(folder_.File("corrected-1.pdf")));
  gApp->PutUserSetting("Calibration.Laser", "damaged");
  runtime_.Laid.Add({{"to", "printdialog"}, {"printer", "Laser"}});
  Key(*form, keys::kF9);
  EXPECT_EQ(Errors().size(), 1U);
  EXPECT_EQ(FileText(server_->Await(2).at(1).File), FileText(folder_.File("print-2.pdf")))
      << "printed uncorrected";
}

TEST_F(ChequeSight, APrinterThatIsStoppedOrGoneIsTold) {
  const FormPtr form = ShowCheque();
  const auto print = [&] {
    runtime_.Laid.Add({{"to", "printdialog"}, {"printer", "Laser"}});
    Key(*form, keys::kF9);
  };
  server_->StopQueue("Laser");
  AnswerMessage();
  print();
  server_->RestartQueue("Laser");
  server_->HoldJobs("Laser");
  AnswerMessage();
  print();
  EXPECT_EQ(Messages(), (Texts{"The printer Laser is stopped. What was sent waits in its queue.",
                               "The queue of the printer Laser holds the pages back. What was sent waits in "
                               "its queue."}));
  // It was there when the dialog listed the printers.
  const SpoolerPath listed(folder_, "echo Laser\n", "lpstat");
  server_->RemoveQueue("Laser");
  print();
  const std::vector<Json> told = Events("error");
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(told[0].at("routine"), "PrintChq");
  EXPECT_NE(told[0].at("text").get<std::string>().find("does not exist"), std::string::npos);
}

}  // namespace
}  // namespace quillon
