#include <fstream>
#include <gtest/gtest.h>

#include "host/data/CXmlTable.h"
#include "tests/support/TempFolder.h"

namespace quillon {
namespace {

/// A file that is gone when the test ends.
class XmlTable : public testing::Test {
 protected:
  std::string File(const std::string& content) const {
    std::ofstream(folder_.File("layout.xml"), std::ios::binary) << content;
    return folder_.File("layout.xml");
  }

  TempFolder folder_;
};

constexpr const char* kLayout =
    "<?xml version=\"1.0\" ?>\n<DataRoot>\n<ChqSettings>\n<Data>\n<FontName>Arial</FontName>\n"
    "<Remarks>A &amp; B <![CDATA[<Sons>]]></Remarks>\n<Blank> </Blank>\n<None/>\n</Data>\n</ChqSettings>\n"
    "<ChqObjects>\n<Data>\n<ObjID>राम</ObjID>\n<PosX>120</PosX>\n</Data>\n<Other/>\n<Data>\n"
    "<ObjID>Date</ObjID>\n</Data>\n</ChqObjects>\n</DataRoot>\n";

TEST_F(XmlTable, ReadsTheRowsOfTheSelectedElement) {
  CXmlTable table;
  ASSERT_TRUE(table.Load(File(kLayout)));
  EXPECT_EQ(table.RowCount(), 0U) << "no element is selected yet";
  table.SelectTable("ChqSettings");
  ASSERT_EQ(table.RowCount(), 1U);
  EXPECT_EQ(table.Field(0, "FontName"), "Arial");
  EXPECT_EQ(table.Field(0, "Remarks"), "A & B <Sons>");
  EXPECT_EQ(table.Field(0, "Blank"), " ");
  EXPECT_EQ(table.Field(0, "None"), "");
  EXPECT_EQ(table.Field(0, "PayeesA/c"), "");
  table.SelectTable("ChqObjects");
  ASSERT_EQ(table.RowCount(), 2U);
  EXPECT_EQ(table.Field(0, "ObjID"), "राम");
  EXPECT_EQ(table.Field(1, "ObjID"), "Date");
  EXPECT_EQ(table.Field(1, "PosX"), "");
  EXPECT_EQ(table.Field(2, "ObjID"), "");
  table.SelectTable("Nothing");
  EXPECT_EQ(table.RowCount(), 0U);
}

TEST_F(XmlTable, AFileThatCannotBeReadHasNoTables) {
  CXmlTable table;
  for (const std::string& bad :
       {std::string(), std::string("no xml"), std::string("<DataRoot><ChqSettings><Data>"),
        std::string(
            "<DataRoot><ChqSettings><Data><Remarks>A & B < C</Remarks></Data></ChqSettings></DataRoot>"),
        std::string(kLayout).substr(0, 200), std::string("\xFF\xFE\0<", 4)}) {
    ASSERT_TRUE(table.Load(File(kLayout)));
    table.SelectTable("ChqSettings");
    EXPECT_FALSE(table.Load(File(bad))) << bad;
    EXPECT_EQ(table.RowCount(), 0U);
    table.SelectTable("ChqSettings");
    EXPECT_EQ(table.RowCount(), 0U) << bad;
  }
  EXPECT_FALSE(table.Load(folder_.Path().string())) << "a folder";
  EXPECT_FALSE(table.Load(folder_.File("absent.xml")));
}

TEST_F(XmlTable, ElementsNestedWithoutEndDoNoHarm) {
  constexpr int kDepth = 200000;
  std::string deep;
  for (int i = 0; i < kDepth; ++i) deep += "<Data>";
  CXmlTable table;
  EXPECT_FALSE(table.Load(File(deep)));
  for (int i = 0; i < kDepth; ++i) deep += "</Data>";
  ASSERT_TRUE(table.Load(File(deep)));
  table.SelectTable("Data");
  EXPECT_EQ(table.RowCount(), 1U);
}

}  // namespace
}  // namespace quillon
