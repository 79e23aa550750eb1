#include "desk/services/AmountFormat.h"

#include <gtest/gtest.h>
#include <random>

#include "host/values/Errors.h"

namespace quillon {
namespace {

TEST(AmountFormat, GroupsInLakhsAndCrores) {
  struct Case {
    const char* amount;
    const char* key;
    const char* shown;
  };
  for (const Case& c :
       std::initializer_list<Case>{{"0", "c2", ""},
                                   {"0", "C2", "0.00"},
                                   {"0.004", "c2", ""},
                                   {"-0.0049", "C2", "0.00"},
                                   {"0.005", "c2", "0.01"},
                                   {"-0.005", "c2", "-0.01"},
                                   {"7", "c2", "7.00"},
                                   {"999", "c2", "999.00"},
                                   {"1000", "c2", "1,000.00"},
                                   {"99999", "c2", "99,999.00"},
                                   {"99999.995", "c2", "1,00,000.00"},
                                   {"-99999.995", "c2", "-1,00,000.00"},
                                   {"99999.9949", "c2", "99,999.99"},
                                   {"100000", "c0", "1,00,000"},
                                   {"1234567", "c2", "12,34,567.00"},
                                   {"12345678.9", "c2", "1,23,45,678.90"},
                                   {"1234567.5", "c0", "12,34,568"},
                                   {"0.4", "c0", ""},
                                   {"0.5", "c0", "1"},
                                   {"1234567.12345", "c4", "12,34,567.1234"},
                                   {"1234567.5", "n2", "1234567.50"},
                                   {"-1234567.5", "N2", "-1234567.50"},
                                   {"0", "n2", ""},
                                   {"0", "N0", "0"},
                                   {"922337203685477.5807", "c2", "92,23,37,20,36,85,477.58"},
                                   {"-922337203685477.5808", "c0", "-92,23,37,20,36,85,478"},
                                   {"-922337203685477.5808", "C4", "-92,23,37,20,36,85,477.5808"}}) {
    EXPECT_EQ(FormatAmount(Amount::OfText(c.amount), c.key), c.shown) << c.amount << " by " << c.key;
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
  EXPECT_EQ(FormatRate(Amount::OfText("9.5")), "9.50");
  EXPECT_EQ(FormatRate(Amount::OfText("9.1234")), "9.1234");
  EXPECT_EQ(FormatRate(Amount::OfText("9.120")), "9.12");
  EXPECT_EQ(FormatRate(Amount::OfText("9.125")), "9.125");
  EXPECT_EQ(FormatRate(Amount::OfText("10")), "10.00");
  EXPECT_EQ(FormatRate(Amount()), "0.00");
  EXPECT_EQ(FormatRate(Amount::OfText("-0.25")), "-0.25");
}

TEST(AmountFormat, ReadsAmountsAsShown) {
  struct Case {
    const char* text;
    const char* amount;
  };
  for (const Case& c :
       std::initializer_list<Case>{{"", "0"},
                                   {"   ", "0"},
                                   {"abc", "0"},
                                   {"12,34,567.50", "1234567.5"},
                                   {"  -1,250.75 Dr.", "-1250.75"},
                                   {"500.00 Cr.", "500"},
                                   {"500Cr.", "500"},
                                   {"**1", "0"},
                                   {".5", "0.5"},
                                   {"-.5", "-0.5"},
                                   {"+5", "5"},
                                   {"--5", "0"},
                                   {"1-5", "1"},
                                   {"1.2.3", "1.2"},
                                   {"100.50,200", "100.5"},
                                   {"1e5", "1"},
                                   {"12 34", "12"},
                                   {"0.00005", "0"},
                                   {"0.00015", "0.0002"},
                                   {"0.00025", "0.0002"},
                                   {"9,99,99,999.99", "99999999.99"},
                                   {"-92,23,37,20,36,85,477.5808", "-922337203685477.5808"}}) {
    EXPECT_EQ(ParseAmount(c.text).ToString(), c.amount) << c.text;
  }
  EXPECT_THROW(ParseAmount("9,99,99,99,99,99,99,99,999"), OverflowError);
  EXPECT_THROW(ParseAmount("922337203685477.5808"), OverflowError);
}

TEST(AmountFormat, RoundsHalvesAwayFromZero) {
  EXPECT_EQ(RoundAmount(Amount::OfText("2.345"), "2").ToString(), "2.35");
  EXPECT_EQ(RoundAmount(Amount::OfText("-2.345"), "2").ToString(), "-2.35");
  EXPECT_EQ(RoundAmount(Amount::OfText("2.3449"), "2").ToString(), "2.34");
  EXPECT_EQ(RoundAmount(Amount::OfText("99999.995"), "2").ToString(), "100000");
  EXPECT_EQ(RoundAmount(Amount::OfText("0.5"), "0").ToString(), "1");
  EXPECT_EQ(RoundAmount(Amount::OfText("-0.5"), "0").ToString(), "-1");
  EXPECT_EQ(RoundAmount(Amount::OfText("1.2345"), "4").ToString(), "1.2345");
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
