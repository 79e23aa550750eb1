#include "host/values/Text.h"

#include <gtest/gtest.h>

#include "host/values/Errors.h"
#include "host/values/Variant.h"

namespace quillon {
namespace {

constexpr const char* kSmile = "\xF0\x9F\x98\x80";

TEST(Text, LengthsCountUtf16Units) {
  EXPECT_EQ(text::Length(""), 0U);
  EXPECT_EQ(text::Length("Ramराम"), 6U);
  EXPECT_EQ(text::Length("श्री"), 4U);
  EXPECT_EQ(text::Length(std::string("a") + kSmile + "b"), 4U);
  EXPECT_EQ(text::Length("a\xFF\x80z"), 4U) << "damaged bytes count one each";
}

TEST(Text, LeftAndMidNeverCutAPair) {
  const std::string smile = kSmile;
  const std::string mixed = "a" + smile + "b";
  const std::vector<std::string> lefts = {"", "a", "a", "a" + smile, mixed, mixed};
  for (std::size_t i = 0; i < lefts.size(); ++i) EXPECT_EQ(text::Left(mixed, i), lefts[i]) << i;
  const std::vector<std::string> mids = {mixed, mixed, smile + "b", "b", "b", ""};
  for (std::size_t i = 1; i < mids.size(); ++i) EXPECT_EQ(text::Mid(mixed, i), mids[i]) << i;
  EXPECT_EQ(text::Mid(mixed, 3, 1), "") << "the second half is dropped too";
  EXPECT_EQ(text::Mid(mixed, 3, 2), "b");
  EXPECT_EQ(text::Mid("हिन्दी", 3, 2), "न्");
  EXPECT_EQ(text::Mid("abc", 0, 2), "ab");
}

TEST(Text, CaseIsUnicodes) {
  EXPECT_EQ(text::Upper("straße é राम"), "STRASSE É राम");
  EXPECT_EQ(text::Lower("ÉCOLE Ω"), "école ω");
  EXPECT_EQ(text::Upper("title i"), "TITLE I") << "in every locale";
  EXPECT_TRUE(text::EqualNoCase("ÉCOLE", "école"));
  EXPECT_FALSE(text::EqualNoCase("ab", "abc"));
}

TEST(Text, PiecesAndRepairs) {
  EXPECT_EQ(text::Split("a,,b,", ","), (std::vector<std::string>{"a", "", "b", ""}));
  EXPECT_EQ(text::Split("", ","), std::vector<std::string>{""});
  EXPECT_EQ(text::Join(text::Split("x<|||>y<|||>", "<|||>"), "<|||>"), "x<|||>y<|||>");
  EXPECT_EQ(text::ReplaceAll("'''", "'", "''"), "''''''");
  EXPECT_EQ(text::ReplaceAll("aaa", "aa", "a"), "aa");
  EXPECT_EQ(text::Trim("  a b  "), "a b");
  EXPECT_EQ(text::Trim("   "), "");
  EXPECT_EQ(text::Repaired("a\xFFz"), "a\xEF\xBF\xBDz");
  EXPECT_EQ(text::Repaired("राम"), "राम");
  EXPECT_EQ(text::Repaired("\xE0\xA4"), "\xEF\xBF\xBD") << "a character that was cut off";
}

TEST(Text, ValReadsTheNumberAtTheHead) {
  struct Case {
    const char* text;
    double value;
  };
  for (const Case& c : std::initializer_list<Case>{
           {"", 0},    {"  ", 0},     {"abc", 0},    {"12", 12},     {" \t-12.5x", -12.5}, {"+3", 3},
           {"+-3", 0}, {"--3", 0},    {"- 3", 0},    {".5", 0.5},    {"-.5", -0.5},        {"5.", 5},
           {".", 0},   {"-.", 0},     {"1,234", 1},  {"1.2.3", 1.2}, {"1e3", 1000},        {"1E-2x", 0.01},
           {"1e", 1},  {"1e+", 1},    {"0x1F", 0},   {"inf", 0},     {"nan", 0},           {"-inf", 0},
           {"007", 7}, {"12 34", 12}, {"1e-400", 0}, {"०", 0}}) {
    EXPECT_EQ(Val(c.text), c.value) << c.text;
  }
  EXPECT_THROW(Val("1e999"), OverflowError);
  EXPECT_EQ(ValInteger("123.99 Dr"), 123);
  EXPECT_EQ(ValInteger("-9223372036854775808"), INT64_MIN);
  EXPECT_THROW(ValInteger("9223372036854775808"), OverflowError);
  EXPECT_THROW(ValInteger("-1e19"), OverflowError);
}

TEST(Variant, CountsAsWhatItHolds) {
  EXPECT_EQ(Variant().ToText(), "");
  EXPECT_TRUE(Variant().ToAmount().IsZero());
  EXPECT_TRUE(Variant::Null().ToDate().IsEmpty());
  EXPECT_FALSE(Variant::Null().IsEmpty()) << "a null is not an empty value";
  EXPECT_EQ(Variant(true).ToInteger(), -1);
  EXPECT_EQ(Variant(true).ToText(), "True");
  EXPECT_TRUE(Variant("TRUE").ToFlag());
  EXPECT_FALSE(Variant("False").ToFlag());
  EXPECT_TRUE(Variant("-1").ToFlag());
  EXPECT_EQ(Variant(" 12.75 x").ToAmount().Units(), 127500);
  EXPECT_EQ(Variant(Amount::OfText("-12.75")).ToInteger(), -12);
  EXPECT_EQ(Variant(0.1).ToText(), "0.1");
  EXPECT_EQ(Variant(INT64_MAX).ToText(), "9223372036854775807");
  EXPECT_THROW(Variant(INT64_MAX).ToAmount(), OverflowError);
  EXPECT_THROW(Variant(1e30).ToInteger(), OverflowError);
  EXPECT_EQ(Variant("05-Apr-2024").ToDate(), Date::Of(2024, 4, 5));
  EXPECT_THROW(Variant(Date::Of(2024, 4, 5)).ToDouble(), HostError);
  EXPECT_THROW(Variant(Array{1, 2}).ToText(), HostError);
  EXPECT_THROW(Variant("x").ToArray(), HostError);
  EXPECT_EQ(Variant(Array{1, "b"}).ToArray().at(1).ToText(), "b");
  EXPECT_EQ(Variant(5).ToObject(), nullptr);
}

}  // namespace
}  // namespace quillon
