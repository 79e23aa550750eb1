#include <gtest/gtest.h>

#include "host/values/Errors.h"
#include "reconciliation/DayProducts.h"
#include "reconciliation/InterestOfRow.h"

namespace quillon {
namespace {

Amount Of(const char* text) { return Amount::OfText(text); }

const Date kFirst = Date::Of(2024, 4, 1);
const Date kLast = Date::Of(2025, 3, 31);

Movement Opening(const std::string& day, const char* debit, const char* credit = "") {
  return {day, 0, true, Of(debit), Of(credit)};
}
Movement Debit(const std::string& day, const char* amount, int nature = 0) {
  return {day, nature, false, Of(amount), {}};
}
Movement Credit(const std::string& day, const char* amount, int nature = 0) {
  return {day, nature, false, {}, Of(amount)};
}

/// Date, debits, credits, balance, days and product of each group.
std::vector<std::string> Table(std::vector<Movement> movements, Date first = kFirst, Date last = kLast) {
  DayProducts groups(std::move(movements), first, last);
  std::vector<std::string> table;
  while (const std::optional<DayProduct> group = groups.Next()) {
    table.push_back(group->Day + "|" + group->Debits.ToString() + "|" + group->Credits.ToString() + "|" +
                    group->Balance.ToString() + "|" + std::to_string(group->Days) + "|" +
                    group->Product.ToString());
  }
  return table;
}
using Rows = std::vector<std::string>;

TEST(DayProducts, TheLastGroupCountsItsLastDayToo) {
  EXPECT_EQ(Table({Debit("01-Apr-2024", "100")}), Rows{"01-Apr-2024|100|0|100|365|36500"});
  EXPECT_EQ(Table({Debit("01-Apr-2024", "100"), Credit("02-Apr-2024", "250")}),
            (Rows{"01-Apr-2024|100|0|100|1|100", "02-Apr-2024|0|250|-150|364|-54600"}));
  EXPECT_EQ(Table({Debit("28-Feb-2024", "1"), Debit("01-Mar-2024", "1")}, Date::Of(2024, 2, 1),
                  Date::Of(2024, 3, 31)),
            (Rows{"28-Feb-2024|1|0|1|2|2", "01-Mar-2024|1|0|2|31|62"}))
      << "a leap day counts";
  EXPECT_EQ(Table({Debit("31-Mar-2025", "7")}), Rows{"31-Mar-2025|7|0|7|1|7"});
}

TEST(DayProducts, TheOpeningBalanceIsNoMovement) {
  EXPECT_EQ(
      Table({Opening("01-Apr-2024", "", "500"), Debit("01-Apr-2024", "120"), Credit("03-Apr-2024", "20")}),
      (Rows{"01-Apr-2024|120|0|-380|2|-760", "03-Apr-2024|0|20|-400|363|-145200"}));
  EXPECT_EQ(Table({Debit("01-Apr-2024", "5"), Opening("01-Apr-2024", "70")}),
            Rows{"01-Apr-2024|75|0|75|365|27375"})
      << "only the first row can be one";
  EXPECT_EQ(Table({Debit("10-Apr-2024", "5")}), Rows{"10-Apr-2024|5|0|5|356|1780"})
      << "without one the balance starts at 0 on the first movement's date";
}

TEST(DayProducts, DatesBehindThePeriodGoIntoTheProductAsTheyAre) {
  EXPECT_EQ(Table({Debit("01-Apr-2025", "10")}), Rows{"01-Apr-2025|10|0|10|0|0"});
  EXPECT_EQ(Table({Debit("31-Mar-2025", "10"), Debit("05-Apr-2025", "10")}),
            (Rows{"31-Mar-2025|10|0|10|5|50", "05-Apr-2025|10|0|20|-4|-80"}));
  EXPECT_EQ(Table({Debit("10-Apr-2024", "10"), Debit("08-Apr-2024", "10")}),
            (Rows{"10-Apr-2024|10|0|10|-2|-20", "08-Apr-2024|10|0|20|358|7160"}))
      << "nor does anything put dates in order";
}

TEST(DayProducts, RowsWithoutADateStayWhereTheyStand) {
  EXPECT_EQ(Table({Debit("01-Apr-2024", "10"), Debit("", "20"), Debit("01-Apr-2024", "30"), Debit("", "1"),
                   Debit("04-Apr-2024", "2")}),
            (Rows{"01-Apr-2024|61|0|61|3|183", "04-Apr-2024|2|0|63|362|22806"}));
  EXPECT_EQ(Table({Debit("", "10"), Debit("", "5"), Debit("11-Apr-2024", "1")}),
            (Rows{"|15|0|15|10|150", "11-Apr-2024|1|0|16|355|5680"}))
      << "at the top they belong to the first day of the period";
  EXPECT_EQ(Table({Debit("", "")}), Rows{"|0|0|0|365|0"}) << "an empty statement is one row of nothing";
  EXPECT_EQ(Table({}), Rows());
}

TEST(DayProducts, SomeNaturesDoNotCountOnTheLastDay) {
  for (const int nature : {5054, 5055, 5043, 5032, 5022, 5023}) {
    EXPECT_FALSE(CountsForInterest(nature, kLast, kLast)) << nature;
    EXPECT_TRUE(CountsForInterest(nature, kLast.AddDays(-1), kLast)) << nature;
    EXPECT_TRUE(CountsForInterest(nature, kLast.AddDays(1), kLast)) << nature;
  }
  for (const int nature : {0, 5001, 5011, 5021, 5052, 5053})
    EXPECT_TRUE(CountsForInterest(nature, kLast, kLast));
  EXPECT_EQ(
      Table({Debit("30-Mar-2025", "10", 5022), Debit("31-Mar-2025", "10", 5022), Credit("31-Mar-2025", "3")}),
      (Rows{"30-Mar-2025|10|0|10|1|10", "31-Mar-2025|0|3|7|1|7"}));
}

InterestTerms Terms(const char* rate, const std::string& method = "Product Method", int decimals = 2,
                    float basis = 365, bool isBanks = false) {
  return {Of(rate), method, basis, decimals, isBanks};
}

TEST(InterestOfRow, FollowsTheFormulaToTheDigit) {
  EXPECT_EQ(InterestOfRow(Of("-372000"), Terms("9.5")), Of("96.82"));
  EXPECT_EQ(InterestOfRow(Of("-372000"), Terms("9.5", "Product Method", 4)), Of("96.8219"));
  EXPECT_EQ(InterestOfRow(Of("372000"), Terms("9.5", "Product Method", 4, 366)), Of("96.5574"));
  EXPECT_EQ(InterestOfRow(Of("372000"), Terms("9.5", "Product Method", 2, 92)), Of("384.13"));
  EXPECT_EQ(InterestOfRow(Of("1000"), Terms("-10")), Of("-0.27"))
      << "a negative rate is nobody's mistake here";
  EXPECT_EQ(InterestOfRow(Amount(), Terms("9.5")), Amount());
}

TEST(InterestOfRow, TiesGoToTheEvenDigit) {
  // On a basis of 100 days the value times the rate is cut by ten thousand.
  using Case = std::tuple<const char*, int, const char*>;
  for (const auto& [product, decimals, interest] :
       {Case{"1250", 2, "0.12"}, Case{"3750", 2, "0.38"}, Case{"6250", 2, "0.62"}, Case{"8750", 2, "0.88"},
        Case{"1250.0001", 2, "0.13"}, Case{"5050", 2, "0.5"}, Case{"312.5", 4, "0.0312"},
        Case{"937.5", 4, "0.0938"}, Case{"312.5001", 4, "0.0313"}}) {
    EXPECT_EQ(InterestOfRow(Of(product), Terms("1", "Product Method", decimals, 100)).ToString(), interest);
  }
  // The currency product is rounded first, its ties to the even digit too: 0.0003 at 0.5 is 0.0002, not
  // 0.00015.
  EXPECT_EQ(InterestOfRow(Of("0.0003"), Terms("0.5", "Product Method", 4, 0.01F)).ToString(), "0.0002");
  EXPECT_EQ(InterestOfRow(Of("0.0001"), Terms("0.5", "Product Method", 4, 0.01F)).ToString(), "0");
}

TEST(InterestOfRow, TheMethodDecidesWhichRows) {
  const auto signs = [](const std::string& method, bool isBanks) {
    std::string text;
    for (const char* product : {"-365000", "0", "365000"}) {
      text += InterestOfRow(Of(product), Terms("10", method, 2, 365, isBanks)).IsZero() ? "-" : "x";
    }
    return text;
  };
  for (const bool isBanks : {false, true}) {
    EXPECT_EQ(signs("Product Method", isBanks), "x-x");
    for (const char* method :
         {"Savings Bank", "Savings", "PPF", "Business Interest", "", "product method", "Product Method "}) {
      EXPECT_EQ(signs(method, isBanks), "---") << method;
    }
  }
  EXPECT_EQ(signs("CC Limit - Pay Only", false), "x--");
  EXPECT_EQ(signs("CC Limit - Pay Only", true), "--x");
  EXPECT_EQ(signs("FDR - Charge Only", false), "--x");
  EXPECT_EQ(signs("FDR - Charge Only", true), "x--");
  EXPECT_EQ(InterestOfRow(Of("-365000"), Terms("10", "FDR - Charge Only", 2, 365, true)), Of("100"));
}

TEST(InterestOfRow, LeavingTheRangeIsAnError) {
  EXPECT_THROW(InterestOfRow(Of("922337203685477"), Terms("1.1")), OverflowError);
  EXPECT_EQ(InterestOfRow(Of("922337203685477"), Terms("1", "PPF")), Amount()) << "where nothing is computed";
}

TEST(InterestYear, HasTheLengthOfItsYear) {
  const auto financial = [](Date start, Date end) { return InterestYearDays(false, start, end); };
  EXPECT_EQ(financial(Date::Of(2024, 4, 1), Date::Of(2025, 3, 31)), 365);
  EXPECT_EQ(financial(Date::Of(2023, 4, 1), Date::Of(2024, 3, 31)), 366) << "the leap day lies in it";
  EXPECT_EQ(financial(Date::Of(2024, 4, 1), Date::Of(2024, 7, 1)), 92) << "a short year is meant";
  EXPECT_EQ(financial(Date::Of(2023, 4, 1), Date::Of(2024, 4, 1)), 365) << "a longer one is not";
  EXPECT_EQ(InterestYearDays(true, Date::Of(2024, 4, 1), Date::Of(2025, 3, 31)), 366);
  EXPECT_EQ(InterestYearDays(true, Date::Of(2023, 4, 1), Date::Of(2024, 3, 31)), 365);
  EXPECT_EQ(InterestYearDays(true, Date::Of(2024, 4, 1), Date::Of(2024, 7, 1)), 366);
}

}  // namespace
}  // namespace quillon
