#include "desk/services/DateText.h"

#include <gtest/gtest.h>

#include "host/values/Text.h"

namespace quillon {
namespace {

/// The year 2024-25, opened in the middle of it.
DateFrame Open(Date today = Date::Of(2024, 8, 15)) {
  return {Date::Of(2024, 4, 1), Date::Of(2025, 3, 31), today};
}

/// Each case is a text, and behind the sign the date that it means.
void ExpectDates(const std::string& cases, const std::string& reference = "") {
  for (const std::string& each : text::Split(cases, ";")) {
    const auto c = text::Split(each, "=");
    EXPECT_EQ(ParseDateText(c[0], reference, Open()), c[1]) << each << ", " << reference;
  }
}

TEST(DateText, WholeDatesInEveryWriting) {
  for (const char* text : {"5/4/2024", "05-04-2024", "5.4.24", "5 4 24", "05042024", "050424", "5-Apr-2024",
                           "5 april 24", "5APR24", " 05 - Apr - 2024 ", "05-Apr-2024", "5/Apr.2024"}) {
    EXPECT_EQ(ParseDateText(text, "", Open()), "05-Apr-2024") << text;
  }
  ExpectDates(
      "1/1/49=01-Jan-2049;1/1/50=01-Jan-1950;1/1/00=01-Jan-2000;9 sept 2024=09-Sep-2024;29/2/2024=29-Feb-2024");
  EXPECT_EQ(ParseDateText("31/12/2031", "1-Apr-2020", Open()), "31-Dec-2031") << "nothing is missing";
}

TEST(DateText, WhatIsNoDateGivesNothing) {
  for (const char* text :
       {"",           " ",       "x",      "/",        "0",    "32",         "31/2",     "31/2/2024",
        "29/2/2025",  "30/2/24", "0/4",    "5/0",      "5/13", "5/4/0000",   "5/4/224",  "5/4/20245",
        "5//4",       "5/4/",    "/5/4",   "5/4/24/1", "504",  "50424",      "0504 24",  "5 ma 24",
        "5 aprils 4", "5 xyz",   "apr",    "5:4",      "5,4",  "2024-04-05", "5-4-24 x", "9999999999",
        "००/४",       "3113",    "310224", "5 4 apr"}) {
    EXPECT_EQ(ParseDateText(text, "", Open()), "") << text;
    EXPECT_EQ(ParseDateText(text, "10-Jun-2024", Open()), "") << text;
  }
}

TEST(DateText, DayAndMonthFallIntoTheOpenYear) {
  // February 2025 has no 29th.
  ExpectDates("1/4=01-Apr-2024;31/12=31-Dec-2024;1/1=01-Jan-2025;31 mar=31-Mar-2025;0504=05-Apr-2024;29/2=");
  const DateFrame leap{Date::Of(2023, 4, 1), Date::Of(2024, 3, 31), Date::Of(2023, 5, 1)};
  EXPECT_EQ(ParseDateText("29/2", "", leap), "29-Feb-2024");
  const DateFrame calendar{Date::Of(2024, 1, 1), Date::Of(2024, 12, 31), Date::Of(2023, 5, 1)};
  EXPECT_EQ(ParseDateText("29/2", "", calendar), "29-Feb-2024");
  EXPECT_EQ(ParseDateText("31/3", "", calendar), "31-Mar-2024");
}

TEST(DateText, ADayAloneTakesTheMonthOfTodayOrTheFirst) {
  EXPECT_EQ(ParseDateText("5", "", Open()), "05-Aug-2024");
  EXPECT_EQ(ParseDateText("31", "", Open(Date::Of(2024, 9, 1))), "") << "September has 30 days";
  EXPECT_EQ(ParseDateText("5", "", Open(Date::Of(2025, 3, 31))), "05-Mar-2025")
      << "the last day belongs to it";
  EXPECT_EQ(ParseDateText("5", "", Open(Date::Of(2025, 4, 1))), "05-Apr-2024");
  EXPECT_EQ(ParseDateText("5", "", Open(Date::Of(2023, 8, 1))), "05-Apr-2024");
}

TEST(DateText, TheReferenceCompletesBeforeTheYear) {
  ExpectDates("5=05-Jan-2023;5/6=05-Jun-2023", "17-Jan-2023");
  ExpectDates("5=05-Jan-2023", "17/01/2023");
  ExpectDates("31=;29=29-Feb-2024", "10-Feb-2024");
  for (const char* none : {"", "Opening Balance", "31-Feb-2024", "17-Jan", "17"}) {
    EXPECT_EQ(ParseDateText("5", none, Open()), "05-Aug-2024") << none;
  }
}

TEST(DateText, EveryDayOfTheYearIsFoundFromItsShortForms) {
  const DateFrame year = Open();
  for (Date day = year.start; day <= year.end; day = day.AddDays(1)) {
    for (const char* picture : {"d/M", "ddMM", "d MMM", "ddMMyy", "d.M.yyyy", "dd-MMM-yyyy"}) {
      EXPECT_EQ(ReadDateText(day.Format(picture), "", year), day) << day.Format(picture);
    }
    EXPECT_EQ(ReadDateText(day.Format("d"), day.Text(), year), day);
  }
}

TEST(DateText, AFieldMayBeLeftEmptyOrWithADate) {
  for (const char* valid : {"", "  ", "05-Apr-2024", "5/4"}) EXPECT_TRUE(ValidDate(valid, Open())) << valid;
  for (const char* wrong : {"31/2", "soon"}) EXPECT_FALSE(ValidDate(wrong, Open())) << wrong;
}

}  // namespace
}  // namespace quillon
