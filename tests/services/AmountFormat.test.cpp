#include "desk/services/AmountFormat.h"

#include <array>
#include <gtest/gtest.h>
#include <random>

#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {
namespace {

TEST(AmountFormat, GroupsInLakhsAndCrores) {
  for (const std::string& each :
       text::Split("0|c2|;0|C2|0.00;0.004|c2|;-0.0049|C2|0.00;0.005|c2|0.01;-0.005|c2|-0.01;7|c2|7.00;"
                   "999|c2|999.00;1000|c2|1,000.00;99999|c2|99,999.00;99999.995|c2|1,00,000.00;"
                   "-99999.995|c2|-1,00,000.00;99999.9949|c2|99,999.99;100000|c0|1,00,000;"
                   "1234567|c2|12,34,567.00;12345678.9|c2|1,23,45,678.90;1234567.5|c0|12,34,568;0.4|c0|;"
                   "0.5|c0|1;1234567.12345|c4|12,34,567.1234;1234567.5|n2|1234567.50;"
                   "-1234567.5|N2|-1234567.50;0|n2|;0|N0|0;922337203685477.5807|c2|92,23,37,20,36,85,477.58;"
                   "-922337203685477.5808|c0|-92,23,37,20,36,85,478;"
                   "-922337203685477.5808|C4|-92,23,37,20,36,85,477.5808",
                   ";")) {
    const auto c = text::Split(each, "|");
    EXPECT_EQ(FormatAmount(Amount::OfText(c[0]), c[1]), c[2]) << each;
  }
  for (const char* key : {"", "c", "c5", "c-", "x2", "c22", "2c"}) {
    EXPECT_THROW(FormatAmount(Amount::OfInteger(1), key), HostError) << key;
  }
}

TEST(AmountFormat, AnyNumericValueIsShown) {
  EXPECT_EQ(FormatValue(Variant(), "c2"), "");
  EXPECT_EQ(FormatValue(Variant::Null(), "C2"), "0.00");
  EXPECT_EQ(FormatValue(1234567, "c0"), "12,34,567");
  EXPECT_EQ(FormatValue(2.675, "c2"), "2.68") << "the decimal number that is meant, not the binary one";
  EXPECT_EQ(FormatValue("12,34,567.5", "n2"), "1234567.50");
  EXPECT_EQ(FormatValue(-0.5, "c2"), "-0.50");
  EXPECT_THROW(FormatValue(1e300, "c2"), OverflowError);
  EXPECT_THROW(FormatValue(Date::Of(2024, 4, 1), "c2"), HostError);
}

TEST(AmountFormat, RatesShowTwoToFourDecimals) {
  for (const char* rate : {"9.50", "9.1234", "9.12", "9.125", "10.00", "0.00", "-0.25"})
    EXPECT_EQ(FormatRate(Amount::OfText(rate)), rate);
}

TEST(AmountFormat, ReadsAmountsAsShown) {
  for (const std::string& each :
       text::Split("|0;   |0;abc|0;12,34,567.50|1234567.5;  -1,250.75 Dr.|-1250.75;500.00 Cr.|500;"
                   "500Cr.|500;**1|0;.5|0.5;-.5|-0.5;+5|5;--5|0;1-5|1;1.2.3|1.2;100.50,200|100.5;1e5|1;"
                   "12 34|12;0.00005|0;0.00015|0.0002;0.00025|0.0002;9,99,99,999.99|99999999.99;"
                   "-92,23,37,20,36,85,477.5808|-922337203685477.5808",
                   ";")) {
    const auto c = text::Split(each, "|");
    EXPECT_EQ(ParseAmount(c[0]).ToString(), c[1]) << each;
  }
  EXPECT_THROW(ParseAmount("9,99,99,99,99,99,99,99,999"), OverflowError);
  EXPECT_THROW(ParseAmount("922337203685477.5808"), OverflowError);
}

TEST(AmountFormat, RoundsHalvesAwayFromZero) {
  using Case = std::array<const char*, 3>;
  for (const auto& [amount, decimals, rounded] :
       {Case{"2.345", "2", "2.35"}, Case{"-2.345", "2", "-2.35"}, Case{"2.3449", "2", "2.34"},
        Case{"99999.995", "2", "100000"}, Case{"0.5", "0", "1"}, Case{"-0.5", "0", "-1"},
        Case{"1.2345", "4", "1.2345"}}) {
    EXPECT_EQ(RoundAmount(Amount::OfText(amount), decimals).ToString(), rounded) << amount;
  }
  EXPECT_THROW(RoundAmount(Amount::OfUnits(INT64_MAX), "0"), OverflowError);
  for (const char* decimals : {"", "5", "-1", "x", "22"}) {
    EXPECT_THROW(RoundAmount(Amount(), decimals), HostError) << decimals;
  }
}

/// Amounts of every size, near ties too.
Amount AnyAmount(std::mt19937_64& random) {
  const auto units = static_cast<std::int64_t>(random() >> (random() % 63));
  return Amount::OfUnits(random() % 2 == 0 ? units / 2 : -(units / 2) / 50 * 50);
}

TEST(AmountFormat, WhatIsShownReadsBackAsTheRoundedAmount) {
  std::mt19937_64 random(42);
  for (int round = 0; round < 5000; ++round) {
    const Amount amount = AnyAmount(random);
    for (int decimals = 0; decimals <= 4; ++decimals) {
      const Amount rounded = amount.Rounded(decimals);
      for (const char letter : {'c', 'C', 'n', 'N'}) {
        const std::string shown = FormatAmount(amount, std::string(1, letter) + std::to_string(decimals));
        ASSERT_EQ(ParseAmount(shown), rounded) << amount.ToString() << " shown as " << shown;
      }
    }
    ASSERT_EQ(ParseAmount(FormatRate(amount)), amount);
  }
}

}  // namespace
}  // namespace quillon
