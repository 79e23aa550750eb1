#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <thread>

#include "desk/firm/Firm.h"
#include "desk/services/VoucherStore.h"
#include "host/data/CDataSet.h"
#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

/// Vouchers in the books, stored, changed and deleted.
class Vouchers : public DeskTest {
 protected:
  void SetUp() override {
    OpenNewFirm();
    AddAccount(1, "Cash", 46);
    AddAccount(101, "Sahyadri Bank", 47);
    for (int code = 201; code <= 204; ++code) AddAccount(code, "Party " + std::to_string(code), 140);
    for (int leaf = 1; leaf <= 6; ++leaf) {
      Db().Execute("insert into ChqLeaves (ID,BankCode,ChqNo) values (" + std::to_string(leaf) + ",101," +
                   std::to_string(500 + leaf) + ")");
    }
  }

  static NewVoucher Payment(int day, int party, int rupees, const std::string& narration = "Paid") {
    NewVoucher voucher;
    voucher.Day = Date::Of(2024, 4, day);
    voucher.Book = "B1";
    voucher.Type = "BP1";
    voucher.Narration = narration;
    voucher.Party = party;
    voucher.Lines = {{101, Amount::OfInteger(-rupees)}, {party, Amount::OfInteger(rupees)}};
    return voucher;
  }

  /// All rows of a query, their fields joined by bars.
  std::multiset<std::string> Rows(const std::string& query) const {
    std::multiset<std::string> rows;
    CDataSet set;
    for (set.Open(query, Db()); !set.Eof(); set.MoveNext()) {
      std::string row;
      for (std::size_t i = 0; i < set.FieldNames().size(); ++i) row += set.Field(i).ToText() + "|";
      rows.insert(row);
    }
    return rows;
  }
};

TEST_F(Vouchers, TwoDesksThatStoreAtOnceNeverGetOneNumber) {
  constexpr int kEach = 20;
  const std::unique_ptr<Firm> other = Firm::Open(desk_.Session().Books().Folder());
  CDbLink& theirs = *other->OpenYear(2024).Db;
  std::string failure;
  std::jthread desk([&] {
    try {
      for (int i = 0; i < kEach; ++i) VoucherStore(theirs).Store(Payment(5, 202, 10));
    } catch (const std::exception& error) {
      failure = error.what();
    }
  });
  for (int i = 0; i < kEach; ++i) VoucherStore(Db()).Store(Payment(6, 201, 10));
  desk.join();
  EXPECT_EQ(failure, "");
  EXPECT_EQ(Db().Lookup("FAData", "Count(distinct dVchNo)", "").ToInteger(), 2 * kEach);
  EXPECT_EQ(Db().Lookup("FAData", "Count(distinct VoucherID)", "").ToInteger(), 2 * kEach);
  EXPECT_EQ(Db().Lookup("FAData", "Max(cast(dVchNo as integer))", "").ToInteger(), 2 * kEach)
      << "without a gap";
  EXPECT_EQ(Db().Lookup("FANar", "Count(*)", "").ToInteger(), 2 * kEach);
}

TEST_F(Vouchers, WhatAnotherOneHasChangedIsNotOverwritten) {
  VoucherStore store(Db());
  NewVoucher voucher = Payment(5, 201, 100);
  voucher.LeafBank = 101;
  voucher.LeafNumber = 501;
  const std::int64_t id = store.Store(voucher);
  const StoredVoucher seen = *StoredVoucher::Read(Db(), id);
  EXPECT_EQ(seen.LeafNumber, 501);
  Db().Execute("update FAData set dLocked=1 where dVchSubNo=2");
  EXPECT_THROW(store.Replace(seen, Payment(5, 202, 7)), VoucherRefused);
  EXPECT_THROW(store.Delete(seen), VoucherRefused);
  NewVoucher second = Payment(6, 202, 50);
  second.LeafBank = 101;
  second.LeafNumber = 501;
  EXPECT_THROW(store.Store(second), VoucherRefused);
  EXPECT_EQ(Db().Lookup("FAData", "Count(*)", "").ToInteger(), 2) << "nothing of them is there";
  EXPECT_EQ(*StoredVoucher::Read(Db(), id), [&] {
    StoredVoucher locked = seen;
    locked.Lines[1].IsLocked = true;
    return locked;
  }());
}

