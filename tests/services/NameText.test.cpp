#include "desk/services/NameText.h"

#include <array>
#include <gtest/gtest.h>

#include "books/SqlText.h"
#include "desk/services/NarrationText.h"

namespace quillon {
namespace {

TEST(SqlText, DatesAndTextsAsLiterals) {
  EXPECT_EQ(books::SqlDate(Date::Of(2024, 4, 1)), "'2024-04-01'");
  EXPECT_EQ(books::SqlDate(Date()), "");
  EXPECT_EQ(books::SqlDate(Date::Of(2024, 4, 1), Date::Of(2025, 3, 31)), "'2024-04-01' and '2025-03-31'");
  EXPECT_EQ(books::SqlDate(Date::Of(2024, 4, 1), Date()), "'2024-04-01'");
  EXPECT_EQ(books::SqlDate(Date(), Date::Of(2025, 3, 31)), "");
  EXPECT_EQ(books::SqlString("O'Brien's ''"), "'O''Brien''s '''''");
  EXPECT_EQ(books::SqlString(""), "''");
  EXPECT_EQ(books::SqlString("हिन्दी"), "'हिन्दी'");
}

TEST(NameText, PressedHeadsKeepLettersAndDigitsOfEveryScript) {
  EXPECT_EQ(PressHead("M/s Ram & Sons (Pune) 2nd"), "MSRAMSONSPUNE2ND");
  EXPECT_EQ(PressHead("  café Ünal"), "CAFÉÜNAL");
  EXPECT_EQ(PressHead("श्री राम ट्रेडर्स, पुणे"), "श्रीरामट्रेडर्सपुणे");
  EXPECT_EQ(PressHead("राम\xE2\x80\x8D"), "राम") << "the joiner is no letter";
  EXPECT_EQ(PressHead("a\xFF\xF0\x9F\x98\x80z"), "AZ");
}

TEST(NameText, TidyNamesReadWell) {
  EXPECT_EQ(TidyName("  RAM   LAL & SONS\t(PUNE) "), "Ram Lal & Sons (Pune)");
  EXPECT_EQ(TidyName("P.N.B. HARBOUR-MILLS Tata MOTORS eBay"), "P.N.B. Harbour-Mills Tata Motors eBay");
  EXPECT_EQ(TidyName("O'BRIEN 2ND FLOOR"), "O'Brien 2nd Floor");
  EXPECT_EQ(TidyName("राम TRADERS ÉCOLE"), "राम Traders École");
}

TEST(NarrationText, AChequeNumberIsTakenOut) {
  using Case = std::array<const char*, 3>;
  for (const auto& [told, chequeNo, left] :
       {Case{"Chq.No. 123456", "123456", ""}, Case{"Being paid by Ch No 123456", "123456", "Being paid by"},
        Case{"Cheque 000123 to Ram", "000123", "to Ram"},
        Case{"CHQ#4411, rent for May", "4411", "rent for May"},
        Case{"Rent, Chq no: 12, Ram", "12", "Rent, Ram"},
        Case{"Rent (Chq.No.12) of May", "12", "Rent of May"}, Case{"Paid chqno998877.", "998877", "Paid"},
        Case{"Cheque number - 55 :: Ram", "55", ":: Ram"},
        Case{"Chq.No. 77::Ram Traders", "77", "::Ram Traders"},
        Case{"Chq dt 1/4 Chq No 9", "9", "Chq dt 1/4"}, Case{"किराया Chq 101", "101", "किराया"}}) {
    std::string narration = told;
    std::string number;
    ChqNoFromNarration(narration, number);
    EXPECT_EQ(number + "|" + narration, std::string(chequeNo) + "|" + left) << told;
  }
}

TEST(NarrationText, WhatIsNoChequeNumberStays) {
  for (const char* text : {"", "Rent for May", "Chq", "Chq.No.", "Cheque of 5000.00", "Cheque 5,000",
                           "Chq 15/04/2024", "Ch 500 for freight", "March 2024", "Chq 12a",
                           "Chq 1234567890123", "Batch No 12", "मchq 12", "Cheques 12"}) {
    std::string narration = text;
    std::string number;
    ChqNoFromNarration(narration, number);
    EXPECT_EQ(number, "") << text;
    EXPECT_EQ(narration, text);
  }
  std::string narration = "Chq.No. 123456";
  std::string number = "9";
  ChqNoFromNarration(narration, number);
  EXPECT_EQ(number, "9") << "a number that is known is kept";
  EXPECT_EQ(narration, "Chq.No. 123456");
}

TEST(NarrationText, LinesWrapAtWords) {
  const std::string words = "Twelve Lakh Thirty Four Thousand Five Hundred Sixty Seven Only";
  EXPECT_EQ(WrapLine(words, 40, 1), "Twelve Lakh Thirty Four Thousand Five");
  EXPECT_EQ(WrapLine(words, 40, 2), "Hundred Sixty Seven Only");
  EXPECT_EQ(WrapLine(words, 40, 3), "");
  EXPECT_EQ(WrapLine(words, 40, 0), "");
  EXPECT_EQ(WrapLine("One Two", 7, 1), "One Two") << "a line may be full";
  EXPECT_EQ(WrapLine("One Two", 6, 1), "One");
  EXPECT_EQ(WrapLine("  One   Two  ", 40, 1), "One Two");
  EXPECT_EQ(WrapLine("ab ABCDEFGHIJ z", 4, 2), "ABCD") << "a long word is cut";
  EXPECT_EQ(WrapLine("ab ABCDEFGHIJ z", 4, 4), "IJ z");
  EXPECT_EQ(WrapLine("श्री राम", 4, 1), "श्री");
  EXPECT_EQ(WrapLine("\xF0\x9F\x98\x80\xF0\x9F\x98\x80", 1, 2), "\xF0\x9F\x98\x80") << "a pair is never cut";
  EXPECT_EQ(WrapLine("", 40, 1), "");
}

}  // namespace
}  // namespace quillon
