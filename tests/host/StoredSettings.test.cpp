#include <gtest/gtest.h>
#include <random>

#include "host/data/CNameValues.h"
#include "host/data/CTextTable.h"
#include "host/values/Errors.h"

namespace quillon {
namespace {

constexpr const char* kJoint = "<|||>";

/// Texts made of the pieces that a careless stored form would trip over.
std::string AnyText(std::mt19937& random) {
  static const std::vector<std::string> pieces = {
      "<|||>", "<||>", "<|>", "|",  "<", ">", ",", ";", "=", "\\",  "\n",    "\r\n",
      "\t",    " ",    "'",   "\"", "",  "a", "b", "0", "n", "\\n", "हिन्दी", "\xF0\x9F\x98\x80",
      "\xFF"};
  std::string text;
  for (auto left = random() % 8; left > 0; --left) text += pieces[random() % pieces.size()];
  return text;
}

TEST(StoredSettings, EveryValueOfATableComesBackAndTheJointNeverAppears) {
  std::mt19937 random(7);
  for (int round = 0; round < 2000; ++round) {
    CTextTable table;
    table.SetFields("Name,PayeesA/c,PosX");
    const std::size_t rows = random() % 4;
    std::vector<std::vector<std::string>> values(rows);
    for (std::size_t row = 0; row < rows; ++row) {
      for (const char* column : {"Name", "PayeesA/c", "PosX"}) {
        values[row].push_back(AnyText(random));
        table.SetField(row, column, values[row].back());
      }
    }
    const std::string stored = table.Text();
    ASSERT_EQ(stored.find(kJoint), std::string::npos) << stored;
    CTextTable read;
    read.Load(stored, "Name,PayeesA/c,PosX");
    ASSERT_EQ(read.RowCount(), rows);
    for (std::size_t row = 0; row < rows; ++row) {
      EXPECT_EQ(read.Field(row, "NAME"), values[row][0]);
      EXPECT_EQ(read.Field(row, "payeesa/C"), values[row][1]);
      EXPECT_EQ(read.Field(row, "PosX"), values[row][2]);
    }
  }
}

TEST(StoredSettings, EveryValueOfABagComesBackInItsOrder) {
  std::mt19937 random(11);
  for (int round = 0; round < 2000; ++round) {
    CNameValues bag;
    for (auto left = random() % 5; left > 0; --left) bag.SetItem(AnyText(random), AnyText(random));
    ASSERT_EQ(bag.Text().find(kJoint), std::string::npos);
    CNameValues read;
    read.Load(bag.Text());
    EXPECT_EQ(read.Items(), bag.Items());
  }
}

TEST(StoredSettings, ATextCutOffAnywhereIsRefusedAndChangesNothing) {
  CTextTable table;
  table.SetFields("ObjID,PosX");
  table.SetField(0, "ObjID", "Pay, to");
  table.SetField(0, "PosX", "120.5");
  const std::string whole = table.Text();
  for (std::size_t length = 1; length < whole.size(); ++length) {
    EXPECT_THROW(table.Load(whole.substr(0, length), "PosX,ObjID,More"), HostError) << length;
    EXPECT_EQ(table.Text(), whole);
  }
  CNameValues bag;
  bag.SetItem("Left", "2|3");
  const std::string stored = bag.Text();
  for (std::size_t length = 1; length < stored.size(); ++length)
    EXPECT_THROW(bag.Load(stored.substr(0, length)), HostError) << length;
  EXPECT_THROW(bag.Load("A=1;a=2;"), HostError) << "a name that stands twice";
  EXPECT_THROW(bag.Load("A=1=2;"), HostError);
  EXPECT_EQ(bag.Text(), stored);
  EXPECT_THROW(table.Load("a,b,c;"), HostError) << "more values than columns";
  EXPECT_THROW(table.Load("a\\x,b;"), HostError) << "an unknown escape";
  table.Load("", "PrintStamp,FontName");
  EXPECT_EQ(table.RowCount(), 0U);
  bag.Load("");
  EXPECT_TRUE(bag.Items().empty());
}

TEST(StoredSettings, RowsGrowAndShrinkAndLaterColumnsAreEmpty) {
  CTextTable table;
  table.SetFields("ObjID");
  EXPECT_THROW(table.SetField(0, "PosX", "1"), SubscriptError);
  EXPECT_THROW(table.RowText(0), SubscriptError);
  table.SetField(3, "ObjID", "last");
  EXPECT_EQ(table.RowCount(), 4U);
  table.SetRowCount(1);
  EXPECT_EQ(table.RowCount(), 2U);
  EXPECT_EQ(table.Field(3, "ObjID"), "");
  EXPECT_EQ(table.Field(0, "Unknown"), "");
  table.SetField(1, "ObjID", "Date");
  CTextTable read;
  read.Load(table.Text(), "ObjID, BankDetails");
  ASSERT_EQ(read.RowCount(), 2U) << "rows without a value are rows";
  EXPECT_EQ(read.Field(1, "ObjID") + read.Field(1, "BankDetails"), "Date");
  read.SetField(1, "BankDetails", "1");
  EXPECT_EQ(read.Field(1, "bankdetails"), "1");
}

}  // namespace
}  // namespace quillon
