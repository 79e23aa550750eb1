#include "desk/sample/SampleCheques.h"

#include "desk/sample/SampleMasters.h"

namespace quillon {

namespace {

constexpr int kLeavesInBook = 50;
constexpr int kFirstCheque = 470001;

}  // namespace

void SampleCheques::ReceiveBook(int bank, Date day) {
  int& number = nextNumber_[bank];
  if (number == 0) number = kFirstCheque + (bank - SampleCode::kMainBank) * 100000;
  for (int i = 0; i < kLeavesInBook; ++i) {
    SampleLeaf leaf;
    leaf.Number = number++;
    leaf.Received = day;
    leaves_[bank].push_back(leaf);
  }
}

SampleLeaf& SampleCheques::NextLeaf(int bank, Date day) {
  std::size_t& next = nextLeaf_[bank];
  for (;;) {
    if (next == leaves_[bank].size()) ReceiveBook(bank, day);
    SampleLeaf& leaf = leaves_[bank][next++];
    leaf.IsCancelled = random_.InThousand(30);
    if (!leaf.IsCancelled) return leaf;
  }
}

}  // namespace quillon
