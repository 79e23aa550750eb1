#include <chrono>
#include <gtest/gtest.h>
#include <thread>

#include "desk/print/PageSender.h"
#include "desk/print/PdfDocument.h"
#include "desk/print/PdfPrinter.h"
#include "host/values/Errors.h"
#include "tests/support/PdfReader.h"
#include "tests/support/PrintServer.h"

namespace quillon {
namespace {

using Fate = IPrinter::JobFate;

/// Jobs for the queues of a real print server.
class QueueTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!PrintServer::IsInstalled()) GTEST_SKIP() << "cups-daemon and cups-client are not installed";
    server = std::make_unique<PrintServer>();
    printer.DeviceName = "Laser";
  }

  void PrintPage(const std::string& text) {
    printer.ForgetJob();
    printer.CurrentX = 1440;
    printer.CurrentY = 720;
    printer.Print(text);
    printer.EndDoc();
  }

  /// Once it is no longer under way.
  Fate Settled(std::string& why) {
    for (int look = 0; look < 200; ++look) {
      const Fate fate = printer.FateOfJob(why);
      if (fate != Fate::kUnderWay) return fate;
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return Fate::kUnderWay;
  }
  TempFolder folder;
  std::unique_ptr<PrintServer> server;
  PdfPrinter printer{folder.Path().string()};
};

TEST_F(QueueTest, PagesArriveWithTheirPaperOrientationAndCopies) {
  printer.Orientation = IPrinter::kLandscape;
  printer.ColorMode = IPrinter::kMonochrome;
  PrintPage("Harbour");
  std::string why;
  EXPECT_EQ(Settled(why), Fate::kPrinted);
  PdfDocument letter(folder.Path().string(), "letter", 1, IPrinter::kPortrait);
  PageSender::Send({}, letter.Finish(), {.Printer = "Laser", .Copies = 3, .Paper = 1});
  const std::vector<PrintServer::Paper> papers = server->Await(2);
  ASSERT_EQ(papers.size(), 2U);
  EXPECT_EQ(papers[0].Copies + papers[1].Copies, "13");
  const auto holds = [](const std::string& text, const char* part) {
    return text.find(part) != std::string::npos;
  };
  EXPECT_TRUE(holds(papers[0].Options, "media=iso_a4_210x297mm")) << papers[0].Options;
  EXPECT_TRUE(holds(papers[0].Options, "print-color-mode=monochrome"));
  EXPECT_TRUE(holds(papers[0].Options, "print-scaling=none")) << "a layout is printed as large as it is";
  EXPECT_TRUE(holds(papers[1].Options, "media=na_letter_8.5x11in")) << papers[1].Options;
  const PdfReader sheet(papers[0].File);
  EXPECT_NEAR(sheet.Pages().at(0).width, 16838, 3);
  EXPECT_NEAR(sheet.Find("Harbour").left, 1440, 0.2 * PdfReader::kTwipsPerMillimetre);
  EXPECT_NEAR(PdfReader(papers[1].File).Pages().at(0).height, 15840, 3);
}

TEST_F(QueueTest, WhatAQueueGivesUpOrRefusesIsNotPrinted) {
  server->Break();
  PrintPage("given up");
  std::string why;
  EXPECT_EQ(Settled(why), Fate::kInDoubt);
  EXPECT_EQ(why, "The printer Laser has given the pages up.");
  server->CloseQueue("Laser");
  EXPECT_THROW(PrintPage("refused"), HostError);
  EXPECT_EQ(Settled(why), Fate::kInDoubt);
}

}  // namespace
}  // namespace quillon
