#include "host/values/Amount.h"

#include <gtest/gtest.h>
#include <random>

#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {
namespace {

__extension__ using Wide = __int128;

constexpr Amount kHighest = Amount::OfUnits(INT64_MAX);
constexpr Amount kLowest = Amount::OfUnits(INT64_MIN);

TEST(Amount, LeavingTheRangeIsAnError) {
  const Amount one = Amount::OfUnits(1);
  EXPECT_THROW(kHighest + one, OverflowError);
  EXPECT_THROW(kLowest - one, OverflowError);
  EXPECT_THROW(-kLowest, OverflowError);
  EXPECT_THROW(kLowest.Abs(), OverflowError);
  EXPECT_THROW(kLowest * -1, OverflowError);
  EXPECT_THROW(kHighest * 2, OverflowError);
  EXPECT_THROW(kHighest * Amount::OfText("1.0001"), OverflowError);
  EXPECT_THROW(kHighest.Rounded(3), OverflowError);
  EXPECT_THROW(kLowest.Rounded(0), OverflowError);
  EXPECT_THROW(Amount::OfInteger(922337203685478), OverflowError);
  EXPECT_THROW(Amount::OfDouble(9.3e14), OverflowError);
  EXPECT_THROW(Amount::OfDouble(std::numeric_limits<double>::quiet_NaN()), OverflowError);
  EXPECT_THROW(Amount::OfDouble(-std::numeric_limits<double>::infinity()), OverflowError);
  Amount sum = kHighest;
  EXPECT_THROW(sum += one, OverflowError);
  EXPECT_EQ(sum, kHighest) << "a refused sum changes nothing";
  EXPECT_EQ(kHighest + kLowest, -one);
  EXPECT_EQ(kLowest * 1, kLowest);
  EXPECT_EQ(kLowest.Rounded(4), kLowest);
  EXPECT_EQ(kLowest.Rounded(2).ToString(), "-922337203685477.58");
}

TEST(Amount, TextsAreReadToTheLastDigit) {
  for (const std::string& each :
       text::Split("|0;-|0;.|0;-.|0;12|120000;  \t-12.5x|-125000;+.0001|1;1,234|10000;0.00005|0;0.000050|0;"
                   "0.0000500001|1;0.00015|2;-0.00025|-2;-0.00035|-4;0.00004999999999999999999999|0;"
                   "000000000000000000000000012|120000;922337203685477.5807|9223372036854775807;"
                   "922337203685477.58074|9223372036854775807;-922337203685477.5808|-9223372036854775808;"
                   "-922337203685477.58085|-9223372036854775808",
                   ";")) {
    const auto c = text::Split(each, "|");
    EXPECT_EQ(std::to_string(Amount::OfText(c[0]).Units()), c[1]) << each;
  }
  for (const char* text : {"922337203685477.5808", "922337203685477.58075", "-922337203685477.58086",
                           "-922337203685477.5809", "99999999999999999999999999999999999999999999"}) {
    EXPECT_THROW(Amount::OfText(text), OverflowError) << text;
  }
}

TEST(Amount, TextAndBackForAnyAmount) {
  std::mt19937_64 random(1);
  for (int round = 0; round < 20000; ++round) {
    const Amount amount = Amount::OfUnits(static_cast<std::int64_t>(random()) >> (random() % 63));
    ASSERT_EQ(Amount::OfText(amount.ToString()), amount) << amount.ToString();
  }
  EXPECT_EQ(kLowest.ToString(), "-922337203685477.5808");
  EXPECT_EQ(Amount::OfUnits(-1).ToString(), "-0.0001");
  EXPECT_EQ(Amount::OfUnits(120500).ToString(), "12.05");
}

TEST(Amount, ProductsRoundTiesToTheEvenDigit) {
  std::mt19937_64 random(2);
  for (int round = 0; round < 20000; ++round) {
    const auto a = static_cast<std::int64_t>(random()) >> 24;
    const auto b = static_cast<std::int64_t>(random() % 100000) - 50000;
    const Wide exact = static_cast<Wide>(a) * b;
    const Wide rounded = (Amount::OfUnits(a) * Amount::OfUnits(b)).Units();
    const Wide off = exact - rounded * 10000;
    ASSERT_TRUE(off >= -5000 && off <= 5000) << a << " * " << b;
    ASSERT_TRUE((off != 5000 && off != -5000) || rounded % 2 == 0) << a << " * " << b;
  }
}

TEST(Amount, FloorAndFloatingPoint) {
  EXPECT_EQ(Amount::OfText("-0.0001").Floor(), -1);
  EXPECT_EQ(Amount::OfText("-3").Floor(), -3);
  EXPECT_EQ(Amount::OfText("3.9999").Floor(), 3);
  EXPECT_EQ(Amount::OfDouble(2.675).ToString(), "2.675");
  EXPECT_EQ(Amount::OfDouble(0.00025).Units(), 2) << "a tie goes to the even digit";
  EXPECT_EQ(Amount::OfDouble(-0.1).Units(), -1000);
}

}  // namespace
}  // namespace quillon
