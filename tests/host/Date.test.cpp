#include "host/values/Date.h"

#include <array>
#include <gtest/gtest.h>

#include "host/values/Errors.h"

namespace quillon {
namespace {

TEST(Date, TheCalendarHasItsLeapYears) {
  using Parts = std::array<int, 3>;
  EXPECT_TRUE(Date::Exists(2024, 2, 29));
  EXPECT_TRUE(Date::Exists(2000, 2, 29));
  for (const auto& [year, month, day] :
       {Parts{1900, 2, 29}, Parts{2023, 2, 29}, Parts{2024, 13, 1}, Parts{2024, 4, 31}, Parts{2024, 4, 0},
        Parts{0, 1, 1}, Parts{10000, 1, 1}, Parts{2024, 257, 1}, Parts{2024, 1, 257}}) {
    EXPECT_FALSE(Date::Exists(year, month, day)) << year << "-" << month << "-" << day;
  }
  EXPECT_THROW(Date::Of(2024, 2, 30), HostError);
}

TEST(Date, EveryDayFollowsItsNeighbour) {
  Date day = Date::Of(1899, 12, 31);
  int before = 0;
  for (const Date last = Date::Of(2101, 1, 1); day < last; day = day.AddDays(1)) {
    const int key = (day.Year() * 100 + day.Month()) * 100 + day.Day();
    ASSERT_GT(key, before);
    before = key;
    ASSERT_EQ(Date::Of(day.Year(), day.Month(), day.Day()), day);
    ASSERT_EQ(Date::Parse(day.Text()), day);
    ASSERT_EQ(Date::Parse(day.Format("yyyy-MM-dd")), day);
  }
  EXPECT_EQ(Date::Days(Date::Of(1899, 12, 31), day), 73415);
}

TEST(Date, TextsAreEnglishAndWhole) {
  const Date day = Date::Of(2024, 4, 5);
  EXPECT_EQ(day.Text(), "05-Apr-2024");
  EXPECT_EQ(day.Format("dd/MM/yyyy"), "05/04/2024");
  EXPECT_EQ(day.Format("d.M.yy"), "5.4.24");
  EXPECT_EQ(Date::Of(2005, 1, 1).Format("yy"), "05");
  EXPECT_EQ(Date::Of(800, 1, 1).Format("yyyy"), "0800");
  EXPECT_EQ(Date().Text(), "");
  EXPECT_EQ(Date::Parse("05-APR-2024"), day);
  for (const char* text :
       {"", "5-Apr-2024", "05-Apr-24", "31-Feb-2024", "05-Foo-2024", "05/Apr/2024", "2024-13-01", "2024-4-5",
        "20x4-04-05", " 05-Apr-2024", "05-Apr-2024 ", "-5-Apr-2024"}) {
    EXPECT_TRUE(Date::Parse(text).IsEmpty()) << text;
  }
}

TEST(Date, MovesStayInsideTheCalendar) {
  EXPECT_EQ(Date::Of(2024, 2, 29).AddYears(1).Text(), "28-Feb-2025");
  EXPECT_EQ(Date::Of(2024, 2, 29).AddYears(-4).Text(), "29-Feb-2020");
  EXPECT_EQ(Date::Of(2024, 12, 31).AddDays(1).Text(), "01-Jan-2025");
  EXPECT_EQ(Date::Of(2024, 3, 1).AddDays(-1).Text(), "29-Feb-2024");
  EXPECT_TRUE(Date().AddDays(5).IsEmpty());
  EXPECT_TRUE(Date().AddYears(5).IsEmpty());
  const Date day = Date::Of(2024, 4, 5);
  for (const std::int64_t days : {INT64_MAX, INT64_MIN, std::int64_t{3000000}, std::int64_t{-800000}}) {
    EXPECT_THROW(day.AddDays(days), OverflowError) << days;
  }
  for (const int years : {INT32_MAX, INT32_MIN, 7976, -2024})
    EXPECT_THROW(day.AddYears(years), OverflowError);
  EXPECT_EQ(Date::Days(Date::Of(2024, 4, 1), Date::Of(2024, 3, 1)), -31);
  EXPECT_THROW(Date::Days(Date(), day), HostError);
  EXPECT_LT(Date(), Date::Of(1, 1, 1)) << "an empty date sorts before every other";
}

}  // namespace
}  // namespace quillon
