#include <fstream>

#include "desk/services/NameText.h"
#include "desk/services/NarrationText.h"
#include "host/data/CNameValues.h"
#include "host/data/CTextTable.h"
#include "host/data/CXmlTable.h"
#include "host/values/Text.h"
#include "tests/fuzz/Mutator.h"
#include "tests/support/TempFolder.h"

namespace quillon {
namespace {

const std::vector<std::string> kTokens = {",", ";",  "=",  "\\",   "\\c", "\\p", "\\0", "<|||>",
                                          "|", "\n", "\r", "\xFF", "राम", ",;",  ";;",  "a=b;"};

TEST(Fuzz, NameValues) {
  CNameValues kept;
  kept.SetItem("TopMargin", "1.5");
  Fuzz(Mutator({"TopMargin=1.25;LeftMargin=0.5;Landscape=1;", "Note=a\\cb\\p\\n;", ""}, kTokens),
       [&](const std::string& input) {
         CNameValues bag = kept;
         try {
           bag.Load(input);
         } catch (const HostError&) {
           EXPECT_EQ(bag.Items(), kept.Items()) << "a refused text changed the bag";
           throw;
         }
         CNameValues again;
         again.Load(bag.Text());
         EXPECT_EQ(again.Items(), bag.Items());
         EXPECT_EQ(bag.Text(), input) << "each bag has one text";
       });
}

TEST(Fuzz, TextTable) {
  const std::string columns = "ObjID,PosX,PosY";
  CTextTable kept;
  kept.Load("Date,10,20;", columns);
  Fuzz(Mutator({"Date,120,45.5;Pay\\c to,1,2;", "a\\bb\\n,;,,;", "one;", ""}, kTokens),
       [&](const std::string& input) {
         CTextTable table = kept;
         try {
           table.Load(input, columns);
         } catch (const HostError&) {
           EXPECT_EQ(table.Text(), kept.Text()) << "a refused text changed the table";
           throw;
         }
         CTextTable again;
         again.Load(table.Text(), columns);
         EXPECT_EQ(again.Text(), table.Text());
         EXPECT_EQ(table.Text().find("<|||>"), std::string::npos);
         for (std::size_t row = 0; row < table.RowCount(); ++row) {
           again.Load(table.RowText(row), columns);
           EXPECT_EQ(again.RowCount(), 1U);
           EXPECT_EQ(again.Field(0, "PosX"), table.Field(row, "PosX"));
         }
       });
}

TEST(Fuzz, XmlTable) {
  const TempFolder folder;
  const std::string file = folder.File("layout.xml");
  const Mutator layouts(
      {"<?xml version=\"1.0\" ?>\n<DataRoot>\n<Chq>\n"
       "<Data>\n<ObjID>Pay &amp; to</ObjID>\n<PosX>1</PosX>\n</Data>\n<Data/>\n</Chq>\n</DataRoot>\n",
       "<R><Chq><Data><ObjID><![CDATA[a]]>b</ObjID></Data></Chq></R>",
       std::string("\xFF\xFE<\0R\0/\0>\0", 10)},
      text::Split("< > </ /> & &amp; &#0; &#x10FFFF; &#xD800; <!-- --> <![CDATA[ ]]> <Data> </Data> <Chq> "
                  "<!DOCTYPE\ta\t[<!ENTITY\tb\t\"&b;\">]> <? ?> \" \xEF\xBB\xBF \xFE\xFF "
                  "encoding=\"UTF-16\" \xFF राम " +
                      std::string(1, '\0'),
                  " "));
  CXmlTable table;
  Fuzz(
      layouts,
      [&](const std::string& input) {
        std::ofstream(file, std::ios::binary) << input;
        const bool loaded = table.Load(file);
        EXPECT_EQ(table.RowCount(), 0U) << "the rows of the file before are left";
        table.SelectTable("Chq");
        EXPECT_TRUE(loaded || table.RowCount() == 0);
        for (std::size_t row = 0; row <= table.RowCount(); ++row) {
          const std::string value = table.Field(row, "ObjID");
          EXPECT_EQ(text::Repaired(value), value) << "what is read is text";
        }
      },
      1000);
}

TEST(Fuzz, NamesAndNarrations) {
  Fuzz(Mutator({"Rent (Chq.No. 000123) of May", "M/S RAM & SONS", "श्री राम ट्रेडर्स", "CHQ#4411, paid"},
               {"chq", "Ch", "no", "#", ".", " ", "12", "(", ")", "/", "\xFF", "\xF0\x9F\x98\x80", "ा", "\t",
                "ß"}),
       [](const std::string& input) {
         EXPECT_EQ(PressHead(PressHead(input)), PressHead(input));
         EXPECT_EQ(PressHead(TidyName(input)), PressHead(input)) << "tidying loses no letter";
         std::string narration = input;
         std::string number;
         ChqNoFromNarration(narration, number);
         EXPECT_EQ(number.find_first_not_of("0123456789"), std::string::npos);
         EXPECT_EQ(number.empty(), narration == input);
         std::string joined;
         for (int line = 1; !WrapLine(input, 7, line).empty(); ++line) joined += WrapLine(input, 7, line);
         EXPECT_EQ(text::ReplaceAll(joined, " ", ""), text::ReplaceAll(input, " ", ""))
             << "wrapping loses nothing";
       });
}

}  // namespace
}  // namespace quillon
