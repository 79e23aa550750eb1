#include <gtest/gtest.h>

#include "host/services/CReportOptions.h"
#include "host/values/Errors.h"

namespace quillon {
namespace {

TEST(ReportOptions, AListOfPairsSetsEachOption) {
  CReportOptions options;
  options.AddOptionText("MainHeadForm1=,Heading=False,RulingChr1=,Copies:=2");
  EXPECT_EQ(options.Option("mainheadform1").ToText(), "");
  EXPECT_FALSE(options.Option("MainHeadForm1").IsEmpty()) << "set to an empty text";
  EXPECT_FALSE(options.Option("HEADING").ToFlag());
  EXPECT_EQ(options.Option("Copies").ToInteger(), 2);
  EXPECT_TRUE(options.Option("BottomLine").IsEmpty());
  options.AddOptionText("Title2:=Station: Kandla, Pune,India a=b,,c,BottomLine=False,Note=x,");
  EXPECT_EQ(options.Option("Title2").ToText(), "Station: Kandla, Pune,India a=b,,c");
  EXPECT_EQ(options.Option("BottomLine").ToText(), "False");
  EXPECT_EQ(options.Option("Note").ToText(), "x,");
}

TEST(ReportOptions, LaterTextsWinAndColumnsKeepTheirOwn) {
  CReportOptions options;
  options.SetOption("CFLines", 3);
  options.SetColumnOption(2, "Wrap", "True");
  options.SetVar("RefNo", "17/A");
  options.AddOptionText("");
  EXPECT_EQ(options.Option("cflines").ToInteger(), 3);
  options.AddOptionText("cfLines=0");
  EXPECT_EQ(options.Option("CFLines").ToInteger(), 0);
  EXPECT_EQ(options.ColumnOption(2, "wrap"), "True");
  EXPECT_EQ(options.ColumnOption(1, "Wrap"), "");
  EXPECT_EQ(options.Var("REFNO"), "17/A");
  EXPECT_EQ(options.Var("Dated"), "");
  EXPECT_THROW(options.AddOptionText("BottomLine"), HostError);
  EXPECT_THROW(options.AddOptionText("=False"), HostError);
}

}  // namespace
}  // namespace quillon
