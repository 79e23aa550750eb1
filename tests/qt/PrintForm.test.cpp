#include <filesystem>

#include "desk/print/PdfPrinter.h"
#include "desk/qt/windows/FormPicture.h"
#include "desk/screens/frmProofSheet.h"
#include "host/controls/host_controls.h"
#include "host/services/Calibration.h"
#include "tests/qt/FormTest.h"
#include "tests/support/FullDisk.h"
#include "tests/support/PdfReader.h"

namespace quillon {
namespace {

class PrintFormTest : public FormTest {
 protected:
  void SetUp() override {
    if (!PdfReader::IsInstalled()) GTEST_SKIP() << "pdftotext and pdftoppm are not installed";
  }
};

/// A page as a screen lays it out for paper.
class frmPage : public Form {
 public:
  frmPage() : Form("frmPage") {
    Width = 20490;
    Height = 10500;
    lblFirm.Caption = "Sharda";
    lblFirm.Move(0, 0, 11500, 345);
    lblPeriod.Caption = "Konkan";
    lblPeriod.Font = {"Arial", 12, true};
    lblPeriod.Move(5750, 7600, 5750, 400);
    lblHidden.Caption = "Hidden";
    lblHidden.Visible = false;
    Letter.Visible = false;
    Graph.Move(10, 700, 11480, 6800);
    Graph.DataGrid.SetSize(2, 1, 2, 1);
    Graph.DataGrid.SetData(1, 1, 123456);
    Graph.DataGrid.SetRowLabel(1, 1, "Apr");
  }

  Label lblFirm{*this, "lblFirm"};
  Label lblPeriod{*this, "lblPeriod"};
  Label lblHidden{*this, "lblHidden"};
  MSChart Graph{*this, "Graph"};
  MSHFlexGrid Letter{*this, "Letter"};
};

TEST_F(PrintFormTest, AFormGoesOnALandscapePageAsTextsAndVectors) {
  const auto form = std::make_shared<frmPage>();
  runtime_.Show(form);
  PdfPrinter printer(folder_.Path().string());
  printer.Orientation = IPrinter::kLandscape;
  FormPicture::Print(form, printer);

  const std::string file = folder_.File("print-1.pdf");
  const PdfReader pdf(file);
  ASSERT_EQ(pdf.Pages().size(), 1u);
  EXPECT_NEAR(pdf.Pages()[0].width, 16838, 20);
  constexpr double kNear = 60;  // the frame that a label keeps within its place
  EXPECT_NEAR(pdf.Find("Sharda").left, 0, kNear);
  const PdfReader::Word& period = pdf.Find("Konkan");
  EXPECT_NEAR(period.left, 5750, kNear);
  EXPECT_NEAR(period.right - period.left,
              static_cast<double>(runtime_.TextWidth({"Arial", 12, true}, "Konkan")), 12);
  EXPECT_GE(period.top, 7500);
  EXPECT_LE(period.bottom, 8050);
  EXPECT_FALSE(pdf.FindAll("Apr").empty()) << "what the chart says";
  EXPECT_TRUE(pdf.FindAll("Hidden").empty());
  EXPECT_EQ(pdf.Ink(1, 11600, 0, 5000, 11000), 0) << "no surface, no edge";
  const std::string surface = PdfReader::Run("pdftoppm -gray -r 20 -x 200 -y 20 -W 1 -H 1 '" + file + "'");
  EXPECT_EQ(surface.back(), '\xFF') << "a form without a colour of its own leaves the paper white";
  EXPECT_EQ(PdfReader::Run("pdfimages -list '" + file + "' | tail -n +3"), "") << "no picture";
}

TEST_F(PrintFormTest, TheCrossesOfAProofSheetLieWhereTheyAreMeasuredFrom) {
  PdfPrinter printer(folder_.Path().string());
  FormPicture::Print(std::make_shared<frmProofSheet>("Laser"), printer);
  const PdfReader pdf(folder_.File("print-1.pdf"));
  constexpr double kMillimetre = PdfReader::kTwipsPerMillimetre;
  constexpr Calibration::Measured kProof = Calibration::kProof;
  const auto ink = [&](double left, double top, double width, double height) {
    return pdf.Ink(1, left * kMillimetre, top * kMillimetre, width * kMillimetre, height * kMillimetre);
  };
  for (const auto& [left, top] : {std::pair(kProof.Left, kProof.Top),
                                  {kProof.Left + kProof.Across, kProof.Top},
                                  {kProof.Left, kProof.Top + kProof.Down}}) {
    EXPECT_GT(ink(left - 0.3, top - 4, 0.6, 3), 0) << "upright, within 0.3 mm";
    EXPECT_GT(ink(left - 4, top - 0.3, 3, 0.6), 0) << "across, within 0.3 mm";
    EXPECT_EQ(ink(left + 0.5, top + 0.5, 3, 3), 0);
  }
  EXPECT_NEAR(pdf.Find("Proof").left, 80 * kMillimetre, 60);
}

TEST_F(PrintFormTest, WhatADiskCannotHoldIsToldAndLeavesNothing) {
  const auto form = std::make_shared<frmPage>();
  runtime_.Show(form);
  const std::filesystem::path folder = folder_.Path() / "out";
  std::filesystem::create_directory(folder);
  PdfPrinter printer(folder.string());
  {
    const FullDisk full(200);
    EXPECT_THROW(FormPicture::Save(form, (folder / "form.png").string()), HostError);
    EXPECT_THROW(FormPicture::Print(form, printer), HostError);
  }
  for (const auto& left : std::filesystem::directory_iterator(folder)) ADD_FAILURE() << left.path();
}

}  // namespace
}  // namespace quillon
