#include "desk/services/AmountWords.h"

#include <gtest/gtest.h>
#include <map>
#include <random>
#include <sstream>

#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {
namespace {

std::string Words(const std::string& amount) { return AmountInWords(Amount::OfText(amount), "A"); }

TEST(AmountWords, AreWhatAChequeCarries) {
  for (const std::string& each :
       text::Split("1234567.5|Twelve Lakh Thirty Four Thousand Five Hundred Sixty Seven and Paise Fifty Only;"
                   "0|Zero Only;0.004|Zero Only;-0.004|Zero Only;0.05|Paise Five Only;1|One Only;"
                   "19|Nineteen Only;20.20|Twenty and Paise Twenty Only;100|One Hundred Only;"
                   "100001|One Lakh One Only;10000000|One Crore Only;99999.995|One Lakh Only;"
                   "-45.10|Minus Forty Five and Paise Ten Only;1000000000000|One Lakh Crore Only",
                   ";")) {
    const auto c = text::Split(each, "|");
    EXPECT_EQ(Words(c[0]), c[1]);
  }
  EXPECT_EQ(
      Words("-922337203685477.5808"),
      "Minus Nine Crore Twenty Two Lakh Thirty Three Thousand Seven Hundred Twenty Crore Thirty Six Lakh "
      "Eighty Five Thousand Four Hundred Seventy Seven and Paise Fifty Eight Only");
  EXPECT_THROW(AmountInWords(Amount(), "B"), HostError);
}

/// Reads words back the other way round: each word adds to or multiplies what stands before it.
std::int64_t Paise(const std::string& words) {
  static const std::map<std::string, std::int64_t> kValues = {
      {"Zero", 0},     {"One", 1},      {"Two", 2},        {"Three", 3},     {"Four", 4},
      {"Five", 5},     {"Six", 6},      {"Seven", 7},      {"Eight", 8},     {"Nine", 9},
      {"Ten", 10},     {"Eleven", 11},  {"Twelve", 12},    {"Thirteen", 13}, {"Fourteen", 14},
      {"Fifteen", 15}, {"Sixteen", 16}, {"Seventeen", 17}, {"Eighteen", 18}, {"Nineteen", 19},
      {"Twenty", 20},  {"Thirty", 30},  {"Forty", 40},     {"Fifty", 50},    {"Sixty", 60},
      {"Seventy", 70}, {"Eighty", 80},  {"Ninety", 90}};
  std::istringstream in(words);
  std::int64_t rupees = 0, lakhs = 0, small = 0;
  bool paise = false;
  for (std::string word; in >> word;) {
    if (word == "Hundred") {
      small *= 100;
    } else if (word == "Thousand" || word == "Lakh") {
      lakhs += small * (word == "Lakh" ? 100000 : 1000);
      small = 0;
    } else if (word == "Crore") {
      rupees = (rupees + lakhs + small) * 10000000;
      lakhs = small = 0;
    } else if (word == "Paise") {
      rupees += lakhs + small;
      lakhs = small = 0;
      paise = true;
    } else if (kValues.count(word) != 0) {
      small += kValues.at(word);
    } else {
      EXPECT_TRUE(word == "and" || word == "Only") << word;
    }
  }
  return paise ? rupees * 100 + small : (rupees + lakhs + small) * 100;
}

TEST(AmountWords, ReadBackAsTheAmount) {
  std::mt19937_64 random(3);
  for (int round = 0; round < 20000; ++round) {
    const auto paise = static_cast<std::int64_t>(random() >> (8 + random() % 50));
    const std::string words = AmountInWords(Amount::OfUnits(paise * 100), "A");
    ASSERT_EQ(Paise(words), paise) << words;
    ASSERT_EQ(words.find("  "), std::string::npos) << words;
  }
}

}  // namespace
}  // namespace quillon
