#include <QFontInfo>
#include <QFontMetricsF>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "desk/print/Fonts.h"
#include "desk/print/PdfPrinter.h"
#include "desk/print/PrintObserver.h"
#include "desk/print/TextMeasure.h"
#include "host/services/PrintRun.h"
#include "host/values/Errors.h"
#include "tests/support/FullDisk.h"
#include "tests/support/PdfReader.h"
#include "tests/support/SpoolerPath.h"
#include "tests/support/TempFolder.h"

namespace quillon {
namespace {

constexpr double kTolerance = 0.2 * PdfReader::kTwipsPerMillimetre;

class Log : public PrintObserver {
 public:
  void OnText(int page, double x, double, const std::string& text, const Font& font) override {
    texts.push_back(std::to_string(page) + " " + std::to_string(std::lround(x)) + " " + text + " " +
                    font.Name);
  }
  void OnPrinted(const std::string& file, int pages, int paper, int orientation) override {
    files.push_back(file);
    jobs.push_back({pages, paper, orientation});
  }

  std::vector<std::string> texts;
  std::vector<std::string> files;
  std::vector<std::vector<int>> jobs;
};

class PrinterTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "pdftotext and pdftoppm are not installed";
  }

  void PrintAt(double x, double y, const std::string& text) {
    printer.CurrentX = x;
    printer.CurrentY = y;
    printer.Print(text);
  }
  std::size_t FilesLeft() const {
    const std::filesystem::directory_iterator files(folder.Path());
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
  }

  TempFolder folder;
  Log log;
  PdfPrinter printer{folder.Path().string(), &log};
};

TEST_F(PrinterTest, TextsOfAChequeLandWhereTheyWereAskedForInEachFont) {
  struct Object {
    const char* font;
    double size;
    bool bold;
    double x, y;
  };
  const std::vector<Object> objects = {{"Tahoma", 8.25, false, 1440, 720},
                                       {"Tahoma", 12, true, 5000, 1500},
                                       {"Arial", 10, false, 300, 2345},
                                       {"Times New Roman", 14, true, 7000, 4000},
                                       {"Courier New", 9, false, 2000, 15000}};
  for (std::size_t i = 0; i < objects.size(); ++i) {
    printer.Font = {objects[i].font, objects[i].size, objects[i].bold};
    PrintAt(objects[i].x, objects[i].y, "Kandla" + std::to_string(i));
  }
  printer.EndDoc();

  const PdfReader pdf(log.files.at(0));
  for (std::size_t i = 0; i < objects.size(); ++i) {
    const std::string text = "Kandla" + std::to_string(i);
    const PdfReader::Word& word = pdf.Find(text);
    const Font font{objects[i].font, objects[i].size, objects[i].bold};
    EXPECT_NEAR(word.left, objects[i].x, kTolerance) << objects[i].font;
    EXPECT_NEAR(word.top, objects[i].y, kTolerance) << objects[i].font;
    EXPECT_NEAR(word.right - word.left, TextMeasure::Width(font, text), kTolerance) << objects[i].font;
  }
}

TEST_F(PrinterTest, TheCursorMovesOnByTheTextAndByTheLine) {
  printer.Font = {"Arial", 10};
  printer.CurrentX = 1000;
  printer.CurrentY = 500;
  printer.Print("12", false);
  EXPECT_DOUBLE_EQ(printer.CurrentX, 1000 + printer.TextWidth("12"));
  EXPECT_DOUBLE_EQ(printer.CurrentY, 500);
  printer.CurrentX += 200;
  printer.Print("345");
  EXPECT_DOUBLE_EQ(printer.CurrentX, 0);
  EXPECT_DOUBLE_EQ(printer.CurrentY, 500 + printer.TextHeight("345"));
  printer.Print("Office\r\nFixed");
  EXPECT_DOUBLE_EQ(printer.CurrentY, 500 + 3 * printer.TextHeight("345"));
  printer.EndDoc();

  const PdfReader pdf(log.files.at(0));
  EXPECT_NEAR(pdf.Find("345").left, 1200 + TextMeasure::Width(printer.Font, "12"), kTolerance);
  EXPECT_NEAR(pdf.Find("Fixed").top - pdf.Find("Office").top, TextMeasure::LineHeight(printer.Font),
              kTolerance);
}

