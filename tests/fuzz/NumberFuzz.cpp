#include <cmath>

#include "desk/services/AmountFormat.h"
#include "desk/services/AmountWords.h"
#include "desk/services/DateText.h"
#include "host/values/Text.h"
#include "tests/fuzz/Mutator.h"

namespace quillon {
namespace {

Mutator Numbers() {
  return Mutator(
      {"12,34,567.50", "-1,250.75 Dr.", "500.00 Cr.", "0.00005", "-922337203685477.5808", "1e300", ".5", ""},
      {"-", "+", ".", ",", "e", "E-", "e9", "0", "9", "99999999", " ", "\t", "inf", "nan", "0x", " Dr.",
       "१"});
}

TEST(Fuzz, Val) {
  Fuzz(Numbers(), [](const std::string& input) {
    const double value = Val(input);
    EXPECT_TRUE(std::isfinite(value));
    EXPECT_EQ(Val(input + "x"), value) << "what follows a number does not change it";
    EXPECT_EQ(Val("  " + input), value);
    EXPECT_EQ(static_cast<double>(ValInteger(input)), std::trunc(value));
  });
}

TEST(Fuzz, ParseAmount) {
  Fuzz(Numbers(), [](const std::string& input) {
    const Amount amount = ParseAmount(input);
    EXPECT_EQ(ParseAmount(input + " Dr."), amount);
    EXPECT_EQ(ParseAmount(FormatAmount(amount, "C4")), amount);
    EXPECT_EQ(ParseAmount(FormatRate(amount)), amount);
    EXPECT_EQ(Amount::OfText(amount.ToString()), amount);
    EXPECT_FALSE(AmountInWords(amount, "A").empty());
  });
}

TEST(Fuzz, ParseDateText) {
  const DateFrame year{Date::Of(2024, 4, 1), Date::Of(2025, 3, 31), Date::Of(2024, 8, 15)};
  const Mutator dates(
      {"5/4/2024", "05042024", "0504", "5 apr 24", "31-Dec-1999", "5", "29/2", "17-Jan-2023", "31.3"},
      {"/", "-", ".", " ", "0", "1", "29", "31", "12", "2024", "feb", "May", "september", "४", "\n"});
  std::string reference;
  Fuzz(dates, [&](const std::string& input) {
    const std::string read = ParseDateText(input, reference, year);
    EXPECT_EQ(ParseDateText(read, reference, year), read) << "a whole date stays, with " << reference;
    EXPECT_EQ(Date::Parse(read).Text(), read);
    EXPECT_EQ(ValidDate(input, year), text::Trim(input).empty() || !ParseDateText(input, "", year).empty());
    reference = input;
  });
}

}  // namespace
}  // namespace quillon
