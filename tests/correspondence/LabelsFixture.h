#pragma once

#include "host/values/Text.h"
#include "tests/support/DeskFixture.h"
#include "tests/support/PdfReader.h"

namespace quillon {

/// A firm with parties A to G of one station.
class PartiesTest : public DeskTest {
 protected:
  using Texts = std::vector<std::string>;

  void SetUp() override {
    OpenNewFirm();
    int code = 201;
    for (const char* head : {"Asha", "Bharat", "Chetan", "Durga", "Ekta", "Falgun", "Gita"}) {
      AddAccount(code++, head, 140, "Surat");
    }
    AddAccount(301, "Nowhere");
  }

  void Click(Control& control) {
    Do([&] { control.UserClick(); });
  }
  void AnswerParties(const std::string& clause) {
    runtime_.Laid.Add({{"to", "parties"}, {"clause", clause}, {"caption", "Words"}});
  }

  FormPtr form_;
};

}  // namespace quillon