TEST_F(Vouchers, AChangedVoucherKeepsWhatStaysOfIt) {
  VoucherStore store(Db());
  NewVoucher voucher = Payment(5, 201, 100);
  voucher.Number = "00041";
  const std::int64_t id = store.Store(voucher);
  Db().Execute("update FAData set dBankDate='2024-04-09' where dcd=101");
  Db().Execute("update FADocs set ChqReturn='Y'");
  const std::int64_t shared = Db().Lookup("FAData", "NarrationID", "").ToInteger();
  AddVoucher({.id = 90, .date = "2024-05-01", .amount = "5"});
  Db().Execute("update FAData set NarrationID=" + std::to_string(shared) + " where VoucherID=90");
  voucher.Number = "";
  voucher.Narration = "Paid in full";
  voucher.Day = Date::Of(2024, 4, 6);
  store.Replace(*StoredVoucher::Read(Db(), id), voucher);
  const StoredVoucher after = *StoredVoucher::Read(Db(), id);
  EXPECT_EQ(after.Number, "00041");
  EXPECT_EQ(after.Narration, "Paid in full");
  EXPECT_EQ(after.Lines[0].Cleared, Date::Of(2024, 4, 9)) << "the same entry at the bank";
  EXPECT_EQ(StoredVoucher::Read(Db(), 90)->Narration, "Paid") << "shared by another voucher";
  voucher.Lines = {{101, Amount::OfInteger(-90)}, {202, Amount::OfInteger(90)}};
  voucher.Party = 202;
  store.Replace(after, voucher);
  EXPECT_EQ(StoredVoucher::Read(Db(), id)->Lines[0].Cleared, Date());
  EXPECT_EQ(Rows("select PartyCode,ChqReturn from FADocs where VoucherID=" + std::to_string(id)),
            std::multiset<std::string>{"202|Y|"});
  EXPECT_EQ(store.NextNumber("BP1"), "00042");
}

/// What the books must hold, kept by the test alone.
struct Model {
  struct Entry {
    int Day;
    int Party;
    int Rupees;
    int Leaf;
    std::string Narration;
  };
  std::map<std::int64_t, Entry> Entries;

  bool HasLeaf(int leaf) const {
    return std::any_of(Entries.begin(), Entries.end(),
                       [leaf](const auto& entry) { return entry.second.Leaf == leaf; });
  }
};

TEST_F(Vouchers, RandomVouchersStoredChangedAndDeletedLeaveWhatTheModelHolds) {
  std::mt19937 random(7);
  const auto below = [&random](int count) {
    return static_cast<int>(random() % static_cast<unsigned>(count));
  };
  VoucherStore store(Db());
  Model model;
  for (int step = 0; step < 120; ++step) {
    Model::Entry entry{1 + below(20), 201 + below(4), 1 + below(900), 501 + below(6),
                       "Paid " + std::to_string(below(5))};
    if (model.HasLeaf(entry.Leaf)) entry.Leaf = 0;
    NewVoucher voucher = Payment(entry.Day, entry.Party, entry.Rupees, entry.Narration);
    if (entry.Leaf != 0) {
      voucher.LeafBank = 101;
      voucher.LeafNumber = entry.Leaf;
    }
    const int act = model.Entries.empty() ? 0 : below(4);
    if (act < 2) {
      model.Entries[store.Store(voucher)] = entry;
      continue;
    }
    auto chosen = model.Entries.begin();
    std::advance(chosen, below(static_cast<int>(model.Entries.size())));
    const StoredVoucher before = *StoredVoucher::Read(Db(), chosen->first);
    if (act == 2) {
      store.Replace(before, voucher);
      chosen->second = entry;
    } else {
      store.Delete(before);
      model.Entries.erase(chosen);
    }
  }
  std::multiset<std::string> lines;
  std::multiset<std::string> leaves;
  std::multiset<std::string> documents;
  for (const auto& [id, entry] : model.Entries) {
    const std::string voucher = std::to_string(id) + "|";
    const std::string party = std::to_string(entry.Party);
    const std::string day = Date::Of(2024, 4, entry.Day).Text() + "|";
    const std::string paid = std::to_string(entry.Rupees) + "|";
    lines.insert(voucher + day + "101|" + party + "|-" + paid + entry.Narration + "|");
    lines.insert(voucher + day + party + "|101|" + paid + entry.Narration + "|");
    documents.insert(voucher + party + "|");
    if (entry.Leaf != 0)
      leaves.insert(std::to_string(entry.Leaf) + "|" + voucher + day + party + "|" + paid + entry.Narration +
                    "|");
  }
  EXPECT_GT(lines.size(), 20U);
  EXPECT_EQ(
      Rows("select a.VoucherID,a.dVchDate,a.dcd,a.dcd2,a.dAmt,n.Narration from FAData a left join FANar n "
           "on n.NarrationID=a.NarrationID"),
      lines);
  EXPECT_EQ(
      Rows("select l.ChqNo,l.VoucherID,l.IsuDate,l.PartyCode,l.Amount,n.Narration from ChqLeaves l left join "
           "FANar n on n.NarrationID=l.NarrationID where l.VoucherID is not null or l.Amount is not null"),
      leaves);
  EXPECT_EQ(Rows("select VoucherID,PartyCode from FADocs"), documents);
  EXPECT_EQ(Db().Lookup("FANar", "Count(*)", "").ToInteger(),
            static_cast<std::int64_t>(model.Entries.size()));
}

}  // namespace
}  // namespace quillon
