#include <gtest/gtest.h>

#include "graph/GraphSeries.h"
#include "host/values/Errors.h"

namespace quillon {
namespace {

TEST(GraphRules, QuartersEndWithMarchWhateverMonthTheYearBeginsWith) {
  const GraphCalendar usual(4, 2024);
  EXPECT_EQ(usual.MonthLabel(1) + ", " + usual.MonthLabel(12), "Apr 2024, Mar 2025");
  EXPECT_EQ(usual.QuarterLabel(4), "Jan-Mar");
  EXPECT_EQ(usual.QuarterPosition(1), 4);
  const GraphCalendar february(2, 2024);
  EXPECT_EQ(february.MonthLabel(12), "Jan 2025");
  EXPECT_EQ(february.QuarterLabel(1) + february.QuarterLabel(4), "Jan-MarOct-Dec");
  EXPECT_EQ(february.QuarterPosition(1), 1) << "the January at its end too";
  EXPECT_EQ(february.MonthPosition(1), 12);
  EXPECT_TRUE(GraphCalendar::QuarterNo(13).IsEmpty());
  EXPECT_TRUE(GraphCalendar::QuarterNo(0).IsEmpty());
}

class Figures : public testing::Test {
 protected:
  void Enter(int base, int day, const char* amount) {
    const Date first = Date::Of(2024, 4, 1);
    figures_.Enter(base, day, first.AddDays(day - 1), Amount::OfText(amount), calendar_);
  }
  std::string At(GraphUnit unit, int row, int element) { return figures_.At(unit, row, element).ToString(); }

  GraphCalendar calendar_{4, 2024};
  GraphFigures figures_;
};

TEST_F(Figures, OneRowOfThousandsTakesAllOfThemAlong) {
  Enter(GraphFigures::kCurrent, 1, "100000");
  Enter(GraphFigures::kCurrent, 366, "-100000");
  Enter(GraphFigures::kPrevious, 2, "-100000.01");
  Enter(GraphFigures::kNext, 2, "60000");
  Enter(GraphFigures::kNext, 3, "60000");
  for (const int base : {GraphFigures::kCurrent, GraphFigures::kPrevious, GraphFigures::kNext})
    figures_.Total(base, 366);
  const auto divisor = [this](GraphUnit unit, int comparison, int running) {
    return CommonDivisor(figures_, unit, SeriesOfGraph(unit, comparison, running, 2024, {}));
  };
  EXPECT_EQ(divisor(GraphUnit::Month, kCompareNone, 0), 1);
  EXPECT_EQ(divisor(GraphUnit::Month, kCompareNone, 1), 1);
  EXPECT_EQ(divisor(GraphUnit::Month, kComparePrevious, 0), 1000);
  EXPECT_EQ(divisor(GraphUnit::Quarter, kCompareNext, 0), 1000);
  EXPECT_EQ(figures_.Divisor(GraphUnit::Day, GraphFigures::kNext), 1);
  EXPECT_EQ(figures_.Divisor(GraphUnit::Day, GraphFigures::kNext + 1), 1000) << "the running total alone";
  EXPECT_EQ(At(GraphUnit::Day, GraphFigures::kNext + 1, 366), "120000");
  EXPECT_THROW(figures_.At(GraphUnit::Day, GraphFigures::kCurrent, 367), SubscriptError);
}

TEST_F(Figures, OfTwoRowsOfADayTheLastStandsAndBothCountInTheMonth) {
  Enter(GraphFigures::kCurrent, 5, "10");
  Enter(GraphFigures::kCurrent, 5, "-3.25");
  Enter(GraphFigures::kCurrent, 0, "7");
  EXPECT_THROW(Enter(GraphFigures::kCurrent, -1, "900"), SubscriptError);
  figures_.Total(GraphFigures::kCurrent, 5);
  EXPECT_EQ(At(GraphUnit::Day, 1, 5), "-3.25");
  EXPECT_EQ(At(GraphUnit::Month, 0, 1), "6.75");
  EXPECT_EQ(At(GraphUnit::Month, 0, 12), "7") << "the day before the first is a March";
  EXPECT_EQ(At(GraphUnit::Quarter, 1, 4), "13.75");
  EXPECT_EQ(At(GraphUnit::Day, 1, 6), "0") << "the period has five days";
}

}  // namespace
}  // namespace quillon
