#include "bench/Stand.h"

#include "bench/BenchFirm.h"

namespace quillon::bench {

namespace {

constexpr const char* kConnection = "select current_connection from rdb$database";

std::string ThisConnection(RawClient& client) { return std::to_string(client.Numbers(kConnection).at(0)); }

const std::string kAccount = "a.dcd=" + std::to_string(kBank) + " and a.dBook<>'MEM' and a.dBook<>'0B'";
const std::string kOpen = kAccount + " and a.dBankDate is null";
const std::string kCleared = kAccount + " and a.dBankDate between '2024-04-01' and '2025-03-31'";

/// The entries with their narrations in the order asked for.
std::string Entries(const std::string& condition, const std::string& order) {
  return "select a.*,n.Narration from (select a.VoucherID,a.dVchSubNo,a.dVchDate,a.dBook,a.dAmt,a.dBankDate,"
         "a.NarrationID from FAData a where " +
         condition + " order by " + order + ") a left join FANar n on a.NarrationID=n.NarrationID";
}

/// Their other sides together.
std::string OtherSides(const std::string& condition) {
  return "select l.VoucherID,l.dcd,l.dAmt from FAData a join FAData l on l.VoucherID=a.VoucherID and "
         "l.dVchSubNo<>a.dVchSubNo where " +
         condition;
}

}  // namespace

const std::vector<Case>& Cases() {
  static const auto nothing = [](DeskWork&) {};
  static const std::string byDay = "a.dVchDate,a.dBook";
  static const std::string byClearing = "a.dBankDate,a.dVchNo,a.dSrNo";
  static const std::vector<Case> cases = {
      {"Statement of account",
       &DeskWork::CloseForms,
       &DeskWork::OpenStatement,
       &DeskWork::CloseForms,
       1,
       {"select a.VoucherID,a.dVchSubNo,a.dVchNo,a.dVchDate,a.dBook,a.dAmt,a.dTrnNature,a.dBankDate,"
        "a.NarrationID from FAData a where " +
            kAccount + " order by a.dVchDate",
        "select VoucherID from FADocs where ChqReturn='Y'"}},
      {"Graph of the year",
       &DeskWork::ReadyStatement,
       &DeskWork::OpenGraph,
       &DeskWork::CloseGraph,
       1,
       {"select a.dVchDate,sum(a.dAmt) from FAData a where " + kAccount +
        " and a.dVchDate between '2024-04-01' and '2025-03-31' group by a.dVchDate"}},
      {"Workbench opened", &DeskWork::ReadyStatement, &DeskWork::OpenWorkbench, &DeskWork::CloseWorkbench},
      {"Date stored", &DeskWork::ReadyEntries, &DeskWork::StoreDate, nothing, DeskWork::kRows},
      {"Reconciliation, no references",
       [](DeskWork& desk) { desk.ReadyReconciliation(true); },
       &DeskWork::PressReferences,
       nothing,
       1,
       {Entries(kOpen, byDay)}},
      {"Reconciliation, references",
       [](DeskWork& desk) { desk.ReadyReconciliation(false); },
       &DeskWork::PressReferences,
       nothing,
       1,
       {Entries(kOpen, byDay), OtherSides(kOpen)}},
      {"Pass book, no references",
       [](DeskWork& desk) { desk.ReadyPassBook(true); },
       &DeskWork::PressReferences,
       nothing,
       1,
       {Entries(kCleared, byClearing)}},
      {"Pass book, references",
       [](DeskWork& desk) { desk.ReadyPassBook(false); },
       &DeskWork::PressReferences,
       nothing,
       1,
       {Entries(kCleared, byClearing), OtherSides(kCleared)}},
      {"Interest", [](DeskWork& desk) { desk.ReadyPassBook(false); }, &DeskWork::ShowInterest, nothing},
      {"Cheque looked up", &DeskWork::ReadyMarkings, &DeskWork::LookUpCheque, nothing, DeskWork::kRows},
      {"1,000 entries marked", &DeskWork::ReadyMassMarking, &DeskWork::MarkThousand, nothing},
  };
  return cases;
}

/// Notes the statements of the desk, act by act.
class Stand::Recorder : public SqlObserver {
 public:
  explicit Recorder(Stand& stand) : stand_(stand) { Listen(this); }
  ~Recorder() override { Listen(nullptr); }

  void OnStatement(const CDbLink& link, const std::string&, const std::string& sql, std::int64_t,
                   const std::string&) override {
    Database& database = &link == &stand_.year_.Link ? stand_.year_ : stand_.common_;
    stand_.acts_.back().push_back({&database.Floor, sql});
  }

 private:
  void Listen(SqlObserver* observer) {
    stand_.year_.Link.SetObserver(observer);
    stand_.common_.Link.SetObserver(observer);
  }

  Stand& stand_;
};

Stand::Database::Database(FirebirdLink& link)
    : Link(link),
      File(link.Lookup("mon$database", "mon$database_name", "").ToText()),
      Floor(File),
      Monitor(File),
      DeskId(link.Lookup("rdb$database", "current_connection", "").ToText()),
      FloorId(ThisConnection(Floor)) {}

Stand::Stand(const std::filesystem::path& firm) : Work(firm), year_(Work.Year()), common_(Work.Common()) {}

Counts Stand::Snapshot(std::string Database::*who) {
  Counts counts;
  for (Database* database : {&year_, &common_}) {
    const std::vector<std::int64_t> now = database->Monitor.Numbers(
        "select i.mon$page_writes,r.mon$record_seq_reads,r.mon$record_idx_reads from mon$attachments a "
        "join mon$io_stats i on i.mon$stat_id=a.mon$stat_id "
        "join mon$record_stats r on r.mon$stat_id=a.mon$stat_id where a.mon$attachment_id=" +
        database->*who);
    counts.PageWrites += static_cast<double>(now.at(0));
    counts.RowsRead += static_cast<double>(now.at(1) + now.at(2));
  }
  return counts;
}

Counts Stand::Count(std::string Database::*who, std::size_t acts, const std::function<void()>& act) {
  const Counts before = Snapshot(who);
  const std::int64_t prepared = RawClient::StatementsPrepared();
  for (std::size_t i = 0; i < acts; ++i) act();
  const auto preparedNow = static_cast<double>(RawClient::StatementsPrepared() - prepared);
  const Counts after = Snapshot(who);
  const auto each = static_cast<double>(acts);
  return {(after.PageWrites - before.PageWrites) / each, preparedNow / each,
          (after.RowsRead - before.RowsRead) / each};
}

void Stand::Record(const Case& measured) {
  acts_.clear();
  next_ = 0;
  measured.Ready(Work);
  {
    const Recorder recorder(*this);
    for (int i = 0; i < measured.Acts; ++i) {
      acts_.emplace_back();
      measured.Act(Work);
    }
  }
  measured.Undo(Work);
  measured.Ready(Work);
  desk_ = Count(&Database::DeskId, acts_.size(), [&] { measured.Act(Work); });
  measured.Undo(Work);
  // Once before it is counted: the desk has taken over the pages that both change.
  for (std::size_t i = 0; i < acts_.size(); ++i) RunFloor(false);
  floor_ = Count(&Database::FloorId, acts_.size(), [&] { RunFloor(false); });
}

void Stand::RunFloor(bool prepared) {
  for (const Sent& sent : acts_[next_++ % acts_.size()]) {
    prepared ? sent.To->RunPrepared(sent.Sql) : sent.To->Run(sent.Sql);
  }
}

void Stand::RunLean(const Case& measured) {
  for (const std::string& sql : measured.Lean) year_.Floor.Run(sql);
}

}  // namespace quillon::bench