TEST_F(PrinterTest, AnEnvelopeRunHasItsPagesPaperAndEvents) {
  printer.Orientation = IPrinter::kLandscape;
  printer.NewPage();  // a skipped party feeds an empty leaf
  PrintAt(2000, 3000, "Harbour");
  printer.NewPage();
  PrintAt(2000, 3000, "Nigdi");
  printer.EndDoc();
  printer.Orientation = IPrinter::kPortrait;
  PrintAt(0, 0, "Second");
  printer.EndDoc();
  printer.EndDoc();  // nothing printed, nothing left

  ASSERT_EQ(log.files.size(), 2u);
  EXPECT_EQ(log.files[0], folder.File("print-1.pdf"));
  EXPECT_EQ(log.files[1], folder.File("print-2.pdf"));
  EXPECT_EQ(log.jobs[0], (std::vector<int>{3, IPrinter::kA4, IPrinter::kLandscape}));
  EXPECT_EQ(log.texts.at(0), "2 2000 Harbour Tahoma");
  EXPECT_EQ(log.texts.at(1), "3 2000 Nigdi Tahoma");
  const PdfReader first(log.files[0]);
  ASSERT_EQ(first.Pages().size(), 3u);
  EXPECT_NEAR(first.Pages()[0].width, 16838, 3);
  EXPECT_NEAR(first.Pages()[0].height, 11906, 8);
  EXPECT_EQ(first.Find("Harbour").page, 2);
  EXPECT_EQ(first.Find("Nigdi").page, 3);
  EXPECT_NEAR(PdfReader(log.files[1]).Pages().at(0).height, 16838, 3);
}

TEST_F(PrinterTest, AJobThatDiesLeavesNothing) {
  PrintAt(0, 0, "Half");
  printer.KillDoc();
  EXPECT_EQ(FilesLeft(), 0u);
  {
    PdfPrinter abandoned(folder.Path().string());
    abandoned.Print("Half");
  }
  EXPECT_EQ(FilesLeft(), 0u);
  PdfPrinter nowhere("/proc/none");
  EXPECT_THROW(nowhere.Print("x"), HostError);
}

TEST_F(PrinterTest, ADiskThatIsFullIsToldAndTheJobDoesNotCountAsPrinted) {
  std::string why;
  printer.ForgetJob();
  for (const rlim_t room : {rlim_t{0}, rlim_t{900}}) {
    try {
      const FullDisk full(room);
      PrintAt(0, 0, "Harbour");
      printer.EndDoc();
      ADD_FAILURE() << "a file of " << room << " bytes is none";
    } catch (const HostError& error) {
      why = error.what();
    }
    EXPECT_NE(why.find("could not be written whole"), std::string::npos) << why;
    EXPECT_EQ(FilesLeft(), 0U);
    EXPECT_EQ(printer.FateOfJob(why), IPrinter::JobFate::kNothingSent);
  }
  PrintAt(0, 0, "Harbour");
  printer.EndDoc();
  EXPECT_EQ(printer.FateOfJob(why), IPrinter::JobFate::kPrinted) << "there is room again";
}

TEST_F(PrinterTest, ABrokenRunLeavesNoPageForTheNext) {
  PrintAt(0, 0, "Forgotten");  // a job without an end
  try {
    PrintRun run(printer);
    PrintAt(0, 0, "Half");
    run.NewPage();
    throw HostError("the party is missing");
  } catch (const HostError&) {
  }
  EXPECT_EQ(FilesLeft(), 0u);
  PrintAt(0, 0, "Forgotten");
  {
    PrintRun run(printer);
    PrintAt(0, 0, "Whole");
    run.EndDoc();
  }
  const PdfReader pdf(log.files.at(0));
  EXPECT_EQ(log.files.size(), 1u);
  EXPECT_EQ(pdf.Pages().size(), 1u);
  EXPECT_EQ(pdf.Text().find("Forgotten"), std::string::npos);
}

TEST_F(PrinterTest, WhatAKilledProgramLeftHalfWrittenIsRemovedAndNoOtherFile) {
  const auto write = [this](const char* name) {
    std::ofstream(folder.File(name)) << "half";
    std::filesystem::last_write_time(folder.File(name),
                                     std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
  };
  write(".print-0123456789abcdef0123456789abcdef.part");
  write(".report-0123456789abcdef0123456789abcdef.part");
  write("mine.part");
  PdfPrinter other(folder.Path().string());
  other.Print("Harbour");  // still at work
  PrintAt(0, 0, "Whole");
  printer.EndDoc();
  EXPECT_EQ(FilesLeft(), 3u) << "the job at work, mine.part and the new pages";
  other.EndDoc();
  EXPECT_TRUE(std::filesystem::exists(folder.File("print-2.pdf")));
}

TEST_F(PrinterTest, AJobForADeviceGoesToTheSpoolerAndAFileStays) {
  TempFolder tools;
  printer.DeviceName = "Canteen LaserJet";
  const SpoolerPath refusing(tools, "echo \"no such printer: $2\"; exit 1");
  PrintAt(0, 0, "Harbour");
  try {
    printer.EndDoc();
    ADD_FAILURE() << "a refused job was not told";
  } catch (const HostError& error) {
    EXPECT_NE(std::string(error.what()).find("no such printer: Canteen LaserJet"), std::string::npos)
        << error.what();
  }
  EXPECT_TRUE(std::filesystem::exists(folder.File("print-1.pdf")));
}

TEST_F(PrinterTest, DevanagariPrintsShaped) {
  printer.Font = {"Tahoma", 20};
  PrintAt(1000, 1000, "\u0915\u094D\u0937\u093F");  // shaped these four make one cluster
  printer.EndDoc();

  const Font& font = printer.Font;
  EXPECT_LT(TextMeasure::Width(font, "\u0915\u094D\u0937"),
            TextMeasure::Width(font, "\u0915") + TextMeasure::Width(font, "\u0937"));
  const PdfReader pdf(log.files.at(0));
  EXPECT_GT(pdf.Ink(1, 900, 900, 3000, 900), 100);
  const std::string fonts = PdfReader::Run("pdffonts '" + log.files[0] + "'");
  EXPECT_NE(fonts.find("evanagari"), std::string::npos) << fonts;
}

TEST(TextMeasure, DigitsOfAFontAreOneWidthAndSumsAreExact) {
  // The known advances of these fonts: 0.546 and 0.556 of the size.
  EXPECT_NEAR(TextMeasure::Width({"Tahoma", 8.25}, "9"), 165 * 0.546, 0.5);
  EXPECT_NEAR(TextMeasure::Width({"Arial", 10}, "9"), 200 * 0.556, 0.5);
  EXPECT_NEAR(TextMeasure::Width({"Courier New", 10}, "fi fl ffi"), 9 * 200 * 0.6, 2);
  for (const char* name : {"Tahoma", "Arial", "Times New Roman", "Courier New"}) {
    for (const bool bold : {false, true}) {
      const Font font{name, 9, bold};
      EXPECT_DOUBLE_EQ(TextMeasure::Width(font, "1,11,111.00"), TextMeasure::Width(font, "9,88,707.45"))
          << name;
      EXPECT_NEAR(
          QFontMetricsF(Fonts::Of({name, 1800, bold})).horizontalAdvance("Office fixed AVAV 12,34,567.00") *
              9 * 20 / QFontInfo(Fonts::Of({name, 1800, bold})).pixelSize(),
          TextMeasure::Width(font, "Office fixed AVAV 12,34,567.00"), 2)
          << name;
    }
  }
  EXPECT_EQ(TextMeasure::Width({"Tahoma", 8.25}, ""), 0);
}

}  // namespace
}  // namespace quillon
